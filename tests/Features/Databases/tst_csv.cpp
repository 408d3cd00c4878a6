#include "Features/Databases/CsvColumns.h"
#include "Features/Databases/CsvExport.h"
#include "Features/Databases/CsvReader.h"
#include "Features/Databases/CsvWriter.h"

#include <QFile>
#include <QStringEncoder>
#include <QTemporaryDir>
#include <QTest>

#include <random>

using namespace Qt::StringLiterals;

namespace
{
CsvTable read(const QByteArray &file)
{
    return CsvReader::read(file, [](double) { return true; }).value_or(CsvTable());
}

QList<QStringList> rowsOf(const CsvTable &table)
{
    QList<QStringList> rows(table.rowCount());
    for (qsizetype row = 0; row < table.rowCount(); ++row)
        for (qsizetype column = 0; column < table.columnCount(); ++column)
            rows[row].append(table.text(row, column));
    return rows;
}
} // namespace

class CsvTest : public QObject
{
    Q_OBJECT

private slots:
    void readsWhatProgramsWrite_data()
    {
        QTest::addColumn<QByteArray>("file");
        const QString text = u"Name,Näme 2\r\n\"a \"\"b\"\"\",\"1,\n2\"\r\n é ,😀\r\n"_s;
        const auto encoded = [&text](QStringConverter::Encoding encoding, const QByteArray &mark) {
            return mark + QByteArray(QStringEncoder(encoding).encode(text));
        };
        QTest::newRow("UTF-8") << text.toUtf8();
        QTest::newRow("UTF-8 with its mark") << "\xEF\xBB\xBF" + text.toUtf8();
        QTest::newRow("UTF-16, little end first") << encoded(QStringConverter::Utf16LE, "\xFF\xFE"_ba);
        QTest::newRow("UTF-16, big end first") << encoded(QStringConverter::Utf16BE, "\xFE\xFF"_ba);
        QTest::newRow("UTF-16 without a mark") << encoded(QStringConverter::Utf16LE, {});
        QTest::newRow("UTF-16 without a mark, big end first") << encoded(QStringConverter::Utf16BE, {});
        QTest::newRow("line feeds alone") << QString(text).replace(u"\r\n"_s, u"\n"_s).toUtf8();
        QTest::newRow("without a last line end") << text.toUtf8().chopped(2);
        QString semicolons = text, tabs = text;
        semicolons.replace(u"Name,"_s, u"Name;"_s)
            .replace(u"\"\"\","_s, u"\"\"\";"_s)
            .replace(u" é ,"_s, u" é ;"_s);
        tabs = QString(semicolons).replace(u';', u'\t');
        QTest::newRow("semicolons") << semicolons.toUtf8();
        QTest::newRow("tabs") << tabs.toUtf8();
    }
    void readsWhatProgramsWrite()
    {
        QFETCH(QByteArray, file);
        const CsvTable table = read(file);
        QCOMPARE(table.names, QStringList({u"Name"_s, u"Näme 2"_s}));
        QCOMPARE(table.rowCount(), 2);
        QCOMPARE(table.text(0, 0), u"a \"b\""_s);
        QVERIFY(table.text(0, 1) == u"1,\n2"_s || table.text(0, 1) == u"1,\r\n2"_s);
        QCOMPARE(rowsOf(table)[1], QStringList({u" é "_s, u"😀"_s}));
        QCOMPARE(table.ragged, 0);
    }

    void readsWhatIsNotAsItShouldBe()
    {
        const CsvTable ragged = read("a,b\n1\n1,2,3\n\n1,2\n");
        QCOMPARE(rowsOf(ragged),
                 QList<QStringList>({{u"1"_s, QString()}, {u"1"_s, u"2"_s}, {u"1"_s, u"2"_s}}));
        QCOMPARE(ragged.ragged, 2);
        QCOMPARE(read("caf\xE9;b\n1;2\n").names.first(), u"café"_s);
        QVERIFY(!CsvReader::read("", [](double) { return true; }));
        const auto canceled = CsvReader::read("a,b\n1,2\n", [](double) { return false; });
        QVERIFY(!canceled && canceled.error().isEmpty());
    }

    /// What was written comes back, whatever it is.
    void writtenValuesComeBack()
    {
        std::mt19937 random(11);
        const QStringList pieces{u"a"_s,  u","_s, u"\""_s, u"\n"_s, u"\r\n"_s, u"="_s,  u"'"_s, u"-"_s,
                                 u"12"_s, u" "_s, u"\t"_s, u";"_s,  u"é"_s,    u"😀"_s, u"@"_s, u"+"_s};
        for (int round = 0; round < 300; ++round) {
            const auto columns = qsizetype(1 + random() % 4);
            const auto any = [&] {
                QStringList row;
                for (qsizetype i = 0; i < columns; ++i) {
                    QString cell;
                    for (unsigned j = random() % 5; j > 0; --j)
                        cell += pieces[qsizetype(random() % std::size_t(pieces.size()))];
                    row.append(cell);
                }
                return row;
            };
            QStringList names;
            for (qsizetype i = 0; i < columns; ++i)
                names.append(u"Column %1"_s.arg(i));
            QList<QStringList> rows;
            for (unsigned i = random() % 5; i > 0; --i)
                rows.append(any());
            const CsvTable table = read(CsvWriter::write(names, rows));
            QCOMPARE(table.names, names);
            QCOMPARE(rowsOf(table), rows);
        }
    }

    void noCellRunsAsAFormula()
    {
        for (const QString &text : {u"=1+1"_s, u"+cmd|' /C calc'!A0"_s, u"-2+3"_s, u"@SUM(A1)"_s, u"\t=1"_s})
            QCOMPARE(CsvWriter::guarded(text), u'\'' + text);
        for (const QString &text : {u"-5"_s, u"+1.5"_s, u"a=b"_s, u"'tis"_s, u""_s})
            QCOMPARE(CsvWriter::guarded(text), text);
    }

