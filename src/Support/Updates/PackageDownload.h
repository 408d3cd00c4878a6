#pragma once

#include "Foundation/Http.h"
#include "Foundation/Wait.h"

#include <QCoreApplication>
#include <QObject>
#include <QTimer>

#include <memory>

/// Fetches a package into a file, in several attempts if need be, and never holds more of it than a piece.
class PackageDownload : public QObject
{
    Q_DECLARE_TR_FUNCTIONS(PackageDownload)

public:
    /// A server may be silent for a while, but not for ever.
    static constexpr HttpLimits limits{std::chrono::minutes(20), std::chrono::minutes(2), 1LL << 30};
    static constexpr int attempts = 5;

    /// @param progress gets the fetched share, 0 to 1, if the server tells the length
    /// @param done gets the SHA-256 of the package, or what to tell the user
    PackageDownload(Wait wait, const HttpLimits &limits, std::function<void(double)> progress,
                    std::function<void(std::expected<QByteArray, QString>)> done, QObject *parent);
    ~PackageDownload() override;

    /// Calls `done` once, after this call has returned, unless this is destroyed first.
    void start(const HttpRequest &request, const QString &filePath);

private:
    struct Package;

    void attempt();
    void reportProgress();
    void responded(const HttpResult &result);

    Wait m_wait;
    HttpLimits m_limits;
    std::function<void(double)> m_progress;
    std::function<void(std::expected<QByteArray, QString>)> m_done;
    HttpRequest m_request;
    QString m_filePath;
    std::shared_ptr<Package> m_package;
    QTimer m_progressTimer;
    int m_attempt = 0;
};
