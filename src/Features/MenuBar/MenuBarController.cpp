#include "Features/MenuBar/MenuBarController.h"

#include "DesignSystem/OVIconProvider.h"
#include "DesignSystem/OrvelMark.h"
#include "Features/MenuBar/PanelPlacement.h"

#include <QGuiApplication>
#include <QPainter>
#include <QScreen>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace
{
/// The program's mark on a light hexagon with a dark rim, which shows on light panels and on dark ones.
QList<QImage> images()
{
    const QString paper = u"circle.hexagongrid.fill/FFFDF7"_s;
    const QString rim = u"circle.hexagongrid/37352F"_s;
    OVIconProvider icons;
    QList<QImage> drawn;
    for (const int side : {16, 22, 24, 32, 48, 64}) {
        const QSize size(side, side);
        QImage image = icons.requestImage(paper, nullptr, size);
        QPainter painter(&image);
        painter.drawImage(QPoint(), icons.requestImage(rim, nullptr, size));
        painter.setRenderHint(QPainter::Antialiasing);
        painter.translate(side * 0.34, side * 0.32);
        painter.strokePath(OrvelMark::path(QSizeF(size) * 0.34),
                           QPen(QColor(0x37352F), side * 0.08, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        drawn.append(image);
    }
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
    connect(session->focus(), &FocusTimer::changed, this, &MenuBarController::followFocus);
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
        .menu = [this] { return menu(); },
        .service = u"org.kde.StatusNotifierItem-%1-1"_s.arg(QCoreApplication::applicationPid()),
        .bus = m_bus});
    connect(m_item.get(), &StatusItem::activated, this, &MenuBarController::toggleRequested);
    connect(m_item.get(), &StatusItem::shownChanged, this,
            [this] { m_session->focus()->setWatched(this, m_item->isShown()); });
    showRemainingTime();
}

QList<StatusMenu::Entry> MenuBarController::menu()
{
    const auto open = [this](const QString &place) {
        return [this, place] {
            m_session->ui()->select(place);
            emit openRequested();
        };
    };
    QList<StatusMenu::Entry> entries;
    if (m_session->focus()->isRunning())
        entries = {{focusText()}, {}};
    return entries + QList<StatusMenu::Entry>{
                         {tr("Open Orvel"), [this] { emit openRequested(); }},
                         {tr("Quick add a task"), [this] { emit toggleRequested({}); }},
                         {},
                         {tr("Dashboard"), open(u"dashboard"_s)},
                         {tr("Today"), open(u"today"_s)},
                         {tr("Focus"), open(u"focus"_s)},
                         {tr("Relax"), open(u"relax"_s)},
                         {},
                         {tr("Settings"), open(u"settings"_s)},
                         {tr("Quit Orvel"), [this] { emit quitRequested(); }},
                     };
}

QString MenuBarController::focusText() const
{
    return tr("Focus: %1").arg(m_session->focus()->timeText());
}

void MenuBarController::scheduleReassert()
{
    for (QTimer &timer : m_reasserts)
        timer.start();
}

void MenuBarController::followFocus()
{
    showRemainingTime();
    // The menu has one line more or less now; a panel that learned that as it opens would cut it off.
    const bool isFocusing = m_session->focus()->isRunning();
    if (std::exchange(m_wasFocusing, isFocusing) != isFocusing && m_item)
        m_item->plainMenu().update();
}

void MenuBarController::showRemainingTime()
{
    if (m_item)
        m_item->setToolTip(m_session->focus()->isRunning() ? focusText() : QString());
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
