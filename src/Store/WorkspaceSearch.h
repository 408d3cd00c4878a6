#pragma once

#include "Store/SearchResult.h"
#include "Store/SearchSignatures.h"
#include "Store/WorkspaceStore.h"

/// Finds a text in every kind of record: pages, tasks, projects, databases, events, habits, code, books,
/// decks, in this order and within a kind in the order of the workspace.
///
/// Texts have signatures that are made on the way, or ahead of time by `prepare`. A signature is used only
/// for the very contents it was made from, so that results are always those of a plain look at everything. It
/// hears of changes by the store's signal: make it before what searches in answer to one.
class WorkspaceSearch
{
public:
    static constexpr qsizetype mostResults = 40;

    /// @param store lives longer than the search
    explicit WorkspaceSearch(const WorkspaceStore &store);

    /// The records that hold the query, case aside; none for a blank one.
    QList<SearchResult> search(const QString &query);

    /// All records of one kind that hold the query, in the order of the workspace; none for a blank one. The
    /// pointers hold until the store changes.
    template <typename Record>
    QList<const Record *> matching(const QString &query)
    {
        const QString folded = query.trimmed().toLower();
        QList<const Record *> found;
        if (folded.isEmpty())
            return found;
        const RecordList<Record> &list = m_store.list<Record>();
        auto &signatures = std::get<SearchSignatures<Record>>(m_signatures);
        SearchedTexts texts;
        signatures.follow(list);
        signatures.forEachCandidate(list, SignatureQuery(folded), [&](const Record &record) {
            if (texts.hold(record, folded))
                found.append(&record);
            return true;
        });
        return found;
    }

    /// Makes signatures ahead of the first search, for about this long; true once all are there.
    bool prepare(std::chrono::milliseconds budget);

private:
    template <typename Take>
    void forEachKind(Take take)
    {
        std::apply([&take](auto &...signatures) { (take(signatures), ...); }, m_signatures);
    }

    const WorkspaceStore &m_store;
    /// In the order of the results.
    std::tuple<SearchSignatures<Page>, SearchSignatures<TaskItem>, SearchSignatures<Project>,
               SearchSignatures<DatabaseTable>, SearchSignatures<CalendarEvent>, SearchSignatures<Habit>,
               SearchSignatures<CodeDocument>, SearchSignatures<Book>, SearchSignatures<Deck>>
        m_signatures;
    /// Ends the connections to the store with the search.
    QObject m_listener;
};
