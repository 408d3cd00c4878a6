#pragma once

#include "Features/Relax/BreathingCycle.h"

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>
#include <QtQml/qqmlregistration.h>

/// Leads through the breathing cycle from its beginning, as long as it runs.
class BreathingGuide : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(bool running READ isRunning WRITE setRunning NOTIFY runningChanged FINAL)
    /// Whether the circle changes its size smoothly. Without it only the words change.
    Q_PROPERTY(bool smooth READ isSmooth WRITE setSmooth NOTIFY runningChanged FINAL)
    Q_PROPERTY(QString phase READ phase NOTIFY phaseChanged FINAL)
    Q_PROPERTY(int secondsLeft READ secondsLeft NOTIFY secondsLeftChanged FINAL)
    /// Size of the circle, as a part of the whole.
    Q_PROPERTY(double scale READ scale NOTIFY scaleChanged FINAL)
    /// Seconds since the beginning.
    Q_PROPERTY(double seconds READ seconds WRITE setSeconds NOTIFY scaleChanged FINAL)

public:
    explicit BreathingGuide(QObject *parent = nullptr);

    bool isRunning() const { return m_isRunning; }
    void setRunning(bool running);
    bool isSmooth() const { return m_isSmooth; }
    void setSmooth(bool smooth);
    QString phase() const { return enumLabel(m_moment.phase); }
    int secondsLeft() const { return m_moment.secondsLeft; }
    double scale() const { return m_isSmooth ? m_moment.scale : 1; }
    double seconds() const { return m_seconds; }
    void setSeconds(double seconds);

signals:
    void runningChanged();
    void phaseChanged();
    void secondsLeftChanged();
    void scaleChanged();

private:
    bool m_isRunning = false;
    bool m_isSmooth = true;
    double m_seconds = 0;
    BreathingCycle::Moment m_moment;
    QTimer m_frames;
    QElapsedTimer m_sinceStart;
};
