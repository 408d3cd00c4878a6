#include "Features/Databases/DBEngine.h"
#include "Features/Databases/DBValue.h"
#include "Support/DatabaseTemplates.h"

#include <QLocale>
#include <QRegularExpression>
#include <QSet>
#include <QTest>
#include <QTimeZone>
#include <QUuid>

#include <algorithm>
#include <memory>
#include <random>

using namespace Qt::StringLiterals;

class DBEngineTest : public QObject
{
    Q_OBJECT

private:
    const QTimeZone m_zone = QTimeZone("America/New_York");
    const QLocale m_locale = QLocale(QLocale::English);

    static DBProperty property(DBPropertyType type, const QStringList &options = {})
    {
        return {QUuid::createUuid(), u"P"_s, type, options};
    }
    static DBFilter filter(const DBProperty &property, FilterOp op, const QString &value)
    {
        return {QUuid::createUuid(), property.id, op, value};
    }

    /// Rows of one column, kept alive by the list.
    struct Column {
        Column(const DBProperty &property, const QStringList &values)
        {
            for (const QString &value : values)
                rows.push_back(std::make_unique<DBRow>(
                    DBRow{.id = QUuid::createUuid(), .values = {{DBRow::valueKey(property.id), value}}}));
        }
        DBEngine::Rows all() const
        {
            DBEngine::Rows found;
            for (const auto &row : rows)
                found.append(row.get());
            return found;
        }
        std::vector<std::unique_ptr<DBRow>> rows;
    };
    static QStringList values(const DBEngine::Rows &rows, const DBProperty &property)
    {
        QStringList values;
        for (const DBRow *row : rows)
            values.append(row->value(property));
        return values;
    }

    QStringList sorted(const QStringList &input, bool descending) const
    {
        const DBProperty text = property(DBPropertyType::text);
        const Column column(text, input);
        const DBView view{.sorts = {{QUuid::createUuid(), text.id, descending}}};
        return values(DBEngine::applyView(column.all(), {text}, view, m_zone, m_locale), text);
    }

private slots:
    void filtersDecideByTheirOperator_data()
    {
        QTest::addColumn<DBPropertyType>("type");
        QTest::addColumn<FilterOp>("op");
        QTest::addColumn<QString>("wanted");
        QTest::addColumn<QStringList>("matching");
        QTest::addColumn<QStringList>("others");
        using enum FilterOp;
        using Type = DBPropertyType;
        const auto row = [](const char *name, Type type, FilterOp op, const QString &wanted,
                            const QStringList &matching, const QStringList &others) {
            QTest::newRow(name) << type << op << wanted << matching << others;
        };
        row("is, case aside", Type::text, isExactly, u"Done"_s, {u"done"_s, u"DONE"_s}, {u"Done "_s, u""_s});
        row("is, both canonical forms", Type::text, isExactly, u"caf\u00e9"_s, {u"CAFE\u0301"_s},
            {u"cafe"_s});
        row("is nothing", Type::text, isExactly, u""_s, {u""_s}, {u" "_s, u"false"_s});
        row("is not", Type::select, isNot, u"done"_s, {u"Open"_s, u""_s}, {u"Done"_s});
        row("is checked", Type::checkbox, isExactly, u"yes"_s, {u"true"_s, u"1"_s, u"✓"_s, u"YES"_s},
            {u""_s, u"false"_s, u"on"_s});
        row("is unchecked", Type::checkbox, isExactly, u"no"_s, {u""_s, u"false"_s}, {u"true"_s});
        row("is not checked", Type::checkbox, isNot, u"true"_s, {u""_s}, {u"1"_s});
        row("contains", Type::multiselect, contains, u"HIG"_s, {u"Low,High"_s}, {u"Low"_s, u""_s});
        row("contains nothing", Type::text, contains, u""_s, {}, {u""_s, u"a"_s});
        row("is empty", Type::text, isEmpty, u"x"_s, {u""_s, u" \n"_s, u"false"_s, u"FALSE"_s},
            {u" false "_s, u"0"_s});
        row("is not empty", Type::text, isNotEmpty, u""_s, {u" false "_s}, {u"FALSE"_s, u" "_s});
        row("number before", Type::number, before, u"10"_s, {u"9"_s, u"-1e3"_s},
            {u"10"_s, u"abc"_s, u""_s, u"10.5"_s});
        row("number after", Type::progress, after, u"10"_s, {u"10.5"_s, u"abc"_s}, {u"10"_s, u"9"_s, u""_s});
        row("date after", Type::date, after, u"2024-03-01"_s, {u"2024-03-02"_s, u"soon"_s},
            {u"2024-03-01"_s, u"2024-02-29"_s, u""_s});
        row("moment with an offset after", Type::date, after, u"2024-03-01"_s,
            {u"2024-03-01T22:00:00-05:00"_s, u"2024-03-02T09:00:00+05:30"_s},
            {u"2024-03-01T00:00:00+05:30"_s});
        row("text before, by scalars", Type::text, before, u"\uffff"_s, {u"z"_s, u"\ue000"_s},
            {u"😀"_s, u""_s});
    }
    void filtersDecideByTheirOperator()
    {
        QFETCH(DBPropertyType, type);
        QFETCH(FilterOp, op);
        QFETCH(QString, wanted);
        QFETCH(QStringList, matching);
        QFETCH(QStringList, others);
        const DBProperty column = property(type);
        const DBView view{.filters = {filter(column, op, wanted)}};
        const Column rows(column, matching + others);
        QCOMPARE(values(DBEngine::applyView(rows.all(), {column}, view, m_zone, m_locale), column), matching);
    }

