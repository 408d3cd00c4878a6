#include "Session/DesktopNotifications.h"

#include <QDBusMessage>
#include <QProcess>
#include <QtTest>

/// The notification service of a desktop, as far as it is asked.
class FakeService : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Notifications")

public:
    struct Shown {
        uint replaced = 0;
        QString title;
        QString text;
        QStringList actions;
        QVariantMap hints;
    };
    QList<Shown> shown;

public slots:
    uint Notify(const QString &, uint replaced, const QString &, const QString &title, const QString &text,
                const QStringList &actions, const QVariantMap &hints, int)
    {
        shown.append({replaced, title, text, actions, hints});
        return 7;
    }
};

class DesktopNotificationsTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();
    void withoutABusNothingHappens();
    void tellsAndComesToTheFront();

private:
    QDBusConnection connectTo(const QString &name) const
    {
        return QDBusConnection::connectToBus(m_address, name);
    }

    QProcess m_daemon;
    QString m_address;
};

void DesktopNotificationsTest::initTestCase()
{
    m_daemon.start(QStringLiteral("dbus-daemon"), {QStringLiteral("--session"), QStringLiteral("--nofork"),
                                                   QStringLiteral("--print-address")});
    if (m_daemon.waitForStarted() && m_daemon.waitForReadyRead())
        m_address = QString::fromUtf8(m_daemon.readAllStandardOutput()).trimmed();
}

void DesktopNotificationsTest::cleanupTestCase()
{
    m_daemon.kill();
    m_daemon.waitForFinished();
}

void DesktopNotificationsTest::withoutABusNothingHappens()
{
    int asked = 0;
    DesktopNotifications notifications([&asked] {
        ++asked;
        return QDBusConnection(QStringLiteral("none"));
    });
    QCOMPARE(asked, 0);
    notifications.show(QStringLiteral("Title"), QStringLiteral("Text"));
    notifications.show(QStringLiteral("Title"), QStringLiteral("Text"));
    QCOMPARE(asked, 1);
}

void DesktopNotificationsTest::tellsAndComesToTheFront()
{
    if (m_address.isEmpty())
        QSKIP("there is no dbus-daemon");
    const QString path = QStringLiteral("/org/freedesktop/Notifications");
    const QString name = QStringLiteral("org.freedesktop.Notifications");
    FakeService service;
    QDBusConnection desktop = connectTo(QStringLiteral("desktop"));
    QVERIFY(desktop.registerObject(path, &service, QDBusConnection::ExportAllSlots));
    QVERIFY(desktop.registerService(name));

    DesktopNotifications notifications([this] { return connectTo(QStringLiteral("program")); });
    QSignalSpy activations(&notifications, &DesktopNotifications::activated);
    notifications.show(QStringLiteral("Done"), QStringLiteral("25 minutes on “<Plan> & more”."));
    QTRY_COMPARE(service.shown.size(), 1);
    const FakeService::Shown first = service.shown.first();
    QCOMPARE(first.title, QStringLiteral("Done"));
    QCOMPARE(first.text, QStringLiteral("25 minutes on “&lt;Plan&gt; &amp; more”."));
    QCOMPARE(first.actions.value(0), QStringLiteral("default"));
    QVERIFY(!first.hints.value(QStringLiteral("sound-name")).toString().isEmpty());
    QTest::qWait(50);
    notifications.show(QStringLiteral("Done"), QStringLiteral("again"));
    QTRY_COMPARE(service.shown.size(), 2);
    QCOMPARE(service.shown.last().replaced, 7u);

    const auto click = [&](uint id) {
        QDBusMessage token = QDBusMessage::createSignal(path, name, QStringLiteral("ActivationToken"));
        token.setArguments({id, QStringLiteral("token")});
        desktop.send(token);
        QDBusMessage click = QDBusMessage::createSignal(path, name, QStringLiteral("ActionInvoked"));
        click.setArguments({id, QStringLiteral("default")});
        desktop.send(click);
    };
    // Of another program's notification.
    click(8);
    click(7);
    QTRY_COMPARE(activations.size(), 1);
    QCOMPARE(activations.first().first().toByteArray(), QByteArray("token"));
}

QTEST_GUILESS_MAIN(DesktopNotificationsTest)
#include "tst_desktopnotifications.moc"
