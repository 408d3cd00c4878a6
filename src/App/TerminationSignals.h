#pragma once

#include <QObject>

/// Turns the signals by which a system asks a process to end (SIGTERM, SIGINT, SIGHUP) into one Qt signal in
/// the event loop, so that the program can end in order. One object per process.
class TerminationSignals : public QObject
{
    Q_OBJECT

public:
    explicit TerminationSignals(QObject *parent = nullptr);
    ~TerminationSignals() override;

signals:
    void received();

private:
    int m_readEnd = -1;
};
