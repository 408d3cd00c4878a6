#pragma once

#include "Support/Updates/ManifestRequest.h"
#include "Support/Updates/UpdateInstaller.h"

#include <QObject>
#include <QPointer>
#include <QUrl>

/// Finds out whether a newer build has been published, offers it, and has it installed. A check never
/// changes anything on the machine.
class UpdateService : public QObject
{
    Q_OBJECT
    Q_PROPERTY(bool isOffering READ isOffering NOTIFY availableChanged FINAL)
    Q_PROPERTY(QString offeredVersion READ offeredVersion NOTIFY availableChanged FINAL)
    Q_PROPERTY(QString offeredNotes READ offeredNotes NOTIFY availableChanged FINAL)
    Q_PROPERTY(QString notice READ notice NOTIFY noticeChanged FINAL)
    Q_PROPERTY(bool isChecking READ isChecking NOTIFY phaseChanged FINAL)
    Q_PROPERTY(bool isInstalling READ isInstalling NOTIFY phaseChanged FINAL)
    Q_PROPERTY(QString failure READ failure NOTIFY phaseChanged FINAL)
    Q_PROPERTY(double installProgress READ installProgressOrZero NOTIFY installProgressChanged FINAL)
    /// The update site as users know it; empty for none.
    Q_PROPERTY(QString site READ site CONSTANT FINAL)
    Q_PROPERTY(QString currentVersion READ currentVersion CONSTANT FINAL)
    Q_PROPERTY(QString currentBuild READ currentBuild CONSTANT FINAL)
    Q_PROPERTY(QString progressText READ progressText NOTIFY installProgressChanged FINAL)

public:
    struct Phase {
        enum class Kind { idle, checking, installing, failed };
        Kind kind = Kind::idle;
        /// Why it failed, for the user.
        QString message = {};

        bool operator==(const Phase &) const = default;
    };

    struct Options {
        /// Lives longer than the service; null for a copy that never replaces itself.
        UpdateInstaller *installer = nullptr;
        /// The base address of the update site, without a slash at its end.
        QString origin = {};
        QString version = QStringLiteral("0");
        QString build = QStringLiteral("0");
        /// Installs an update as soon as it is found.
        bool installsByItself = false;
        Wait wait = systemWait();
        /// Shows a page of the web to the user.
        std::function<void(const QUrl &)> openPage = [](const QUrl &) {};
        HttpLimits limits = ManifestRequest::limits;
    };

    /// The time between two checks nobody asked for.
    static constexpr std::chrono::hours checkInterval{6};
    /// Before the next check after one that nothing answered; doubles each time up to the longest.
    static constexpr std::chrono::seconds firstRetryDelay{10};
    static constexpr std::chrono::seconds longestRetryDelay{20 * 60};

    explicit UpdateService(Options options, QObject *parent = nullptr);

    /// What `ORVEL_UPDATE_BASE` says, if it says something, otherwise the site the program was built for.
    static QString origin(const QString &updateBase, const QString &builtFor);
    /// As requests name the program, such as "Orvel/1.4.2".
    static QByteArray userAgent(const QString &version);
    /// Compares dotted numbers; missing and unreadable ones count as 0.
    static std::strong_ordering compare(const QString &a, const QString &b);
    static bool isNewer(const QString &version, const QString &build, const QString &thanVersion,
                        const QString &thanBuild);

    QString site() const;
    const QString &currentVersion() const { return m_options.version; }
    const QString &currentBuild() const { return m_options.build; }
    const Phase &phase() const { return m_phase; }
    const std::optional<AvailableUpdate> &available() const { return m_available; }
    /// A message for the user; empty for none.
    const QString &notice() const { return m_notice; }
    /// 0 to 1 while a package is fetched, nothing at other times.
    std::optional<double> installProgress() const { return m_installProgress; }

    bool isOffering() const { return m_available.has_value(); }
    QString offeredVersion() const { return m_available ? m_available->version : QString(); }
    QString offeredNotes() const { return m_available ? m_available->notes : QString(); }
    bool isChecking() const { return m_phase.kind == Phase::Kind::checking; }
    bool isInstalling() const { return m_phase.kind == Phase::Kind::installing; }
    const QString &failure() const { return m_phase.message; }
    double installProgressOrZero() const { return m_installProgress.value_or(0); }
    QString progressText() const;

    /// Asks the site, unless it is being asked or an install is under way. A check nobody asked for says
    /// nothing but an offer, and does not disturb one that stands.
    Q_INVOKABLE void check(bool manual);
    /// Checks now and every six hours, as long as the owner lives, and in between as long as nothing answers:
    /// there may be no network yet, such as after a sleep.
    Q_INVOKABLE void checkRegularly(QObject *owner);
    /// Installs what is on offer, or opens its page where this copy can't replace itself. Ends a check that
    /// is under way.
    Q_INVOKABLE void install();
    Q_INVOKABLE void openDownloadPage();
    /// Takes the offer away until the next check.
    Q_INVOKABLE void postpone();
    Q_INVOKABLE void clearNotice();

signals:
    void phaseChanged();
    void availableChanged();
    void noticeChanged();
    void installProgressChanged();

private:
    void checked(const ManifestRequest::Result &result, bool manual);
    void checkAgainLater();
    /// What a check has to say, beside an offer.
    QString verdict(const ManifestRequest::Result &result) const;
    bool isNewer(const VersionFile &file) const;
    void offer(const AvailableUpdate &update);
    void installed(const std::expected<void, QString> &result);
    void setPhase(const Phase &phase);
    void setAvailable(const std::optional<AvailableUpdate> &update);
    void setNotice(const QString &notice);
    void setInstallProgress(std::optional<double> progress);

    Options m_options;
    Phase m_phase;
    std::optional<AvailableUpdate> m_available;
    QString m_notice;
    std::optional<double> m_installProgress;
    QPointer<ManifestRequest> m_request;
    /// In a row.
    int m_unansweredChecks = 0;
    bool m_isWaitingToCheck = false;
};
