#include "App/WindowPlacement.h"

#include <QGuiApplication>
#include <QScreen>
#include <QSettings>

using namespace Qt::StringLiterals;

namespace
{
const QString geometryKey = u"window/geometry"_s;
const QString maximizedKey = u"window/maximized"_s;
// So much of a window has to show for a user to find and move it.
constexpr QSize leastVisible{160, 48};
} // namespace

WindowPlacement::WindowPlacement(QObject *parent) : QObject(parent), m_track([this] { track(); })
{
    connect(qApp, &QCoreApplication::aboutToQuit, this, &WindowPlacement::save);
}

void WindowPlacement::setWindow(QQuickWindow *window)
{
    if (m_window == window)
        return;
    if (m_window)
        m_window->disconnect(&m_track);
    m_window = window;
    if (m_window) {
        for (const auto changed :
             {&QWindow::xChanged, &QWindow::yChanged, &QWindow::widthChanged, &QWindow::heightChanged})
            connect(m_window, changed, &m_track, &CoalescedCall::request);
        connect(m_window, &QWindow::windowStateChanged, &m_track, &CoalescedCall::request);
    }
    emit windowChanged();
}

void WindowPlacement::track()
{
    if (!m_window || !m_window->isVisible())
        return;
    if (m_window->windowState() == Qt::WindowNoState)
        m_normal = m_window->geometry();
    // Full screen and minimized are moods of the moment; they do not come back.
    if (m_window->windowState() == Qt::WindowNoState || m_window->windowState() == Qt::WindowMaximized)
        m_isMaximized = m_window->windowState() == Qt::WindowMaximized;
}

void WindowPlacement::restore()
{
    if (m_settingsPath.isEmpty() || !m_window)
        return;
    const QSettings settings(m_settingsPath, QSettings::IniFormat);
    const QRect remembered = settings.value(geometryKey).toRect();
    m_isMaximized = settings.value(maximizedKey).toBool();
    if (remembered.isValid()) {
        QList<QRect> screens;
        for (const QScreen *const screen : QGuiApplication::screens())
            screens.append(screen->availableGeometry());
        m_normal = fitted(remembered, screens, m_window->minimumSize());
        m_window->setGeometry(m_normal);
    }
    if (m_isMaximized)
        m_window->setWindowState(Qt::WindowMaximized);
}

void WindowPlacement::save() const
{
    if (m_settingsPath.isEmpty() || !m_normal.isValid())
        return;
    QSettings settings(m_settingsPath, QSettings::IniFormat);
    settings.setValue(geometryKey, m_normal);
    settings.setValue(maximizedKey, m_isMaximized);
}

QRect WindowPlacement::fitted(const QRect &remembered, const QList<QRect> &screens, const QSize &minimum)
{
    const QRect place(remembered.topLeft(), remembered.size().expandedTo(minimum));
    const auto reachable = [&](const QRect &screen) {
        const QRect seen = screen & place;
        return seen.width() >= leastVisible.width() && seen.height() >= leastVisible.height() &&
               place.top() >= screen.top();
    };
    if (screens.isEmpty() || std::ranges::any_of(screens, reachable))
        return place;
    QRect centred(QPoint(), place.size().boundedTo(screens.first().size()).expandedTo(minimum));
    centred.moveCenter(screens.first().center());
    return centred;
}
