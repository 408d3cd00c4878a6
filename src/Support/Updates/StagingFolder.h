#pragma once

#include <QString>

#include <expected>
#include <memory>

/// A folder of one's own for one install, readable by its owner only; removed with all it holds unless it is
/// handed over.
class StagingFolder
{
public:
    /// `Orvel-update-<UUID>` in this folder, which is made if need be. On failure gives the system's reason.
    static std::expected<std::unique_ptr<StagingFolder>, QString> make(const QString &temporaryFolder);
    ~StagingFolder();
    Q_DISABLE_COPY_MOVE(StagingFolder)

    const QString &path() const { return m_path; }
    QString filePath(const QString &name) const { return m_path + u'/' + name; }
    /// From now on someone else removes it.
    void handOver() { m_isHandedOver = true; }

private:
    explicit StagingFolder(const QString &path) : m_path(path) {}

    QString m_path;
    bool m_isHandedOver = false;
};
