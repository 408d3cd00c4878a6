#include "Session/BackgroundWork.h"

#include <thread>
#include <utility>

using namespace std::chrono_literals;

bool BackgroundWork::Job::goOn(double share)
{
    const int next = int(share * 100);
    if (m_percent.exchange(next) != next)
        tell([next](BackgroundWork &owner) {
            owner.m_progress = next / 100.0;
            emit owner.changed();
        });
    return !m_isCanceled;
}

void BackgroundWork::Job::tell(std::function<void(BackgroundWork &)> function)
{
    // The owner can't go while this is held, and what was posted to it goes with it.
    const QMutexLocker lock(&m_mutex);
    if (!m_owner)
        return;
    QMetaObject::invokeMethod(
        m_owner,
        [job = shared_from_this(), owner = m_owner, function = std::move(function)] {
            if (owner->m_job == job)
                function(*owner);
        },
        Qt::QueuedConnection);
}

void BackgroundWork::Job::giveUp()
{
    m_isCanceled = true;
    const QMutexLocker lock(&m_mutex);
    m_owner = nullptr;
}

BackgroundWork::~BackgroundWork()
{
    static constexpr auto patience = 500ms;
    const auto job = m_job;
    giveUp();
    if (job)
        (void)job->m_ended.try_acquire_for(patience);
}

void BackgroundWork::start(Work work)
{
    giveUp();
    m_progress = 0;
    const std::shared_ptr<Job> job(new Job(this));
    m_job = job;
    std::thread([job, work = std::move(work)] {
        job->tell([done = work(*job)](BackgroundWork &owner) {
            owner.m_job.reset();
            done();
            emit owner.changed();
        });
        job->m_ended.release();
    }).detach();
    emit changed();
}

void BackgroundWork::cancel()
{
    if (!isBusy())
        return;
    giveUp();
    emit changed();
}

void BackgroundWork::giveUp()
{
    if (const auto job = std::exchange(m_job, nullptr))
        job->giveUp();
}
