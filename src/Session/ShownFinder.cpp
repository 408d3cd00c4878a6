#include "Session/ShownFinder.h"

void ShownFinder::setSession(OrvelSession *session)
{
    m_session = session;
    tell(m_active);
    emit changed();
}

void ShownFinder::setFinder(TextFinder *finder)
{
    tell(false);
    m_finder = finder;
    tell(m_active);
    emit changed();
}

void ShownFinder::setActive(bool active)
{
    m_active = active;
    tell(active);
    emit changed();
}

void ShownFinder::tell(bool isShown)
{
    if (!m_session || !m_finder)
        return;
    QList<QPointer<TextFinder>> &shown = m_session->shownFinders();
    shown.removeAll(m_finder);
    if (isShown)
        shown.append(m_finder);
}
