#pragma once

#include "Foundation/Http.h"
#include "Foundation/Sha256.h"
#include "Foundation/Wait.h"

#include <QFile>
#include <QNetworkRequest>
#include <QObject>

/// Fetches a package into a file, in several attempts if need be, and never holds more of it than a piece.
class PackageDownload : public QObject
{
public:
    /// A server may be silent for a while, but not for ever.
    static constexpr HttpLimits limits{std::chrono::minutes(20), std::chrono::minutes(2), 1LL << 30};
    static constexpr int attempts = 5;

    /// @param progress gets the fetched share, 0 to 1, if the server tells the length
    /// @param done gets the SHA-256 of the package, or what to tell the person
    PackageDownload(QNetworkAccessManager &network, Wait wait, const HttpLimits &limits,
                    std::function<void(double)> progress,
                    std::function<void(std::expected<QByteArray, QString>)> done, QObject *parent);

    /// Calls `done` once, after this call has returned, unless this dies first.
    void start(const QNetworkRequest &request, const QString &filePath);

private:
    void attempt();
    std::expected<void, QString> take(QByteArrayView bytes, qint64 toldLength);
    void answered(const HttpResult &result);

    QNetworkAccessManager &m_network;
    Wait m_wait;
    HttpLimits m_limits;
    std::function<void(double)> m_progress;
    std::function<void(std::expected<QByteArray, QString>)> m_done;
    QNetworkRequest m_request;
    QFile m_file;
    Sha256 m_hash;
    int m_attempt = 0;
    qint64 m_received = 0;
    qint64 m_toldLength = -1;
};
