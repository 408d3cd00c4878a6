#include "Features/Decks/IdleInhibitor.h"

#include <QDBusConnection>
#include <QProcess>
#include <QtTest>

/// What keeps the screen awake on a desktop, as far as it is asked.
class FakeScreenSaver : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.ScreenSaver")

public:
    QStringList reasons;
    QList<uint> released;

public slots:
    uint Inhibit(const QString &, const QString &reason)
    {
        reasons.append(reason);
        return uint(40 + reasons.size());
    }
    void UnInhibit(uint cookie) { released.append(cookie); }
};

class IdleInhibitorTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        m_daemon.start(
            QStringLiteral("dbus-daemon"),
            {QStringLiteral("--session"), QStringLiteral("--nofork"), QStringLiteral("--print-address")});
        if (m_daemon.waitForStarted() && m_daemon.waitForReadyRead())
            qputenv("DBUS_SESSION_BUS_ADDRESS", m_daemon.readAllStandardOutput().trimmed());
        else
            QSKIP("there is no dbus-daemon");
        QDBusConnection desktop = QDBusConnection::connectToBus(
            QString::fromUtf8(qgetenv("DBUS_SESSION_BUS_ADDRESS")), QStringLiteral("desktop"));
        const QString path = QStringLiteral("/org/freedesktop/ScreenSaver");
        QVERIFY(desktop.registerObject(path, &m_service, QDBusConnection::ExportAllSlots));
        QVERIFY(desktop.registerService(QStringLiteral("org.freedesktop.ScreenSaver")));
    }

    void cleanupTestCase()
    {
        m_daemon.kill();
        m_daemon.waitForFinished();
    }

    void init()
    {
        m_service.reasons.clear();
        m_service.released.clear();
    }

    void keepsTheScreenAwakeWhileItIsActive()
    {
        auto inhibitor = std::make_unique<IdleInhibitor>();
        inhibitor->setProperty("reason", QStringLiteral("A talk"));
        inhibitor->setActive(true);
        QTRY_COMPARE(m_service.reasons, QStringList{QStringLiteral("A talk")});
        QVERIFY(m_service.released.isEmpty());
        inhibitor.reset();
        QTRY_COMPARE(m_service.released, QList<uint>{41});
    }

    void anAnswerThatComesTooLateIsGivenBack()
    {
        IdleInhibitor inhibitor;
        inhibitor.setActive(true);
        inhibitor.setActive(false);
        QTRY_COMPARE(m_service.released, QList<uint>{41});
        {
            IdleInhibitor gone;
            gone.setActive(true);
        }
        QTRY_COMPARE(m_service.released, (QList<uint>{41, 42}));
    }

private:
    QProcess m_daemon;
    FakeScreenSaver m_service;
};

QTEST_GUILESS_MAIN(IdleInhibitorTest)
#include "tst_idleinhibitor.moc"
