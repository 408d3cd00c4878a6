#include "Features/Dashboard/DashboardTile.h"

QString DashboardTile::title() const
{
    switch (id) {
    case Kind::openTasks:
        return tr("Open tasks");
    case Kind::dueToday:
        return tr("Due today");
    case Kind::eventsToday:
        return tr("Events today");
    case Kind::habitsDone:
        return tr("Habits done");
    }
    return {};
}

QString DashboardTile::symbol() const
{
    switch (id) {
    case Kind::openTasks:
        return QStringLiteral("checkmark.square");
    case Kind::dueToday:
        return QStringLiteral("sun.max");
    case Kind::eventsToday:
        return QStringLiteral("calendar");
    case Kind::habitsDone:
        return QStringLiteral("flame");
    }
    return {};
}

QString DashboardTile::place() const
{
    switch (id) {
    case Kind::openTasks:
        return Destination::to(Destination::Kind::tasks).text();
    case Kind::dueToday:
        return Destination::to(Destination::Kind::today).text();
    case Kind::eventsToday:
        return Destination::to(Destination::Kind::calendar).text();
    case Kind::habitsDone:
        return Destination::to(Destination::Kind::habits).text();
    }
    return {};
}
