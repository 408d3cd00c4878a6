#include "Foundation/Clock.h"

QDate Clock::today() const
{
    return toDateTime(now(), timeZone()).date();
}
