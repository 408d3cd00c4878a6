#pragma once

#include <QObject>

#include <chrono>
#include <functional>

/// Calls `then` after the time has passed, unless the owner dies first.
using Wait = std::function<void(std::chrono::milliseconds time, QObject *owner, std::function<void()> then)>;

/// By the system's clock, which goes on while the machine sleeps: what came due meanwhile is called soon
/// after.
Wait systemWait();
