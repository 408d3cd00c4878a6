#pragma once

#include "Foundation/EnumTable.h"
#include "Support/Destination.h"

#include <QString>

enum class SearchResultKind { page, note, task, project, database, event, habit, code, deck, book };

template <>
struct EnumTable<SearchResultKind> {
    static constexpr auto cases = std::to_array<EnumCase<SearchResultKind>>({
        {SearchResultKind::page, "page", u"Page", "doc.text"},
        {SearchResultKind::note, "note", u"Note", "note.text"},
        {SearchResultKind::task, "task", u"Task", "checkmark.square"},
        {SearchResultKind::project, "project", u"Project", "target"},
        {SearchResultKind::database, "database", u"Database", "cylinder.split.1x2"},
        {SearchResultKind::event, "event", u"Event", "calendar"},
        {SearchResultKind::habit, "habit", u"Habit", "flame"},
        {SearchResultKind::code, "code", u"Code", "chevron.left.forwardslash.chevron.right"},
        {SearchResultKind::deck, "deck", u"Deck", "rectangle.on.rectangle"},
        {SearchResultKind::book, "book", u"Book", "book"},
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
