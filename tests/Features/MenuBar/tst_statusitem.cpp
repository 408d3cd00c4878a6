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
    m_session = std::make_unique<OrvelSession>(&m_workspace->store(), &m_workspace->ui());
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
    QTRY_VERIFY(text().startsWith(u"Focus: 2"_s));
    m_session->focus()->toggleRunning();
    QTRY_COMPARE(text(), QString());
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
