#include "Support/Updates/ManifestRequest.h"

using namespace std::chrono_literals;

namespace
{
ManifestRequest::Failure replied(int status)
{
    return {ManifestRequest::tr("The site replied %1 for the update check.").arg(status)};
}

/// Whether the server says that it is to blame, or nobody: then asking again may help.
bool mayPass(int status)
{
    return (status < 200 || status > 299) && (status < 400 || status > 499);
}

/// Nothing for what is no manifest.
std::optional<VersionFile> manifest(const HttpResponse &response)
{
    const QByteArray &type = response.contentType;
    if (!type.isEmpty() && !type.contains("json") && !type.contains("text"))
        return std::nullopt;
    return VersionFile::read(response.body);
}
} // namespace

ManifestRequest::ManifestRequest(Wait wait, const HttpLimits &limits, std::function<void(Result)> done,
                                 QObject *owner)
    : QObject(owner), m_wait(std::move(wait)), m_limits(limits), m_done(std::move(done))
{
}

void ManifestRequest::start(const HttpRequest &request)
{
    m_request = request;
    attempt();
}

void ManifestRequest::attempt()
{
    ++m_attempt;
    Http::get(m_request, m_limits, this, [this](const HttpResult &result) { responded(result); });
}

void ManifestRequest::responded(const HttpResult &result)
{
    if (result && !mayPass(result->status)) {
        end(result->isSuccess() ? Result(manifest(*result)) : std::unexpected(replied(result->status)));
    } else if (m_attempt < attempts) {
        m_wait(m_attempt * 2s, this, [this] { attempt(); });
    } else {
        end(std::unexpected(result ? replied(result->status) : Failure{result.error(), true}));
    }
}

void ManifestRequest::end(Result result)
{
    deleteLater();
    // The callback may delete the owner, and this with it.
    if (const auto done = std::exchange(m_done, nullptr))
        done(std::move(result));
}
