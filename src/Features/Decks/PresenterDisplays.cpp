#include "Features/Decks/PresenterDisplays.h"

#include <QGuiApplication>
#include <QScreen>

#include <algorithm>
#include <tuple>

PresenterDisplays::PresenterDisplays(QObject *parent) : QObject(parent)
{
    connect(qGuiApp, &QGuiApplication::screenAdded, this, &PresenterDisplays::update);
    connect(qGuiApp, &QGuiApplication::screenRemoved, this, &PresenterDisplays::update, Qt::QueuedConnection);
    update();
}

void PresenterDisplays::setWindow(QWindow *window)
{
    if (m_window == window)
        return;
    if (m_window)
        m_window->disconnect(this);
    m_window = window;
    if (window)
        connect(window, &QWindow::screenChanged, this, &PresenterDisplays::update);
    emit windowChanged();
    update();
}

void PresenterDisplays::choose(int display)
{
    m_chosen = display == m_own ? QString() : m_names.value(display);
    update();
}

void PresenterDisplays::showAudience(QWindow *window) const
{
    QScreen *const screen = QGuiApplication::screens().value(m_audience);
    if (!window || !screen || (window->isVisible() && window->screen() == screen))
        return;
    // A full window stays where it is.
    window->hide();
    window->setScreen(screen);
    window->setGeometry(screen->geometry());
    window->showFullScreen();
}

int PresenterDisplays::audienceOf(const QStringList &names, int own, const std::optional<QString> &chosen)
{
    if (chosen && chosen->isEmpty())
        return -1;
    const auto wanted = chosen ? names.indexOf(*chosen) : -1;
    if (wanted >= 0 && wanted != own)
        return int(wanted);
    return names.size() < 2 ? -1 : own == 0 ? 1 : 0;
}

void PresenterDisplays::update()
{
    const auto before = std::tuple(m_names, m_own, m_audience);
    const QList<QScreen *> screens = QGuiApplication::screens();
    m_names.clear();
    for (const QScreen *const screen : screens)
        m_names.append(screen->name());
    m_own = m_window ? int(screens.indexOf(m_window->screen())) : -1;
    m_audience = m_window ? audienceOf(m_names, m_own, m_chosen) : -1;
    if (before != std::tuple(m_names, m_own, m_audience))
        emit changed();
}
