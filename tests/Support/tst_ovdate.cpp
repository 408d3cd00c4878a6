#include "Support/OVDate.h"

#include <QtTest>

#include <random>

using namespace std::chrono_literals;

namespace
{
QTimeZone zoneNamed(const char *id)
{
    return QTimeZone(QByteArray(id));
}

Timestamp utc(const QString &iso)
{
    return toTimestamp(QDateTime::fromString(iso, Qt::ISODate));
}
} // namespace

class OVDateTest : public QObject
{
    Q_OBJECT

private slots:
    void startOfDay_data();
    void startOfDay();
    void startOfDayIsTheFirstMomentEverywhere();
    void dayWithoutAnyMoment();
    void weeks();
    void months();
    void days();
    void relative_data();
    void relative();
    void relativeCountsCalendarDays();
    void dayKeys();
    void parseDayKey_data();
    void parseDayKey();
    void labels();
};

void OVDateTest::startOfDay_data()
{
    QTest::addColumn<QByteArray>("zone");
    QTest::addColumn<QDate>("day");
    QTest::addColumn<QString>("start");
    QTest::newRow("ordinary") << QByteArray("Europe/Berlin") << QDate(2026, 3, 9) << "2026-03-08T23:00:00Z";
    QTest::newRow("Sao Paulo jumps over midnight")
        << QByteArray("America/Sao_Paulo") << QDate(2018, 11, 4) << "2018-11-04T03:00:00Z";
    QTest::newRow("Cairo jumps over midnight")
        << QByteArray("Africa/Cairo") << QDate(2024, 4, 26) << "2024-04-25T22:00:00Z";
    QTest::newRow("Beirut jumps over midnight")
        << QByteArray("Asia/Beirut") << QDate(2025, 3, 30) << "2025-03-29T22:00:00Z";
    QTest::newRow("Havana has midnight twice")
        << QByteArray("America/Havana") << QDate(2025, 11, 2) << "2025-11-02T04:00:00Z";
    QTest::newRow("St John's has midnight twice and turns back over it")
        << QByteArray("America/St_Johns") << QDate(2010, 11, 7) << "2010-11-07T02:30:00Z";
}

void OVDateTest::startOfDay()
{
    QFETCH(QByteArray, zone);
    QFETCH(QDate, day);
    QFETCH(QString, start);
    const Timestamp found = OVDate::startOfDay(day, QTimeZone(zone));
    QCOMPARE(found, utc(start));
    QCOMPARE(OVDate::day(found, QTimeZone(zone)), day);
    QCOMPARE(OVDate::day(found - 1ms, QTimeZone(zone)), day.addDays(-1));
}

void OVDateTest::startOfDayIsTheFirstMomentEverywhere()
{
    for (const char *id : {"America/New_York", "America/Sao_Paulo", "Africa/Cairo", "Asia/Beirut",
                           "America/Havana", "Australia/Lord_Howe", "Asia/Kathmandu", "Atlantic/Azores"}) {
        const QTimeZone zone = zoneNamed(id);
        for (QDate day(2015, 1, 1); day < QDate(2019, 1, 1); day = day.addDays(1)) {
            const Timestamp start = OVDate::startOfDay(day, zone);
            const QString which = QLatin1String(id) + u' ' + day.toString(Qt::ISODate);
            QVERIFY2(OVDate::day(start, zone) == day, qPrintable(which));
            QVERIFY2(OVDate::day(start - 1ms, zone) == day.addDays(-1), qPrintable(which));
        }
    }
}

void OVDateTest::dayWithoutAnyMoment()
{
    const QTimeZone apia = zoneNamed("Pacific/Apia");
    QCOMPARE(OVDate::startOfDay(QDate(2011, 12, 30), apia), OVDate::startOfDay(QDate(2011, 12, 31), apia));
}

void OVDateTest::weeks()
{
    const QDate sunday(2026, 3, 8), saturday(2026, 3, 14);
    for (const QDate &day : OVDate::days(sunday, saturday)) {
        QCOMPARE(OVDate::startOfWeek(day), sunday);
        QCOMPARE(OVDate::endOfWeek(day), saturday);
    }
    QCOMPARE(OVDate::startOfWeek(QDate(2027, 1, 1)), QDate(2026, 12, 27));
}

void OVDateTest::months()
{
    QCOMPARE(OVDate::startOfMonth(QDate(2028, 2, 17)), QDate(2028, 2, 1));
    QCOMPARE(OVDate::endOfMonth(QDate(2028, 2, 17)), QDate(2028, 2, 29));
    QCOMPARE(OVDate::endOfMonth(QDate(2027, 2, 1)), QDate(2027, 2, 28));
    QCOMPARE(OVDate::endOfMonth(QDate(2026, 12, 31)), QDate(2026, 12, 31));
}

