#pragma once

#include "Support/Updates/PackageDownload.h"
#include "Support/Updates/UpdateInstaller.h"

#include <QByteArray>

/// Replaces the running copy of the program by the package on offer: fetches it, compares its checksum,
/// unpacks it, compares its version, and then leaves the swap to a script while the program quits. Up to that
/// point a failure leaves nothing behind and the installed copy untouched.
class PackageInstaller final : public UpdateInstaller
{
public:
    struct Surroundings {
        Wait wait;
        /// The bundle that is replaced; empty if the running copy is none.
        QString bundle;
        /// Where packages are staged.
        QString temporaryFolder;
        /// As in "Orvel/1.4.2".
        QByteArray userAgent;
        qint64 processId = 0;
        /// Ends the program in the normal way, so that everything is saved.
        std::function<void()> quit;
        /// Ends it at once, if something held back the normal way.
        std::function<void()> exitNow;
        HttpLimits limits = PackageDownload::limits;
    };

    explicit PackageInstaller(Surroundings surroundings) : m_surroundings(std::move(surroundings)) {}

    /// Whether the running copy is a bundle in a place where this user may replace it; one that a package
    /// manager keeps is not.
    bool canInstall() const override;
    void install(const AvailableUpdate &update, QObject *owner, std::function<void(double)> progress,
                 std::function<void(std::expected<void, QString>)> done) override;

private:
    Surroundings m_surroundings;
};
