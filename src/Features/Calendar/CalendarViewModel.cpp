#include "Features/Calendar/CalendarViewModel.h"

#include "Foundation/LineText.h"
#include "Store/EventOperations.h"
#include "Support/OVDate.h"

namespace
{
/// Of a day that was chosen: far from both ends of the day, so that it stays that day in most time zones that
/// the user may go to.
constexpr QTime chosenTime = QTime::fromMSecsSinceStartOfDay(12 * 3600 * 1000);
} // namespace

CalendarViewModel::CalendarViewModel(QObject *parent) : ViewModel(parent)
{
    follow<CalendarEvent, TaskItem>();
    followDays();
}

void CalendarViewModel::start()
{
    const QDateTime now = session()->now();
    m_today = m_cursor = m_selected = now.date();
    m_selectedTime = now.time();
    m_form.setTime(now);
}

QList<Choice> CalendarViewModel::modes()
{
    return Choice::all<CalendarMode>();
}

void CalendarViewModel::setMode(const QString &mode)
{
    const auto value = enumFromRaw<CalendarMode>(mode);
    if (!value || *value == m_mode)
        return;
    if (*value == CalendarMode::day || days().contains(m_selected))
        m_cursor = m_selected;
    m_mode = *value;
    emit modeChanged();
    show();
}

QString CalendarViewModel::addLabel() const
{
    return tr("Add on %1").arg(OVDate::medium(m_selected));
}

QStringList CalendarViewModel::weekdaySymbols()
{
    return {tr("Sun"), tr("Mon"), tr("Tue"), tr("Wed"), tr("Thu"), tr("Fri"), tr("Sat")};
}

int CalendarViewModel::selectedCell() const
{
    const auto cell = std::ranges::find(m_cells.rows(), true, &CalendarCell::isSelected);
    return cell == m_cells.rows().end() ? -1 : cell->id;
}

QString CalendarViewModel::selectedText() const
{
    const int cell = selectedCell();
    return cell < 0 ? periodLabel() : m_cells.rows().at(cell).label;
}

void CalendarViewModel::step(int delta)
{
    m_cursor = CalendarPeriod::stepped(m_mode, m_cursor, delta);
    if (m_mode == CalendarMode::day)
        select(m_cursor);
    show();
}

void CalendarViewModel::goToToday()
{
    const QDateTime now = session()->now();
    m_cursor = m_selected = now.date();
    m_selectedTime = now.time();
    show();
}

void CalendarViewModel::selectCell(int cell)
{
    if (cell < 0 || cell >= m_cells.rows().size())
        return;
    select(m_cells.rows().at(cell).day);
    show();
}

void CalendarViewModel::moveSelection(int days)
{
    const QList<QDate> shown = this->days();
    const QDate next = shown.contains(m_selected) ? m_selected.addDays(days) : m_cursor;
    if (!CalendarPeriod::reaches(next))
        return;
    select(next);
    const bool turnsMonth = m_mode == CalendarMode::month && next.month() != m_cursor.month();
    if (turnsMonth || !shown.contains(next) || m_mode == CalendarMode::day)
        m_cursor = next;
    show();
}

void CalendarViewModel::openDayOf(int row)
{
    if (row < 0 || row >= m_rows.rows().size())
        return;
    select(m_rows.rows().at(row).day);
    openSelected();
}

bool CalendarViewModel::isItem(int row) const
{
    return row >= 0 && row < m_rows.rows().size() && m_rows.rows().at(row).item.has_value();
}

void CalendarViewModel::addEvent()
{
    if (!m_form.canAdd())
        return;
    EventOperations::create(store(), LineText::singleLine(m_form.title().trimmed()), selectedMoment(),
                            m_form.timeMinutes(), m_form.kind());
    m_form.reset();
}

void CalendarViewModel::deleteEvent(const QUuid &eventID)
{
    EventOperations::remove(store(), eventID);
    flush();
}

