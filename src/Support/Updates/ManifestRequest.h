#pragma once

#include "Foundation/Http.h"
#include "Foundation/Wait.h"
#include "Support/Updates/VersionFile.h"

#include <QNetworkRequest>
#include <QObject>

/// Asks the update site for its manifest, again after a while if the site fails. Deletes itself when it has
/// answered.
class ManifestRequest : public QObject
{
public:
    /// The manifest, nothing if the site gave something else, or what to tell the person.
    using Result = std::expected<std::optional<VersionFile>, QString>;

    static constexpr int attempts = 3;
    /// Of one attempt.
    static constexpr HttpLimits limits{std::chrono::seconds(120), std::chrono::seconds(20), 1 << 20};

    ManifestRequest(QNetworkAccessManager &network, Wait wait, const HttpLimits &limits,
                    std::function<void(Result)> done, QObject *owner);

    /// Calls `done` once, after this call has returned, unless the owner dies first.
    void start(const QNetworkRequest &request);

private:
    void attempt();
    void answered(const HttpResult &result);
    void end(Result result);

    QNetworkAccessManager &m_network;
    Wait m_wait;
    HttpLimits m_limits;
    std::function<void(Result)> m_done;
    QNetworkRequest m_request;
    int m_attempt = 0;
};
