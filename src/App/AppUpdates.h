#pragma once

#include "Support/Updates/PackageInstaller.h"
#include "Support/Updates/UpdateService.h"

#include <QNetworkAccessManager>

/// The update service of the running program, with what it needs: the network, and this copy of the program,
/// which it may replace if it is a bundle.
class AppUpdates
{
public:
    /// @param site the update site the program was built for; empty for none
    AppUpdates(const QString &version, const QString &build, const QString &site);

    UpdateService *service() { return &m_service; }

private:
    QNetworkAccessManager m_network;
    PackageInstaller m_installer;
    UpdateService m_service;
};