void OVDateTest::days()
{
    const QDate first(2026, 2, 27);
    QCOMPARE(OVDate::days(first, QDate(2026, 3, 1)),
             (QList<QDate>{first, QDate(2026, 2, 28), QDate(2026, 3, 1)}));
    QCOMPARE(OVDate::days(first, first), QList<QDate>{first});
    QVERIFY(OVDate::days(first, first.addDays(-1)).isEmpty());
}

void OVDateTest::relative_data()
{
    QTest::addColumn<int>("offset");
    QTest::addColumn<QString>("label");
    QTest::newRow("a week ago") << -7 << "Mar 6, 2026";
    QTest::newRow("six days ago") << -6 << "6 days ago";
    QTest::newRow("two days ago") << -2 << "2 days ago";
    QTest::newRow("yesterday") << -1 << "Yesterday";
    QTest::newRow("today") << 0 << "Today";
    QTest::newRow("tomorrow") << 1 << "Tomorrow";
    QTest::newRow("in two days") << 2 << "in 2 days";
    QTest::newRow("in six days") << 6 << "in 6 days";
    QTest::newRow("in a week") << 7 << "Mar 20, 2026";
}

void OVDateTest::relative()
{
    QFETCH(int, offset);
    QFETCH(QString, label);
    const QDate today(2026, 3, 13);
    QCOMPARE(OVDate::relative(today.addDays(offset), today), label);
}

void OVDateTest::relativeCountsCalendarDays()
{
    const QTimeZone newYork = zoneNamed("America/New_York");
    const Timestamp lateEvening = utc(QStringLiteral("2026-03-08T04:59:00Z"));
    const Timestamp nextMorning = lateEvening + 2min;
    QCOMPARE(OVDate::relative(nextMorning, lateEvening, newYork), QStringLiteral("Tomorrow"));
    QCOMPARE(OVDate::relative(lateEvening, nextMorning, newYork), QStringLiteral("Yesterday"));
    QCOMPARE(OVDate::relative(nextMorning, nextMorning + 22h, newYork), QStringLiteral("Today"));
}

void OVDateTest::dayKeys()
{
    const QTimeZone tokyo = zoneNamed("Asia/Tokyo");
    const Timestamp start = OVDate::startOfDay(QDate(2026, 3, 9), tokyo);
    QCOMPARE(OVDate::dayKey(start, tokyo), QStringLiteral("2026-03-09"));
    QCOMPARE(OVDate::dayKey(start + 24h - 1ms, tokyo), QStringLiteral("2026-03-09"));
    QCOMPARE(OVDate::dayKey(start - 1ms, tokyo), QStringLiteral("2026-03-08"));
    QCOMPARE(OVDate::dayKey(start, QTimeZone::utc()), QStringLiteral("2026-03-08"));

    std::mt19937 random(1);
    for (int i = 0; i < 2000; ++i) {
        const QDate day = QDate(1, 1, 1).addDays(qint64(random() % 3652059));
        QCOMPARE(OVDate::parseDayKey(OVDate::dayKey(day)), day);
    }
}

void OVDateTest::parseDayKey_data()
{
    QTest::addColumn<QString>("key");
    for (const char *key :
         {"", "2026-3-9", "2026/03/09", "2026-02-30", "2026-00-10", "2026-03-09T10:00:00Z", " 2026-03-09",
          "2026-03-09 ", "26-03-09", "2026-03-9x", "+026-03-09", "-2026-03-09", "20260309", "today"})
        QTest::newRow(key) << QString::fromLatin1(key);
    QTest::newRow("other digits") << QStringLiteral("٢٠٢٦-٠٣-٠٩");
}

void OVDateTest::parseDayKey()
{
    QFETCH(QString, key);
    QCOMPARE(OVDate::parseDayKey(key), std::nullopt);
}

void OVDateTest::labels()
{
    QLocale::setDefault(QLocale(QLocale::German));
    const QDate day(2026, 3, 9);
    QCOMPARE(OVDate::medium(day), QStringLiteral("Mar 9"));
    QCOMPARE(OVDate::mediumYear(day), QStringLiteral("Mar 9, 2026"));
    QCOMPARE(OVDate::weekdayShort(day), QStringLiteral("9 Mon"));
    QCOMPARE(OVDate::weekdayNarrow(day), QStringLiteral("M"));
    QCOMPARE(OVDate::weekdayLong(day), QStringLiteral("Monday"));
    QCOMPARE(OVDate::weekdayLongDay(day), QStringLiteral("Mon, Mar 9"));
    QCOMPARE(OVDate::longDate(day), QStringLiteral("Monday, March 9, 2026"));
    QCOMPARE(OVDate::monthYear(day), QStringLiteral("March 2026"));
    QCOMPARE(OVDate::dayNumber(day), QStringLiteral("9"));
    QLocale::setDefault(QLocale::c());
}

QTEST_GUILESS_MAIN(OVDateTest)
#include "tst_ovdate.moc"
