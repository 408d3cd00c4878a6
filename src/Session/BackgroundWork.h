#pragma once

#include <QMutex>
#include <QObject>

#include <atomic>
#include <functional>
#include <memory>
#include <semaphore>

/// One long piece of work at a time on a thread of its own, whose progress can be shown and which can be
/// cancelled.
///
/// Work that was cancelled, or whose owner is gone, is waited for half a second at most: a folder on a
/// network that does not answer may hold it for ever. So it uses only what it was given.
class BackgroundWork : public QObject
{
    Q_OBJECT

public:
    /// What the worker and the window share.
    class Job : public std::enable_shared_from_this<Job>
    {
    public:
        /// Tells how much is done, from 0 to 1; false if the work shall end.
        bool goOn(double share);
        bool isCanceled() const { return m_isCanceled; }

    private:
        friend class BackgroundWork;

        explicit Job(BackgroundWork *owner) : m_owner(owner) {}
        /// Calls the function in the window's thread, if the work is still wanted there.
        void tell(std::function<void(BackgroundWork &)> function);
        void giveUp();

        std::atomic<bool> m_isCanceled = false;
        std::atomic<int> m_percent = 0;
        QMutex m_mutex;
        /// Null once nobody waits for the work. Behind the mutex.
        BackgroundWork *m_owner;
        std::binary_semaphore m_ended{0};
    };
    /// Runs on the worker; what it returns is called in the window's thread, unless the work was cancelled.
    using Work = std::function<std::function<void()>(Job &)>;

    using QObject::QObject;
    /// Cancels the work and gives it half a second to put its things away.
    ~BackgroundWork() override;

    /// Cancels what is under way.
    void start(Work work);
    void cancel();
    bool isBusy() const { return m_job != nullptr; }
    /// From 0 to 1.
    double progress() const { return m_progress; }

signals:
    void changed();

private:
    void giveUp();

    double m_progress = 0;
    /// Null while nothing is under way.
    std::shared_ptr<Job> m_job;
};
