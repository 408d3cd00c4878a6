#include "App/AppUpdates.h"

#include "Support/Updates/AppBundle.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QDir>

#include <cstdlib>

namespace
{
QString runningBundle()
{
    return AppBundle::containing(QCoreApplication::applicationDirPath());
}

/// A bundle is what it says it is; by that an update compares it with a package, too.
QString installed(QStringView key, const QString &builtAs)
{
    const QString told = AppBundle::info(runningBundle(), key).trimmed();
    return told.isEmpty() ? builtAs : told;
}
} // namespace

AppUpdates::AppUpdates(const QString &version, const QString &build, const QString &site)
    : m_installer({
          .wait = systemWait(),
          .bundle = runningBundle(),
          .temporaryFolder = QDir::tempPath(),
          .userAgent = UpdateService::userAgent(installed(u"CFBundleShortVersionString", version)),
          .processId = QCoreApplication::applicationPid(),
          .quit = &QCoreApplication::quit,
          .exitNow = [] { std::_Exit(EXIT_SUCCESS); },
      }),
      m_service({
          .installer = &m_installer,
          .origin = UpdateService::origin(qEnvironmentVariable("ORVEL_UPDATE_BASE"), site),
          .version = installed(u"CFBundleShortVersionString", version),
          .build = installed(u"CFBundleVersion", build),
          .installsByItself = qgetenv("ORVEL_AUTOINSTALL") == "1",
          .openPage = &QDesktopServices::openUrl,
      })
{
}
