#pragma once

#include "Store/WorkspaceSearch.h"

#include <QObject>
#include <QTimer>

/// A search that is kept ready for the next key: from the start of the program on, and after each change, it
/// does ahead what a search would have to do, in slices so short that no frame waits for one.
class PreparedSearch : public QObject
{
    Q_OBJECT

public:
    struct Timing {
        /// From the start, or from a change, to the first slice.
        std::chrono::milliseconds delay{700};
        std::chrono::milliseconds slice{3};
        /// Between two slices, so that they leave most of the time to the window.
        std::chrono::milliseconds pause{5};
    };

    /// @param store lives longer than the search
    explicit PreparedSearch(const WorkspaceStore &store, QObject *parent = nullptr);
    PreparedSearch(const WorkspaceStore &store, Timing timing, QObject *parent = nullptr);

    /// As `WorkspaceSearch::search`; it also answers before everything is ready, only later.
    QList<SearchResult> search(const QString &query) { return m_search.search(query); }
    /// As `WorkspaceSearch::matching`.
    template <typename Record>
    QList<const Record *> matching(const QString &query)
    {
        return m_search.matching<Record>(query);
    }
    bool isReady() const { return !m_timer.isActive(); }

private:
    void prepareLater();
    void prepareSlice();

    Timing m_timing;
    WorkspaceSearch m_search;
    QTimer m_timer;
};
