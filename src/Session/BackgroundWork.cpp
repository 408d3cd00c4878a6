#include "Session/BackgroundWork.h"

bool BackgroundWork::Job::goOn(double share)
{
    const int next = int(share * 100);
    if (m_percent.exchange(next) != next)
        m_advanced();
    return !m_isCanceled;
}

BackgroundWork::~BackgroundWork()
{
    end();
}

void BackgroundWork::start(Work work)
{
    end();
    m_isBusy = true;
    m_progress = 0;
    auto job = std::make_shared<Job>();
    job->m_advanced = [this, job = job.get()] {
        QMetaObject::invokeMethod(
            this,
            [this, percent = job->m_percent.load()] {
                m_progress = percent / 100.0;
                emit changed();
            },
            Qt::QueuedConnection);
    };
    m_job = job;
    m_worker = std::thread([this, job, work = std::move(work)] {
        const std::function<void()> done = work(*job);
        QMetaObject::invokeMethod(
            this,
            [this, job, done] {
                if (job->m_isCanceled || m_job != job)
                    return;
                m_isBusy = false;
                done();
                emit changed();
            },
            Qt::QueuedConnection);
    });
    emit changed();
}

void BackgroundWork::cancel()
{
    if (!m_isBusy)
        return;
    m_job->m_isCanceled = true;
    m_isBusy = false;
    emit changed();
}

void BackgroundWork::end()
{
    if (m_job)
        m_job->m_isCanceled = true;
    if (m_worker.joinable())
        m_worker.join();
}
