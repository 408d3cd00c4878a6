#include "DesignSystem/DateLabel.h"

#include <QLocale>
#include <QStringList>

QString DateLabel::text() const
{
    if (!m_value.isValid())
        return {};
    QStringList parts;
    if (m_showsDate)
        parts << QLocale::c().toString(m_value.date(), QStringLiteral("MMM d, yyyy"));
    if (m_showsTime)
        parts << m_value.time().toString(QStringLiteral("HH:mm"));
    return parts.join(QStringLiteral(", "));
}
