#include "Foundation/KeyedListModel.h"

#include <QAbstractItemModelTester>
#include <QDate>
#include <QSignalSpy>
#include <QUuid>
#include <QtTest>

#include <algorithm>
#include <random>

struct Shown {
    Q_GADGET
    Q_PROPERTY(QString title MEMBER title)
    Q_PROPERTY(int count MEMBER count)

public:
    QString title;
    int count = 0;
    /// No role shows it.
    int hidden = 0;
    bool operator==(const Shown &) const = default;
};
constexpr int titleRole = Qt::UserRole + 1;
constexpr int countRole = Qt::UserRole + 2;

template <typename Key>
struct RowOf : Shown {
    Key id;
    bool operator==(const RowOf &) const = default;
};
using Row = RowOf<int>;

template <>
struct RowOf<QDate> : Shown {
    QDate day;
    QDate id() const { return day; }
    bool operator==(const RowOf &) const = default;
};

struct Column {
    Q_GADGET
    Q_PROPERTY(QString title MEMBER title)

public:
    QString id;
    QString title;
    QList<Row> cards = {};
    static constexpr NestedList nestedList{"cards", &Column::cards};
    bool operator==(const Column &) const = default;
};

class KeyedListModelTest : public QObject
{
    Q_OBJECT

private:
    /// A view's picture of the model, kept up to date by its signals alone.
    struct Mirror {
        explicit Mirror(const QAbstractItemModel &model)
        {
            const auto titleAt = [&model](int row) { return model.index(row, 0).data(titleRole).toString(); };
            for (int row = 0; row < model.rowCount(); ++row)
                titles.append(titleAt(row));
            QObject::connect(&model, &QAbstractItemModel::rowsRemoved, &context,
                             [this](const QModelIndex &, int first, int last) {
                                 ++steps;
                                 titles.remove(first, last - first + 1);
                             });
            QObject::connect(&model, &QAbstractItemModel::rowsInserted, &context,
                             [this, titleAt](const QModelIndex &, int first, int last) {
                                 ++steps;
                                 titles.insert(first, last - first + 1, QString());
                                 for (int row = first; row <= last; ++row)
                                     titles[row] = titleAt(row);
                             });
            QObject::connect(&model, &QAbstractItemModel::rowsMoved, &context,
                             [this](const QModelIndex &, int from, int, const QModelIndex &, int before) {
                                 ++steps;
                                 titles.move(from, before > from ? before - 1 : before);
                             });
            const auto checkLastRow = [this, titleAt] {
                if (!titles.isEmpty() && titleAt(int(titles.size()) - 1) != titles.last())
                    lastRowStood = false;
            };
            QObject::connect(&model, &QAbstractItemModel::rowsRemoved, &context, checkLastRow);
            QObject::connect(&model, &QAbstractItemModel::rowsMoved, &context, checkLastRow);
            QObject::connect(&model, &QAbstractItemModel::rowsInserted, &context, checkLastRow);
            QObject::connect(&model, &QAbstractItemModel::dataChanged, &context,
                             [this, titleAt](const QModelIndex &first, const QModelIndex &last) {
                                 for (int row = first.row(); row <= last.row(); ++row)
                                     titles[row] = titleAt(row);
                             });
        }
        QObject context;
        QStringList titles;
        int steps = 0;
        /// Whether after each step the last row was the one that it had to be.
        bool lastRowStood = true;
    };

    static Row row(int number, const QString &title) { return {{title, number}, number}; }
    static QList<Row> rows(const QList<int> &numbers)
    {
        QList<Row> rows;
        for (const int number : numbers)
            rows.append(row(number, QString::number(number)));
        return rows;
    }
    template <typename AnyRow>
    static QStringList titlesOf(const QList<AnyRow> &rows)
    {
        QStringList titles;
        for (const AnyRow &row : rows)
            titles.append(row.title);
        return titles;
    }