    /// A view is written as it shows its records, a file that could not be finished not at all.
    void exportsWhatAViewShows()
    {
        QTemporaryDir folder;
        const QString path = folder.filePath(u"a.csv"_s);
        CsvExport::Source source{.tableID = QUuid::createUuid(),
                                 .properties = {{QUuid::createUuid(), u"Name"_s, DBPropertyType::text, {}}},
                                 .zone = QTimeZone::utc()};
        const DBProperty &name = source.properties.first();
        for (const QString &value : {u"c"_s, u"x"_s, u"a"_s})
            source.records.append({.id = QUuid::createUuid(),
                                   .tableID = source.tableID,
                                   .values = {{DBRow::valueKey(name.id), value}}});
        source.records.append({.id = QUuid::createUuid(), .tableID = QUuid::createUuid()});
        source.view.filters = {{QUuid::createUuid(), name.id, FilterOp::isNot, u"x"_s}};
        source.view.sorts = {{QUuid::createUuid(), name.id, false}};
        const auto stored = [&path] {
            QFile file(path);
            return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
        };
        QVERIFY(CsvExport::write(source, path, [](double) { return true; }));
        QCOMPARE(stored(), "\xEF\xBB\xBFName\r\na\r\nc\r\n"_ba);
        source.records.clear();
        source.records.fill({.id = QUuid::createUuid(), .tableID = source.tableID}, 5000);
        int calls = 0;
        const auto canceled = CsvExport::write(source, path, [&calls](double) { return ++calls < 3; });
        QVERIFY(!canceled && canceled.error().isEmpty());
        QVERIFY(stored().endsWith("a\r\nc\r\n"));
        const auto failed =
            CsvExport::write(source, folder.filePath(u"none/a.csv"_s), [](double) { return true; });
        QVERIFY(!failed && failed.error().contains(u"none/a.csv"_s));
    }

    void guessesTypesFromAllValues_data()
    {
        QTest::addColumn<QStringList>("values");
        QTest::addColumn<DBPropertyType>("type");
        QTest::addColumn<QString>("first");
        using enum DBPropertyType;
        const auto row = [](const char *name, const QStringList &values, DBPropertyType type,
                            const QString &first) { QTest::newRow(name) << values << type << first; };
        row("numbers", {u"1"_s, u""_s, u"-2.5"_s}, number, u"1"_s);
        row("almost numbers", {u"1"_s, u"2"_s, u"n/a"_s}, text, u"1"_s);
        row("checks", {u"Yes"_s, u"no"_s, u"TRUE"_s}, checkbox, u"true"_s);
        row("days", {u"2024-03-01"_s, u"2024-12-31"_s}, date, u"2024-03-01"_s);
        row("days of the month first", {u"3/12/2024"_s, u"31/12/2024"_s}, date, u"2024-12-03"_s);
        row("months first", {u"3/12/2024"_s, u"12/31/2024"_s}, date, u"2024-03-12"_s);
        row("days with points", {u"1.3.2024"_s, u"24.12.2024"_s}, date, u"2024-03-01"_s);
        row("days of short years", {u"12/31/98"_s, u"03/01/24"_s}, date, u"1998-12-31"_s);
        row("days with names of months", {u"1 Mar 2024"_s, u"24 december 2024"_s}, date, u"2024-03-01"_s);
        row("months by name first", {u"Mar 1, 2024"_s, u"December 24, 2024"_s}, date, u"2024-03-01"_s);
        row("a day that is none", {u"2024-02-30"_s, u"2024-02-28"_s}, text, u"2024-02-30"_s);
        row("forms that do not agree", {u"1.3.2024"_s, u"2024-12-31"_s}, text, u"1.3.2024"_s);
        row("addresses", {u"https://a.org"_s, u"http://b.org"_s}, url, u"https://a.org"_s);
        row("percent", {u"5%"_s, u"100 %"_s}, progress, u"5"_s);
        row("choices", {u"Open"_s, u"Done"_s, u"Open"_s, u"Done"_s}, select, u"Open"_s);
        row("words", {u"a"_s, u"b"_s, u"c"_s}, text, u"a"_s);
        row("nothing", {u""_s, u" "_s}, text, u""_s);
    }
    void guessesTypesFromAllValues()
    {
        QFETCH(QStringList, values);
        QFETCH(DBPropertyType, type);
        QFETCH(QString, first);
        QList<QStringList> rows;
        for (const QString &value : values)
            rows.append({u"x"_s, value});
        const CsvTable table = read(CsvWriter::write({u"Name"_s, u"Value"_s}, rows));
        const QLocale english(QLocale::English, QLocale::UnitedStates);
        const QList<DBProperty> properties = CsvColumns::guess(table, english);
        QCOMPARE(properties[0].type, DBPropertyType::text);
        QCOMPARE(properties[1].type, type);
        QCOMPARE(properties[1].options.isEmpty(), type != DBPropertyType::select);
        QCOMPARE(CsvColumns::Converter(properties[1], table, 1, english).value(values.first().toUtf8()),
                 first);
    }

    void columnsMatchByName()
    {
        const QList<DBProperty> properties{{QUuid(), u"Name"_s, {}, {}}, {QUuid(), u"Due date"_s, {}, {}}};
        QCOMPARE(CsvColumns::match({u" due DATE"_s, u"Other"_s, u"name"_s}, properties),
                 QList<qsizetype>({1, -1, 0}));
    }
};

QTEST_GUILESS_MAIN(CsvTest)
#include "tst_csv.moc"
