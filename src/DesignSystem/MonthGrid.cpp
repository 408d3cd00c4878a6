#include "DesignSystem/MonthGrid.h"

#include "DesignSystem/DateMath.h"

#include <QLocale>

namespace
{

constexpr int cellCount = 6 * 7;

QString formatted(QDate day, const QString &pattern)
{
    return QLocale::c().toString(day, pattern);
}

} // namespace

MonthGrid::MonthGrid(QObject *parent)
    : QAbstractListModel(parent), m_now(QDateTime(QDate(2000, 1, 1), QTime(9, 0))), m_cursor(m_now.date())
{
}

int MonthGrid::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : cellCount;
}

QVariant MonthGrid::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const QDate day = dayOfCell(index.row());
    switch (role) {
    case Number:
        return QString::number(day.day());
    case InMonth:
        return day.month() == m_cursor.month() && day.year() == m_cursor.year();
    case Today:
        return day == m_now.date();
    case Chosen:
        return m_value.isValid() && day == m_value.date();
    case Label:
        return formatted(day, QStringLiteral("dddd, d MMMM yyyy"));
    default:
        return {};
    }
}

QHash<int, QByteArray> MonthGrid::roleNames() const
{
    return {{Number, "number"}, {InMonth, "inMonth"}, {Today, "today"}, {Chosen, "chosen"}, {Label, "label"}};
}

QDateTime MonthGrid::value() const
{
    return m_value;
}

void MonthGrid::setValue(const QDateTime &value)
{
    if (value == m_value && value.isValid() == m_value.isValid())
        return;
    m_value = value;
    setCursor(m_value.isValid() ? m_value.date() : m_now.date());
    cellsChanged();
    emit valueChanged();
}

QDateTime MonthGrid::now() const
{
    return m_now;
}

void MonthGrid::setNow(const QDateTime &now)
{
    if (!now.isValid() || now == m_now)
        return;
    m_now = now;
    if (!m_value.isValid())
        setCursor(m_now.date());
    cellsChanged();
    emit nowChanged();
}

QString MonthGrid::title() const
{
    return formatted(m_cursor, QStringLiteral("MMMM yyyy"));
}

int MonthGrid::cursorIndex() const
{
    return static_cast<int>(firstCell().daysTo(m_cursor));
}

QString MonthGrid::cursorText() const
{
    return formatted(m_cursor, QStringLiteral("dddd, d MMMM yyyy"));
}

QStringList MonthGrid::weekdays() const
{
    QStringList names;
    const QDate sunday = DateMath::startOfWeek(QDate(2000, 1, 1));
    for (int day = 0; day < 7; ++day)
        names << formatted(sunday.addDays(day), QStringLiteral("ddd"));
    return names;
}

void MonthGrid::moveDays(int days)
{
    setCursor(m_cursor.addDays(days));
}

void MonthGrid::moveMonths(int months)
{
    setCursor(DateMath::monthsAway(m_cursor, months));
}

void MonthGrid::moveToWeekStart()
{
    setCursor(DateMath::startOfWeek(m_cursor));
}

void MonthGrid::moveToWeekEnd()
{
    setCursor(DateMath::startOfWeek(m_cursor).addDays(6));
}

void MonthGrid::moveToToday()
{
    setCursor(m_now.date());
}

void MonthGrid::moveToCell(int index)
{
    if (index >= 0 && index < cellCount)
        setCursor(dayOfCell(index));
}

QDateTime MonthGrid::momentAtCursor() const
{
    return DateMath::onDay(m_value.isValid() ? m_value : m_now, m_cursor);
}

QDate MonthGrid::dayOfCell(int index) const
{
    return firstCell().addDays(index);
}

QDate MonthGrid::firstCell() const
{
    return DateMath::startOfWeek(QDate(m_cursor.year(), m_cursor.month(), 1));
}

void MonthGrid::setCursor(QDate day)
{
    const QDate next = DateMath::clamped(day);
    if (next == m_cursor)
        return;
    const bool turnsPage = next.month() != m_cursor.month() || next.year() != m_cursor.year();
    m_cursor = next;
    if (turnsPage)
        cellsChanged();
    emit cursorChanged();
}

void MonthGrid::cellsChanged()
{
    emit dataChanged(index(0), index(cellCount - 1));
}
