#pragma once

#include "Foundation/AtomicFile.h"
#include "Store/Snapshot.h"

#include <QCoreApplication>
#include <QUuid>

#include <expected>
#include <functional>
#include <optional>

/// The workspace on disk: one file, which other programs, failing disks and other versions of Orvel reach as
/// well. What is found there and can't be taken over whole is kept in the rescue folder before a save
/// replaces it.
///
/// One call at a time; the calls may come from different threads.
class WorkspaceFile
{
    Q_DECLARE_TR_FUNCTIONS(WorkspaceFile)

public:
    struct Options {
        QString path;
        /// Where versions are kept that would otherwise be lost, the newest five; it is made when needed.
        QString rescueFolder;
        std::function<Timestamp()> now;
        std::function<QUuid()> makeId = &QUuid::createUuid;
        /// Whether this process may still write, asked before each save. The error is the end of the sentence
        /// "Not saved: ...".
        std::function<std::expected<void, QString>()> checkLock = {};
    };

    enum class State {
        /// Or there with no bytes in it.
        absent,
        whole,
        /// Read, but for parts that were damaged or that only a newer version knows.
        partial,
        /// There, but no workspace.
        damaged,
        /// There, but the system gives no or not all of its bytes.
        unreadable
    };

    struct Loaded {
        Snapshot snapshot;
        State state = State::absent;
        /// A sentence for the user; empty if the workspace was absent or whole.
        QString notice;
    };

    struct Saved {
        struct Failure {
            /// The step that failed and the system's reason, for the log.
            QString reason;
            /// A sentence for the user.
            QString problem;
        };
        std::optional<Failure> failure;
        /// A sentence for the user about a version that was kept; empty if none was.
        QString notice;
    };

    explicit WorkspaceFile(Options options);

    const QString &path() const { return m_options.path; }

    /// Reads the file. Whatever is found there, the workspace can be used, and the file stays as it is; what
    /// a killed save left beside it is removed.
    Loaded load();

    /// Replaces the file durably. On a failure the file is as it was, except if only the last step failed,
    /// the sync of the folder: then the new file may not survive a power cut. The snapshot is let go of once
    /// it is encoded, before the disk is waited for.
    Saved save(Snapshot snapshot);

    /// Writes the workspace to a new file in another folder, the last resort at the end of the program.
    /// Returns its path.
    std::expected<QString, QString> saveInto(const QString &folder, const Snapshot &snapshot) const;

private:
    struct Reading;
    using Outcome = std::expected<void, Saved::Failure>;

    Reading read();
    Outcome write(Snapshot snapshot, const std::filesystem::path &target, QString &notice);
    Outcome keepWhatIsThere(const std::filesystem::path &target, QString &notice);
    std::expected<QString, FileError> rescue(const std::filesystem::path &target) const;
    static QString noticeOfLoad(State state, const QString &reason);
    static QString causeOf(const FileError &error);
    static QString problemOf(const QString &cause);
    static Saved::Failure refusal(const QString &reason);
    static Saved::Failure failureOf(const FileError &error);

    Options m_options;
    /// The version that the workspace in memory comes from; nothing if there was no file.
    std::optional<FileIdentity> m_known;
    /// What was read, while the file still holds more than the workspace in memory.
    State m_state = State::absent;
};
