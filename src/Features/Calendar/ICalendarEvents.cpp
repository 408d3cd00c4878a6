#include "Features/Calendar/ICalendarEvents.h"

#include "Foundation/LineText.h"
#include "Support/OVDate.h"

#include <array>

using namespace ICalendarFormat;

namespace
{
constexpr int maxDays = 366;
/// Characters of all events together.
constexpr qsizetype maxTextLength = 8 * 1024 * 1024;

qsizetype count(icalcomponent *component, icalproperty_kind kind)
{
    return icalcomponent_count_properties(component, kind);
}

QUuid idOf(const QString &uid)
{
    static const QUuid space(QStringLiteral("{3D0B7C3A-5E0F-4F0B-9B4E-6A1F5D1C8E27}"));
    return QUuid::createUuidV5(space, uid);
}

QStringList categoriesOf(icalcomponent *component)
{
    QStringList categories;
    for (icalproperty *property = first(component, ICAL_CATEGORIES_PROPERTY); property;
         property = icalcomponent_get_next_property(component, ICAL_CATEGORIES_PROPERTY)) {
        const QString names = QString::fromUtf8(icalproperty_get_categories(property));
        for (const QString &name : names.split(u','))
            categories.append(name.trimmed().toLower());
    }
    return categories;
}

EventKind kindOf(icalcomponent *component)
{
    for (const QString &category : categoriesOf(component))
        if (const auto kind = enumFromRaw<EventKind>(category))
            return *kind;
    return EventKind::event;
}

/// Whether it says more of itself than an event of this program can hold.
bool hasDetails(icalcomponent *component)
{
    constexpr std::array kinds{ICAL_ORGANIZER_PROPERTY, ICAL_COMMENT_PROPERTY,   ICAL_CONTACT_PROPERTY,
                               ICAL_GEO_PROPERTY,       ICAL_RESOURCES_PROPERTY, ICAL_COLOR_PROPERTY,
                               ICAL_CONFERENCE_PROPERTY};
    const QStringList categories = categoriesOf(component);
    return std::ranges::any_of(kinds, [&](auto kind) { return count(component, kind) > 0; }) ||
           std::ranges::any_of(categories, [](const QString &category) {
               return !category.isEmpty() && !enumFromRaw<EventKind>(category);
           });
}

QString notesOf(icalcomponent *component)
{
    QStringList notes;
    if (const QString description = textOf(component, ICAL_DESCRIPTION_PROPERTY); !description.isEmpty())
        notes.append(description);
    for (const auto kind : {ICAL_LOCATION_PROPERTY, ICAL_URL_PROPERTY})
        if (const QString text = textOf(component, kind).trimmed(); !text.isEmpty())
            notes.append(text);
    return notes.join(u'\n');
}

/// The moment that this program has written beside the day.
std::optional<Timestamp> keptMoment(icalcomponent *component)
{
    for (icalproperty *property = first(component, ICAL_X_PROPERTY); property;
         property = icalcomponent_get_next_property(component, ICAL_X_PROPERTY)) {
        if (qstricmp(icalproperty_get_x_name(property), momentProperty) != 0)
            continue;
        const icaltimetype time = icaltime_from_string(icalproperty_get_x(property));
        if (isReadable(time) && icaltime_is_utc(time))
            return toTimestamp(written(time, QTimeZone::utc()));
    }
    return std::nullopt;
}
} // namespace

ICalendarEvents::ICalendarEvents(const ICalendarReader::Options &options, const ReadingLimit &limit)
    : m_options(options),
      m_limit(limit),
      m_first(OVDate::day(options.now, options.zone).addYears(-2)),
      m_last(OVDate::day(options.now, options.zone).addYears(2)),
      m_series({m_first, m_last, options.zone}, m_zones, limit)
{
}

bool ICalendarEvents::add(icalcomponent *calendar)
{
    const auto each = [calendar](const auto &visit) {
        for (auto it = icalcomponent_begin_component(calendar, ICAL_ANY_COMPONENT); icalcompiter_deref(&it);
             icalcompiter_next(&it))
            if (!visit(icalcompiter_deref(&it)))
                return false;
        return true;
    };
    m_zones.setCalendar(calendar);
    const bool isNoted = each([this](icalcomponent *component) {
        m_series.noteReplaced(component);
        return !m_limit.isReached();
    });
    return isNoted && each([this](icalcomponent *component) {
               const auto kind = icalcomponent_isa(component);
               if (kind == ICAL_VEVENT_COMPONENT)
                   return addEvent(component);
               losses.otherKinds += kind == ICAL_VTODO_COMPONENT || kind == ICAL_VJOURNAL_COMPONENT ? 1 : 0;
               return true;
           });
}

bool ICalendarEvents::addEvent(icalcomponent *component)
{
    if (m_limit.isReached())
        return false;
    if (icalcomponent_get_status(component) == ICAL_STATUS_CANCELLED) {
        ++losses.cancelled;
        return true;
    }
    const auto source = read(component);
    if (!source) {
        ++losses.unreadable;
        return true;
    }
    countLosses(*source);
    if (icalproperty *const replaced = first(component, ICAL_RECURRENCEID_PROPERTY))
        return addOn(*source, source->start, u'/' + keyOf(icalproperty_get_recurrenceid(replaced)));
    if (first(component, ICAL_RRULE_PROPERTY) || first(component, ICAL_RDATE_PROPERTY))
        return addSeries(*source);
    return addOn(*source, source->start, QString());
}

