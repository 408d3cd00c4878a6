#include "Features/Databases/CsvColumns.h"
#include "Features/Databases/CsvReader.h"
#include "Harness/Comparison.h"

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
} // namespace

int main()
{
    const QByteArray file = works(fileSize);
    Comparison comparison;
    CsvTable table;
    const auto times = Comparison::alternate(
        3,
        [&] {
            table = {};
            return timed(
                [&] { table = CsvReader::read(file, [](double) { return true; }).value_or(CsvTable()); });
        },
        [&] { return splitOnly(file); });
    comparison.timeAtMost(u"read 100 MB of CSV, against libcsv alone"_s, Comparison::best(times.ours),
                          Comparison::best(times.baseline), 3);
    return comparison.exitCode();
}
