#include "Features/MenuBar/MenuBarController.h"
#include "Features/MenuBar/PanelPlacement.h"
#include "Harness/TestWorkspace.h"

#include <QDBusContext>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QProcess>
#include <QtTest>

using namespace Qt::StringLiterals;

/// The part of a desktop's panel that keeps the icons.
class FakePanel : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.kde.StatusNotifierWatcher")

public:
    explicit FakePanel(const QString &address)
        : bus(QDBusConnection::connectToBus(address, u"panel"_s)),
          m_owners(QString(), bus, QDBusServiceWatcher::WatchForUnregistration)
    {
        bus.registerObject(u"/StatusNotifierWatcher"_s, this, QDBusConnection::ExportAllSlots);
        bus.registerService(QLatin1String(StatusItem::watcherService));
        connect(&m_owners, &QDBusServiceWatcher::serviceUnregistered, this,
                [this](const QString &service) { items.removeAll(service); });
    }
    ~FakePanel() override
    {
        bus.unregisterService(QLatin1String(StatusItem::watcherService));
        bus.unregisterObject(u"/StatusNotifierWatcher"_s);
        QDBusConnection::disconnectFromBus(u"panel"_s);
    }

    QDBusPendingReply<QVariantMap> properties() const
    {
        QDBusMessage message =
            QDBusMessage::createMethodCall(items.first(), QLatin1String(StatusItem::path),
                                           u"org.freedesktop.DBus.Properties"_s, u"GetAll"_s);
        message.setArguments({u"org.kde.StatusNotifierItem"_s});
        return bus.asyncCall(message);
    }
    void click(int x, int y) const
    {
        QDBusMessage message = QDBusMessage::createMethodCall(items.first(), QLatin1String(StatusItem::path),
                                                              u"org.kde.StatusNotifierItem"_s, u"Activate"_s);
        message.setArguments({x, y});
        bus.asyncCall(message);
    }

    /// Calls the menu, as a panel does that shows the entries by itself.
    template <typename... Argument>
    QDBusMessage menu(const QString &method, const Argument &...arguments) const
    {
        QDBusMessage message = QDBusMessage::createMethodCall(items.first(), QLatin1String(StatusMenu::path),
                                                              u"com.canonical.dbusmenu"_s, method);
        message.setArguments({QVariant::fromValue(arguments)...});
        const QDBusPendingCallWatcher answer(bus.asyncCall(message));
        [&] { QTRY_VERIFY(answer.isFinished()); }();
        return answer.reply();
    }
    /// The whole menu: ids by label, with an asterisk before those that can't be chosen.
    QList<std::pair<QString, int>> entries() const
    {
        const QDBusMessage answer = menu(u"GetLayout"_s, 0, -1, QStringList());
        QList<std::pair<QString, int>> entries;
        const auto layout = qdbus_cast<StatusMenuLayout>(answer.arguments().value(1));
        for (const QVariant &child : layout.children) {
            const auto entry = child.value<StatusMenuLayout>();
            const QString label = entry.properties.value(u"label"_s).toString();
            entries.append(
                {entry.properties.value(u"enabled"_s, true).toBool() ? label : u'*' + label, entry.id});
        }
        return entries;
    }
    void choose(const QString &label) const
    {
        for (const auto &[name, id] : entries())
            if (name == label)
                menu(u"Event"_s, id, u"clicked"_s, QDBusVariant(0), 0u);
    }

    QDBusConnection bus;
    QStringList items;

public slots:
    void RegisterStatusNotifierItem(const QString &service)
    {
        items.append(service);
        m_owners.addWatchedService(service);
    }

private:
    QDBusServiceWatcher m_owners;
};

class StatusItemTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();
    void init();
    void cleanup();

    void theIconIsThereByDefault();
    void aPanelThatComesLaterGetsTheIcon();
    void thePreferenceTakesTheIconAway();
    void clicksTellTheirPlace();
    void theToolTipShowsARunningSession();
    void thePlainMenuLeadsEverywhere();
    void thePlainMenuTellsTheTime();
    void withoutABusNothingHappens();
    void thePanelStandsByTheIcon_data();
    void thePanelStandsByTheIcon();

