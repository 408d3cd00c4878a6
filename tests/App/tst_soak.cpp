#include "App/SoakActions.h"
#include "App/ThemeSync.h"
#include "Session/OrvelSession.h"
#include "Store/SnapshotCodec.h"

#include <QDesktopServices>
#include <QQmlApplicationEngine>
#include <QQmlIncubationController>
#include <QQuickStyle>

#include <algorithm>
#include <mutex>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace
{
std::mutex warningsMutex;
QStringList newWarnings;
QtMessageHandler handlerBefore = nullptr;

void noteWarning(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    static const QStringList ofTheToolkit{
        // Platforms without real windows say so.
        u"This plugin does not support"_s,
        // A Timer started in the turn in which the last animation stopped: the driver pauses already.
        u"QUnifiedTimer::stopAnimationDriver: driver is not running"_s};
    const auto begins = [&](const QString &text) { return message.startsWith(text); };
    if (type == QtDebugMsg || type == QtInfoMsg || std::ranges::any_of(ofTheToolkit, begins))
        return;
    if (type == QtFatalMsg)
        handlerBefore(type, context, message);
    const std::lock_guard lock(warningsMutex);
    newWarnings.append(message);
}

/// The warnings, each with the actions before it, and how long the actions took.
class Findings
{
public:
    void add(const QString &action, qint64 milliseconds)
    {
        static constexpr qsizetype actionsTold = 15;
        ++m_count;
        m_actions.append(action);
        if (m_actions.size() > actionsTold)
            m_actions.removeFirst();
        if (milliseconds > m_slowest.first)
            m_slowest = {milliseconds, m_actions.join(u"; "_s)};
        const std::lock_guard lock(warningsMutex);
        for (const QString &warning : std::exchange(newWarnings, {}))
            if (m_times[warning]++ == 0)
                m_texts.append(
                    u"%1\n  at action %2: %3"_s.arg(warning).arg(m_count).arg(m_actions.join(u"; "_s)));
    }
    QString text() const { return m_texts.join(u"\n\n"_s); }
    QString figures() const
    {
        return u"%1 actions, %2 different warnings; the slowest took %3 ms: %4"_s.arg(m_count)
            .arg(m_texts.size())
            .arg(m_slowest.first)
            .arg(m_slowest.second);
    }

private:
    int m_count = 0;
    std::pair<qint64, QString> m_slowest;
    QStringList m_actions, m_texts;
    QHash<QString, int> m_times;
};

int number(const char *variable, int otherwise)
{
    bool isNumber = false;
    const int value = qEnvironmentVariableIntValue(variable, &isNumber);
    return isNumber ? value : otherwise;
}
} // namespace

/// The real window under random keys, mouse and changes: it warns of nothing, and what it leaves can be
/// saved. `ORVEL_SOAK_SECONDS` says for how long, `ORVEL_SOAK_SEED` what is done.
class SoakTest : public QObject
{
    Q_OBJECT

private:
    QTemporaryFile m_errors;

    /// What libraries wrote that know no message handler.
    QByteArray errorOutput()
    {
        m_errors.seek(0);
        return m_errors.readAll();
    }
    static void act(SoakActions &actions, QQuickWindow &window, Findings &findings)
    {
        std::mt19937 random(1);
        const QDeadlineTimer end(number("ORVEL_SOAK_SECONDS", 0) * 1'000);
        while (!end.hasExpired()) {
            QElapsedTimer time;
            time.start();
            const QString action = actions.act();
            // Mostly the next one comes before what this one began is over.
            QTest::qWait(random() % 20 == 0 ? 150 : 0);
            if (!window.isVisible())
                window.show();
            findings.add(action, time.elapsed());
        }
        // The last actions may still be making their views.
        const auto *const views = qmlEngine(&window)->incubationController();
        QVERIFY(QTest::qWaitFor(
            [&] { return !window.property("loading").toBool() && views->incubatingObjectCount() == 0; },
            60'000));
    }

public slots:
    void openNothing(const QUrl &) {}

private slots:
    void initTestCase()
    {
        for (const QString &scheme : {u"https"_s, u"http"_s, u"mailto"_s, u"file"_s})
            QDesktopServices::setUrlHandler(scheme, this, "openNothing");
        handlerBefore = qInstallMessageHandler(&noteWarning);
        QVERIFY(m_errors.open());
        QCOMPARE(::dup2(m_errors.handle(), STDERR_FILENO), STDERR_FILENO);
    }
    void cleanupTestCase() { qInstallMessageHandler(handlerBefore); }

    void nothingIsWarnedOf()
    {
        if (number("ORVEL_SOAK_SECONDS", 0) <= 0)
            QSKIP("ORVEL_SOAK_SECONDS says for how long, as scripts/test --nightly does");
        TestWorkspace workspace;
        workspace.reset();
        StarterContent::seed(workspace.store(),
                             {OrvelModule::tasks, OrvelModule::projects, OrvelModule::decks}, true);
        SystemAppearance desktop;
        const ThemeSync theme(&workspace.store(), &desktop);
        OrvelSession session(&workspace.store(), &workspace.ui(), &workspace.updates(), workspace.machine());
        Findings findings;
        {
            QQmlApplicationEngine engine;
            engine.addImportPath(u":/qt/qml"_s);
            session.provideTo(engine);
            engine.setInitialProperties({{u"placementPath"_s, QString()}});
            engine.load(QUrl(u"qrc:/qt/qml/Orvel/App/OrvelWindow.qml"_s));
            QVERIFY(!engine.rootObjects().isEmpty());
            engine.disconnect(qApp);
            // The engine warns of a command to quit that nothing takes.
            connect(&engine, &QQmlEngine::quit, this, [] {});
            auto *const window = qobject_cast<QQuickWindow *>(engine.rootObjects().constFirst());
            window->requestActivate();
            QVERIFY(QTest::qWaitForWindowActive(window));
            SoakActions actions(workspace, *window, unsigned(number("ORVEL_SOAK_SEED", 1)));
            act(actions, *window, findings);
        }
        findings.add(u"the end"_s, 0);
        std::printf("%s\n%s\n", qUtf8Printable(findings.figures()), qUtf8Printable(findings.text()));
        QVERIFY2(findings.text().isEmpty(), "the warnings stand above");
        QCOMPARE(errorOutput(), QByteArray());

        const QByteArray written = SnapshotCodec::encode(workspace.store().snapshot());
        const auto read =
            SnapshotCodec::decode(QByteArrayView(written), workspace.clock().now(), &QUuid::createUuid);
        QVERIFY(read && SnapshotCodec::encode(*read) == written);
    }
};

int main(int argc, char *argv[])
{
    const QTemporaryDir home;
    for (const char *const variable : {"HOME", "XDG_DATA_HOME", "XDG_CONFIG_HOME", "XDG_STATE_HOME"})
        qputenv(variable, QFile::encodeName(home.path()));
    // Neither the network nor the user's desktop is to notice.
    qputenv("ALL_PROXY", "http://127.0.0.1:9");
    qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nonexistent");
    qputenv("QTEST_FUNCTION_TIMEOUT", "86400000");
    QGuiApplication application(argc, argv);
    QQuickStyle::setStyle(u"Basic"_s);
    SoakTest test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_soak.moc"
