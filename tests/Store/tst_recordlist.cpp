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
    for (int step = 0; step < 4000; ++step) {
        const bool known = !plain.isEmpty() && random() % 4 != 0;
        const QUuid chosen = known ? plain.at(random() % plain.size()).id : id(random() % ids);
        if (const auto action = random() % 8; action < 4) {
            plain.append({id(random() % ids), step});
            list.append(plain.last());
        } else if (action < 6) {
            for (Entry &entry : plain)
                if (entry.id == chosen)
                    entry.value = step;
            list.replace({chosen, step});
        } else {
            QSet<QUuid> gone{chosen};
            for (unsigned more = random() % 4; more > 0 && !plain.isEmpty(); --more)
                gone.insert(plain.at(random() % plain.size()).id);
            plain.removeIf([&](const Entry &entry) { return gone.contains(entry.id); });
            list.remove(gone);
        }
        QCOMPARE(list.all(), plain);
        const auto expected = std::ranges::find(plain, chosen, &Entry::id);
        const Entry *const found = list.first(chosen);
        QCOMPARE(found ? found - list.all().constData() : -1,
                 expected == plain.end() ? -1 : expected - plain.begin());
    }
}

QTEST_GUILESS_MAIN(TestRecordList)
#include "tst_recordlist.moc"