private:
    QDBusConnection connectToBus() const { return QDBusConnection::connectToBus(m_address, u"program"_s); }
    void start()
    {
        m_controller = std::make_unique<MenuBarController>();
        m_controller->setBus([this] { return connectToBus(); });
        m_controller->setSession(m_session.get());
    }

    QProcess m_daemon;
    QString m_address;
    std::unique_ptr<TestWorkspace> m_workspace;
    std::unique_ptr<OrvelSession> m_session;
    std::unique_ptr<MenuBarController> m_controller;
};

void StatusItemTest::initTestCase()
{
    m_daemon.start(u"dbus-daemon"_s, {u"--session"_s, u"--nofork"_s, u"--print-address"_s});
    QVERIFY(m_daemon.waitForStarted() && m_daemon.waitForReadyRead());
    m_address = QString::fromUtf8(m_daemon.readAllStandardOutput()).trimmed();
}

void StatusItemTest::cleanupTestCase()
{
    m_daemon.kill();
    m_daemon.waitForFinished();
}

void StatusItemTest::init()
{
    m_workspace = std::make_unique<TestWorkspace>();
    m_workspace->reset();
    m_session = std::make_unique<OrvelSession>(&m_workspace->store(), &m_workspace->ui(), nullptr,
                                               m_workspace->machine());
}

void StatusItemTest::cleanup()
{
    m_controller.reset();
    m_session.reset();
    QDBusConnection::disconnectFromBus(u"program"_s);
}

void StatusItemTest::theIconIsThereByDefault()
{
    FakePanel panel(m_address);
    start();
    QTRY_COMPARE(panel.items.size(), 1);
    const QDBusPendingCallWatcher answer(panel.properties());
    QTRY_VERIFY(answer.isFinished());
    const QVariantMap properties = QDBusPendingReply<QVariantMap>(answer).value();
    QCOMPARE(properties.value(u"Id"_s).toString(), u"com.orvel.workspace"_s);
    QCOMPARE(properties.value(u"Title"_s).toString(), u"Orvel"_s);
    QCOMPARE(properties.value(u"Status"_s).toString(), u"Active"_s);
    const auto pixmaps = qdbus_cast<StatusPixmaps>(properties.value(u"IconPixmap"_s));
    QVERIFY(!pixmaps.isEmpty());
    for (const StatusPixmap &pixmap : pixmaps) {
        QCOMPARE(pixmap.data.size(), 4 * pixmap.width * pixmap.height);
        const qsizetype middle = 4 * (pixmap.height / 2 * pixmap.width + pixmap.width / 2);
        QVERIFY2(quint8(pixmap.data.at(middle)) > 200, "the opaque middle: alpha comes first");
        QCOMPARE(quint8(pixmap.data.at(0)), 0);
    }
    QCOMPARE(qdbus_cast<StatusToolTip>(properties.value(u"ToolTip"_s)).title, u"Orvel"_s);
    QTest::qWait(3000);
    QCOMPARE(panel.items.size(), 1);
}

void StatusItemTest::aPanelThatComesLaterGetsTheIcon()
{
    start();
    QTest::qWait(200);
    {
        FakePanel panel(m_address);
        QTRY_COMPARE(panel.items.size(), 1);
    }
    FakePanel startedAnew(m_address);
    QTRY_COMPARE(startedAnew.items.size(), 1);
}

void StatusItemTest::thePreferenceTakesTheIconAway()
{
    FakePanel panel(m_address);
    m_session->preferences().setValue(u"orvel.menuBarEnabled"_s, false);
    start();
    QTest::qWait(300);
    QVERIFY(panel.items.isEmpty());
    m_session->preferences().setValue(u"orvel.menuBarEnabled"_s, true);
    QTRY_COMPARE(panel.items.size(), 1);
    QSignalSpy dismissals(m_controller.get(), &MenuBarController::dismissRequested);
    m_session->preferences().setValue(u"orvel.menuBarEnabled"_s, false);
    QCOMPARE(dismissals.count(), 1);
    QTRY_VERIFY(panel.items.isEmpty());
    // The looks that are still due find nothing to show.
    QTest::qWait(2700);
    QVERIFY(panel.items.isEmpty());
    m_session->preferences().setValue(u"orvel.menuBarEnabled"_s, true);
    QTRY_COMPARE(panel.items.size(), 1);
}

