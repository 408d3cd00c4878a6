#include "Features/Today/PageLine.h"

#include "Foundation/LineText.h"
#include "Support/OVDate.h"

PageLine PageLine::of(const Page &page, QDate today, const QTimeZone &zone)
{
    return {page.id, page.icon, page.title, page.updatedDate, today, zone};
}

QString PageLine::titleText() const
{
    return LineText::shownTitle(title);
}

QString PageLine::dateText() const
{
    return OVDate::relative(OVDate::day(updatedDate, zone), today);
}
