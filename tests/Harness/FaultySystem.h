#pragma once

#include <QByteArray>
#include <QHash>
#include <QStringList>

/// Stands between a test program and the system's file calls, and lets them fail on request. Link
/// FaultySystem.cpp into the test; calls pass untouched unless a `FaultySystem` lives.
///
/// Watched are the calls that look at, open, read, write, sync, rename, link, remove and close files.
class FaultySystem
{
public:
    enum class Fault {
        none,
        /// The one call fails.
        once,
        /// That call and all later ones fail, as on a disk that has died.
        fromThereOn,
    };

    FaultySystem() : FaultySystem(Fault::none, 0, 0) {}
    /// @param call number of the call that fails, counted from 0 since now
    /// @param error the `errno` it fails with; for `close` the file is closed all the same
    FaultySystem(Fault fault, qsizetype call, int error);
    ~FaultySystem();
    Q_DISABLE_COPY_MOVE(FaultySystem)

    /// At most this many bytes are taken by one write.
    void limitWrites(std::size_t bytes) { m_writeLimit = bytes; }
    /// From now on all calls of these names fail.
    void refuse(const QStringList &names, int error)
    {
        m_refused = names;
        m_error = error;
    }
    /// Names of the calls made so far.
    const QStringList &calls() const { return m_calls; }

    /// What a call did that a power cut may undo. `file` numbers the files in the order of their opening.
    struct Effect {
        QString name;
        qsizetype file = -1;
        QByteArray path, target = {};
        QByteArray bytes = {};
    };
    const QList<Effect> &effects() const { return m_effects; }

    /// For the stand-ins of the system calls: the errno to fail with now, or 0.
    static int nextError(const char *name);
    static std::size_t allowedWrite(std::size_t bytes);
    /// For the same: a file was opened, or something else was done that succeeded.
    static void opened(int descriptor, const char *path);
    static void done(const char *name, int descriptor, QByteArray bytes = {});
    static void done(const char *name, const char *path, const char *target = "");

private:
    Fault m_fault;
    qsizetype m_failingCall;
    int m_error;
    std::size_t m_writeLimit = std::size_t(-1);
    QStringList m_calls, m_refused;
    QList<Effect> m_effects;
    QHash<int, qsizetype> m_files;
    qsizetype m_opened = 0;
};
