#include "Session/SaveFileDialog.h"

#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

/// The desktop's portal, as far as it is asked.
class FakePortal : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.FileChooser")

public:
    QDBusConnection bus{QStringLiteral("none")};
    QString name;
    QString caller;
    QString token;
    /// Older portals hand out paths of their own making.
    bool hasOwnPaths = false;
    QString path;

    void respond(uint response, const QVariantMap &results)
    {
        QDBusMessage signal = QDBusMessage::createSignal(
            path, QStringLiteral("org.freedesktop.portal.Request"), QStringLiteral("Response"));
        signal.setArguments({response, results});
        bus.send(signal);
    }

public slots:
    QDBusObjectPath SaveFile(const QString &, const QString &, const QVariantMap &options,
                             const QDBusMessage &message)
    {
        name = options.value(QStringLiteral("current_name")).toString();
        token = options.value(QStringLiteral("handle_token")).toString();
        caller = message.service().mid(1).replace(u'.', u'_');
        path = hasOwnPaths
                   ? QStringLiteral("/own/request")
                   : QStringLiteral("/org/freedesktop/portal/desktop/request/%1/%2").arg(caller, token);
        return QDBusObjectPath(path);
    }
};

class SaveFileDialogTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();
    void init();
    void withoutAPortalTheFolderIsTaken();
    void freePathsCountUp();
    void thePortalAsks_data();
    void thePortalAsks();
    void aPortalThatCannotAskLeavesTheFolder();

private:
    void ask(SaveFileDialog &dialog)
    {
        dialog.ask(QStringLiteral("Plan.md"), [this](const std::optional<SaveFileDialog::Answer> &answer) {
            ++m_answers;
            m_answer = answer;
        });
    }
    QString folder() const { return m_folder.filePath(QStringLiteral("Downloads")); }

    QTemporaryDir m_folder;
    QProcess m_daemon;
    QString m_address;
    int m_answers = 0;
    std::optional<SaveFileDialog::Answer> m_answer;
};

void SaveFileDialogTest::initTestCase()
{
    m_daemon.start(QStringLiteral("dbus-daemon"), {QStringLiteral("--session"), QStringLiteral("--nofork"),
                                                   QStringLiteral("--print-address")});
    if (m_daemon.waitForStarted() && m_daemon.waitForReadyRead())
        m_address = QString::fromUtf8(m_daemon.readAllStandardOutput()).trimmed();
}

void SaveFileDialogTest::cleanupTestCase()
{
    m_daemon.kill();
    m_daemon.waitForFinished();
}

void SaveFileDialogTest::init()
{
    m_answers = 0;
    m_answer.reset();
}

void SaveFileDialogTest::withoutAPortalTheFolderIsTaken()
{
    SaveFileDialog dialog(QDBusConnection(QStringLiteral("none")), folder());
    ask(dialog);
    QCOMPARE(m_answers, 1);
    QCOMPARE(m_answer->path, folder() + QStringLiteral("/Plan.md"));
    QVERIFY(!m_answer->wasAsked);
    QVERIFY(QDir(folder()).exists());
}

void SaveFileDialogTest::freePathsCountUp()
{
    const QTemporaryDir place;
    const auto next = [&place] {
        return SaveFileDialog::freePath(place.path(), QStringLiteral("v1.0 plan.md"));
    };
    const auto take = [&next] {
        QFile file(next());
        QVERIFY(file.open(QIODevice::WriteOnly));
    };
    take();
    QCOMPARE(next(), place.filePath(QStringLiteral("v1.0 plan 2.md")));
    take();
    QCOMPARE(next(), place.filePath(QStringLiteral("v1.0 plan 3.md")));
}

void SaveFileDialogTest::thePortalAsks_data()
{
    QTest::addColumn<bool>("hasOwnPaths");
    QTest::addColumn<uint>("response");
    QTest::addColumn<QStringList>("uris");
    QTest::addColumn<QString>("path");
    QTest::newRow("chosen") << false << 0U << QStringList{"file:///tmp/My%20plan.md"} << "/tmp/My plan.md";
    QTest::newRow("own path") << true << 0U << QStringList{"file:///tmp/a.md"} << "/tmp/a.md";
    QTest::newRow("cancelled") << false << 1U << QStringList() << QString();
    QTest::newRow("nothing chosen") << false << 0U << QStringList() << QString();
    QTest::newRow("elsewhere") << false << 0U << QStringList{"sftp://host/a.md"} << QString();
}

void SaveFileDialogTest::thePortalAsks()
{
    if (m_address.isEmpty())
        QSKIP("there is no dbus-daemon on this machine");
    QFETCH(bool, hasOwnPaths);
    QFETCH(uint, response);
    QFETCH(QStringList, uris);
    QFETCH(QString, path);

    FakePortal portal;
    portal.hasOwnPaths = hasOwnPaths;
    portal.bus = QDBusConnection::connectToBus(m_address, QStringLiteral("portal"));
    QVERIFY(portal.bus.registerService(QStringLiteral("org.freedesktop.portal.Desktop")));
    QVERIFY(portal.bus.registerObject(QStringLiteral("/org/freedesktop/portal/desktop"), &portal,
                                      QDBusConnection::ExportAllSlots));
    {
        SaveFileDialog dialog(QDBusConnection::connectToBus(m_address, QStringLiteral("program")), folder());
        ask(dialog);
        QTRY_COMPARE(portal.name, QStringLiteral("Plan.md"));
        // The reply to the call is on its way; a portal with paths of its own answers after it.
        QTest::qWait(50);
        QCOMPARE(m_answers, 0);
        portal.respond(response, {{QStringLiteral("uris"), uris}});
        QTRY_COMPARE(m_answers, 1);
        QCOMPARE(m_answer.has_value(), !path.isEmpty());
        if (m_answer) {
            QCOMPARE(m_answer->path, path);
            QVERIFY(m_answer->wasAsked);
        }
        portal.respond(response, {{QStringLiteral("uris"), uris}});
    }
    QDBusConnection::disconnectFromBus(QStringLiteral("program"));
    QDBusConnection::disconnectFromBus(QStringLiteral("portal"));
}

void SaveFileDialogTest::aPortalThatCannotAskLeavesTheFolder()
{
    if (m_address.isEmpty())
        QSKIP("there is no dbus-daemon on this machine");
    SaveFileDialog dialog(QDBusConnection::connectToBus(m_address, QStringLiteral("alone")), folder());
    ask(dialog);
    QTRY_COMPARE(m_answers, 1);
    QCOMPARE(m_answer->path, folder() + QStringLiteral("/Plan.md"));
}

QTEST_MAIN(SaveFileDialogTest)
#include "tst_savefiledialog.moc"
