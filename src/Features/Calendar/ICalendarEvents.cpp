#include "Features/Calendar/ICalendarEvents.h"

#include "Foundation/LineText.h"
#include "Support/OVDate.h"

using namespace ICalendarFormat;

namespace
{
constexpr int maxDays = 366;
/// Characters of all events together.
constexpr qsizetype maxTextLength = 8 * 1024 * 1024;
/// An event that repeats within the hour fills thousands of days with itself.
constexpr auto mostOften = ICAL_DAILY_RECURRENCE;

QString textOf(icalcomponent *component, icalproperty_kind kind)
{
    icalproperty *const property = icalcomponent_get_first_property(component, kind);
    const char *const text = property ? icalproperty_get_value_as_string(property) : nullptr;
    if (!text)
        return {};
    const icalvalue *const value = icalproperty_get_value(property);
    const char *const plain = icalvalue_isa(value) == ICAL_TEXT_VALUE ? icalvalue_get_text(value) : text;
    return QString::fromUtf8(plain);
}

qsizetype count(icalcomponent *component, icalproperty_kind kind)
{
    return icalcomponent_count_properties(component, kind);
}

icalproperty *first(icalcomponent *component, icalproperty_kind kind)
{
    return icalcomponent_get_first_property(component, kind);
}

/// The date and time as they are written.
QString keyOf(const icaltimetype &time)
{
    return QString::fromLatin1(icaltime_as_ical_string(time));
}

QUuid idOf(const QString &uid)
{
    static const QUuid space(QStringLiteral("{3D0B7C3A-5E0F-4F0B-9B4E-6A1F5D1C8E27}"));
    return QUuid::createUuidV5(space, uid);
}

EventKind kindOf(icalcomponent *component)
{
    for (icalproperty *property = first(component, ICAL_CATEGORIES_PROPERTY); property;
         property = icalcomponent_get_next_property(component, ICAL_CATEGORIES_PROPERTY)) {
        const QString names = QString::fromUtf8(icalproperty_get_categories(property));
        for (const QString &name : names.split(u','))
            if (const auto kind = enumFromRaw<EventKind>(name.trimmed().toLower()))
                return *kind;
    }
    return EventKind::event;
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

ICalendarEvents::ICalendarEvents(const ICalendarReader::Options &options, const QDeadlineTimer &deadline)
    : m_options(options),
      m_deadline(deadline),
      m_first(OVDate::day(options.now, options.zone).addYears(-2)),
      m_last(OVDate::day(options.now, options.zone).addYears(2))
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
    each([this](icalcomponent *component) {
        noteReplaced(component);
        return true;
    });
    return each([this](icalcomponent *component) {
        const auto kind = icalcomponent_isa(component);
        if (kind == ICAL_VEVENT_COMPONENT)
            return addEvent(component);
        losses.otherKinds += kind == ICAL_VTODO_COMPONENT || kind == ICAL_VJOURNAL_COMPONENT ? 1 : 0;
        return true;
    });
}

void ICalendarEvents::noteReplaced(icalcomponent *component)
{
    if (icalproperty *const replaced = first(component, ICAL_RECURRENCEID_PROPERTY))
        m_replaced.insert(textOf(component, ICAL_UID_PROPERTY) + u'/' +
                          keyOf(icalproperty_get_recurrenceid(replaced)));
}

bool ICalendarEvents::addEvent(icalcomponent *component)
{
    if (m_deadline.hasExpired())
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
    Source source{.component = component, .start = icalproperty_get_dtstart(start)};
    if (!isReadable(source.start))
        return std::nullopt;
    source.zone = zoneOf(start, source.start);
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
    losses.severalDays += source.days > 1 ? 1 : 0;
}

bool ICalendarEvents::addSeries(const Source &source)
{
    ++series;
    QList<icaltimetype> starts{source.start};
    for (icalproperty *rule = first(source.component, ICAL_RRULE_PROPERTY); rule;
         rule = icalcomponent_get_next_property(source.component, ICAL_RRULE_PROPERTY)) {
        const auto repeats = repeated(source, rule);
        if (!repeats)
            return false;
        starts.append(*repeats);
        if (starts.size() > ICalendarReader::maxEvents)
            return false;
    }
    for (icalproperty *date = first(source.component, ICAL_RDATE_PROPERTY); date;
         date = icalcomponent_get_next_property(source.component, ICAL_RDATE_PROPERTY)) {
        const icaldatetimeperiodtype more = icalproperty_get_rdate(date);
        const icaltimetype start = icaltime_is_null_time(more.time) ? more.period.start : more.time;
        if (isReadable(start))
            starts.append(inZoneOf(source, start));
    }
    QSet<QString> done = exceptions(source);
    const qsizetype before = events.size();
    for (const icaltimetype &start : std::as_const(starts)) {
        if (m_deadline.hasExpired())
            return false;
        const QString key = keyOf(start);
        const QDate day = written(start, m_options.zone).date();
        if (day < m_first || day > m_last || done.contains(key) || done.contains(key.first(8)) ||
            m_replaced.contains(source.uid + u'/' + key))
            continue;
        done.insert(key);
        if (!addOn(source, start, u'/' + key))
            return false;
    }
    occurrences += events.size() - before;
    return true;
}

std::optional<QList<icaltimetype>> ICalendarEvents::repeated(const Source &source, icalproperty *property)
{
    if (m_deadline.hasExpired())
        return std::nullopt;
    QList<icaltimetype> starts;
    icalrecurrencetype rule = icalproperty_get_rrule(property);
    if (rule.freq < mostOften || rule.freq > ICAL_YEARLY_RECURRENCE) {
        ++losses.tooOften;
        return starts;
    }
    if (!icaltime_is_null_time(rule.until))
        rule.until = inZoneOf(source, rule.until);
    const Repetition repetition(icalrecur_iterator_new(rule, source.start));
    if (!repetition) {
        ++losses.tooOften;
        return starts;
    }
    const icaltimetype from = dateOf(m_first);
    if (rule.count == 0 && icaltime_compare_date_only(source.start, from) < 0) {
        icaltimetype jump = source.start;
        jump.year = from.year;
        jump.month = from.month;
        jump.day = from.day;
        icalrecur_iterator_set_start(repetition.get(), jump);
    }
    const icaltimetype end = dateOf(m_last);
    for (;;) {
        if (m_deadline.hasExpired() || starts.size() > ICalendarReader::maxEvents)
            return std::nullopt;
        const icaltimetype next = icalrecur_iterator_next(repetition.get());
        if (icaltime_is_null_time(next))
            return starts;
        if (icaltime_compare_date_only(next, end) > 0) {
            ++losses.farAway;
            return starts;
        }
        if (icaltime_compare_date_only(next, from) >= 0)
            starts.append(next);
    }
}

QSet<QString> ICalendarEvents::exceptions(const Source &source)
{
    QSet<QString> keys;
    for (icalproperty *date = first(source.component, ICAL_EXDATE_PROPERTY); date;
         date = icalcomponent_get_next_property(source.component, ICAL_EXDATE_PROPERTY)) {
        const icaltimetype time = icalproperty_get_exdate(date);
        if (isReadable(time))
            keys.insert(keyOf(inZoneOf(source, time)));
    }
    return keys;
}

bool ICalendarEvents::addOn(const Source &source, const icaltimetype &start, const QString &key)
{
    const bool isDate = start.is_date;
    QDateTime moment = written(start, source.zone.isValid() ? source.zone : m_options.zone);
    if (!isDate)
        moment = moment.toTimeZone(m_options.zone);
    for (int i = 0; i < source.days; ++i) {
        // Each day gets a copy of the texts: a small file must not become a huge workspace.
        m_textLength += source.event.title.size() + source.event.notes.size();
        hasTooMuchText = m_textLength > maxTextLength;
        if (events.size() >= ICalendarReader::maxEvents || hasTooMuchText || m_deadline.hasExpired())
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

QTimeZone ICalendarEvents::zoneOf(icalproperty *property, const icaltimetype &time)
{
    if (time.is_date)
        return {};
    if (icaltime_is_utc(time))
        return QTimeZone::utc();
    const icalparameter *const parameter = icalproperty_get_first_parameter(property, ICAL_TZID_PARAMETER);
    if (!parameter)
        return {};
    const QByteArray id = icalparameter_get_tzid(parameter);
    auto found = m_zones.find(id);
    if (found == m_zones.end()) {
        // Some programs put words of their own before the name. Any word makes a time zone by itself.
        const QList<QByteArray> parts = id.split('/');
        const QByteArray last =
            parts.size() > 2 ? parts.at(parts.size() - 2) + '/' + parts.last() : QByteArray();
        QTimeZone zone;
        for (const QByteArray &name : {id, QTimeZone::windowsIdToDefaultIanaId(id), last})
            if (!zone.isValid() && QTimeZone::isTimeZoneIdAvailable(name))
                zone = QTimeZone(name);
        found = m_zones.insert(id, zone);
    }
    if (!found->isValid())
        ++losses.unknownZones;
    return *found;
}

/// The time as it is written in the zone of the event, if it is told in UTC.
icaltimetype ICalendarEvents::inZoneOf(const Source &source, const icaltimetype &time) const
{
    if (time.is_date || !icaltime_is_utc(time) || icaltime_is_utc(source.start) || !isReadable(time))
        return time;
    const QTimeZone zone = source.zone.isValid() ? source.zone : m_options.zone;
    icaltimetype there =
        utcOf(QDateTime(written(time, QTimeZone::utc()).toTimeZone(zone).date(),
                        written(time, QTimeZone::utc()).toTimeZone(zone).time(), QTimeZone::utc()));
    there.zone = nullptr;
    return there;
}
