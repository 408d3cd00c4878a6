#include "Features/Calendar/ICalendarReader.h"

#include "Features/Calendar/ICalendarEvents.h"
#include "Features/Calendar/ICalendarLines.h"

#include <QFile>
#include <QFileInfo>
#include <QStringDecoder>

using namespace ICalendarFormat;

namespace
{
struct Texts {
    Q_DECLARE_TR_FUNCTIONS(ICalendarReader)
};

QString sentence(ICalendarLines::Failure failure)
{
    switch (failure) {
    case ICalendarLines::Failure::notACalendar:
        return Texts::tr("This is not a calendar file.");
    case ICalendarLines::Failure::cutOff:
        return Texts::tr("This calendar file is incomplete: its end is missing.");
    case ICalendarLines::Failure::damaged:
        return Texts::tr("This calendar file is damaged.");
    case ICalendarLines::Failure::tooSlow:
        return Texts::tr("This calendar file takes too long to read.");
    }
    return {};
}

QStringList sentences(const ICalendarEvents &events, qsizetype longLines)
{
    QStringList sentences;
    const ICalendarEvents::Losses &losses = events.losses;
    const auto tell = [&sentences](qsizetype count, const QString &text) {
        if (count > 0)
            sentences.append(text.arg(count));
    };
    tell(losses.severalDays, Texts::tr("Events over several days stand on each of them (%1)"));
    tell(losses.ends, Texts::tr("End times are not kept (%1)"));
    tell(losses.alarms, Texts::tr("Alarms are not kept (%1)"));
    tell(losses.guests, Texts::tr("Guests are not kept (%1)"));
    tell(losses.attachments + longLines, Texts::tr("Attachments and very long texts are not kept (%1)"));
    tell(losses.details, Texts::tr("Categories, organizers and other details are not kept (%1)"));
    tell(losses.longAgo, Texts::tr("Repeating events begin two years before today (%1)"));
    tell(losses.farAway, Texts::tr("Repeating events go on for two years from today (%1)"));
    tell(losses.changedRests, Texts::tr("Changes to the rest of a series are made to one day only (%1)"));
    tell(events.oddRules(),
         Texts::tr("Events that repeat within a day, or by a damaged rule, stand once (%1)"));
    tell(losses.unknownZones, Texts::tr("Times in an unknown time zone stay as they are written (%1)"));
    tell(losses.cancelled, Texts::tr("Cancelled events are left out (%1)"));
    tell(losses.unreadable, Texts::tr("Events without a readable date are left out (%1)"));
    tell(losses.otherKinds, Texts::tr("Tasks and journal entries are left out (%1)"));
    return sentences;
}

bool isUtf8(const QByteArray &bytes)
{
    QStringDecoder decoder(QStringDecoder::Utf8);
    const QString text = decoder(bytes);
    return !decoder.hasError();
}

/// The lines as they were before they were folded, which some programs do within a letter.
QByteArray unfolded(QByteArray bytes)
{
    for (const char *end : {"\r\n ", "\r\n\t", "\n ", "\n\t"})
        bytes.replace(end, "");
    return bytes;
}

/// The bytes as UTF-8; old programs write in Latin-1.
QByteArray asUtf8(QByteArray bytes)
{
    if (bytes.startsWith("\xEF\xBB\xBF"))
        bytes.remove(0, 3);
    if (isUtf8(bytes) || isUtf8(unfolded(bytes)))
        return bytes;
    return QString::fromLatin1(bytes).toUtf8();
}
} // namespace

std::expected<ICalendarContents, QString> ICalendarReader::readFile(const QString &path,
                                                                    const Options &options)
{
    const QFileInfo info(path);
    QFile file(path);
    if (!info.isFile() || !file.open(QIODevice::ReadOnly))
        return std::unexpected(tr("“%1” could not be read.").arg(info.fileName()));
    if (file.size() > maxBytes)
        return std::unexpected(
            tr("This file is too large for a calendar: it has more than %1 MB.").arg(maxBytes / 1024 / 1024));
    return read(file.read(maxBytes), options);
}

std::expected<ICalendarContents, QString> ICalendarReader::read(QByteArray bytes, const Options &options)
{
    const ReadingLimit limit(options.maxWork, options.stop);
    if (bytes.contains('\0'))
        return std::unexpected(sentence(ICalendarLines::Failure::notACalendar));
    const auto calendars = ICalendarLines::parse(asUtf8(std::move(bytes)), limit);
    if (!calendars)
        return std::unexpected(sentence(calendars.error()));
    ICalendarEvents reader(options, limit);
    icalcomponent *const root = calendars->root.get();
    for (auto it = icalcomponent_begin_component(root, ICAL_VCALENDAR_COMPONENT); icalcompiter_deref(&it);
         icalcompiter_next(&it)) {
        if (reader.add(icalcompiter_deref(&it)))
            continue;
        if (reader.events.size() >= maxEvents)
            return std::unexpected(tr("This calendar file holds more than %1 events.").arg(maxEvents));
        if (reader.hasTooMuchText)
            return std::unexpected(tr("The texts of this calendar file are too long."));
        return std::unexpected(sentence(ICalendarLines::Failure::tooSlow));
    }
    return ICalendarContents{reader.events, reader.series, reader.occurrences,
                             sentences(reader, calendars->longLines)};
}
