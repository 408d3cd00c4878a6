#include "Store/PreparedSearch.h"

PreparedSearch::PreparedSearch(const WorkspaceStore &store, QObject *parent)
    : PreparedSearch(store, Timing(), parent)
{
}

PreparedSearch::PreparedSearch(const WorkspaceStore &store, Timing timing, QObject *parent)
    : QObject(parent), m_timing(timing), m_search(store)
{
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, &PreparedSearch::prepareSlice);
    connect(&store, &WorkspaceStore::changed, this, &PreparedSearch::prepareLater);
    prepareLater();
}

void PreparedSearch::prepareLater()
{
    // The time is not pushed on by each change: a user who types on and on is to find it ready, too.
    if (!m_timer.isActive())
        m_timer.start(m_timing.delay);
}

void PreparedSearch::prepareSlice()
{
    if (!m_search.prepare(m_timing.slice))
        m_timer.start(m_timing.pause);
}
