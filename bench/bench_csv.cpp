#include "Features/Databases/CsvColumns.h"
#include "Features/Databases/CsvRecords.h"
#include "Features/Databases/RecordsAdder.h"
#include "Foundation/SystemClock.h"
#include "Harness/Comparison.h"

#include <QCoreApplication>
#include <QTemporaryDir>

#include <csv.h>
#include <random>

using namespace Qt::StringLiterals;

namespace
{
constexpr qsizetype fileSize = 100'000'000;

/// A file of works with twelve columns of all kinds, some cells quoted.
QByteArray works(qsizetype size)
{
    std::mt19937 random(5);
    QByteArray file("Title,Owner,State,Due,Score,Done,Share,Link,Notes,Place,Year,Price\r\n");
    file.reserve(size + 1000);
    const auto number = [&random](unsigned end) { return QByteArray::number(random() % end); };
    while (file.size() < size) {
        file += "Harbour " + number(100'000) + ",\"Zo\xC3\xAB, " + number(50) + "\"," +
                (random() % 2 ? "Done" : "In progress") + ",2026-0" + QByteArray::number(1 + random() % 9) +
                "-1" + number(10) + ',' + number(1000) + '.' + number(10) + ',' +
                (random() % 2 ? "true" : "false") + ',' + number(100) + "%,https://example.org/" +
                number(1'000'000) + ",\"A \"\"quoted\"\" line of notes " + number(1000) + "\",North," +
                QByteArray::number(1900 + random() % 120) + ',' + number(5000) + "\r\n";
    }
    return file;
}

void countCell(void *, std::size_t, void *count)
{
    ++*static_cast<qsizetype *>(count);
}

void ignoreRow(int, void *) {}

/// Reading and splitting with the parser alone.
Comparison::Duration splitOnly(const QByteArray &file)
{
    return timed([&file] {
        csv_parser parser;
        csv_init(&parser, CSV_APPEND_NULL);
        qsizetype cells = 0;
        csv_parse(&parser, file.constData(), std::size_t(file.size()), &countCell, &ignoreRow, &cells);
        csv_fini(&parser, &countCell, &ignoreRow, &cells);
        csv_free(&parser);
    });
}

/// What follows the preview: the records are made beside the window and then added in pieces, none of which
/// may take longer than a frame or two.
void importRecords(Comparison &comparison, const CsvTable &file, Comparison::Duration split)
{
    const QTemporaryDir folder;
    const SystemClock clock;
    // The save comes after the last record, so none falls into the measurement.
    WorkspaceStore store({folder.filePath(u"workspace.json"_s), &clock, std::chrono::hours(1)});
    CsvRecords::Plan plan{.table = {.id = QUuid::createUuid(), .properties = CsvColumns::guess(file)},
                          .now = store.now()};
    for (DBProperty &property : plan.table.properties) {
        property.id = QUuid::createUuid();
        plan.propertyOf.append(plan.propertyOf.size());
    }
    std::optional<QList<DBRow>> records;
    const auto making = timed([&] { records = CsvRecords::make(file, plan, [](double) { return true; }); });
    comparison.timeAtMost(u"make its records, beside the window"_s, making, split, 10);
    RecordsAdder adder;
    QList<Comparison::Duration> pieces;
    const auto adding = timed([&] {
        adder.start(store, plan.table, std::move(*records));
        while (adder.isBusy())
            pieces.append(timed([] { QCoreApplication::processEvents(); }));
    });
    comparison.timeUnder(u"add them, the window awake"_s, adding, split, Comparison::Duration(5000));
    comparison.timeUnder(u"the window's thread in a piece of that, 99 of 100"_s,
                         Comparison::quantile(pieces, 0.99), split, Comparison::Duration(32));
}
} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    const QByteArray file = works(fileSize);
    Comparison comparison;
    CsvTable table;
    const auto times = Comparison::alternate(
        3,
        [&] {
            table = {};
            return timed([&] {
                table = CsvReader::read(file, [](double) { return true; }).value_or(CsvTable());
                const QList<DBProperty> properties = CsvColumns::guess(table);
            });
        },
        [&] { return splitOnly(file); });
    const auto split = Comparison::best(times.baseline);
    comparison.timeAtMost(u"read 100 MB of CSV and guess its types, against libcsv alone"_s,
                          Comparison::best(times.ours), split, 3);
    importRecords(comparison, table, split);
    return comparison.exitCode();
}
