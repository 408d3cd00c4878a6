#pragma once

#include <QStringList>

/// Stands between a test program and the system's file calls, and lets them fail on request. Link
/// FaultySystem.cpp into the test; calls pass untouched unless a `FaultySystem` lives.
///
/// Watched are the calls that open, write, sync, rename, link, remove and close files.
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
    /// Names of the calls made so far.
    const QStringList &calls() const { return m_calls; }

    /// For the stand-ins of the system calls: the errno to fail with now, or 0.
    static int nextError(const char *name);
    static std::size_t allowedWrite(std::size_t bytes);

private:
    Fault m_fault;
    qsizetype m_failingCall;
    int m_error;
    std::size_t m_writeLimit = std::size_t(-1);
    QStringList m_calls;
};
