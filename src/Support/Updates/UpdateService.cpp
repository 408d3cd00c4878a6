#include "Support/Updates/UpdateService.h"

#include "Support/Updates/UpdateLog.h"

#include <QPointer>

#include <algorithm>
#include <ranges>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace
{
using Kind = UpdateService::Phase::Kind;

/// Unreadable numbers count as 0.
qint64 number(QStringView text)
{
    const bool isTrimmed = text.trimmed().size() == text.size();
    return isTrimmed ? text.toLongLong() : 0;
}
} // namespace

UpdateService::UpdateService(Options options, QObject *parent)
    : QObject(parent), m_options(std::move(options))
{
}

QString UpdateService::origin(const QString &updateBase, const QString &builtFor)
{
    const QString trimmed = updateBase.trimmed();
    return trimmed.isEmpty() ? builtFor : trimmed;
}

QByteArray UpdateService::userAgent(const QString &version)
{
    return "Orvel/" + version.toUtf8();
}

std::strong_ordering UpdateService::compare(const QString &a, const QString &b)
{
    const QStringList left = a.split(u'.');
    const QStringList right = b.split(u'.');
    for (qsizetype i = 0; i < std::max(left.size(), right.size()); ++i)
        if (const auto order = number(left.value(i)) <=> number(right.value(i)); order != 0)
            return order;
    return std::strong_ordering::equal;
}

bool UpdateService::isNewer(const QString &version, const QString &build, const QString &thanVersion,
                            const QString &thanBuild)
{
    const auto order = compare(version, thanVersion);
    return order > 0 || (order == 0 && number(build) > number(thanBuild));
}

QString UpdateService::site() const
{
    QString origin = m_options.origin;
    origin.remove(u"https://"_s).remove(u"http://"_s);
    const auto isSlash = [](QChar letter) { return letter == u'/'; };
    const auto first = std::ranges::find_if_not(origin, isSlash);
    const auto last = std::ranges::find_if_not(origin | std::views::reverse, isSlash).base();
    return first < last ? QString(first, last - first) : QString();
}

QString UpdateService::progressText() const
{
    return tr("%1% — this can take a moment on a slow connection.")
        .arg(qRound(installProgressOrZero() * 100));
}

void UpdateService::check(bool manual)
{
    if (isChecking() || isInstalling() || (m_available && !manual))
        return;
    setPhase({Kind::checking});
    const QUrl address(m_options.origin + u"/version.json"_s, QUrl::StrictMode);
    if (!Http::isWebAddress(address)) {
        checked(std::unexpected(ManifestRequest::Failure{tr("Bad update address.")}), manual);
        return;
    }
    const auto done = [this, manual](const ManifestRequest::Result &result) { checked(result, manual); };
    m_request = new ManifestRequest(m_options.wait, m_options.limits, done, this);
    m_request->start({address, userAgent(m_options.version)});
}

void UpdateService::checked(const ManifestRequest::Result &result, bool manual)
{
    const bool isUnanswered = !result && result.error().isUnanswered;
    m_unansweredChecks = isUnanswered ? m_unansweredChecks + 1 : 0;
    if (isUnanswered && !manual)
        checkAgainLater();
    if (result && *result && isNewer(**result))
        offer((*result)->offer(QUrl(m_options.origin)));
    else if (manual)
        setNotice(verdict(result));
    if (isChecking())
        setPhase({});
}

void UpdateService::checkAgainLater()
{
    if (std::exchange(m_isWaitingToCheck, true))
        return;
    const int doublings = std::min(m_unansweredChecks - 1, 16);
    const auto delay = std::min(firstRetryDelay * (1 << doublings), longestRetryDelay);
    m_options.wait(delay, this, [this] {
        m_isWaitingToCheck = false;
        if (m_unansweredChecks > 0)
            check(false);
    });
}

QString UpdateService::verdict(const ManifestRequest::Result &result) const
{
    if (!result)
        return result.error().message;
    return *result ? tr("Orvel %1 is the latest version.").arg(m_options.version)
                   : tr("The update check couldn't read %1.").arg(site());
}

bool UpdateService::isNewer(const VersionFile &file) const
{
    return isNewer(file.version, file.buildOrZero(), m_options.version, m_options.build);
}

void UpdateService::offer(const AvailableUpdate &update)
{
    setAvailable(update);
    setNotice({});
    qCInfo(updateLog, "update available: %ls", qUtf16Printable(update.version));
    if (m_options.installsByItself && !update.downloadURL.isEmpty())
        m_options.wait(1s, this, [this] { install(); });
}

void UpdateService::checkRegularly(QObject *owner)
{
    check(false);
    const QPointer<UpdateService> service(this);
    m_options.wait(checkInterval, owner, [service, owner] {
        if (service)
            service->checkRegularly(owner);
    });
}

void UpdateService::install()
{
    if (!m_available || isInstalling())
        return;
    if (m_available->downloadURL.isEmpty() || !m_options.installer || !m_options.installer->canInstall()) {
        openDownloadPage();
        return;
    }
    delete m_request;
    setPhase({Kind::installing});
    setInstallProgress(0);
    m_options.installer->install(
        *m_available, this, [this](double progress) { setInstallProgress(progress); },
        [this](const std::expected<void, QString> &result) { installed(result); });
}

void UpdateService::installed(const std::expected<void, QString> &result)
{
    if (result) {
        // The program is about to quit; until then nothing else may begin.
        setAvailable({});
        return;
    }
    qCWarning(updateLog, "install failed: %ls", qUtf16Printable(result.error()));
    setPhase({Kind::failed, result.error()});
    setInstallProgress({});
}

void UpdateService::openDownloadPage()
{
    if (m_available)
        m_options.openPage(m_available->pageURL);
}

void UpdateService::postpone()
{
    if (isInstalling())
        return;
    setAvailable({});
    setNotice({});
    setInstallProgress({});
    // An offer that comes again starts without the failure of this one.
    if (m_phase.kind == Kind::failed)
        setPhase({});
}

void UpdateService::clearNotice()
{
    setNotice({});
}

void UpdateService::setPhase(const Phase &phase)
{
    if (std::exchange(m_phase, phase) != phase)
        emit phaseChanged();
}

void UpdateService::setAvailable(const std::optional<AvailableUpdate> &update)
{
    if (std::exchange(m_available, update) != update)
        emit availableChanged();
}

void UpdateService::setNotice(const QString &notice)
{
    if (std::exchange(m_notice, notice) != notice)
        emit noticeChanged();
}

void UpdateService::setInstallProgress(std::optional<double> progress)
{
    if (std::exchange(m_installProgress, progress) != progress)
        emit installProgressChanged();
}
