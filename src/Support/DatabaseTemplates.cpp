#include "Support/DatabaseTemplates.h"

namespace
{
using Type = DBPropertyType;

DBProperty property(const char *name, Type type, const QStringList &options = {})
{
    return {QUuid::createUuid(), QString::fromLatin1(name), type, options};
}

DBView view(const char *name, DBViewType type)
{
    return {.id = QUuid::createUuid(), .name = QString::fromLatin1(name), .type = type};
}

QStringList words(const char *commaSeparated)
{
    return QString::fromLatin1(commaSeparated).split(u',');
}
} // namespace

DatabaseTable DatabaseTemplate::table(const QUuid &tableID, Timestamp now) const
{
    return {tableID, name, icon, details, properties, views, false, secondsSince1970(now), now, now};
}

const QList<DatabaseTemplate> &DatabaseTemplates::all()
{
    static const QList<DatabaseTemplate> templates{
        {QStringLiteral("homework"),
         QStringLiteral("Homework tracker"),
         QStringLiteral("📚"),
         QStringLiteral("Track homework across subjects and due dates."),
         {property("Name", Type::text),
          property("Subject", Type::select, words("Maths,Science,English,History,Other")),
          property("Status", Type::select, words("Not started,In progress,Done")),
          property("Due date", Type::date), property("Priority", Type::select, words("Low,Medium,High"))},
         {view("All", DBViewType::table), view("By status", DBViewType::board)}},
        {QStringLiteral("research"),
         QStringLiteral("Research database"),
         QStringLiteral("🔬"),
         QStringLiteral("Sources with topic and reliability ratings."),
         {property("Source", Type::text), property("URL", Type::url), property("Topic", Type::text),
          property("Reliability", Type::select, words("Low,Medium,High")), property("Notes", Type::text)},
         {view("All", DBViewType::table)}},
        {QStringLiteral("reading"),
         QStringLiteral("Reading tracker"),
         QStringLiteral("📖"),
         QStringLiteral("Books with progress and ratings."),
         {property("Title", Type::text), property("Author", Type::text),
          property("Status", Type::select, words("To read,Reading,Finished")),
          property("Progress", Type::progress), property("Rating", Type::number)},
         {view("All", DBViewType::table), view("Gallery", DBViewType::gallery)}},
        {QStringLiteral("projectTracker"),
         QStringLiteral("Project tracker"),
         QStringLiteral("📊"),
         QStringLiteral("A lightweight tracker for any ongoing work."),
         {property("Item", Type::text), property("Owner", Type::text),
          property("Status", Type::status, words("Not started,In progress,Done")),
          property("Due", Type::date), property("Progress", Type::progress)},
         {view("All", DBViewType::table)}},
    };
    return templates;
}
