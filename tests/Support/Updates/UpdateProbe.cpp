// A program small enough to be packaged, for the tests of updates. In a bundle of its own it notes its
// version and its process, and installs what the site has to offer.
#include "Support/Updates/AppBundle.h"
#include "Support/Updates/PackageInstaller.h"
#include "Support/Updates/PathExchange.h"
#include "Support/Updates/UpdateService.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTimer>

#include <cstdlib>

using namespace Qt::StringLiterals;

int main(int argc, char *argv[])
{
    if (const auto code = PathExchange::serve(argc, argv))
        return *code;
    QCoreApplication application(argc, argv);
    const QString bundle = AppBundle::containing(QCoreApplication::applicationDirPath());
    const QString version = AppBundle::version(bundle);
    QFile marks(qEnvironmentVariable("PROBE_MARKS"));
    if (!marks.open(QIODevice::Append))
        return EXIT_FAILURE;
    marks.write(version.toUtf8() + ' ' + QByteArray::number(QCoreApplication::applicationPid()) + '\n');
    marks.close();

    const Wait soon = [](std::chrono::milliseconds time, QObject *owner, std::function<void()> then) {
        QTimer::singleShot(time / 100, owner, std::move(then));
    };
    PackageInstaller installer({.wait = soon,
                                .bundle = bundle,
                                .temporaryFolder = QDir::tempPath(),
                                .userAgent = UpdateService::userAgent(version),
                                .processId = QCoreApplication::applicationPid(),
                                .quit = [] { QCoreApplication::quit(); },
                                .exitNow = [] { std::_Exit(3); }});
    UpdateService service({.installer = &installer,
                           .origin = qEnvironmentVariable("PROBE_SITE"),
                           .version = version,
                           .installsByItself = true,
                           .wait = soon});
    QObject::connect(&service, &UpdateService::phaseChanged, &application, [&service] {
        using Kind = UpdateService::Phase::Kind;
        const bool isAtRest = service.phase().kind == Kind::idle && !service.isOffering();
        if (isAtRest || service.phase().kind == Kind::failed)
            QCoreApplication::exit(isAtRest ? EXIT_SUCCESS : EXIT_FAILURE);
    });
    service.check(false);
    return application.exec();
}
