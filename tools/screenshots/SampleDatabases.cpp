#include "SampleDatabases.h"

#include "Store/DatabaseOperations.h"
#include "Support/OVDate.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace
{
QString valueOf(const DBProperty &property, int row, const QStringList &words)
{
    switch (property.type) {
    case DBPropertyType::select:
    case DBPropertyType::status:
        return row % 7 == 6 ? QString() : property.options.at(row % property.options.size());
    case DBPropertyType::multiselect: {
        QStringList chosen;
        for (int i = 0; i < row % 5; ++i)
            chosen.append(property.options.at((row + i) % property.options.size()));
        return chosen.join(u',');
    }
    case DBPropertyType::date:
        return row % 6 == 5 ? QString() : OVDate::dayKey(QDate(2026, 3, 1).addDays(row / 2));
    case DBPropertyType::number:
        return QString::number(row * 37 % 500 / 10.0);
    case DBPropertyType::checkbox:
        return row % 3 == 0 ? u"true"_s : QString();
    case DBPropertyType::url:
        return u"https://example.org/%1"_s.arg(row);
    case DBPropertyType::progress:
        return QString::number(row * 13 % 120);
    case DBPropertyType::text:
        return words.at(row % words.size());
    }
    return {};
}

void add(WorkspaceStore &store, QList<DBProperty> properties, int rows, const QStringList &words)
{
    DatabaseTable table;
    table.id = store.makeId();
    table.name = words.first();
    table.details = words.last();
    for (DBProperty &property : properties)
        property.id = store.makeId();
    table.properties = properties;
    table.views = {DBView{.id = store.makeId()}};
    DatabaseOperations::create(store, table);
    for (int row = 0; row < rows; ++row) {
        QMap<QString, QString> values;
        for (const DBProperty &property : properties)
            values.insert(DBRow::valueKey(property.id), valueOf(property, row, words));
        DatabaseOperations::addRow(store, table.id, values);
    }
}

QList<DBProperty> everyType(const QStringList &options)
{
    QList<DBProperty> properties;
    for (const auto &type : enumCases<DBPropertyType>())
        properties.append({QUuid(), enumLabel(type.value), type.value,
                           supportsOptions(type.value) ? options : QStringList()});
    properties.first().name = u"Name"_s;
    return properties;
}

const QStringList states{u"Not started"_s, u"In progress"_s, u"Waiting"_s, u"Blocked"_s, u"Done"_s};
} // namespace

void SampleDatabases::empty(WorkspaceStore &store)
{
    add(store, everyType(states), 0, {u"Reading room"_s, u"What we read together"_s});
}

void SampleDatabases::ordinary(WorkspaceStore &store)
{
    add(store, everyType(states), 20,
        {u"Reading room"_s, u"Letters from the harbour"_s, u"Field notes"_s, u"A short history of tea"_s,
         u"Gardens in winter"_s, u"What we read together"_s});
}

void SampleDatabases::ruled(WorkspaceStore &store)
{
    ordinary(store);
    const DatabaseTable table = store.list<DatabaseTable>().at(0);
    const auto id = [&table](DBPropertyType type) {
        return std::ranges::find(table.properties, type, &DBProperty::type)->id;
    };
    DatabaseOperations::changeView(store, table.id, table.views.first().id, u"Change"_s, [&](DBView &view) {
        view.filters = {{store.makeId(), id(DBPropertyType::text), FilterOp::isNot, u"Field notes"_s},
                        {store.makeId(), id(DBPropertyType::number), FilterOp::isNotEmpty, QString()}};
        view.sorts = {{store.makeId(), id(DBPropertyType::date), true}};
        view.groupBy = id(DBPropertyType::status);
    });
}

void SampleDatabases::crowded(WorkspaceStore &store)
{
    QStringList options;
    for (int i = 1; i <= 30; ++i)
        options.append(u"Option %1 with a name that goes on"_s.arg(i));
    QList<DBProperty> properties;
    while (properties.size() < 60)
        properties += everyType(options);
    properties.resize(60);
    for (DBProperty &property : properties)
        property.name += u", a property with a rather long name"_s;
    add(store, properties, 200,
        {u"A database whose name goes on and on "_s.repeated(6).left(200),
         u"A value that goes on and on "_s.repeated(8).left(200)});
}