    void goneColumnsDoNothing()
    {
        const DBProperty column = property(DBPropertyType::text), gone = property(DBPropertyType::text);
        const Column rows(column, {u"b"_s, u"a"_s});
        const DBView view{.filters = {filter(gone, FilterOp::isExactly, u"x"_s)},
                          .sorts = {{QUuid::createUuid(), gone.id, false}}};
        QCOMPARE(DBEngine::applyView(rows.all(), {column}, view, m_zone, m_locale), rows.all());
        QVERIFY(DBEngine::matches(*rows.rows[0], nullptr, view.filters[0], m_zone));
    }

    void sortsAsAPersonWouldFile_data()
    {
        QTest::addColumn<QStringList>("ascending");
        QTest::newRow("numbers") << QStringList{u""_s, u"-1"_s, u"9"_s, u"10"_s, u"1e3"_s};
        QTest::newRow("digits in text") << QStringList{u""_s, u"file 2"_s, u"file 10"_s, u"file 10b"_s};
        QTest::newRow("accents and case")
            << QStringList{u"cafe"_s, u"Cafe"_s, u"café"_s, u"caff"_s, u"Zebra"_s};
        QTest::newRow("days") << QStringList{u""_s, u"2024-02-29"_s, u"2024-03-01"_s};
    }
    void sortsAsAPersonWouldFile()
    {
        QFETCH(QStringList, ascending);
        QStringList descending(ascending.rbegin(), ascending.rend());
        QStringList mixed = ascending;
        std::mt19937 random(5);
        for (int round = 0; round < 20; ++round) {
            std::shuffle(mixed.begin(), mixed.end(), random);
            QCOMPARE(sorted(mixed, false), ascending);
            QCOMPARE(sorted(mixed, true), descending);
        }
    }

    void equalValuesKeepTheirOrder()
    {
        const QStringList input{u"1.0"_s, u"1"_s, u"01"_s, u"cafe\u0301"_s, u"caf\u00e9"_s};
        QCOMPARE(sorted(input, false), input);
        QCOMPARE(sorted(input, true), QStringList({input[3], input[4], input[0], input[1], input[2]}));
        QVERIFY(!DBEngine::compare(input[3], input[4], false, m_locale));
        QVERIFY(!DBEngine::compare(input[4], input[3], false, m_locale));
    }

    /// "1e3" comes before "5x", that before "9", and that before "1e3": the numbers keep their order, and so
    /// do the texts, whichever way the rows stood.
    void circlesOfNumbersAndTextsAreSorted()
    {
        QStringList values{u"1e3"_s, u"5x"_s, u"9"_s, u"1.5"_s, u"1.25"_s, u"1.7x"_s, u"-2"_s,
                           u"-1"_s,  u"x"_s,  u""_s,  u"9.0"_s, u"10 y"_s, u"-1x"_s};
        std::mt19937 random(3);
        QStringList first;
        for (int round = 0; round < 200; ++round) {
            std::shuffle(values.begin(), values.end(), random);
            QStringList found = sorted(values, false);
            QVERIFY(found.first().isEmpty());
            const QStringList numbers = found.filter(QRegularExpression(u"^[-0-9.e]+$"_s));
            QVERIFY(std::ranges::is_sorted(
                numbers, std::less(), [](const QString &text) { return DBValue::number(text).value(); }));
            const QStringList texts = found.filter(QRegularExpression(u"[xy]$"_s));
            QCOMPARE(texts, QStringList({u"-1x"_s, u"1.7x"_s, u"5x"_s, u"10 y"_s, u"x"_s}));
            // Of equal values, the first row stands first.
            const qsizetype nine = found.indexOf(u"9"_s);
            QCOMPARE(nine < found.indexOf(u"9.0"_s), values.indexOf(u"9"_s) < values.indexOf(u"9.0"_s));
            found.removeAll(u"9.0"_s);
            if (first.isEmpty())
                first = found;
            QCOMPARE(found, first);
        }
    }

