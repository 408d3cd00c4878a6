#pragma once

#include "Foundation/FileDescriptor.h"

#include <QByteArray>
#include <QString>

#include <array>
#include <mutex>
#include <optional>

/// The line to a run that is going: another thread sees what it prints, and can end it.
class RunControl
{
public:
    enum Stream : std::size_t { output, errors };

    RunControl();

    /// Asks the run to end; it is killed if it doesn't.
    void stop();
    /// Can be read once the run has to end.
    int stopped() const { return m_stopped.number(); }

    /// Takes what the run prints.
    void append(Stream stream, QByteArrayView bytes);

    /// What was printed so far, of much its beginning and its end; nothing if it is what was given last.
    std::optional<QString> newText();

private:
    struct Printed {
        QByteArray head;
        QByteArray tail;
        qint64 size = 0;
    };

    FileDescriptor m_stopped;
    std::mutex m_mutex;
    std::array<Printed, 2> m_printed;
    bool m_isNew = false;
};
