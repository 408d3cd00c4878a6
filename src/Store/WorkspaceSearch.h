#pragma once

#include "Store/SearchResult.h"
#include "Store/SearchSignatures.h"
#include "Store/WorkspaceStore.h"

/// Finds a text in every kind of record: pages, tasks, projects, databases, events, habits, code, books,
/// decks, in this order and within a kind in the order of the workspace.
///
/// Long texts have signatures that are made on the way, or ahead of time by `prepare`. A signature is used
/// only for the very contents it was made from, so that results are always those of a plain look at
/// everything. It hears of changes by the store's signals: make it before what searches in answer to one.
class WorkspaceSearch
{
public:
    static constexpr qsizetype mostResults = 40;

    /// @param store lives longer than the search
    explicit WorkspaceSearch(const WorkspaceStore &store);

    /// The records that hold the query, case aside; none for a blank one.
    QList<SearchResult> search(const QString &query);

    /// Makes signatures ahead of the first search, for about this long; true once all are there.
    bool prepare(std::chrono::milliseconds budget);

private:
    const WorkspaceStore &m_store;
    SearchSignatures<Page> m_pages;
    SearchSignatures<CodeDocument> m_codeDocuments;
    /// Ends the connections to the store with the search.
    QObject m_listener;
};
