#include "Features/Databases/RecordsViewModel.h"
#include "Harness/Scene.h"
#include "Store/DatabaseOperations.h"

#include <QGuiApplication>

#include <cstdio>
#include <random>

using namespace Qt::StringLiterals;

namespace
{
constexpr int rowCount = 100'000;
constexpr int fewRows = 100;
constexpr int propertyCount = 12;

/// A table of twelve properties of all kinds.
Snapshot table(int rows)
{
    std::mt19937 random(7);
    DatabaseTable table;
    table.id = QUuid::createUuid();
    table.name = u"Works"_s;
    for (int i = 0; i < propertyCount; ++i) {
        const auto type =
            i == 0 ? DBPropertyType::text : enumCases<DBPropertyType>()[std::size_t(i) % 9].value;
        DBProperty property{QUuid::createUuid(), u"Property %1"_s.arg(i), type, {}};
        if (supportsOptions(type))
            property.options = {u"Not started"_s, u"In progress"_s, u"Done"_s};
        table.properties.append(property);
    }
    table.views = {DBView{.id = QUuid::createUuid()}};
    Snapshot workspace;
    workspace.list<DatabaseTable>().append(table);
    for (int i = 0; i < rows; ++i) {
        DBRow row{.id = QUuid::createUuid(), .tableID = table.id};
        for (const DBProperty &property : table.properties) {
            const QString value = !property.options.isEmpty()
                                      ? property.options[qsizetype(random() % 3)]
                                      : u"%1 harbour %2"_s.arg(random() % 5000).arg(i);
            row.values.insert(DBRow::valueKey(property.id), value);
        }
        workspace.list<DBRow>().append(row);
    }
    return workspace;
}

/// The databases screen over a workspace with one database.
class DatabaseScene : public Scene
{
public:
    explicit DatabaseScene(const Snapshot &workspace)
        : Scene(workspace, "import Orvel.Databases\nDatabasesView { focus: true }")
    {
    }

    /// From the key in the rail that opens the database to what is left to draw.
    Comparison::Duration openTable()
    {
        open();
        return press(Qt::Key_Down);
    }

    void enterTable() { press(Qt::Key_Return); }

    Comparison::Duration typeKey() { return press(Qt::Key_A, u"a"_s); }

    QString typed() const { return focusItem() ? focusItem()->property("text").toString() : QString(); }
};

/// The records of a view without a window.
class Records
{
public:
    explicit Records(const Snapshot &workspace) : m_desk(workspace)
    {
        const DatabaseTable &table = m_desk.store->list<DatabaseTable>().at(0);
        m_records.setTableID(table.id);
        m_records.setViewID(table.views.first().id);
        m_records.setSession(m_desk.session.get());
    }

    /// A filter and a sort that the view did not have before.
    Comparison::Duration filter()
    {
        const DatabaseTable table = m_desk.store->list<DatabaseTable>().at(0);
        return timed([&] {
            DatabaseOperations::changeView(*m_desk.store, table.id, table.views.first().id, u"Filter"_s,
                                           [&](DBView &view) {
                                               view.filters = {{QUuid::createUuid(), table.properties[1].id,
                                                                FilterOp::isNot, u"Done"_s}};
                                           });
            m_records.flush();
        });
    }

private:
    Desk m_desk;
    RecordsViewModel m_records;
};
} // namespace

int main(int argc, char *argv[])
{
    const QGuiApplication application(argc, argv);
    const Snapshot large = table(rowCount), small = table(fewRows);
    DatabaseScene many(large), few(small);
    const auto milliseconds = [](double count) { return Comparison::Duration(count); };
    Comparison comparison;

    const auto openings =
        Comparison::alternate(10, [&] { return many.openTable(); }, [&] { return few.openTable(); });
    comparison.timeUnder(
        u"open a table of 100,000 rows and 12 properties, against 100 rows, half of the times"_s,
        Comparison::quantile(openings.ours, 0.5), Comparison::quantile(openings.baseline, 0.5),
        milliseconds(150));
    many.enterTable();
    few.enterTable();
    const auto keys =
        Comparison::alternate(200, [&] { return many.typeKey(); }, [&] { return few.typeKey(); });
    if (!many.typed().startsWith(QString(keys.ours.size(), u'a'))) {
        std::fprintf(stderr, "bench_databasekey: the keys have not arrived\n");
        return 2;
    }
    for (const int share : {50, 95})
        comparison.timeUnder(u"key in a cell of 100,000 rows, against 100, %1 of 100"_s.arg(share),
                             Comparison::quantile(keys.ours, share / 100.0),
                             Comparison::quantile(keys.baseline, share / 100.0), milliseconds(8));

    Records manyRecords(large), fewRecords(small);
    const auto filters =
        Comparison::alternate(10, [&] { return manyRecords.filter(); }, [&] { return fewRecords.filter(); });
    comparison.timeUnder(u"a new filter over 100,000 rows, against 100, half of the times"_s,
                         Comparison::quantile(filters.ours, 0.5), Comparison::quantile(filters.baseline, 0.5),
                         milliseconds(100));
    return comparison.exitCode();
}
