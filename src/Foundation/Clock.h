#pragma once

#include "Foundation/Timestamp.h"

#include <QDate>
#include <QObject>
#include <QTimeZone>

/// Tells the time and the time zone, and announces each new day. The program has one clock; everything that
/// shows or decides by "today" listens to it, and tests set their own.
class Clock : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    virtual Timestamp now() const = 0;
    virtual QTimeZone timeZone() const = 0;

    /// The calendar day of this moment in the clock's time zone.
    QDate today() const;

signals:
    /// It has become another day, or the time zone has changed, so that every "today" has to be looked at
    /// anew.
    void dayChanged();
    /// Some time has passed, a minute at most; for what depends on the present moment.
    void ticked();
};
