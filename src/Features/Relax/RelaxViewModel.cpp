#include "Features/Relax/RelaxViewModel.h"

#include "Features/Relax/RelaxTexts.h"

#include <utility>

RelaxViewModel::RelaxViewModel(QObject *parent) : ViewModel(parent)
{
    connect(&m_sleep, &SleepTimer::changed, this, &RelaxViewModel::sleepChanged);
    connect(&m_sleep, &SleepTimer::finished, this, &RelaxViewModel::finishSleep);
}

void RelaxViewModel::setScene(const QString &scene)
{
    const auto value = enumFromRaw<RelaxScene>(scene);
    if (!value)
        return;
    if (std::exchange(m_scene, *value) != *value)
        emit sceneChanged();
    setUseVideo(false);
}

void RelaxViewModel::nextScene()
{
    const auto next = (std::size_t(m_scene) + 1) % enumCases<RelaxScene>().size();
    setScene(enumRawText(RelaxScene(next)));
}

void RelaxViewModel::setPlaying(bool playing)
{
    if (std::exchange(m_isPlaying, playing) != playing)
        emit isPlayingChanged();
}

void RelaxViewModel::setBreathing(bool breathing)
{
    if (std::exchange(m_isBreathing, breathing) != breathing)
        emit breathingChanged();
}

void RelaxViewModel::setZenMode(bool zenMode)
{
    if (std::exchange(m_isZenMode, zenMode) != zenMode)
        emit zenModeChanged();
}

void RelaxViewModel::setUseVideo(bool useVideo)
{
    if (std::exchange(m_usesVideo, useVideo) != useVideo)
        emit useVideoChanged();
}

QString RelaxViewModel::sleepText() const
{
    return isSleepSet() ? RelaxTexts::clockString(m_sleep.secondsLeft()) : QString();
}

void RelaxViewModel::setSleepTimer(int minutes)
{
    if (minutes > 0)
        m_sleep.start(std::chrono::minutes(minutes));
    else
        m_sleep.stop();
}

void RelaxViewModel::finishSleep()
{
    setPlaying(false);
    setBreathing(false);
    setUseVideo(false);
    setZenMode(false);
}
