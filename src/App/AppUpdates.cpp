#include "App/AppUpdates.h"

#include "Support/Updates/AppBundle.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QDir>

#include <cstdlib>

AppUpdates::AppUpdates(const QString &version, const QString &build, const QString &site)
    : m_installer({
          .network = &m_network,
          .wait = systemWait(),
          .bundle = AppBundle::containing(QCoreApplication::applicationDirPath()),
          .temporaryFolder = QDir::tempPath(),
          .userAgent = UpdateService::userAgent(version),
          .processId = QCoreApplication::applicationPid(),
          .quit = &QCoreApplication::quit,
          .exitNow = [] { std::_Exit(EXIT_SUCCESS); },
      }),
      m_service({
          .network = &m_network,
          .installer = &m_installer,
          .origin = UpdateService::origin(qEnvironmentVariable("ORVEL_UPDATE_BASE"), site),
          .version = version,
          .build = build,
          .installsByItself = qgetenv("ORVEL_AUTOINSTALL") == "1",
          .openPage = &QDesktopServices::openUrl,
      })
{
}