void StatusItemTest::clicksTellTheirPlace()
{
    FakePanel panel(m_address);
    start();
    QSignalSpy clicks(m_controller.get(), &MenuBarController::toggleRequested);
    QTRY_COMPARE(panel.items.size(), 1);
    panel.click(1200, 10);
    QTRY_COMPARE(clicks.count(), 1);
    QCOMPARE(clicks.first().first().toPoint(), QPoint(1200, 10));
}

void StatusItemTest::theToolTipShowsARunningSession()
{
    FakePanel panel(m_address);
    start();
    QTRY_COMPARE(panel.items.size(), 1);
    const auto text = [&panel] {
        const QDBusPendingCallWatcher answer(panel.properties());
        [&] { QTRY_VERIFY(answer.isFinished()); }();
        return qdbus_cast<StatusToolTip>(QDBusPendingReply<QVariantMap>(answer).value().value(u"ToolTip"_s))
            .text;
    };
    QCOMPARE(text(), QString());
    m_session->focus()->open(this);
    m_session->focus()->toggleRunning();
    QTRY_COMPARE(text(), u"Focus: 25 minutes left"_s);
    // Nothing wakes before the minute is over.
    const auto *const nextMinute = m_controller->findChild<QTimer *>();
    QCOMPARE(nextMinute->intervalAsDuration(), std::chrono::minutes(1));
    m_workspace->advanceSeconds(89);
    m_session->focus()->check();
    QTRY_COMPARE(text(), u"Focus: 24 minutes left"_s);
    QCOMPARE(nextMinute->intervalAsDuration(), std::chrono::seconds(31));
    m_workspace->advanceSeconds(23 * 60 - 28);
    m_session->focus()->check();
    QTRY_COMPARE(text(), u"Focus: less than a minute left"_s);
    QVERIFY(!nextMinute->isActive());
    m_session->focus()->toggleRunning();
    QTRY_COMPARE(text(), QString());
}

void StatusItemTest::thePlainMenuLeadsEverywhere()
{
    FakePanel panel(m_address);
    start();
    QTRY_COMPARE(panel.items.size(), 1);
    const QDBusPendingCallWatcher answer(panel.properties());
    QTRY_VERIFY(answer.isFinished());
    QCOMPARE(
        qdbus_cast<QDBusObjectPath>(QDBusPendingReply<QVariantMap>(answer).value().value(u"Menu"_s)).path(),
        QLatin1String(StatusMenu::path));

    QSignalSpy opened(m_controller.get(), &MenuBarController::openRequested);
    for (const auto &[label, place] : {std::pair(u"Dashboard"_s, u"dashboard"_s),
                                       {u"Focus"_s, u"focus"_s},
                                       {u"Settings"_s, u"settings"_s}}) {
        panel.choose(label);
        QCOMPARE(m_workspace->selection(), place);
    }
    panel.choose(u"Open Orvel"_s);
    QCOMPARE(opened.count(), 4);
    QSignalSpy toggled(m_controller.get(), &MenuBarController::toggleRequested);
    panel.choose(u"Quick add a task"_s);
    QCOMPARE(toggled.count(), 1);
    QSignalSpy quit(m_controller.get(), &MenuBarController::quitRequested);
    panel.choose(u"Quit Orvel"_s);
    QCOMPARE(quit.count(), 1);

    // Neither a pointer passing over an entry nor an id that is not there does anything.
    panel.menu(u"Event"_s, panel.entries().last().second, u"hovered"_s, QDBusVariant(0), 0u);
    panel.menu(u"Event"_s, 99, u"clicked"_s, QDBusVariant(0), 0u);
    panel.menu(u"Event"_s, -1, u"clicked"_s, QDBusVariant(0), 0u);
    QCOMPARE(quit.count(), 1);
    const QList<StatusMenuEvent> events{{99, u"clicked"_s, QDBusVariant(0), 0},
                                        {panel.entries().last().second, u"clicked"_s, QDBusVariant(0), 0}};
    QCOMPARE(qdbus_cast<QList<int>>(panel.menu(u"EventGroup"_s, events).arguments().value(0)),
             QList<int>{99});
    QCOMPARE(quit.count(), 2);
}

