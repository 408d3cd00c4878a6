#pragma once

#include "Foundation/Timestamp.h"
#include "Models/Block.h"

#include <QList>

#include <optional>

enum class PageKind { page, note };

template <>
struct EnumTable<PageKind> {
    static constexpr auto cases = std::to_array<EnumCase<PageKind>>({
        {PageKind::page, "page", QT_TRANSLATE_NOOP("EnumLabel", "Page")},
        {PageKind::note, "note", QT_TRANSLATE_NOOP("EnumLabel", "Note")},
    });
};

/// A document of blocks. A page of the kind `note` is a quick note.
struct Page {
    QUuid id;
    QString title = QStringLiteral("Untitled");
    QString icon = QStringLiteral("📄");
    PageKind kind = PageKind::page;
    QList<Block> content;
    bool isFavorite = false;
    /// The folder that holds the page; nothing means that it is loose.
    std::optional<QUuid> folderID;
    double sortOrder = 0;
    Timestamp createdDate;
    Timestamp updatedDate;

    bool operator==(const Page &) const = default;

    /// The texts of all blocks in order, joined with a blank and trimmed.
    QString previewText() const;

    static constexpr auto fields()
    {
        return std::tuple{Field{"id", &Page::id},
                          Field{"title", &Page::title},
                          Field{"icon", &Page::icon},
                          Field{"kind", &Page::kind},
                          Field{"content", &Page::content},
                          Field{"isFavorite", &Page::isFavorite},
                          Field{"folderID", &Page::folderID},
                          Field{"sortOrder", &Page::sortOrder},
                          Field{"createdDate", &Page::createdDate},
                          Field{"updatedDate", &Page::updatedDate}};
    }
};
