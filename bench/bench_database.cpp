#include "Features/Databases/DBEngine.h"
#include "Features/Databases/DBValue.h"
#include "Harness/Comparison.h"

#include <QCollator>
#include <QHash>

#include <algorithm>
#include <random>

using namespace Qt::StringLiterals;

namespace
{
constexpr int rowCount = 100'000;

/// A table of works with a title, an owner, a state and a number.
struct Table {
    QList<DBProperty> properties{{QUuid::createUuid(), u"Title"_s, DBPropertyType::text, {}},
                                 {QUuid::createUuid(), u"Owner"_s, DBPropertyType::text, {}},
                                 {QUuid::createUuid(),
                                  u"State"_s,
                                  DBPropertyType::select,
                                  {u"Not started"_s, u"In progress"_s, u"Done"_s}},
                                 {QUuid::createUuid(), u"Rating"_s, DBPropertyType::number, {}}};
    std::vector<DBRow> rows;
    DBEngine::Rows pointers;

    Table()
    {
        std::mt19937 random(1);
        const QStringList words{u"letter"_s,  u"Éclair"_s, u"draft"_s, u"Zoë"_s,
                                u"chapter"_s, u"naïve"_s,  u"plan"_s,  u"Book"_s};
        const auto word = [&] { return words[qsizetype(random() % std::size_t(words.size()))]; };
        rows.resize(rowCount);
        for (DBRow &row : rows) {
            row.id = QUuid::createUuid();
            const auto set = [&](int column, const QString &value) {
                row.values.insert(DBRow::valueKey(properties[column].id), value);
            };
            set(0, u"%1 %2 %3"_s.arg(word(), word()).arg(random() % 5000));
            set(1, word());
            set(2, properties[2].options[qsizetype(random() % 3)]);
            set(3, random() % 5 ? QString::number(random() % 1000 / 10.0) : QString());
        }
        for (const DBRow &row : rows)
            pointers.append(&row);
    }
};

DBEngine::Rows sortedByCollator(const Table &table, const DBView &view)
{
    const DBProperty &filtered = table.properties[2];
    DBEngine::Rows rows = table.pointers;
    rows.removeIf([&](const DBRow *row) {
        return !DBEngine::matches(*row, &filtered, view.filters[0], QTimeZone::utc());
    });
    QCollator collator(QLocale(QLocale::English));
    collator.setNumericMode(true);
    for (auto sort = view.sorts.crbegin(); sort != view.sorts.crend(); ++sort) {
        const QString key = DBRow::valueKey(sort->propID);
        std::ranges::stable_sort(rows, [&](const DBRow *a, const DBRow *b) {
            const int order = collator.compare(a->values.value(key), b->values.value(key));
            return sort->descending ? order > 0 : order < 0;
        });
    }
    return rows;
}

void bench(Comparison &comparison, const QString &what, const Table &table, const QList<DBSort> &sorts)
{
    const DBView view{.filters = {{QUuid::createUuid(), table.properties[2].id, FilterOp::isNot, u"Done"_s}},
                      .sorts = sorts};
    const auto times = Comparison::alternate(
        5,
        [&] {
            return timed([&] {
                const auto rows = DBEngine::applyView(table.pointers, table.properties, view,
                                                      QTimeZone::utc(), QLocale(QLocale::English));
                DBEngine::groupRows(rows, &table.properties[2]);
            });
        },
        [&] {
            return timed([&] { DBEngine::groupRows(sortedByCollator(table, view), &table.properties[2]); });
        });
    comparison.timeAtMost(what, Comparison::best(times.ours), Comparison::best(times.baseline), 0.5);
}
} // namespace

int main()
{
    const Table table;
    Comparison comparison;
    const auto sort = [&table](int column, bool descending) {
        return DBSort{QUuid::createUuid(), table.properties[column].id, descending};
    };
    bench(comparison, u"view of 100,000 rows by owner and title, against QCollator"_s, table,
          {sort(1, false), sort(0, true)});
    bench(comparison, u"view of 100,000 rows by state and rating, against QCollator"_s, table,
          {sort(2, false), sort(3, true)});
    return comparison.exitCode();
}
