#include "Features/Relax/LoopingVideoController.h"

#include <QFileInfo>

#include <utility>

using namespace std::chrono_literals;

namespace
{
constexpr int infiniteLoops = -1;
/// The player gives a file up when the window's thread is busy for a third of a second, as it may be while
/// the first frame is drawn.
constexpr int mostRetries = 3;

bool isReadable(const QUrl &url)
{
    if (!url.isLocalFile())
        return true;
    const QFileInfo file(url.toLocalFile());
    // A device or a pipe may never end, or do something when it is read.
    return file.isFile() && file.isReadable();
}
} // namespace

LoopingVideoController::LoopingVideoController(QObject *parent) : QObject(parent)
{
    m_retry.setSingleShot(true);
    m_retry.setInterval(300ms);
    connect(&m_retry, &QTimer::timeout, this, &LoopingVideoController::retry);
    m_check.setSingleShot(true);
    m_check.setInterval(6s);
    connect(&m_check, &QTimer::timeout, this, &LoopingVideoController::check);
}

void LoopingVideoController::setPlayer(QObject *player)
{
    if (m_player == player)
        return;
    m_player = player;
    if (m_player)
        m_player->setProperty("loops", infiniteLoops);
    emit playerChanged();
}

void LoopingVideoController::setPlayerHasError(bool hasError)
{
    if (std::exchange(m_playerHasError, hasError) == hasError)
        return;
    emit playerHasErrorChanged();
    if (!hasError || m_loadedURL.isEmpty() || m_failed)
        return;
    if (m_retries < mostRetries)
        m_retry.start();
    else if (!m_check.isActive())
        setFailed(true);
}

void LoopingVideoController::retry()
{
    ++m_retries;
    if (!m_player)
        return;
    m_player->setProperty("source", QUrl());
    m_player->setProperty("source", m_loadedURL);
    follow();
    m_check.start();
}

void LoopingVideoController::check()
{
    if (m_playerHasError)
        setFailed(true);
    else
        m_retries = 0;
}

void LoopingVideoController::setPlaying(bool playing)
{
    if (std::exchange(m_isPlaying, playing) == playing)
        return;
    emit playingChanged();
    follow();
}

void LoopingVideoController::start(const QUrl &url)
{
    if (url == m_loadedURL && !url.isEmpty() && !m_failed) {
        follow();
        return;
    }
    stop();
    if (url.isEmpty() || !m_player)
        return;
    setLoadedURL(url);
    if (!isReadable(url)) {
        setFailed(true);
        return;
    }
    m_player->setProperty("source", url);
    follow();
    m_check.start();
}

void LoopingVideoController::stop()
{
    m_check.stop();
    m_retry.stop();
    m_retries = 0;
    if (m_player && !m_loadedURL.isEmpty()) {
        QMetaObject::invokeMethod(m_player, "stop");
        m_player->setProperty("source", QUrl());
    }
    setLoadedURL({});
    setFailed(false);
}

void LoopingVideoController::follow()
{
    if (m_player && !m_loadedURL.isEmpty() && !m_failed)
        QMetaObject::invokeMethod(m_player, m_isPlaying ? "play" : "pause");
}

void LoopingVideoController::setLoadedURL(const QUrl &url)
{
    if (m_loadedURL == url)
        return;
    m_loadedURL = url;
    emit loadedURLChanged();
}

void LoopingVideoController::setFailed(bool failed)
{
    if (std::exchange(m_failed, failed) != failed)
        emit failedChanged();
}
