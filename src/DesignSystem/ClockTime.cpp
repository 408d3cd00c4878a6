#include "DesignSystem/ClockTime.h"

#include "DesignSystem/DateMath.h"

namespace
{

int unitsIn(ClockTime::Part part)
{
    return part == ClockTime::Hours ? 24 : 60;
}

QString twoDigits(int number)
{
    return QStringLiteral("%1").arg(number, 2, 10, QLatin1Char('0'));
}

} // namespace

QDateTime ClockTime::value() const
{
    return m_value;
}

void ClockTime::setValue(const QDateTime &value)
{
    if (value == m_value && value.isValid() == m_value.isValid())
        return;
    m_value = value;
    emit valueChanged();
}

QString ClockTime::hourText() const
{
    return twoDigits(amount(Hours));
}

QString ClockTime::minuteText() const
{
    return twoDigits(amount(Minutes));
}

void ClockTime::step(Part part, int units)
{
    endTyping();
    const int count = unitsIn(part);
    setAmount(part, ((amount(part) + units) % count + count) % count);
}

bool ClockTime::typeDigit(Part part, int digit)
{
    const int joined = amount(part) * 10 + digit;
    const bool second = m_typing && joined < unitsIn(part);
    const int next = second ? joined : digit;
    m_typing = !second && digit * 10 < unitsIn(part);
    setAmount(part, next);
    return !m_typing;
}

void ClockTime::endTyping()
{
    m_typing = false;
}

int ClockTime::amount(Part part) const
{
    const QTime time = m_value.isValid() ? m_value.time() : QTime(0, 0);
    return part == Hours ? time.hour() : time.minute();
}

void ClockTime::setAmount(Part part, int amount)
{
    if (!m_value.isValid() || amount == this->amount(part))
        return;
    const QTime time = m_value.time();
    setValue(
        DateMath::atTime(m_value, part == Hours ? QTime(amount, time.minute()) : QTime(time.hour(), amount)));
    emit edited(m_value);
}