    /// The view of random rows under random sorts is what sorting with the comparator, last sort first,
    /// gives.
    void manySortsEqualOneSortAfterAnother()
    {
        std::mt19937 random(17);
        const QStringList pool{u""_s, u"1"_s, u"2.5"_s, u"-3"_s, u"10"_s, u"10.0"_s, u"007"_s};
        const QStringList words{u""_s, u"a"_s, u"A"_s, u"b 2"_s, u"b 10"_s, u"é"_s, u"e"_s};
        for (int round = 0; round < 200; ++round) {
            const QList<DBProperty> columns{property(DBPropertyType::number), property(DBPropertyType::text),
                                            property(DBPropertyType::checkbox)};
            std::vector<DBRow> rows(1 + random() % 40);
            DBEngine::Rows input;
            for (DBRow &row : rows) {
                row.id = QUuid::createUuid();
                row.values = {{DBRow::valueKey(columns[0].id), pool[qsizetype(random() % 7)]},
                              {DBRow::valueKey(columns[1].id), words[qsizetype(random() % 7)]},
                              {DBRow::valueKey(columns[2].id), random() % 2 ? u"true"_s : QString()}};
                input.append(&row);
            }
            DBView view;
            for (unsigned i = 0; i < 1 + random() % 3; ++i)
                view.sorts.append(
                    {QUuid::createUuid(), columns[qsizetype(random() % 3)].id, random() % 2 == 0});
            DBEngine::Rows expected = input;
            for (auto sort = view.sorts.crbegin(); sort != view.sorts.crend(); ++sort) {
                const QString key = DBRow::valueKey(sort->propID);
                std::ranges::stable_sort(expected, [&](const DBRow *a, const DBRow *b) {
                    return DBEngine::compare(a->values.value(key), b->values.value(key), sort->descending,
                                             m_locale);
                });
            }
            QCOMPARE(DBEngine::applyView(input, columns, view, m_zone, m_locale), expected);
        }
    }

    /// Two filters let through what both let through, in the same order; groups hold every row once.
    void filtersAddUpAndGroupsLoseNothing()
    {
        std::mt19937 random(23);
        const QStringList pool{u""_s,      u"Low"_s,      u"High"_s, u"Low,High"_s,
                               u"false"_s, u"No value"_s, u"other"_s};
        for (int round = 0; round < 300; ++round) {
            const DBProperty column = property(
                DBPropertyType::multiselect, random() % 2 ? QStringList{u"High"_s, u"Low"_s} : QStringList());
            QStringList input;
            for (unsigned i = 0; i < random() % 30; ++i)
                input.append(pool[qsizetype(random() % 7)]);
            const Column rows(column, input);
            const auto anyFilter = [&] {
                return filter(column, enumCases<FilterOp>()[random() % 7].value,
                              pool[qsizetype(random() % 7)]);
            };
            const DBFilter first = anyFilter(), second = anyFilter();
            const auto through = [&](const QList<DBFilter> &filters) {
                return DBEngine::applyView(rows.all(), {column}, DBView{.filters = filters}, m_zone,
                                           m_locale);
            };
            DBEngine::Rows both = through({first});
            both.removeIf([&](const DBRow *row) { return !through({second}).contains(row); });
            QCOMPARE(through({first, second}), both);

            DBEngine::Rows grouped;
            QStringList labels;
            for (const DBGroup &group : DBEngine::groupRows(rows.all(), &column)) {
                QVERIFY(!group.rows.isEmpty());
                QCOMPARE(group.id, group.label);
                labels.append(group.label);
                grouped.append(group.rows);
            }
            QCOMPARE(labels.removeDuplicates(), 0);
            QCOMPARE(grouped.size(), rows.all().size());
            QCOMPARE(QSet<const DBRow *>(grouped.begin(), grouped.end()).size(), grouped.size());
        }
    }

