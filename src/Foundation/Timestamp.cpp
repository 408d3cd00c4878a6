#include "Foundation/Timestamp.h"

#include <algorithm>

using namespace std::chrono;

namespace
{
void writeDigits(char *to, unsigned value, int count)
{
    for (int i = count - 1; i >= 0; --i, value /= 10)
        to[i] = char('0' + value % 10);
}

/// The number in these digits, or -1 if one of them is none.
int readDigits(const char *from, int count)
{
    int value = 0;
    for (int i = 0; i < count; ++i) {
        if (from[i] < '0' || from[i] > '9')
            return -1;
        value = value * 10 + (from[i] - '0');
    }
    return value;
}
} // namespace

std::array<char, isoTimestampLength> isoTimestamp(Timestamp moment)
{
    static constexpr sys_seconds first = sys_days(year(1) / 1 / 1);
    static constexpr sys_seconds last = sys_days(year(10000) / 1 / 1) - seconds(1);
    const sys_seconds whole = std::clamp(floor<seconds>(moment), first, last);
    const auto day = floor<days>(whole);
    const year_month_day date(day);
    const hh_mm_ss time(whole - day);

    std::array<char, isoTimestampLength> text{'0', '0', '0', '0', '-', '0', '0', '-', '0', '0',
                                              'T', '0', '0', ':', '0', '0', ':', '0', '0', 'Z'};
    writeDigits(&text[0], unsigned(int(date.year())), 4);
    writeDigits(&text[5], unsigned(date.month()), 2);
    writeDigits(&text[8], unsigned(date.day()), 2);
    writeDigits(&text[11], unsigned(time.hours().count()), 2);
    writeDigits(&text[14], unsigned(time.minutes().count()), 2);
    writeDigits(&text[17], unsigned(time.seconds().count()), 2);
    return text;
}

std::optional<Timestamp> parseIsoTimestamp(std::string_view text)
{
    if (text.size() != isoTimestampLength || text[4] != '-' || text[7] != '-' || text[10] != 'T' ||
        text[13] != ':' || text[16] != ':' || text[19] != 'Z')
        return std::nullopt;
    const int y = readDigits(&text[0], 4), m = readDigits(&text[5], 2), d = readDigits(&text[8], 2);
    const int hour = readDigits(&text[11], 2), minute = readDigits(&text[14], 2),
              second = readDigits(&text[17], 2);
    if (y < 1 || m < 1 || d < 1 || hour < 0 || hour > 23 || minute < 0 || minute > 59 || second < 0 ||
        second > 59)
        return std::nullopt;
    const year_month_day date{year(y), month(unsigned(m)), day(unsigned(d))};
    if (!date.ok())
        return std::nullopt;
    return sys_days(date) + hours(hour) + minutes(minute) + seconds(second);
}

double secondsSince1970(Timestamp moment)
{
    return double(moment.time_since_epoch().count()) / 1000.0;
}

QDateTime toDateTime(Timestamp moment, const QTimeZone &zone)
{
    return QDateTime::fromMSecsSinceEpoch(moment.time_since_epoch().count(), zone);
}

Timestamp toTimestamp(const QDateTime &dateTime)
{
    return Timestamp(milliseconds(dateTime.toMSecsSinceEpoch()));
}
