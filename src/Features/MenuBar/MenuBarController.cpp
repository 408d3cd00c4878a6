#include "Features/MenuBar/MenuBarController.h"

#include "DesignSystem/OrvelMark.h"
#include "Features/MenuBar/PanelPlacement.h"

#include <QGuiApplication>
#include <QPainter>
#include <QScreen>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace
{
const QColor paper(0xFFFDF7);
const QColor ink(0x37352F);

/// The program's mark on a light hexagon with a dark rim, which shows on light panels and on dark ones.
/// Upright lines lie on whole pixels: blurred ones would be grey in the sizes of most panels.
QImage drawImage(int side)
{
    const qreal stroke = std::max(1, qRound(side / 13.0));
    const qreal middle = side / 2.0;
    const qreal radius = middle - 1 - stroke / 2;
    QPolygonF hexagon;
    for (const auto &[x, y] :
         {std::pair(0.0, -1.0), {1.0, -0.5}, {1.0, 0.5}, {0.0, 1.0}, {-1.0, 0.5}, {-1.0, -0.5}})
        hexagon.append(QPointF(middle + x * radius, middle + y * (middle - stroke / 2)));
    // Half of what lies between the upright lines of the mark.
    const qreal half = std::floor(side * 0.15) + (int(stroke) % 2 ? 0.5 : 0);
    const qreal markSide = 2 * half / OrvelMark::path({1, 1}).boundingRect().width();

    QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(ink, stroke, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(paper);
    painter.drawPolygon(hexagon);
    painter.translate(middle - markSide / 2, middle - markSide / 2);
    painter.strokePath(OrvelMark::path({markSide, markSide}), painter.pen());
    return image;
}

QList<QImage> images()
{
    QList<QImage> images;
    for (const int side : {16, 22, 24, 32, 48, 64})
        images.append(drawImage(side));
    return images;
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
    m_nextMinute.setSingleShot(true);
    m_nextMinute.setTimerType(Qt::PreciseTimer);
    connect(&m_nextMinute, &QTimer::timeout, this, &MenuBarController::showRemainingTime);
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
    connect(m_item.get(), &StatusItem::shownChanged, this, &MenuBarController::showRemainingTime);
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
        entries = {{tr("Focus: %1").arg(m_session->focus()->timeText())}, {}};
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
    m_nextMinute.stop();
    if (!m_item)
        return;
    if (!m_session->focus()->isRunning()) {
        m_item->setToolTip({});
        return;
    }
    const std::chrono::seconds remaining(m_session->focus()->remaining());
    const auto minutes = std::chrono::ceil<std::chrono::minutes>(remaining);
    m_item->setToolTip(minutes > 1min ? tr("Focus: %Ln minutes left", nullptr, int(minutes.count()))
                                      : tr("Focus: less than a minute left"));
    if (m_item->isShown() && minutes > 1min)
        m_nextMinute.start(remaining - (minutes - 1min));
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