    void groupsStandInTheOrderOfTheOptions_data()
    {
        QTest::addColumn<DBProperty>("column");
        QTest::addColumn<QStringList>("input");
        QTest::addColumn<QStringList>("labels");
        QTest::newRow("select") << property(DBPropertyType::select, {u"Low"_s, u"Medium"_s, u"High"_s})
                                << QStringList{u"High"_s, u""_s, u"Low"_s, u"Other"_s, u"More"_s}
                                << QStringList{u"Low"_s, u"High"_s, u"Other"_s, u"More"_s, u"No value"_s};
        QTest::newRow("text") << property(DBPropertyType::text) << QStringList{u"b"_s, u""_s, u"a"_s}
                              << QStringList{u"b"_s, u"No value"_s, u"a"_s};
        QTest::newRow("checkbox") << property(DBPropertyType::checkbox)
                                  << QStringList{u"false"_s, u"true"_s, u"FALSE"_s}
                                  << QStringList{u"No value"_s, u"true"_s, u"FALSE"_s};
        QTest::newRow("both canonical forms") << property(DBPropertyType::select, {u"tea"_s, u"cafe\u0301"_s})
                                              << QStringList{u"caf\u00e9"_s, u"tea"_s, u"cafe\u0301"_s}
                                              << QStringList{u"tea"_s, u"caf\u00e9"_s};
        QTest::newRow("no rows") << property(DBPropertyType::select, {u"Low"_s}) << QStringList()
                                 << QStringList();
    }
    void groupsStandInTheOrderOfTheOptions()
    {
        QFETCH(DBProperty, column);
        QFETCH(QStringList, input);
        QFETCH(QStringList, labels);
        const Column rows(column, input);
        QStringList found;
        for (const DBGroup &group : DBEngine::groupRows(rows.all(), &column))
            found.append(group.label);
        QCOMPARE(found, labels);
        QCOMPARE(DBEngine::groupRows(rows.all(), nullptr),
                 (QList<DBGroup>{{u"__all__"_s, u"All"_s, rows.all()}}));
    }

    void comparesDaysByTheirFirstMoment()
    {
        const DBProperty date = property(DBPropertyType::date);
        const auto moment = [&](const QString &text) {
            return std::get<Timestamp>(DBEngine::comparable(text, date, m_zone).value());
        };
        QCOMPARE(moment(u"2024-03-10"_s), moment(u"2024-03-10T05:00:00Z"_s));
        QCOMPARE(moment(u"2024-03-01T00:00:00+05:30"_s), moment(u"2024-02-29T18:30:00Z"_s));
        QCOMPARE(moment(u"2024-03-01t00:00:00-0100"_s), moment(u"2024-03-01T01:00:00z"_s));
        for (const QString &text : {u"March"_s, u"2024-03-01T00:00:00"_s, u"2024-03-01T00:00:00+24:00"_s,
                                    u"2024-02-30T00:00:00Z"_s, u"2024-03-01T00:00:00+5"_s})
            QVERIFY2(!DBEngine::comparable(text, date, m_zone), qPrintable(text));
        QVERIFY(!DBEngine::comparable(u"x"_s, property(DBPropertyType::number), m_zone));
    }

    void storedTextsHaveMeanings()
    {
        QCOMPARE(DBValue::options(u" Low ,,High, "_s), QStringList({u"Low"_s, u"High"_s}));
        QCOMPARE(DBValue::progress(u"50"_s), 0.5);
        QCOMPARE(DBValue::progress(u"250"_s), 1.0);
        QCOMPARE(DBValue::progress(u"-5"_s), 0.0);
        QCOMPARE(DBValue::progress(u"half"_s), 0.0);
        for (const QString &text : {u""_s, u" 1"_s, u"1 "_s, u"1,5"_s, u"nan"_s, u"inf"_s, u"--"_s,
                                    u"1.2.3"_s, u"+-1"_s, u"e5"_s, u"٣"_s})
            QVERIFY2(!DBValue::number(text), qPrintable(text));
        for (const auto &[text, value] : {std::pair(u"+5"_s, 5.0), std::pair(u".5"_s, 0.5),
                                          std::pair(u"5."_s, 5.0), std::pair(u"-1E-2"_s, -0.01)})
            QCOMPARE(DBValue::number(text), std::optional(value));
    }

    void templatesMakeEmptyTables()
    {
        QStringList ids;
        for (const DatabaseTemplate &entry : DatabaseTemplates::all()) {
            ids.append(entry.id);
            const QUuid id = QUuid::createUuid();
            const DatabaseTable table = entry.table(id, Timestamp(std::chrono::seconds(5)));
            QCOMPARE(table.id, id);
            QCOMPARE(table.properties, entry.properties);
            QCOMPARE(table.views, entry.views);
            QCOMPARE(table.sortOrder, 5.0);
            for (const DBProperty &column : table.properties)
                QCOMPARE(!column.options.isEmpty(), supportsOptions(column.type));
        }
        QCOMPARE(ids, QStringList({u"homework"_s, u"research"_s, u"reading"_s, u"projectTracker"_s}));
        QCOMPARE(DBEngine::defaultProperties()[1].options,
                 QStringList({u"Not started"_s, u"In progress"_s, u"Done"_s}));
    }
};

QTEST_GUILESS_MAIN(DBEngineTest)
#include "tst_dbengine.moc"
