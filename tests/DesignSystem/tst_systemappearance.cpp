#include "DesignSystem/SystemAppearance.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVariant>
#include <QGuiApplication>
#include <QPalette>
#include <QProcess>
#include <QSemaphore>
#include <QSignalSpy>
#include <QTest>

/// The desktop's settings portal, as far as it is asked.
class FakePortal : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Settings")

public:
    uint colorScheme = 0;

public slots:
    QDBusVariant Read(const QString &, const QString &)
    {
        return QDBusVariant(QVariant::fromValue(QDBusVariant(colorScheme)));
    }
};

class TestSystemAppearance : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();
    void withoutABusThePaletteCounts();
    void thePortalIsAskedAndListenedTo();

private:
    QProcess m_daemon;
    QString m_address;
};

void TestSystemAppearance::initTestCase()
{
    m_daemon.start(QStringLiteral("dbus-daemon"), {QStringLiteral("--session"), QStringLiteral("--nofork"),
                                                   QStringLiteral("--print-address")});
    if (m_daemon.waitForStarted() && m_daemon.waitForReadyRead())
        m_address = QString::fromUtf8(m_daemon.readAllStandardOutput()).trimmed();
}

void TestSystemAppearance::cleanupTestCase()
{
    m_daemon.kill();
    m_daemon.waitForFinished();
}

void TestSystemAppearance::withoutABusThePaletteCounts()
{
    SystemAppearance appearance;
    appearance.followPortal([] { return QDBusConnection(QStringLiteral("none")); });
    QVERIFY(!appearance.isDark());
    QSignalSpy changes(&appearance, &SystemAppearance::changed);

    const QPalette light = QGuiApplication::palette();
    QGuiApplication::setPalette(QPalette(Qt::white, Qt::black));
    QTRY_COMPARE(changes.count(), 1);
    QVERIFY(appearance.isDark());
    QGuiApplication::setPalette(light);
    QTRY_VERIFY(!appearance.isDark());
}

void TestSystemAppearance::thePortalIsAskedAndListenedTo()
{
    if (m_address.isEmpty())
        QSKIP("there is no dbus-daemon on this machine");
    const QString path = QStringLiteral("/org/freedesktop/portal/desktop");
    QDBusConnection portalBus = QDBusConnection::connectToBus(m_address, QStringLiteral("portal"));
    FakePortal portal;
    portal.colorScheme = 1;
    QVERIFY(portalBus.registerService(QStringLiteral("org.freedesktop.portal.Desktop")));
    QVERIFY(portalBus.registerObject(path, &portal, QDBusConnection::ExportAllSlots));

    SystemAppearance appearance;
    QSemaphore isFollowing;
    bool hasWaited = false;
    appearance.followPortal([&] {
        hasWaited = isFollowing.tryAcquire(1, 5000);
        return QDBusConnection::connectToBus(m_address, QStringLiteral("program"));
    });
    isFollowing.release();
    QVERIFY(!appearance.isDark());
    QTRY_VERIFY(appearance.isDark());
    QVERIFY2(hasWaited, "the program waited for the bus");

    const auto tell = [&](const QString &key, uint value) {
        QDBusMessage signal = QDBusMessage::createSignal(
            path, QStringLiteral("org.freedesktop.portal.Settings"), QStringLiteral("SettingChanged"));
        signal.setArguments(
            {QStringLiteral("org.freedesktop.appearance"), key, QVariant::fromValue(QDBusVariant(value))});
        portalBus.send(signal);
    };
    QSignalSpy changes(&appearance, &SystemAppearance::changed);
    tell(QStringLiteral("contrast"), 2);
    tell(QStringLiteral("color-scheme"), 2);
    QTRY_VERIFY(!appearance.isDark());
    tell(QStringLiteral("color-scheme"), 1);
    QTRY_VERIFY(appearance.isDark());
    tell(QStringLiteral("color-scheme"), 0);
    QTRY_VERIFY(!appearance.isDark());
    QCOMPARE(changes.count(), 3);
}

QTEST_MAIN(TestSystemAppearance)
#include "tst_systemappearance.moc"
