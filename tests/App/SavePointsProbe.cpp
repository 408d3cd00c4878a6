#include "App/SavePoints.h"
#include "App/TerminationSignals.h"

#include <QFileInfo>

#include <cstdio>
#include <dlfcn.h>
#include <sys/stat.h>
#include <unistd.h>

namespace
{
/// The disk that never answers; 0 for none.
dev_t hangingDisk = 0;
} // namespace

// Comes before the one of the C library.
extern "C" int fsync(int file)
{
    struct stat status = {};
    if (hangingDisk != 0 && ::fstat(file, &status) == 0 && status.st_dev == hangingDisk)
        for (;;)
            ::pause();
    return reinterpret_cast<int (*)(int)>(::dlsym(RTLD_NEXT, "fsync"))(file);
}

/// A program with nothing but a workspace and its save points: changes one thing, says so and waits for a
/// signal. Arguments: the workspace file, and "hang" if the disk that it lies on does not answer.
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
    if (application.arguments().value(2) == QLatin1String("hang")) {
        struct stat status = {};
        ::stat(QFile::encodeName(QFileInfo(application.arguments().at(1)).path()).constData(), &status);
        hangingDisk = status.st_dev;
    }
    std::puts("changed");
    std::fflush(stdout);
    return application.exec();
}
