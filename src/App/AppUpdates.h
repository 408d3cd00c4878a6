#pragma once

#include "Support/Updates/PackageInstaller.h"
#include "Support/Updates/UpdateService.h"

/// The update service of the running program, with the copy of the program that it may replace.
class AppUpdates
{
public:
    /// @param site the update site the program was built for; empty for none
    AppUpdates(const QString &version, const QString &build, const QString &site);

    UpdateService *service() { return &m_service; }

private:
    PackageInstaller m_installer;
    UpdateService m_service;
};
