#include "Features/Relax/BreathingGuide.h"

#include <utility>

using namespace std::chrono_literals;

namespace
{
constexpr auto smoothFrame = 33ms;
constexpr auto plainFrame = 250ms;
} // namespace

BreathingGuide::BreathingGuide(QObject *parent) : QObject(parent)
{
    m_frames.setTimerType(Qt::PreciseTimer);
    m_frames.setInterval(smoothFrame);
    connect(&m_frames, &QTimer::timeout, this, [this] { setSeconds(double(m_sinceStart.elapsed()) / 1000); });
}

void BreathingGuide::setRunning(bool running)
{
    if (std::exchange(m_isRunning, running) == running)
        return;
    if (running) {
        m_sinceStart.start();
        m_frames.start();
        setSeconds(0);
    } else {
        m_frames.stop();
    }
    emit runningChanged();
}

void BreathingGuide::setSmooth(bool smooth)
{
    if (std::exchange(m_isSmooth, smooth) == smooth)
        return;
    m_frames.setInterval(smooth ? smoothFrame : plainFrame);
    emit runningChanged();
    emit scaleChanged();
}

void BreathingGuide::setSeconds(double seconds)
{
    m_seconds = seconds;
    const auto before = std::exchange(m_moment, BreathingCycle::at(seconds));
    if (before.phase != m_moment.phase)
        emit phaseChanged();
    if (before.secondsLeft != m_moment.secondsLeft)
        emit secondsLeftChanged();
    if (before.scale != m_moment.scale)
        emit scaleChanged();
}
