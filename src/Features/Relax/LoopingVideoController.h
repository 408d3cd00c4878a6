#pragma once

#include <QPointer>
#include <QQmlEngine>
#include <QTimer>
#include <QUrl>

/// Loops a media file without sound. The `MediaPlayer` that does it comes from a package that a machine may
/// lack and whose libraries no start shall wait for, so it is spoken to by its properties alone. It has no
/// audio output, and so makes no sound whatever the file holds.
class LoopingVideoController : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QObject *player READ player WRITE setPlayer NOTIFY playerChanged FINAL)
    /// Whether the player has met an error, as the view sees it, which knows the player's type.
    Q_PROPERTY(
        bool playerHasError READ playerHasError WRITE setPlayerHasError NOTIFY playerHasErrorChanged FINAL)
    /// What is played; empty for nothing.
    Q_PROPERTY(QUrl loadedURL READ loadedURL NOTIFY loadedURLChanged FINAL)
    /// Follows the stage: a paused file holds its picture.
    Q_PROPERTY(bool isPlaying READ isPlaying WRITE setPlaying NOTIFY playingChanged FINAL)
    /// The file can't be played. Known at once of a file that can't be read, else after six seconds.
    Q_PROPERTY(bool failed READ hasFailed NOTIFY failedChanged FINAL)

public:
    explicit LoopingVideoController(QObject *parent = nullptr);

    QObject *player() const { return m_player; }
    void setPlayer(QObject *player);
    bool playerHasError() const { return m_playerHasError; }
    void setPlayerHasError(bool hasError);
    const QUrl &loadedURL() const { return m_loadedURL; }
    bool isPlaying() const { return m_isPlaying; }
    void setPlaying(bool playing);
    bool hasFailed() const { return m_failed; }

    /// Plays the file from its beginning; one that is loaded already goes on.
    Q_INVOKABLE void start(const QUrl &url);
    Q_INVOKABLE void stop();

signals:
    void playerChanged();
    void playerHasErrorChanged();
    void loadedURLChanged();
    void playingChanged();
    void failedChanged();

private:
    void follow();
    void retry();
    void check();
    void setLoadedURL(const QUrl &url);
    void setFailed(bool failed);

    QPointer<QObject> m_player;
    bool m_playerHasError = false;
    QUrl m_loadedURL;
    bool m_isPlaying = true;
    bool m_failed = false;
    int m_retries = 0;
    QTimer m_retry;
    QTimer m_check;
};
