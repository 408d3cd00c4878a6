#include "App/AppUpdates.h"
#include "App/SavePoints.h"
#include "App/SingleInstance.h"
#include "App/TerminationSignals.h"
#include "App/ThemeSync.h"
#include "Foundation/LogFile.h"
#include "Session/DesktopNotifications.h"
#include "Session/OrvelSession.h"
#include "Support/Updates/PathExchange.h"

#include <QDBusConnection>
#include <QDeadlineTimer>
#include <QGuiApplication>
#include <QIcon>
#include <QLoggingCategory>
#include <QQmlApplicationEngine>
#include <QQuickStyle>
#include <QQuickWindow>
#include <QStandardPaths>
#include <QThread>
#include <QTimer>

#include <cstdio>
#include <functional>

using namespace std::chrono_literals;

namespace
{
// Says when the first frame stands, and when the first one with the workspace or the onboarding does:
// QT_LOGGING_RULES="orvel.start.info=true".
Q_LOGGING_CATEGORY(startLog, "orvel.start", QtWarningMsg)

constexpr char activationTokenVariable[] = "XDG_ACTIVATION_TOKEN";

/// How long a window that is shown nowhere, as on a display that is off, holds up what waits for its first
/// frame.
constexpr auto longestWait = 2s;

/// Calls `task` once the first frame is on the screen.
void afterFirstFrame(QQuickWindow &window, const std::function<void()> &task)
{
    QObject::connect(&window, &QQuickWindow::frameSwapped, &window, task,
                     Qt::ConnectionType(Qt::QueuedConnection | Qt::SingleShotConnection));
}

void watchStart(QQuickWindow &window)
{
    QObject::connect(
        &window, &QQuickWindow::frameSwapped, &window, [] { qCInfo(startLog, "first frame"); },
        Qt::ConnectionType(Qt::DirectConnection | Qt::SingleShotConnection));
    // The plugin that reads the icon takes longer than the window's own first frame.
    afterFirstFrame(window,
                    [] { QGuiApplication::setWindowIcon(QIcon(QStringLiteral(":/orvel/icon.svg"))); });
    auto *const untilShown = new QObject(&window);
    QObject::connect(&window, &QQuickWindow::frameSwapped, untilShown, [&window, untilShown] {
        if (window.property("starting").toBool())
            return;
        qCInfo(startLog, "workspace shown");
        untilShown->deleteLater();
    });
}

/// The engine of this Qt version crashes if it is taken down while it reads files in the background.
void finishLoading(const QQuickWindow &window)
{
    const QDeadlineTimer deadline(10'000);
    while (window.property("loading").toBool() && !deadline.hasExpired()) {
        QCoreApplication::processEvents();
        QThread::msleep(2);
    }
}

void bringToFront(QQuickWindow &window, const QByteArray &activationToken)
{
    if (!activationToken.isEmpty())
        qputenv(activationTokenVariable, activationToken);
    if (window.windowState() & Qt::WindowMinimized)
        window.setWindowStates(window.windowStates() & ~Qt::WindowMinimized);
    window.setVisible(true);
    window.raise();
    window.requestActivate();
}
} // namespace

int main(int argc, char *argv[])
{
    // The last step of an update, which the new program takes itself.
    if (const auto code = PathExchange::serve(argc, argv))
        return *code;
    const LogFile log({.folder = LogFile::defaultFolder()});
    SavePoints::surviveFailedWrites();
    QGuiApplication application(argc, argv);
    application.setApplicationVersion(QStringLiteral(ORVEL_VERSION));
    application.setApplicationName(QStringLiteral("Orvel"));
    application.setOrganizationName(QStringLiteral("Orvel"));
    application.setDesktopFileName(QStringLiteral("com.orvel.workspace"));
    // Something that lives on without a window, such as an icon in the status bar, changes this.
    application.setQuitOnLastWindowClosed(true);

    const QString filePath = WorkspaceStore::defaultFilePath();
    SingleInstance instance(SingleInstance::Options::forWorkspace(filePath));
    const auto role = instance.start(qgetenv(activationTokenVariable));
    if (!role) {
        std::fprintf(stderr, "%s\n", qUtf8Printable(role.error()));
        return EXIT_FAILURE;
    }
    if (*role == SingleInstance::Role::visitor)
        return EXIT_SUCCESS;

    TerminationSignals termination;
    QObject::connect(&termination, &TerminationSignals::received, &application,
                     [] { QCoreApplication::exit(); });

    SystemClock clock;
    WorkspaceStore store({.filePath = filePath,
                          .clock = &clock,
                          .rescueFolder = WorkspaceStore::defaultRescueFolder(),
                          .checkLock = [&instance] { return instance.checkLock(); }});
    SavePoints savePoints(&store, &clock, &application);
    SystemAppearance desktop;
    desktop.followPortal(&QDBusConnection::sessionBus);
    const ThemeSync theme(&store, &desktop);
    UIState ui;
    AppUpdates updates(application.applicationVersion(), QStringLiteral(ORVEL_BUILD),
                       QStringLiteral(ORVEL_UPDATE_SITE));
    Preferences preferences(Preferences::defaultFilePath());
    DesktopNotifications notifications(&QDBusConnection::sessionBus);
    Machine machine{.preferences = &preferences};
    machine.notify = [&notifications](const QString &title, const QString &text) {
        notifications.show(title, text);
    };
    OrvelSession session(&store, &ui, updates.service(), machine);

    QQuickStyle::setStyle(QStringLiteral("Basic"));
    QQmlApplicationEngine engine;
    engine.addImportPath(QStringLiteral(":/qt/qml"));
    session.provideTo(engine);
    engine.setInitialProperties({{QStringLiteral("placementPath"),
                                  QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
                                      QStringLiteral("/Orvel/window.ini")}});
    engine.load(QUrl(QStringLiteral("qrc:/qt/qml/Orvel/App/OrvelWindow.qml")));
    if (engine.rootObjects().isEmpty())
        return EXIT_FAILURE;

    auto *const window = qobject_cast<QQuickWindow *>(engine.rootObjects().constFirst());
    watchStart(*window);
    afterFirstFrame(*window, [&instance] { instance.listen(); });
    QTimer::singleShot(longestWait, &instance, &SingleInstance::listen);
    QObject::connect(&instance, &SingleInstance::raiseRequested, window,
                     [window](const QByteArray &activationToken) { bringToFront(*window, activationToken); });
    QObject::connect(&notifications, &DesktopNotifications::activated, window,
                     [window](const QByteArray &token) { bringToFront(*window, token); });
    const int code = application.exec();
    finishLoading(*window);
    return code;
}
