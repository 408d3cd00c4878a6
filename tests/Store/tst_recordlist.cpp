#include "Store/RecordList.h"

#include <QTest>

#include <random>

namespace
{
struct Entry {
    QUuid id;
    int value = 0;

    bool operator==(const Entry &) const = default;
};

QUuid id(unsigned number)
{
    return QUuid(number, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0);
}
} // namespace

class TestRecordList : public QObject
{
    Q_OBJECT

private slots:
    void doesAsAPlainListDoes_data();
    void doesAsAPlainListDoes();
};

void TestRecordList::doesAsAPlainListDoes_data()
{
    QTest::addColumn<unsigned>("ids");
    QTest::newRow("ids come again") << 40u;
    QTest::newRow("ids are unique") << 1'000'000u;
}

void TestRecordList::doesAsAPlainListDoes()
{
    QFETCH(unsigned, ids);
    std::mt19937 random(ids);
    RecordList<Entry> list;
    QList<Entry> plain;
    QList<qsizetype> takenPositions;
    QList<Entry> taken;
    for (int step = 0; step < 4000; ++step) {
        const bool known = !plain.isEmpty() && random() % 4 != 0;
        const QUuid chosen = known ? plain.at(random() % plain.size()).id : id(random() % ids);
        if (const auto action = random() % 8; action < 4) {
            plain.append({id(random() % ids), step});
            list.append(plain.last());
            taken.clear();
        } else if (action < 5) {
            for (const qsizetype position : list.positionsOf({chosen}))
                QCOMPARE(list.exchange(position, {chosen, step}),
                         std::exchange(plain[position], {chosen, step}));
        } else if (action < 6 && !taken.isEmpty()) {
            for (qsizetype i = 0; i < taken.size(); ++i)
                plain.insert(takenPositions.at(i), taken.at(i));
            list.insert(takenPositions, std::exchange(taken, {}));
        } else {
            QSet<QUuid> gone{chosen};
            for (unsigned more = random() % 4; more > 0 && !plain.isEmpty(); --more)
                gone.insert(plain.at(random() % plain.size()).id);
            takenPositions = list.positionsOf(gone);
            taken = list.take(takenPositions);
            QVERIFY(std::ranges::all_of(taken, [&](const Entry &entry) { return gone.contains(entry.id); }));
            plain.removeIf([&](const Entry &entry) { return gone.contains(entry.id); });
        }
        QCOMPARE(list.all(), plain);
        const auto expected = std::ranges::find(plain, chosen, &Entry::id);
        QCOMPARE(list.positionOf(chosen), expected == plain.end() ? -1 : expected - plain.begin());
    }
}

QTEST_GUILESS_MAIN(TestRecordList)
#include "tst_recordlist.moc"