void CalendarViewModel::select(QDate day)
{
    m_selected = day;
    m_selectedTime = chosenTime;
}

/// Nothing that is shown afterwards waits for the end of the turn, so that the focus finds its place.
void CalendarViewModel::show()
{
    requestRefresh();
    flush();
}

void CalendarViewModel::refresh(const ChangeSet &changes)
{
    if (changes.of<CalendarEvent>().isReloaded)
        followToday();
    layOut();
}

/// A calendar that was left on today goes on to the next one. What is being typed stays on its day.
void CalendarViewModel::followToday()
{
    const QDate before = std::exchange(m_today, clock().today());
    if (before == m_today || m_form.canAdd())
        return;
    if (m_cursor == before)
        m_cursor = m_today;
    if (m_selected == before)
        m_selected = m_today;
}

void CalendarViewModel::layOut()
{
    const QList<QDate> shown = days();
    const DayItems items(store(), shown);
    QList<CalendarCell> cells;
    QList<CalendarRow> rows;
    for (const QDate day : shown) {
        if (showsGrid())
            cells.append(cellOf(int(cells.size()), day, items));
        else
            rows.append(rowsOf(day, items));
    }
    m_cells.setRows(std::move(cells));
    m_rows.setRows(std::move(rows));
    emit periodChanged();
}

CalendarCell CalendarViewModel::cellOf(int index, QDate day, const DayItems &items) const
{
    const bool isMonth = m_mode == CalendarMode::month;
    const qsizetype count = items.countOn(day);
    const QList<DayItem> shown = items.on(day, isMonth ? monthChips : weekChips);
    CalendarCell cell{.id = index,
                      .day = day,
                      .number = isMonth ? OVDate::dayNumber(day) : OVDate::weekdayShort(day),
                      .label = OVDate::longDate(day),
                      .isInPeriod = !isMonth || day.month() == m_cursor.month(),
                      .isToday = day == m_today,
                      .isSelected = day == m_selected};
    if (count == 1)
        cell.label = tr("%1, 1 item").arg(cell.label);
    else if (count > 1)
        cell.label = tr("%1, %2 items").arg(cell.label).arg(count);
    if (count > shown.size())
        cell.moreText = tr("%1 more").arg(count - shown.size());
    for (const DayItem &item : shown)
        cell.chips.append({.id = int(cell.chips.size()),
                           .title = LineText::shown(item.title),
                           .tone = int(item.tone),
                           .isDone = item.done});
    return cell;
}

QList<CalendarRow> CalendarViewModel::rowsOf(QDate day, const DayItems &items) const
{
    QList<CalendarRow> rows;
    for (const DayItem &item : items.on(day))
        rows.append({.day = day, .item = item});
    if (rows.isEmpty())
        return rows;
    rows.first().isFirst = true;
    rows.last().isLast = true;
    if (m_mode == CalendarMode::agenda)
        rows.prepend({.day = day, .isToday = day == m_today});
    return rows;
}

Timestamp CalendarViewModel::selectedMoment() const
{
    const QTimeZone zone = clock().timeZone();
    const Timestamp moment = toTimestamp(QDateTime(m_selected, m_selectedTime, zone));
    return OVDate::day(moment, zone) == m_selected ? moment : OVDate::startOfDay(m_selected, zone);
}

bool CalendarViewModel::reveal(const UndoPlace &place)
{
    const CalendarEvent *const event = store().list<CalendarEvent>().first(place.record);
    if (!event)
        return false;
    const QDate day = OVDate::day(event->date, clock().timeZone());
    if (day != m_selected)
        select(day);
    if (m_mode == CalendarMode::day || !days().contains(day))
        m_cursor = day;
    show();
    const auto row = std::ranges::find_if(
        m_rows.rows(), [&](const CalendarRow &row) { return row.eventID() == place.record; });
    emit revealed(row == m_rows.rows().end() ? -1 : int(row - m_rows.rows().begin()));
    return true;
}
