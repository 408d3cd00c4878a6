#include "Support/Updates/PackageInstaller.h"

#include "Support/Updates/AppBundle.h"
#include "Support/Updates/BundleSwap.h"
#include "Support/Updates/PackageArchive.h"
#include "Support/Updates/PathExchange.h"
#include "Support/Updates/StagingFolder.h"
#include "Support/Updates/UpdateLog.h"

#include <QFileInfo>
#include <QTimer>

#include <thread>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace
{
using Result = std::expected<void, QString>;
using Done = std::function<void(Result)>;

/// One install under way; deletes itself when it has ended.
class Installation : public QObject
{
    Q_DECLARE_TR_FUNCTIONS(Installation)

public:
    Installation(const PackageInstaller::Surroundings &surroundings, const AvailableUpdate &update,
                 std::function<void(double)> progress, Done done, QObject *owner)
        : QObject(owner),
          m_surroundings(surroundings),
          m_update(update),
          m_progress(std::move(progress)),
          m_done(std::move(done))
    {
    }

    void start()
    {
        auto folder = StagingFolder::make(m_surroundings.temporaryFolder);
        if (!folder) {
            end(std::unexpected(folder.error()));
            return;
        }
        m_folder = std::move(*folder);
        auto *const download = new PackageDownload(
            m_surroundings.wait, m_surroundings.limits, m_progress,
            [this](const std::expected<QByteArray, QString> &hash) { downloaded(hash); }, this);
        download->start({m_update.downloadURL, m_surroundings.userAgent}, archivePath());
    }

private:
    QString archivePath() const { return m_folder->filePath(u"Orvel.zip"_s); }
    QString stagedPath() const { return m_folder->filePath(QString(AppBundle::name)); }

    void downloaded(const std::expected<QByteArray, QString> &hash)
    {
        if (!hash) {
            end(std::unexpected(hash.error()));
            return;
        }
        m_progress(1.0);
        const QByteArray published = m_update.sha256.trimmed().toLower().toUtf8();
        if (!published.isEmpty() && published != *hash) {
            end(std::unexpected(tr("The update download didn't match its published checksum.")));
            return;
        }
        // On a worker, so that the prompt stays alive.
        m_worker = std::jthread([this](const std::stop_token &stop) {
            const Result unpacked = PackageArchive::unpack(archivePath(), m_folder->path(), stop);
            QMetaObject::invokeMethod(this, [this, unpacked] { this->unpacked(unpacked); });
        });
    }

    void unpacked(const Result &result)
    {
        if (!result) {
            qCWarning(updateLog, "unpacking: %s", qUtf8Printable(result.error()));
            end(std::unexpected(tr("The update couldn't be unpacked.")));
            return;
        }
        if (!AppBundle::hasProgram(stagedPath())) {
            end(std::unexpected(tr("The update download was missing the app.")));
            return;
        }
        QString version = AppBundle::version(stagedPath());
        if (version.isEmpty())
            version = tr("unknown");
        if (version != m_update.version) {
            end(std::unexpected(
                tr("The site says %1, but the downloaded app is %2.").arg(m_update.version, version)));
            return;
        }
        swap();
    }

    void swap()
    {
        const Result started = BundleSwap::start(m_surroundings.bundle, stagedPath(), m_folder->path(),
                                                 m_surroundings.processId);
        if (started) {
            m_folder->handOver();
            qCInfo(updateLog, "update: quitting to install into %s", qUtf8Printable(m_surroundings.bundle));
            m_surroundings.wait(400ms, parent(), m_surroundings.quit);
            m_surroundings.wait(4s, parent(), m_surroundings.exitNow);
        }
        end(started);
    }

    void end(const Result &result)
    {
        // Before the user reads of the failure, nothing of it is left. Many files take a while to remove.
        m_worker = std::jthread([this, result] {
            m_folder.reset();
            QMetaObject::invokeMethod(this, [this, result] { finish(result); });
        });
    }

    void finish(const Result &result)
    {
        deleteLater();
        // The callback may delete the owner, and this with it.
        if (const Done done = std::exchange(m_done, nullptr))
            done(result);
    }

    const PackageInstaller::Surroundings m_surroundings;
    const AvailableUpdate m_update;
    const std::function<void(double)> m_progress;
    Done m_done;
    std::unique_ptr<StagingFolder> m_folder;
    // Last, so that it has ended before anything it uses goes.
    std::jthread m_worker;
};
} // namespace

bool PackageInstaller::canInstall() const
{
    const QString &bundle = m_surroundings.bundle;
    return !bundle.isEmpty() && QFileInfo(bundle).isWritable() &&
           PathExchange::isPossibleIn(QFileInfo(bundle).path());
}

void PackageInstaller::install(const AvailableUpdate &update, QObject *owner,
                               std::function<void(double)> progress, Done done)
{
    auto *const installation =
        new Installation(m_surroundings, update, std::move(progress), std::move(done), owner);
    QMetaObject::invokeMethod(installation, [installation] { installation->start(); }, Qt::QueuedConnection);
}
