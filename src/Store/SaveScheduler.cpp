#include "Store/SaveScheduler.h"

#include <QDir>

#include <algorithm>
#include <cstdio>
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
    finishWork();
    if (isUnsaved()) {
        saveSoon();
        finishWork();
    }
    return !isUnsaved();
}

void SaveScheduler::saveAtExit()
{
    // Whatever was in the way may be gone by now.
    if (saveNow() || saveNow())
        return;
    const QString folder = QDir::tempPath();
    const auto place = m_file->saveInto(folder, m_takeSnapshot());
    if (place)
        std::printf("[Orvel] The workspace could not be saved. It was written to %s\n",
                    qUtf8Printable(*place));
    else
        std::printf("[Orvel] Neither could the workspace be written to %s: %s\n", qUtf8Printable(folder),
                    qUtf8Printable(place.error()));
    std::fflush(stdout);
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

void SaveScheduler::finishWork()
{
    const auto isWorking = [this] {
        std::unique_lock lock(m_mutex);
        return m_isWorking;
    };
    do {
        {
            std::unique_lock lock(m_mutex);
            m_wake.wait(lock, [this] { return !m_isWorking; });
        }
        takeResult();
    } while (isWorking());
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
