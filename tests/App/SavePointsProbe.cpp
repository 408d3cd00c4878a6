#include "App/SavePoints.h"
#include "App/TerminationSignals.h"

#include <cstdio>

/// A program with nothing but a workspace and its save points: changes one thing, says so and waits for a
/// signal. Argument: the workspace file.
int main(int argc, char *argv[])
{
    SavePoints::surviveFailedWrites();
    QGuiApplication application(argc, argv);
    TerminationSignals termination;
    QObject::connect(&termination, &TerminationSignals::received, &application,
                     [] { QCoreApplication::exit(); });
    SystemClock clock;
    WorkspaceStore store({application.arguments().at(1), &clock, std::chrono::hours(1)});
    const SavePoints savePoints(&store, &clock, &application);
    store.changeSettings([](AppSettings &settings) { settings.userName = QStringLiteral("Ada"); });
    std::puts("changed");
    std::fflush(stdout);
    return application.exec();
}