    /// Random lists, one after the other; `makeRow` makes the row with this number.
    template <typename AnyRow>
    static void walk(int rounds, int maxSize, AnyRow (*makeRow)(int))
    {
        KeyedListModel<AnyRow> model;
        QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
        QSignalSpy resets(&model, &QAbstractItemModel::modelReset);
        Mirror mirror(model);
        std::mt19937 random(7);
        for (int round = 0; round < rounds; ++round) {
            QList<AnyRow> next;
            const unsigned leftOut = 1 + unsigned(random() % 6);
            for (int i = 0, size = 1 + int(random()) % maxSize; i < size; ++i) {
                if (random() % leftOut != 0)
                    continue;
                next.append(makeRow(i));
                next.last().title = QStringLiteral("%1-%2").arg(i).arg(random() % 2);
            }
            if (random() % 2 != 0)
                std::shuffle(next.begin(), next.end(), random);
            QList<AnyRow> given = next;
            if (!next.isEmpty() && random() % 4 == 0)
                given.append(makeRow(int(random() % unsigned(maxSize))));
            const auto known = [&](const AnyRow &row) {
                return std::invoke(&AnyRow::id, row) == std::invoke(&AnyRow::id, given.last());
            };
            if (given.size() > next.size() && std::ranges::none_of(next, known))
                next.append(given.last());
            model.setRows(given);
            QCOMPARE(model.rows(), next);
            QCOMPARE(mirror.titles, titlesOf(next));
            QVERIFY(mirror.lastRowStood);
            for (int i = 0; i < 3; ++i) {
                const AnyRow sought = makeRow(int(random() % unsigned(maxSize)));
                const auto id = std::invoke(&AnyRow::id, sought);
                const auto isSought = [&](const AnyRow &row) { return std::invoke(&AnyRow::id, row) == id; };
                const auto expected = std::ranges::find_if(next, isSought);
                const AnyRow *const found = model.find(id);
                QCOMPARE(found ? *found : AnyRow(), expected == next.end() ? AnyRow() : *expected);
                if (found)
                    expected->title = QStringLiteral("changed %1").arg(round);
                model.changeRow(
                    id, [round](AnyRow &row) { row.title = QStringLiteral("changed %1").arg(round); });
                QCOMPARE(mirror.titles, titlesOf(next));
            }
        }
        QCOMPARE(resets.count(), 0);
    }

private slots:
    void anyListBecomesAnyOther()
    {
        walk<Row>(3000, 14, [](int i) { return row(i, QString()); });
        // So long that the changes are told in blocks.
        walk<Row>(12, 8000, [](int i) { return row(i, QString()); });
    }

    void anyHashableValueIsAnId()
    {
        walk<RowOf<QString>>(200, 14, [](int i) { return RowOf<QString>{{}, QString::number(i)}; });
        walk<RowOf<QDate>>(200, 14, [](int i) { return RowOf<QDate>{{}, QDate(2026, 1, 1).addDays(i)}; });
        using Pair = std::pair<QUuid, QString>;
        walk<RowOf<Pair>>(200, 14, [](int i) {
            return RowOf<Pair>{{},
                               {QUuid(unsigned(i % 3), 0, 0, 0, 0, 0, 0, 0, 0, 0, 0), QString::number(i)}};
        });
    }

    void takesTheFewestSteps_data()
    {
        QTest::addColumn<QList<int>>("order");
        QTest::addColumn<int>("steps");
        QTest::newRow("same") << QList<int>{0, 1, 2, 3, 4} << 0;
        QTest::newRow("first to the end") << QList<int>{1, 2, 3, 4, 0} << 1;
        QTest::newRow("last to the front") << QList<int>{4, 0, 1, 2, 3} << 1;
        QTest::newRow("two swapped") << QList<int>{0, 3, 2, 1, 4} << 2;
        QTest::newRow("reversed") << QList<int>{4, 3, 2, 1, 0} << 4;
        QTest::newRow("two gone side by side") << QList<int>{0, 3, 4} << 1;
        QTest::newRow("two gone apart") << QList<int>{0, 2, 4} << 2;
        QTest::newRow("two come side by side") << QList<int>{0, 1, 8, 9, 2, 3, 4} << 1;
    }
    void takesTheFewestSteps()
    {
        QFETCH(QList<int>, order);
        QFETCH(int, steps);
        KeyedListModel<Row> model;
        model.setRows(rows({0, 1, 2, 3, 4}));
        const Mirror mirror(model);
        model.setRows(rows(order));
        QCOMPARE(mirror.titles, titlesOf(rows(order)));
        QCOMPARE(mirror.steps, steps);
    }

