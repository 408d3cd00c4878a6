#pragma once

#include <QKeySequence>
#include <QStringList>

/// The keys of the machine at hand as a user reads them. They are given in portable form, such as "Ctrl+K".
namespace KeyText
{
/// One text for each key, such as "Ctrl" and "K".
inline QStringList caps(const QString &portable)
{
    return QKeySequence(portable, QKeySequence::PortableText)
        .toString(QKeySequence::NativeText)
        .split(u'+', Qt::SkipEmptyParts);
}
/// The same on one line, such as "Ctrl K".
inline QString of(const QString &portable)
{
    return caps(portable).join(u' ');
}
} // namespace KeyText
