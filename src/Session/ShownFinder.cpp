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
    if (!m_session)
        return;
    QList<QPointer<TextFinder>> &shown = m_session->shownFinders();
    // A finder may go before this does, and would hide those that are still shown.
    shown.removeIf([this](const auto &each) { return !each || each == m_finder; });
    if (isShown && m_finder)
        shown.append(m_finder);
}
