#include "Support/Updates/PackageDownload.h"

#include "Support/Updates/UpdateLog.h"

#include <QTimer>

using namespace Qt::StringLiterals;

PackageDownload::PackageDownload(QNetworkAccessManager &network, Wait wait, const HttpLimits &limits,
                                 std::function<void(double)> progress,
                                 std::function<void(std::expected<QByteArray, QString>)> done,
                                 QObject *parent)
    : QObject(parent),
      m_network(network),
      m_wait(std::move(wait)),
      m_limits(limits),
      m_progress(std::move(progress)),
      m_done(std::move(done))
{
}

void PackageDownload::start(const QNetworkRequest &request, const QString &filePath)
{
    m_request = request;
    m_file.setFileName(filePath);
    m_attempt = 0;
    attempt();
}

void PackageDownload::attempt()
{
    ++m_attempt;
    m_hash = Sha256();
    m_received = 0;
    m_toldLength = -1;
    // If the file can't be opened, the first piece can't be written.
    m_file.open(QIODevice::WriteOnly | QIODevice::Truncate | QIODevice::Unbuffered);
    Http::download(
        m_network, m_request, m_limits,
        [this](QByteArrayView bytes, qint64 toldLength) { return take(bytes, toldLength); }, this,
        [this](const HttpResult &result) { answered(result); });
}

std::expected<void, QString> PackageDownload::take(QByteArrayView bytes, qint64 toldLength)
{
    if (m_file.write(bytes.data(), bytes.size()) != bytes.size())
        return std::unexpected(m_file.errorString());
    m_hash.add(bytes);
    m_received += bytes.size();
    m_toldLength = toldLength;
    if (toldLength > 0)
        m_progress(qMin(1.0, double(m_received) / double(toldLength)));
    return {};
}

void PackageDownload::answered(const HttpResult &result)
{
    const bool isDiskFull = m_file.error() != QFileDevice::NoError;
    const QString diskError = m_file.errorString();
    m_file.close();
    if (isDiskFull) {
        m_done(std::unexpected(diskError));
        return;
    }
    if (result && result->isSuccess()) {
        m_done(m_hash.hex());
        return;
    }
    qCWarning(updateLog, "download attempt %d: %s", m_attempt,
              qUtf8Printable(result ? u"status %1"_s.arg(result->status) : result.error()));
    if (m_attempt < attempts) {
        m_wait(std::chrono::seconds(2 * m_attempt), this, [this] { attempt(); });
        return;
    }
    const bool isCutShort = m_toldLength > 0 && m_received != m_toldLength;
    m_done(std::unexpected(isCutShort ? u"The update download stopped early."_s
                           : result   ? u"The update download failed."_s
                                      : result.error()));
}
