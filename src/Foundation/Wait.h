#pragma once

#include <QTimer>

#include <chrono>
#include <functional>

/// Calls `then` after the time has passed, unless the owner dies first.
using Wait = std::function<void(std::chrono::milliseconds time, QObject *owner, std::function<void()> then)>;

/// By the system's clock.
inline Wait systemWait()
{
    return [](std::chrono::milliseconds time, QObject *owner, std::function<void()> then) {
        QTimer::singleShot(time, owner, std::move(then));
    };
}
