#pragma once

#include "Features/Relax/RelaxScene.h"
#include "Features/Relax/SleepTimer.h"
#include "Foundation/Choice.h"
#include "Session/ViewModel.h"

/// The relax screen: its stage, the sleep timer and zen mode.
class RelaxViewModel : public ViewModel
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QList<Choice> scenes READ scenes CONSTANT FINAL)
    /// Raw text of the `RelaxScene`.
    Q_PROPERTY(QString scene READ scene WRITE setScene NOTIFY sceneChanged FINAL)
    Q_PROPERTY(QString sceneLabel READ sceneLabel NOTIFY sceneChanged FINAL)
    Q_PROPERTY(bool isPlaying READ isPlaying WRITE setPlaying NOTIFY isPlayingChanged FINAL)
    Q_PROPERTY(bool breathing READ isBreathing WRITE setBreathing NOTIFY breathingChanged FINAL)
    Q_PROPERTY(bool zenMode READ isZenMode WRITE setZenMode NOTIFY zenModeChanged FINAL)
    /// Whether the stage shows the video and not the scene.
    Q_PROPERTY(bool useVideo READ usesVideo WRITE setUseVideo NOTIFY useVideoChanged FINAL)
    Q_PROPERTY(bool isSleepSet READ isSleepSet NOTIFY sleepChanged FINAL)
    /// What is left of the sleep timer, such as "4:05"; empty without one.
    Q_PROPERTY(QString sleepText READ sleepText NOTIFY sleepChanged FINAL)
    /// The times that the sleep timer offers.
    Q_PROPERTY(QList<int> sleepMinutes READ sleepMinutes CONSTANT FINAL)

public:
    explicit RelaxViewModel(QObject *parent = nullptr);

    static QList<Choice> scenes() { return Choice::all<RelaxScene>(); }
    QString scene() const { return enumRawText(m_scene); }
    QString sceneLabel() const { return enumLabel(m_scene); }
    /// Shows this scene in the place of a video. Unknown texts are ignored.
    void setScene(const QString &scene);
    bool isPlaying() const { return m_isPlaying; }
    void setPlaying(bool playing);
    bool isBreathing() const { return m_isBreathing; }
    void setBreathing(bool breathing);
    bool isZenMode() const { return m_isZenMode; }
    void setZenMode(bool zenMode);
    bool usesVideo() const { return m_usesVideo; }
    void setUseVideo(bool useVideo);
    bool isSleepSet() const { return m_sleep.isRunning(); }
    QString sleepText() const;
    static QList<int> sleepMinutes() { return {5, 15, 30, 45, 60}; }
    SleepTimer &sleepTimer() { return m_sleep; }

    /// Goes on to the next scene; after the last one comes the first.
    Q_INVOKABLE void nextScene();
    /// 0 for no timer.
    Q_INVOKABLE void setSleepTimer(int minutes);

signals:
    void sceneChanged();
    void isPlayingChanged();
    void breathingChanged();
    void zenModeChanged();
    void useVideoChanged();
    void sleepChanged();

protected:
    void refresh(const ChangeSet &) override {}

private:
    void finishSleep();

    RelaxScene m_scene = RelaxScene::aurora;
    bool m_isPlaying = true;
    bool m_isBreathing = false;
    bool m_isZenMode = false;
    bool m_usesVideo = false;
    SleepTimer m_sleep;
};
