#include "Store/SaveScheduler.h"

#include <QDir>

#include <algorithm>
#include <cstdio>
#include <future>
#include <utility>

using namespace std::chrono_literals;

SaveScheduler::SaveScheduler(WorkspaceFile *file, std::function<Snapshot()> takeSnapshot, Delays delays,
                             QObject *parent)
    : QObject(parent),
      m_file(file),
      m_takeSnapshot(std::move(takeSnapshot)),
      m_delays(delays),
      m_retryDelay(delays.firstRetry)
{
    m_timer.setSingleShot(true);
    // The promise is half a second after the last change; a coarse timer would stretch it.
    m_timer.setTimerType(Qt::PreciseTimer);
    connect(&m_timer, &QTimer::timeout, this, &SaveScheduler::saveSoon);
}

SaveScheduler::~SaveScheduler()
{
    {
        const std::lock_guard lock(m_mutex);
        m_isEnding = true;
    }
    m_wake.notify_all();
    if (m_worker.joinable())
        m_worker.join();
}

void SaveScheduler::schedule()
{
    noteChange();
    if (!m_sinceFirstChange.isValid())
        m_sinceFirstChange.start();
    const auto left = m_delays.longest - std::chrono::milliseconds(m_sinceFirstChange.elapsed());
    m_timer.start(std::clamp(m_delays.quiet, 0ms, std::max(left, 0ms)));
}

void SaveScheduler::saveSoon()
{
    takeResult();
    m_timer.stop();
    if (!isUnsaved())
        return;
    const std::lock_guard lock(m_mutex);
    if (!m_isWorking)
        start();
    else
        m_isWanted = m_changes != m_startedChange;
}

bool SaveScheduler::saveNow()
{
    return saveBefore(QDeadlineTimer::Forever);
}

bool SaveScheduler::saveBefore(QDeadlineTimer deadline)
{
    if (!finishWork(deadline))
        return false;
    if (isUnsaved()) {
        saveSoon();
        if (!finishWork(deadline))
            return false;
    }
    return !isUnsaved();
}

bool SaveScheduler::saveAtExit()
{
    const QDeadlineTimer deadline(m_delays.exit);
    // Whatever was in the way may be gone by now.
    if (saveBefore(deadline) || saveBefore(deadline))
        return true;
    const bool isElsewhere = saveElsewhere();
    const std::lock_guard lock(m_mutex);
    return isElsewhere && !m_isWorking;
}

/// Tells whether the writing came to an end, whatever came of it.
bool SaveScheduler::saveElsewhere()
{
    const QString folder = QDir::tempPath();
    std::packaged_task<std::expected<QString, QString>()> write(
        [file = m_file, folder, snapshot = m_takeSnapshot()] { return file->saveInto(folder, snapshot); });
    auto written = write.get_future();
    std::thread(std::move(write)).detach();
    const bool isDone = written.wait_for(m_delays.exit) == std::future_status::ready;
    const auto place = isDone ? written.get() : std::unexpected(QStringLiteral("the disk does not answer"));
    if (place)
        std::printf("[Orvel] The workspace could not be saved. It was written to %s\n",
                    qUtf8Printable(*place));
    else
        std::printf("[Orvel] Neither could the workspace be written to %s: %s\n", qUtf8Printable(folder),
                    qUtf8Printable(place.error()));
    std::fflush(stdout);
    return isDone;
}

void SaveScheduler::setNotice(const QString &notice)
{
    if (m_notice == notice)
        return;
    m_notice = notice;
    emit noticeChanged();
}

void SaveScheduler::setProblem(const QString &problem)
{
    if (m_problem == problem)
        return;
    m_problem = problem;
    emit problemChanged();
}

/// With the mutex held.
void SaveScheduler::start()
{
    m_sinceFirstChange.invalidate();
    m_startedChange = m_changes;
    m_job = m_takeSnapshot();
    m_isWorking = true;
    if (!m_worker.joinable())
        m_worker = std::thread(&SaveScheduler::work, this);
    m_wake.notify_all();
}

void SaveScheduler::work()
{
    std::unique_lock lock(m_mutex);
    for (;;) {
        m_wake.wait(lock, [this] { return m_job || m_isEnding; });
        if (!m_job)
            return;
        Snapshot snapshot = *std::exchange(m_job, std::nullopt);
        lock.unlock();
        WorkspaceFile::Saved saved = m_file->save(std::move(snapshot));
        lock.lock();
        m_saved = std::move(saved);
        m_isWorking = false;
        m_wake.notify_all();
        QMetaObject::invokeMethod(this, &SaveScheduler::takeResult, Qt::QueuedConnection);
    }
}

bool SaveScheduler::finishWork(QDeadlineTimer deadline)
{
    const auto isWorking = [this] {
        std::unique_lock lock(m_mutex);
        return m_isWorking;
    };
    do {
        {
            std::unique_lock lock(m_mutex);
            const auto isFree = [this] { return !m_isWorking; };
            if (deadline.isForever())
                m_wake.wait(lock, isFree);
            else if (!m_wake.wait_for(lock, std::chrono::milliseconds(deadline.remainingTime()), isFree))
                return false;
        }
        takeResult();
    } while (isWorking());
    return true;
}

void SaveScheduler::takeResult()
{
    std::optional<WorkspaceFile::Saved> saved;
    {
        const std::lock_guard lock(m_mutex);
        saved = std::exchange(m_saved, std::nullopt);
    }
    if (!saved)
        return;
    if (!saved->notice.isEmpty())
        setNotice(saved->notice);
    if (saved->failure) {
        std::printf("[Orvel] Failed to save workspace snapshot: %s\n",
                    qUtf8Printable(saved->failure->reason));
        std::fflush(stdout);
        if (!m_timer.isActive())
            m_timer.start(m_retryDelay);
        m_retryDelay = std::min(2 * m_retryDelay, m_delays.longestRetry);
        setProblem(saved->failure->problem);
    } else {
        m_savedChange = m_startedChange;
        m_retryDelay = m_delays.firstRetry;
        setProblem({});
    }
    if (std::exchange(m_isWanted, false))
        saveSoon();
}
