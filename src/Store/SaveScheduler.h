#pragma once

#include "Store/WorkspaceFile.h"

#include <QDeadlineTimer>
#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

#include <chrono>
#include <condition_variable>
#include <functional>
#include <mutex>
#include <optional>
#include <thread>

/// Decides when the workspace is saved, and saves it on a thread of its own, one save after the other, so
/// that nobody waits for a disk. A save that fails is tried again, at growing distances.
class SaveScheduler : public QObject
{
    Q_OBJECT
    /// Why the workspace is not saved, as a sentence for the user; empty while all is well.
    Q_PROPERTY(QString problem READ problem NOTIFY problemChanged FINAL)
    /// Something about the file that the user should know, until it is dismissed.
    Q_PROPERTY(QString notice READ notice NOTIFY noticeChanged FINAL)

public:
    struct Delays {
        /// From the last change to the save.
        std::chrono::milliseconds quiet{500};
        /// From the first change to the save, while changes keep coming.
        std::chrono::milliseconds longest{5000};
        /// From a failed save to the next; it doubles with each failure up to the longest.
        std::chrono::milliseconds firstRetry{1000};
        std::chrono::milliseconds longestRetry{30'000};
        /// How long the end of the program waits for a disk that does not answer.
        std::chrono::milliseconds exit{15'000};
    };

    /// @param file lives longer than the scheduler, and belongs to its thread while a save is under way
    /// @param takeSnapshot gives the workspace as it stands; it is called on the scheduler's own thread
    SaveScheduler(WorkspaceFile *file, std::function<Snapshot()> takeSnapshot, Delays delays,
                  QObject *parent = nullptr);
    /// Waits for the save that is under way.
    ~SaveScheduler() override;

    const QString &problem() const { return m_problem; }
    const QString &notice() const { return m_notice; }
    void setNotice(const QString &notice);
    Q_INVOKABLE void dismissNotice() { setNotice({}); }

    /// Something has changed that the next save has to write.
    void noteChange() { ++m_changes; }
    /// Something has changed; saves it soon.
    void schedule();
    /// Saves what has changed without waiting for it.
    void saveSoon();
    /// Saves what has changed and waits until it is on disk. Tells whether everything is.
    bool saveNow();
    /// The last save of the program. If it fails even when repeated, the workspace goes into the temporary
    /// folder, and a line on standard output says where. A disk that does not answer in time counts as
    /// failed. Returns whether the program can end in order. Otherwise a thread still hangs at a disk, and
    /// nothing but the end of the process gets rid of it.
    [[nodiscard]] bool saveAtExit();

signals:
    void problemChanged();
    void noticeChanged();

private:
    using Change = quint64;
    bool isUnsaved() const { return m_changes != m_savedChange; }
    void start();
    void work();
    /// Waits for the save under way. Tells whether it came to its end before the deadline.
    bool finishWork(QDeadlineTimer deadline = QDeadlineTimer::Forever);
    bool saveBefore(QDeadlineTimer deadline);
    bool saveElsewhere();
    void takeResult();
    void setProblem(const QString &problem);

    WorkspaceFile *m_file;
    std::function<Snapshot()> m_takeSnapshot;
    Delays m_delays;
    QTimer m_timer;
    QElapsedTimer m_sinceFirstChange;
    std::chrono::milliseconds m_retryDelay;
    Change m_changes = 0;
    Change m_startedChange = 0;
    Change m_savedChange = 0;
    /// Whether another save has to follow the one under way.
    bool m_isWanted = false;
    QString m_problem;
    QString m_notice;

    std::thread m_worker;
    std::mutex m_mutex;
    std::condition_variable m_wake;
    // Shared with the worker, under the mutex.
    std::optional<Snapshot> m_job;
    std::optional<WorkspaceFile::Saved> m_saved;
    bool m_isWorking = false;
    bool m_isEnding = false;
};
