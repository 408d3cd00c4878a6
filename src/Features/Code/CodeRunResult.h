#pragma once

#include <QString>

#include <optional>

/// What became of a run.
struct CodeRunResult {
    enum class Status { success, failure, timedOut, unsupported };
    Status status = Status::success;
    /// For the console.
    QString output;
    /// Seconds; 0 when nothing ran.
    double duration = 0;
    /// The interpreter that ran, for the status line.
    std::optional<QString> tool;

    bool operator==(const CodeRunResult &) const = default;
};
