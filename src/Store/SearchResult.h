#pragma once

#include "Foundation/EnumTable.h"
#include "Support/Destination.h"

#include <QString>

enum class SearchResultKind { page, note, task, project, database, event, habit, code, deck, book };

template <>
struct EnumTable<SearchResultKind> {
    static constexpr auto cases = std::to_array<EnumCase<SearchResultKind>>({
        {SearchResultKind::page, "page", QT_TRANSLATE_NOOP("EnumLabel", "Page"), "doc.text"},
        {SearchResultKind::note, "note", QT_TRANSLATE_NOOP("EnumLabel", "Note"), "note.text"},
        {SearchResultKind::task, "task", QT_TRANSLATE_NOOP("EnumLabel", "Task"), "checkmark.square"},
        {SearchResultKind::project, "project", QT_TRANSLATE_NOOP("EnumLabel", "Project"), "target"},
        {SearchResultKind::database, "database", QT_TRANSLATE_NOOP("EnumLabel", "Database"),
         "cylinder.split.1x2"},
        {SearchResultKind::event, "event", QT_TRANSLATE_NOOP("EnumLabel", "Event"), "calendar"},
        {SearchResultKind::habit, "habit", QT_TRANSLATE_NOOP("EnumLabel", "Habit"), "flame"},
        {SearchResultKind::code, "code", QT_TRANSLATE_NOOP("EnumLabel", "Code"),
         "chevron.left.forwardslash.chevron.right"},
        {SearchResultKind::deck, "deck", QT_TRANSLATE_NOOP("EnumLabel", "Deck"), "rectangle.on.rectangle"},
        {SearchResultKind::book, "book", QT_TRANSLATE_NOOP("EnumLabel", "Book"), "book"},
    });
};

/// Something found in the workspace.
struct SearchResult {
    /// Unique within a list of results.
    QString id;
    SearchResultKind kind = SearchResultKind::page;
    QString title;
    QString subtitle;
    /// Shown instead of the kind's symbol; empty for none.
    QString emoji;
    Destination destination;

    bool operator==(const SearchResult &) const = default;
};
