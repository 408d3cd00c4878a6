#include "Features/Calendar/EventForm.h"

#include <utility>

void EventForm::setTitle(const QString &title)
{
    if (m_title == title)
        return;
    m_title = title;
    emit titleChanged();
}

void EventForm::setTime(const QDateTime &time)
{
    if (m_time == time)
        return;
    m_time = time;
    emit timeChanged();
}

void EventForm::setKind(const QString &kind)
{
    const auto value = enumFromRaw<EventKind>(kind);
    if (!value || *value == m_kind)
        return;
    m_kind = *value;
    emit kindChanged();
}

std::optional<qint64> EventForm::timeMinutes() const
{
    if (!m_timeEnabled)
        return std::nullopt;
    const QTime time = m_time.time();
    return time.hour() * 60 + time.minute();
}

void EventForm::reset()
{
    setTitle({});
    if (std::exchange(m_timeEnabled, false))
        emit timeEnabledChanged();
    setKind(enumRawText(EventKind::event));
}

QList<Choice> EventForm::kinds()
{
    QList<Choice> kinds = Choice::all<EventKind>();
    for (Choice &kind : kinds)
        kind.label = kind.label.toLower();
    return kinds;
}
