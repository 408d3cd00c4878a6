#pragma once

#include <QObject>

#include <functional>

/// Turns any number of requests within one turn of the event loop into one call at its end.
class CoalescedCall : public QObject
{
    Q_OBJECT

public:
    explicit CoalescedCall(std::function<void()> call, QObject *parent = nullptr);

    void request();
    /// Makes a requested call now instead of at the end of the turn.
    void flush();

private:
    std::function<void()> m_call;
    bool m_requested = false;
};
