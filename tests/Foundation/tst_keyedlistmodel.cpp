#include "Foundation/KeyedListModel.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QtTest>

#include <algorithm>
#include <random>

struct Row {
    Q_GADGET
    Q_PROPERTY(QUuid id MEMBER id)
    Q_PROPERTY(QString title MEMBER title)
    Q_PROPERTY(int count MEMBER count)

public:
    QUuid id;
    QString title;
    int count = 0;
    bool operator==(const Row &) const = default;
};

class KeyedListModelTest : public QObject
{
    Q_OBJECT

private:
    /// A view's picture of the model, kept up to date by its signals alone.
    struct Mirror {
        explicit Mirror(const KeyedListModel<Row> &model)
        {
            const auto titleAt = [&model](int row) {
                return model.index(row).data(Qt::UserRole + 2).toString();
            };
            QObject::connect(
                &model, &QAbstractItemModel::rowsRemoved, &context,
                [this](const QModelIndex &, int first, int last) { titles.remove(first, last - first + 1); });
            QObject::connect(&model, &QAbstractItemModel::rowsInserted, &context,
                             [this, titleAt](const QModelIndex &, int first, int last) {
                                 for (int row = first; row <= last; ++row)
                                     titles.insert(row, titleAt(row));
                             });
            QObject::connect(&model, &QAbstractItemModel::rowsMoved, &context,
                             [this](const QModelIndex &, int from, int, const QModelIndex &, int before) {
                                 ++moves;
                                 titles.move(from, before > from ? before - 1 : before);
                             });
            QObject::connect(
                &model, &QAbstractItemModel::dataChanged, &context,
                [this, titleAt](const QModelIndex &first) { titles[first.row()] = titleAt(first.row()); });
        }
        QObject context;
        QStringList titles;
        int moves = 0;
    };

    static Row row(int number, const QString &title)
    {
        return {QUuid::createUuidV5(QUuid(), QString::number(number)), title, number};
    }
    static QStringList titlesOf(const QList<Row> &rows)
    {
        QStringList titles;
        for (const Row &row : rows)
            titles.append(row.title);
        return titles;
    }

private slots:
    void anyListBecomesAnyOther()
    {
        KeyedListModel<Row> model;
        QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
        QSignalSpy resets(&model, &QAbstractItemModel::modelReset);
        Mirror mirror(model);
        std::mt19937 random(7);
        for (int round = 0; round < 3000; ++round) {
            QList<Row> next;
            const int size = 1 + int(random() % 14);
            for (int i = 0; i < size; ++i)
                if (random() % 3 != 0)
                    next.append(row(i, QStringLiteral("%1-%2").arg(i).arg(random() % 2)));
            if (random() % 2 != 0)
                std::shuffle(next.begin(), next.end(), random);
            model.setRows(next);
            QCOMPARE(model.rows(), next);
            QCOMPARE(mirror.titles, titlesOf(next));
        }
        QCOMPARE(resets.count(), 0);
    }

    void takesTheFewestMoves_data()
    {
        QTest::addColumn<QList<int>>("order");
        QTest::addColumn<int>("moves");
        QTest::newRow("same") << QList<int>{0, 1, 2, 3, 4} << 0;
        QTest::newRow("first to the end") << QList<int>{1, 2, 3, 4, 0} << 1;
        QTest::newRow("last to the front") << QList<int>{4, 0, 1, 2, 3} << 1;
        QTest::newRow("two swapped") << QList<int>{0, 3, 2, 1, 4} << 2;
        QTest::newRow("reversed") << QList<int>{4, 3, 2, 1, 0} << 4;
    }
    void takesTheFewestMoves()
    {
        QFETCH(QList<int>, order);
        QFETCH(int, moves);
        KeyedListModel<Row> model;
        QList<Row> rows;
        for (int i = 0; i < 5; ++i)
            rows.append(row(i, QString::number(i)));
        model.setRows(rows);
        Mirror mirror(model);
        mirror.titles = titlesOf(rows);
        QList<Row> next;
        for (const int i : order)
            next.append(rows[i]);
        model.setRows(next);
        QCOMPARE(mirror.titles, titlesOf(next));
        QCOMPARE(mirror.moves, moves);
    }

    void announcesOnlyTheRolesThatChanged()
    {
        KeyedListModel<Row> model;
        model.setRows({row(1, QStringLiteral("a")), row(2, QStringLiteral("b"))});
        QSignalSpy changes(&model, &QAbstractItemModel::dataChanged);
        model.setRows({row(1, QStringLiteral("a")), row(2, QStringLiteral("c"))});
        QCOMPARE(changes.count(), 1);
        QCOMPARE(changes[0][0].toModelIndex().row(), 1);
        QCOMPARE(changes[0][2].value<QList<int>>(), QList<int>{Qt::UserRole + 2});
    }

    void keepsTheFirstOfRepeatedIds()
    {
        KeyedListModel<Row> model;
        model.setRows(
            {row(1, QStringLiteral("a")), row(1, QStringLiteral("b")), row(2, QStringLiteral("c"))});
        QCOMPARE(titlesOf(model.rows()), QStringList({QStringLiteral("a"), QStringLiteral("c")}));
    }

    /// Ten thousand rows in any order have to be sorted anew within a frame or two; quadratic work shows here
    /// as a test that does not end.
    void shufflesALongList()
    {
        KeyedListModel<Row> model;
        QList<Row> rows;
        for (int i = 0; i < 100'000; ++i)
            rows.append(row(i, QString()));
        model.setRows(rows);
        std::mt19937 random(11);
        std::shuffle(rows.begin(), rows.end(), random);
        model.setRows(rows);
        QCOMPARE(model.rows(), rows);
    }
};

QTEST_GUILESS_MAIN(KeyedListModelTest)
#include "tst_keyedlistmodel.moc"
