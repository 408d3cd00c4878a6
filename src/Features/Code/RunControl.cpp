#include "Features/Code/RunControl.h"

#include "Features/Code/ConsoleExcerpt.h"

#include <algorithm>
#include <sys/eventfd.h>
#include <utility>

namespace
{
/// Bytes kept of the beginning and of the end.
constexpr qsizetype keptBytes = 30'000;

/// The text without the character that the cut has gone through.
QString decodedTail(QByteArrayView bytes)
{
    const auto start = std::ranges::find_if(bytes, [](char byte) { return (byte & 0xc0) != 0x80; });
    return QString::fromUtf8(bytes.sliced(start - bytes.begin()));
}
} // namespace

RunControl::RunControl() : m_stopped(::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK)) {}

void RunControl::stop()
{
    eventfd_write(m_stopped.number(), 1);
}

void RunControl::append(Stream stream, QByteArrayView bytes)
{
    const std::scoped_lock lock(m_mutex);
    Printed &printed = m_printed[stream];
    printed.size += bytes.size();
    const qsizetype first = std::min(bytes.size(), keptBytes - printed.head.size());
    printed.head.append(bytes.first(first));
    printed.tail.append(bytes.sliced(first));
    if (printed.tail.size() > 4 * keptBytes)
        printed.tail = printed.tail.last(keptBytes);
    m_isNew = true;
}

std::optional<QString> RunControl::newText()
{
    std::array<Printed, 2> printed;
    {
        const std::scoped_lock lock(m_mutex);
        if (!std::exchange(m_isNew, false))
            return std::nullopt;
        printed = m_printed;
    }
    QString text;
    for (const Printed &part : printed) {
        if (!text.isEmpty() && part.size > 0 && !text.endsWith(u'\n'))
            text += u'\n';
        const qsizetype kept = std::min(part.tail.size(), keptBytes);
        const qint64 omitted = part.size - part.head.size() - kept;
        if (omitted == 0) {
            text += QString::fromUtf8(part.head + part.tail);
            continue;
        }
        text += QString::fromUtf8(part.head) + ConsoleExcerpt::gap(omitted) +
                decodedTail(QByteArrayView(part.tail).last(kept));
    }
    return text;
}
