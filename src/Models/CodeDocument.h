#pragma once

#include "Foundation/FieldList.h"
#include "Foundation/Timestamp.h"
#include "Models/CodeLanguage.h"

#include <QUuid>

/// One snippet in the code scratchpad.
struct CodeDocument {
    QUuid id;
    /// The file-like name.
    QString title = QStringLiteral("Untitled");
    CodeLanguage language = CodeLanguage::swift;
    QString source;
    bool isFavorite = false;
    double sortOrder = 0;
    Timestamp createdDate;
    Timestamp updatedDate;

    bool operator==(const CodeDocument &) const = default;

    /// Lines as an editor counts them: a line feed at the end adds one, and no text is one line.
    qsizetype lineCount() const;

    static constexpr auto fields()
    {
        return std::tuple{Field{"id", &CodeDocument::id},
                          Field{"title", &CodeDocument::title},
                          Field{"language", &CodeDocument::language},
                          Field{"source", &CodeDocument::source},
                          Field{"isFavorite", &CodeDocument::isFavorite},
                          Field{"sortOrder", &CodeDocument::sortOrder},
                          Field{"createdDate", &CodeDocument::createdDate},
                          Field{"updatedDate", &CodeDocument::updatedDate}};
    }
};
