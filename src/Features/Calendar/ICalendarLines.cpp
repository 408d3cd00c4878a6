#include "Features/Calendar/ICalendarLines.h"

#include <algorithm>
#include <cstring>

using namespace ICalendarFormat;

namespace
{
/// Components within components are freed by a function that calls itself.
constexpr int maxDepth = 32;
/// Taking a line apart can take time that grows with the square of its length.
constexpr std::size_t maxLine = 64 * 1024;
/// Asking for the time costs as much as a short line.
constexpr int linesBetweenLooks = 16;

class Source
{
public:
    explicit Source(const QByteArray &bytes) : m_bytes(bytes) {}

    /// Gives the library what it has room for, up to the end of a line.
    static char *next(char *buffer, size_t size, void *source)
    {
        return static_cast<Source *>(source)->take(buffer, qsizetype(size));
    }

private:
    char *take(char *buffer, qsizetype size)
    {
        if (m_position >= m_bytes.size())
            return nullptr;
        const QByteArrayView rest = QByteArrayView(m_bytes).sliced(m_position);
        const qsizetype end = rest.first(std::min(size - 1, rest.size())).indexOf('\n');
        const qsizetype length = end < 0 ? std::min(size - 1, rest.size()) : end + 1;
        std::memcpy(buffer, rest.data(), std::size_t(length));
        buffer[length] = '\0';
        m_position += length;
        return buffer;
    }

    QByteArray m_bytes;
    qsizetype m_position = 0;
};

bool begins(const char *line, const char *word)
{
    return qstrnicmp(line, word, std::strlen(word)) == 0;
}
} // namespace

std::expected<ICalendarLines::Calendars, ICalendarLines::Failure>
ICalendarLines::parse(const QByteArray &bytes, const ReadingLimit &limit)
{
    icalerror_set_errors_are_fatal(false);
    Source source(bytes);
    const Parser parser(icalparser_new());
    icalparser_set_gen_data(parser.get(), &source);
    Calendars calendars{Component(icalcomponent_new(ICAL_XROOT_COMPONENT))};
    int depth = 0;
    qsizetype count = 0;
    while (const Text line{icalparser_get_line(parser.get(), &Source::next)}) {
        if (++count % linesBetweenLooks == 0 && limit.isReached())
            return std::unexpected(Failure::tooSlow);
        if (std::strlen(line.get()) > maxLine) {
            ++calendars.longLines;
            continue;
        }
        depth += begins(line.get(), "BEGIN") ? 1 : begins(line.get(), "END") ? -1 : 0;
        if (depth < 0 || depth > maxDepth)
            return std::unexpected(Failure::damaged);
        if (icalcomponent *const whole = icalparser_add_line(parser.get(), line.get())) {
            icalcomponent_add_component(calendars.root.get(), whole);
            depth = 0;
        }
    }
    if (depth > 0)
        return std::unexpected(Failure::cutOff);
    if (!icalcomponent_get_first_component(calendars.root.get(), ICAL_VCALENDAR_COMPONENT))
        return std::unexpected(Failure::notACalendar);
    return calendars;
}
