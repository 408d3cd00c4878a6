#pragma once

#include <QObject>

#include <atomic>
#include <functional>
#include <memory>
#include <thread>

/// One long piece of work at a time on a thread of its own, whose progress can be shown and which can be
/// cancelled.
class BackgroundWork : public QObject
{
    Q_OBJECT

public:
    /// What the worker and the window share.
    class Job
    {
    public:
        /// Tells how much is done, from 0 to 1; false if the work shall end.
        bool goOn(double share);
        bool isCanceled() const { return m_isCanceled; }

    private:
        friend class BackgroundWork;

        std::atomic<bool> m_isCanceled = false;
        std::atomic<int> m_percent = 0;
        std::function<void()> m_advanced;
    };
    /// Runs on the worker; what it returns is called in the window's thread, unless the work was cancelled.
    using Work = std::function<std::function<void()>(Job &)>;

    using QObject::QObject;
    /// Cancels the work and waits for it.
    ~BackgroundWork() override;

    /// Cancels what is under way.
    void start(Work work);
    void cancel();
    bool isBusy() const { return m_isBusy; }
    /// From 0 to 1.
    double progress() const { return m_progress; }

signals:
    void changed();

private:
    void end();

    bool m_isBusy = false;
    double m_progress = 0;
    std::shared_ptr<Job> m_job;
    std::thread m_worker;
};
