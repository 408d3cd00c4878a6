#include "Features/MenuBar/MenuBarController.h"

#include "DesignSystem/OVIconProvider.h"
#include "Features/MenuBar/PanelPlacement.h"

#include <QGuiApplication>
#include <QScreen>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace
{
/// In a middle grey, which shows on light panels and on dark ones.
QList<QImage> images()
{
    OVIconProvider icons;
    QList<QImage> drawn;
    for (const int size : {16, 22, 24, 32, 48})
        drawn.append(icons.requestImage(u"circle.hexagongrid.fill/8C8C8C"_s, nullptr, {size, size}));
    return drawn;
}
} // namespace

MenuBarController::MenuBarController(QObject *parent) : QObject(parent)
{
    constexpr std::array delays{600ms, 2500ms};
    for (std::size_t i = 0; i < delays.size(); ++i) {
        m_reasserts.at(i).setSingleShot(true);
        m_reasserts.at(i).setInterval(delays.at(i));
        connect(&m_reasserts.at(i), &QTimer::timeout, this, [this] {
            if (isEnabled() && m_item)
                m_item->reassert();
        });
    }
}

void MenuBarController::setSession(OrvelSession *session)
{
    if (m_session == session)
        return;
    m_session = session;
    connect(&session->preferences(), &Preferences::changed, this, [this](const QString &key) {
        if (key != QLatin1String(enabledKey))
            return;
        applyEnabledState();
        scheduleReassert();
    });
    connect(session->focus(), &FocusTimer::changed, this, &MenuBarController::showRemainingTime);
    emit sessionChanged();
    applyEnabledState();
    scheduleReassert();
}

bool MenuBarController::isEnabled() const
{
    return m_session && m_session->preferences().value(QLatin1String(enabledKey), true).toBool();
}

void MenuBarController::applyEnabledState()
{
    if (!isEnabled()) {
        emit dismissRequested();
        if (m_item)
            m_item->hide();
        return;
    }
    if (!m_item)
        makeItem();
    m_item->show();
}

void MenuBarController::makeItem()
{
    m_item = std::make_unique<StatusItem>(StatusItem::Options{
        .id = u"com.orvel.workspace"_s,
        .title = u"Orvel"_s,
        .images = images(),
        .service = u"org.kde.StatusNotifierItem-%1-1"_s.arg(QCoreApplication::applicationPid()),
        .bus = m_bus});
    connect(m_item.get(), &StatusItem::activated, this, &MenuBarController::toggleRequested);
    connect(m_item.get(), &StatusItem::shownChanged, this,
            [this] { m_session->focus()->setWatched(this, m_item->isShown()); });
    showRemainingTime();
}

void MenuBarController::scheduleReassert()
{
    for (QTimer &timer : m_reasserts)
        timer.start();
}

void MenuBarController::showRemainingTime()
{
    if (m_item)
        m_item->setToolTip(m_session->focus()->isRunning()
                               ? tr("Focus: %1").arg(m_session->focus()->timeText())
                               : QString());
}

QPoint MenuBarController::place(const QPoint &icon, int width, int height) const
{
    const QScreen *screen = QGuiApplication::screenAt(icon);
    if (!screen)
        screen = QGuiApplication::primaryScreen();
    if (!screen)
        return {};
    return PanelPlacement::place({width, height}, icon, screen->geometry(), screen->availableGeometry());
}

void MenuBarController::bringToFront(QWindow *window) const
{
    if (window->windowStates() & Qt::WindowMinimized)
        window->setWindowStates(window->windowStates() & ~Qt::WindowMinimized);
    window->setVisible(true);
    window->raise();
    window->requestActivate();
}
