#include "Features/Relax/LoopingVideoController.h"

#include <QFileInfo>

#include <utility>

using namespace std::chrono_literals;

namespace
{
/// Values of the player's enumerations.
constexpr int noError = 0;
constexpr int invalidMedia = 7;
constexpr int infiniteLoops = -1;

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

void LoopingVideoController::check()
{
    setFailed(m_player && (m_player->property("error").toInt() != noError ||
                           m_player->property("mediaStatus").toInt() == invalidMedia));
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
