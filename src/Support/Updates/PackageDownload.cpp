#include "Support/Updates/PackageDownload.h"

#include "Foundation/Sha256.h"
#include "Support/Updates/UpdateLog.h"

#include <QFile>

#include <atomic>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

/// What one attempt has fetched. Until its exchange has ended it belongs to the thread of the exchange, apart
/// from the counts.
struct PackageDownload::Package {
    explicit Package(const QString &filePath) : file(filePath)
    {
        // If the file can't be opened, the first piece can't be written.
        file.open(QIODevice::WriteOnly | QIODevice::Truncate | QIODevice::Unbuffered);
    }

    std::expected<void, QString> add(QByteArrayView bytes, qint64 length)
    {
        if (file.write(bytes.data(), bytes.size()) != bytes.size())
            return std::unexpected(file.errorString());
        hash.add(bytes);
        contentLength = length;
        received += bytes.size();
        return {};
    }

    QFile file;
    Sha256 hash;
    std::atomic<qint64> received = 0;
    std::atomic<qint64> contentLength = -1;
};

PackageDownload::PackageDownload(Wait wait, const HttpLimits &limits, std::function<void(double)> progress,
                                 std::function<void(std::expected<QByteArray, QString>)> done,
                                 QObject *parent)
    : QObject(parent),
      m_wait(std::move(wait)),
      m_limits(limits),
      m_progress(std::move(progress)),
      m_done(std::move(done))
{
    m_progressTimer.setInterval(50ms);
    m_progressTimer.callOnTimeout(this, &PackageDownload::reportProgress);
}

PackageDownload::~PackageDownload() = default;

void PackageDownload::start(const HttpRequest &request, const QString &filePath)
{
    m_request = request;
    m_filePath = filePath;
    attempt();
}

void PackageDownload::attempt()
{
    ++m_attempt;
    m_package = std::make_shared<Package>(m_filePath);
    m_progressTimer.start();
    Http::download(
        m_request, m_limits,
        [package = m_package](QByteArrayView bytes, qint64 contentLength) {
            return package->add(bytes, contentLength);
        },
        this, [this](const HttpResult &result) { responded(result); });
}

void PackageDownload::reportProgress()
{
    if (const qint64 length = m_package->contentLength; length > 0)
        m_progress(qMin(1.0, double(m_package->received) / double(length)));
}

void PackageDownload::responded(const HttpResult &result)
{
    m_progressTimer.stop();
    reportProgress();
    Package &package = *m_package;
    if (package.file.error() != QFileDevice::NoError) {
        m_done(std::unexpected(package.file.errorString()));
        return;
    }
    package.file.close();
    if (result && result->isSuccess()) {
        m_done(package.hash.hex());
        return;
    }
    qCWarning(updateLog, "download attempt %d: %s", m_attempt,
              qUtf8Printable(result ? u"status %1"_s.arg(result->status) : result.error()));
    if (m_attempt < attempts) {
        m_wait(std::chrono::seconds(2 * m_attempt), this, [this] { attempt(); });
        return;
    }
    const bool isCutShort = package.contentLength > 0 && package.received != package.contentLength;
    m_done(std::unexpected(isCutShort ? tr("The update download stopped early.")
                           : result   ? tr("The update download failed.")
                                      : result.error()));
}
