#include "Features/Databases/RecordsViewModel.h"
#include "Harness/Scene.h"
#include "Store/DatabaseOperations.h"

#include <QGuiApplication>

#include <cstdio>
#include <malloc.h>
#include <random>
#include <thread>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace
{
constexpr int rowCount = 100'000;
constexpr int fewRows = 100;
constexpr int propertyCount = 12;

constexpr int manyProperties = 60;

/// A table of properties of all kinds.
Snapshot table(int rows, int properties = propertyCount)
{
    std::mt19937 random(7);
    DatabaseTable table;
    table.id = QUuid::createUuid();
    table.name = u"Works"_s;
    for (int i = 0; i < properties; ++i) {
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

    /// Sorts the view by another property than before, or only turns the direction.
    Comparison::Duration sort(bool turnsOnly)
    {
        const DatabaseTable table = desk().store->list<DatabaseTable>().at(0);
        if (!turnsOnly)
            m_sorted = (m_sorted + 1) % int(table.properties.size());
        m_descending = turnsOnly && !m_descending;
        const DBSort rule{QUuid::createUuid(), table.properties[m_sorted].id, m_descending};
        return timed([&] {
            DatabaseOperations::changeView(*desk().store, table.id, table.views.first().id, u"Sort"_s,
                                           [&](DBView &view) { view.sorts = {rule}; });
            settle();
        });
    }

    /// The work of the next frame in which the rows have moved by the wheel, which is turned fast: a notch
    /// every third frame.
    Comparison::Duration scrollFrame()
    {
        QQuickItem *const list = scrolled();
        for (int turn = 0; list && turn < 1000; ++turn) {
            const double before = list->property("contentY").toDouble();
            const bool turnsBack = list->property("atYEnd").toBool();
            if (turnsBack || list->property("atYBeginning").toBool())
                m_notch = turnsBack ? 120 : -120;
            const bool notches = m_frame % 3 == 0 || !list->property("moving").toBool();
            const auto time = timed([&] {
                if (notches)
                    wheel(list->mapToScene({list->width() / 2, list->height() / 2}), m_notch);
                settle();
            });
            if (list->property("contentY").toDouble() != before) {
                ++m_frame;
                return time;
            }
            std::this_thread::sleep_for(std::chrono::milliseconds(1));
        }
        std::fprintf(stderr, "bench_databasekey: the rows do not scroll\n");
        std::exit(2);
    }

    QString typed() const { return focusItem() ? focusItem()->property("text").toString() : QString(); }

private:
    QQuickItem *scrolled() const
    {
        QQuickItem *item = focusItem();
        while (item && !item->property("contentY").isValid())
            item = item->parentItem();
        return item;
    }

    int m_sorted = 0;
    bool m_descending = false;
    int m_notch = -120;
    int m_frame = 0;
};

/// In bytes, without what the allocator holds back.
double residentMemory()
{
    malloc_trim(0);
    QFile file(u"/proc/self/statm"_s);
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    return file.readAll().split(' ').value(1).toDouble() * double(sysconf(_SC_PAGESIZE));
}

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

void measureScrolling(Comparison &comparison, const Snapshot &large, const Snapshot &small,
                      const QString &properties)
{
    DatabaseScene many(large), few(small);
    for (DatabaseScene *const scene : {&many, &few}) {
        scene->openTable();
        scene->enterTable();
    }
    const auto frames =
        Comparison::alternate(200, [&] { return many.scrollFrame(); }, [&] { return few.scrollFrame(); });
    for (const int share : {50, 95})
        comparison.timeUnder(
            u"frame of the wheel over 100,000 rows of %1 properties, against 100, %2 of 100"_s.arg(properties)
                .arg(share),
            Comparison::quantile(frames.ours, share / 100.0),
            Comparison::quantile(frames.baseline, share / 100.0), Comparison::Duration(16));
}
} // namespace

int main(int argc, char *argv[])
{
    const QGuiApplication application(argc, argv);
    const Snapshot large = table(rowCount), small = table(fewRows);
    DatabaseScene many(large), few(small);
    const auto milliseconds = [](double count) { return Comparison::Duration(count); };
    Comparison comparison;

    few.openTable();
    const double before = residentMemory();
    many.openTable();
    comparison.figureAtMost(u"memory of a row in an open table, against its goal"_s, u"bytes"_s,
                            (residentMemory() - before) / rowCount, 250, 1);
    measureScrolling(comparison, large, small, u"12"_s);
    measureScrolling(comparison, table(rowCount, manyProperties), table(fewRows, manyProperties), u"60"_s);

    const auto openings =
        Comparison::alternate(10, [&] { return many.openTable(); }, [&] { return few.openTable(); });
    comparison.timeUnder(
        u"open a table of 100,000 rows and 12 properties, against 100 rows, half of the times"_s,
        Comparison::quantile(openings.ours, 0.5), Comparison::quantile(openings.baseline, 0.5),
        milliseconds(150));
    for (const bool turnsOnly : {false, true}) {
        const auto sorts = Comparison::alternate(
            propertyCount, [&] { return many.sort(turnsOnly); }, [&] { return few.sort(turnsOnly); });
        for (const int share : {50, 95})
            comparison.timeUnder(u"%1 over 100,000 rows in the window, against 100, %2 of 100"_s
                                     .arg(turnsOnly ? u"a sort turned round"_s : u"a new sort"_s)
                                     .arg(share),
                                 Comparison::quantile(sorts.ours, share / 100.0),
                                 Comparison::quantile(sorts.baseline, share / 100.0),
                                 milliseconds(turnsOnly ? 50 : 100));
    }
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