void StatusItemTest::thePlainMenuTellsTheTime()
{
    FakePanel panel(m_address);
    start();
    QTRY_COMPARE(panel.items.size(), 1);
    const auto isOutdated = [&panel] {
        return panel.menu(u"AboutToShow"_s, 0).arguments().value(0).toBool();
    };
    const auto before = panel.entries();
    QVERIFY(!isOutdated());
    // The line is there before the menu is shown, its time by then.
    m_session->focus()->open(this);
    m_session->focus()->toggleRunning();
    QCOMPARE(panel.entries().size(), before.size() + 2);
    QCOMPARE(panel.entries().mid(2), before);
    QCOMPARE(panel.entries().first().first, u"*Focus: 25:00"_s);
    m_workspace->advanceSeconds(1);
    QVERIFY(isOutdated());
    QVERIFY(!isOutdated());
    QCOMPARE(panel.entries().first().first, u"*Focus: 24:59"_s);
    m_session->focus()->toggleRunning();
    QVERIFY(!isOutdated());
    // A click that comes now still means the entry that was clicked.
    QCOMPARE(panel.entries(), before);
    const QDBusMessage group =
        panel.menu(u"GetGroupProperties"_s, QList<int>{int(before.size()), 99}, QStringList());
    const auto known = qdbus_cast<QList<StatusMenuProperties>>(group.arguments().value(0));
    QCOMPARE(known.size(), 1);
    QCOMPARE(known.first().properties.value(u"label"_s).toString(), u"Open Orvel"_s);
}

void StatusItemTest::withoutABusNothingHappens()
{
    m_controller = std::make_unique<MenuBarController>();
    m_controller->setBus([] { return QDBusConnection(u"none"_s); });
    m_controller->setSession(m_session.get());
    QTest::qWait(1000);
    m_session->preferences().setValue(u"orvel.menuBarEnabled"_s, false);
    m_session->preferences().setValue(u"orvel.menuBarEnabled"_s, true);
    QVERIFY(m_controller->isEnabled());
}

void StatusItemTest::thePanelStandsByTheIcon_data()
{
    QTest::addColumn<QPoint>("icon");
    QTest::addColumn<QRect>("available");
    QTest::addColumn<QPoint>("place");
    const QRect barOnTop(0, 30, 1000, 770);
    const QRect barBelow(0, 0, 1000, 760);
    QTest::newRow("below an icon on top") << QPoint(700, 15) << barOnTop << QPoint(540, 38);
    QTest::newRow("above an icon below") << QPoint(700, 780) << barBelow << QPoint(540, 352);
    QTest::newRow("within the screen") << QPoint(995, 15) << barOnTop << QPoint(672, 38);
    QTest::newRow("not told, bar on top") << QPoint() << barOnTop << QPoint(672, 38);
    QTest::newRow("not told, bar below") << QPoint() << barBelow << QPoint(672, 352);
    QTest::newRow("off the screen") << QPoint(-5000, 15) << QRect(0, 0, 1000, 800) << QPoint(672, 8);
}

void StatusItemTest::thePanelStandsByTheIcon()
{
    QFETCH(QPoint, icon);
    QFETCH(QRect, available);
    QFETCH(QPoint, place);
    QCOMPARE(PanelPlacement::place({320, 400}, icon, {0, 0, 1000, 800}, available), place);
    const QPoint tiny = PanelPlacement::place({320, 900}, icon, {0, 0, 1000, 800}, available);
    QVERIFY2(tiny.y() >= available.top(), "a panel taller than the screen shows its beginning");
}

QTEST_MAIN(StatusItemTest)
#include "tst_statusitem.moc"
