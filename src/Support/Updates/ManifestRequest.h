#pragma once

#include "Foundation/Http.h"
#include "Foundation/Wait.h"
#include "Support/Updates/VersionFile.h"

#include <QCoreApplication>
#include <QObject>

/// Asks the update site for its manifest, again after a while if the site fails. Deletes itself when it has
/// answered.
class ManifestRequest : public QObject
{
    Q_DECLARE_TR_FUNCTIONS(ManifestRequest)

public:
    struct Failure {
        /// For the user.
        QString message;
        /// Whether no response came at all, as it is without a network.
        bool isUnanswered = false;
    };
    /// The manifest, or nothing if the site gave something else.
    using Result = std::expected<std::optional<VersionFile>, Failure>;

    static constexpr int attempts = 3;
    /// Of one attempt.
    static constexpr HttpLimits limits{std::chrono::seconds(120), std::chrono::seconds(20), 1 << 20};

    ManifestRequest(Wait wait, const HttpLimits &limits, std::function<void(Result)> done, QObject *owner);

    /// Calls `done` once, after this call has returned, unless the owner dies first.
    void start(const HttpRequest &request);

private:
    void attempt();
    void responded(const HttpResult &result);
    void end(Result result);

    Wait m_wait;
    HttpLimits m_limits;
    std::function<void(Result)> m_done;
    HttpRequest m_request;
    int m_attempt = 0;
};