    /// On every road, a change tells the roles that show it, and one that none shows is kept without a word.
    void announcesOnlyTheRolesThatChanged()
    {
        KeyedListModel<Row> model;
        model.setRows(rows({1, 2, 3, 4}));
        QSignalSpy changes(&model, &QAbstractItemModel::dataChanged);
        const auto change = [&](const std::function<void(Row &)> &edit) {
            QList<Row> next = model.rows();
            edit(next[1]);
            edit(next[2]);
            model.setRows(next);
            edit(next[0]);
            model.updateRow(next[0]);
            model.changeRow(4, edit);
        };
        change([](Row &row) { row.hidden = 1; });
        QCOMPARE(changes.count(), 0);
        for (const Row &row : model.rows())
            QCOMPARE(row.hidden, 1);
        change([](Row &row) { row.title = QStringLiteral("new"), row.hidden = 2; });
        QCOMPARE(changes.count(), 3);
        QCOMPARE(changes[0][0].toModelIndex().row(), 1);
        QCOMPARE(changes[0][1].toModelIndex().row(), 2);
        for (const QList<QVariant> &told : changes)
            QCOMPARE(told[2].value<QList<int>>(), QList<int>{titleRole});
        changes.clear();
        change([](Row &row) { row.title = QStringLiteral("newer"), row.count = 7; });
        QCOMPARE(changes[0][2].value<QList<int>>(), QList<int>({titleRole, countRole}));
    }

    void aRowsOwnListChangesInPlace()
    {
        KeyedListModel<Column> board;
        QAbstractItemModelTester tester(&board, QAbstractItemModelTester::FailureReportingMode::QtTest);
        const auto column = [](const QString &id, const QList<int> &cards) {
            return Column{id, id, rows(cards)};
        };
        const int cardsRole = board.roleNames().key("cards");
        const auto cardsAt = [&](int at) {
            return board.index(at).data(cardsRole).value<QAbstractItemModel *>();
        };
        board.setRows({column(QStringLiteral("todo"), {1, 2, 3}), column(QStringLiteral("done"), {4})});
        QAbstractItemModel *const todo = cardsAt(0);
        const QPointer<QAbstractItemModel> done = cardsAt(1);
        const Mirror mirror(*todo);
        QSignalSpy changes(&board, &QAbstractItemModel::dataChanged);

        board.setRows({column(QStringLiteral("done"), {4, 1}), column(QStringLiteral("todo"), {3, 2})});
        QCOMPARE(cardsAt(1), todo);
        QCOMPARE(mirror.titles, QStringList({QStringLiteral("3"), QStringLiteral("2")}));
        QCOMPARE(mirror.steps, 2);
        QCOMPARE(done->rowCount(), 2);
        board.changeRow(QStringLiteral("todo"), [](Column &column) { column.cards.append(rows({9})); });
        QCOMPARE(mirror.titles.last(), QStringLiteral("9"));
        QCOMPARE(changes.count(), 0);

        board.setRows({column(QStringLiteral("todo"), {})});
        QVERIFY(mirror.titles.isEmpty());
        QCOMPARE(done->rowCount(), 2); // A view that lets the row go still shows it.
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(!done);
    }

    /// A view takes longer for each step the more there are of them.
    void shufflesALongListInFewSteps()
    {
        KeyedListModel<Row> model;
        QList<Row> rows;
        for (int i = 0; i < 100'000; ++i)
            rows.append(row(i, QString()));
        model.setRows(rows);
        std::mt19937 random(11);
        std::shuffle(rows.begin() + 1, rows.end() - 1, random);
        const Mirror mirror(model);
        model.setRows(rows);
        QCOMPARE(model.rows(), rows);
        QCOMPARE_LE(mirror.steps, 1000);
    }
};

QTEST_GUILESS_MAIN(KeyedListModelTest)
#include "tst_keyedlistmodel.moc"