std::optional<ICalendarEvents::Source> ICalendarEvents::read(icalcomponent *component)
{
    icalproperty *const start = first(component, ICAL_DTSTART_PROPERTY);
    if (!start)
        return std::nullopt;
    Source source;
    source.component = component;
    source.start = icalproperty_get_dtstart(start);
    if (!isReadable(source.start))
        return std::nullopt;
    source.zone = m_zones.of(start, source.start);
    losses.unknownZones += ICalendarZones::isNamed(start, source.start) && !source.zone.isValid() ? 1 : 0;
    CalendarEvent &event = source.event;
    event.title = LineText::singleLine(textOf(component, ICAL_SUMMARY_PROPERTY)).trimmed();
    if (event.title.isEmpty())
        event.title = QStringLiteral("Untitled");
    source.uid = textOf(component, ICAL_UID_PROPERTY).trimmed();
    if (source.uid.isEmpty())
        source.uid = event.title + u'/' + keyOf(source.start);
    event.kind = kindOf(component);
    event.notes = notesOf(component);
    icalproperty *const created = first(component, ICAL_CREATED_PROPERTY);
    const icaltimetype moment = created ? icalproperty_get_created(created) : icaltime_null_time();
    event.createdDate = isReadable(moment) ? toTimestamp(written(moment, QTimeZone::utc())) : m_options.now;
    source.days = daysOf(source);
    return source;
}

int ICalendarEvents::daysOf(const Source &source) const
{
    if (!source.start.is_date)
        return 1;
    qint64 days = 1;
    if (icalproperty *const end = first(source.component, ICAL_DTEND_PROPERTY)) {
        const icaltimetype time = icalproperty_get_dtend(end);
        if (isReadable(time))
            days = written(source.start, m_options.zone).date().daysTo(written(time, m_options.zone).date());
    } else if (icalproperty *const duration = first(source.component, ICAL_DURATION_PROPERTY)) {
        const icaldurationtype length = icalproperty_get_duration(duration);
        days = length.is_neg ? 1 : qint64(length.weeks) * 7 + length.days;
    }
    return int(std::clamp<qint64>(days, 1, maxDays));
}

void ICalendarEvents::countLosses(const Source &source)
{
    icalcomponent *const component = source.component;
    if (!source.start.is_date &&
        (first(component, ICAL_DTEND_PROPERTY) || first(component, ICAL_DURATION_PROPERTY)))
        ++losses.ends;
    losses.alarms += icalcomponent_count_components(component, ICAL_VALARM_COMPONENT);
    losses.guests += count(component, ICAL_ATTENDEE_PROPERTY);
    losses.attachments += count(component, ICAL_ATTACH_PROPERTY);
    losses.details += hasDetails(component) ? 1 : 0;
    icalproperty *const replaced = first(component, ICAL_RECURRENCEID_PROPERTY);
    losses.changedRests +=
        replaced && icalproperty_get_first_parameter(replaced, ICAL_RANGE_PARAMETER) ? 1 : 0;
    losses.severalDays += source.days > 1 ? 1 : 0;
}

bool ICalendarEvents::addSeries(const Source &source)
{
    ++series;
    const auto starts = m_series.startsOf(source);
    if (!starts)
        return false;
    const qsizetype before = events.size();
    bool isLongAgo = false;
    bool isFarAway = false;
    for (const icaltimetype &start : *starts) {
        const QDate day = written(start, m_options.zone).date();
        isLongAgo = isLongAgo || day < m_first;
        isFarAway = isFarAway || day > m_last;
        if (day >= m_first && day <= m_last && !addOn(source, start, u'/' + keyOf(start)))
            return false;
    }
    losses.longAgo += isLongAgo ? 1 : 0;
    losses.farAway += isFarAway ? 1 : 0;
    occurrences += events.size() - before;
    return true;
}

bool ICalendarEvents::addOn(const Source &source, const icaltimetype &start, const QString &key)
{
    const bool isDate = start.is_date;
    const QDateTime moment = source.zone.moment(start, m_options.zone);
    for (int i = 0; i < source.days; ++i) {
        // Each day gets a copy of the texts: a small file must not become a huge workspace.
        m_textLength += source.event.title.size() + source.event.notes.size();
        hasTooMuchText = m_textLength > maxTextLength;
        if (events.size() >= ICalendarReader::maxEvents || hasTooMuchText || m_limit.isReached())
            return false;
        CalendarEvent event = source.event;
        const QUuid own = key.isEmpty() && i == 0 ? QUuid::fromString(source.uid) : QUuid();
        event.id =
            own.isNull() ? idOf(source.uid + key + (i > 0 ? u'+' + QString::number(i) : QString())) : own;
        if (m_ids.contains(event.id))
            continue;
        m_ids.insert(event.id);
        const QDate day = moment.date().addDays(i);
        const auto kept = i == 0 ? keptMoment(source.component) : std::nullopt;
        event.date = kept && OVDate::day(*kept, m_options.zone) == day
                         ? *kept
                         : toTimestamp(QDateTime(day, QTime(12, 0), m_options.zone));
        if (!isDate)
            event.timeMinutes = moment.time().hour() * 60 + moment.time().minute();
        events.append(std::move(event));
    }
    return true;
}
