#include "Foundation/Timestamp.h"

#include <QtTest>

#include <random>

using namespace std::chrono;

namespace
{
QString written(Timestamp moment)
{
    const auto text = isoTimestamp(moment);
    return QString::fromLatin1(text.data(), qsizetype(text.size()));
}

std::optional<Timestamp> parsed(const QString &text)
{
    return parseIsoTimestamp(std::string_view(text.toLatin1()));
}
} // namespace

class TimestampTest : public QObject
{
    Q_OBJECT

private slots:
    void keepsWholeSeconds();
    void randomMomentsAgreeWithQt();
    void holdsMomentsWithoutAFormAtTheEnds();
    void refusesEverythingElse_data();
    void refusesEverythingElse();
    void takesLeapDays();
    void secondsKeepTheirFraction();
};

void TimestampTest::keepsWholeSeconds()
{
    QCOMPARE(written(Timestamp(0ms)), QStringLiteral("1970-01-01T00:00:00Z"));
    QCOMPARE(written(Timestamp(999ms)), QStringLiteral("1970-01-01T00:00:00Z"));
    QCOMPARE(written(Timestamp(-1ms)), QStringLiteral("1969-12-31T23:59:59Z"));
    QCOMPARE(parsed(QStringLiteral("2026-03-13T09:30:00Z")), Timestamp(1773394200000ms));
}

void TimestampTest::randomMomentsAgreeWithQt()
{
    std::mt19937_64 random(3);
    const Timestamp first = sys_days(year(1) / 1 / 1), end = sys_days(year(10000) / 1 / 1);
    std::uniform_int_distribution<qint64> within(first.time_since_epoch().count(),
                                                 end.time_since_epoch().count() - 1);
    for (int i = 0; i < 20000; ++i) {
        const Timestamp moment(milliseconds(within(random)));
        const QString text = written(moment);
        QCOMPARE(parsed(text), floor<seconds>(moment));
        QCOMPARE(text, toDateTime(moment, QTimeZone::utc()).toString(u"yyyy-MM-dd'T'HH:mm:ss'Z'"));
    }
}

void TimestampTest::holdsMomentsWithoutAFormAtTheEnds()
{
    QCOMPARE(written(Timestamp::min()), QStringLiteral("0001-01-01T00:00:00Z"));
    QCOMPARE(written(Timestamp::max()), QStringLiteral("9999-12-31T23:59:59Z"));
    QCOMPARE(parsed(QStringLiteral("0001-01-01T00:00:00Z")), sys_days(year(1) / 1 / 1));
    QCOMPARE(parsed(QStringLiteral("9999-12-31T23:59:59Z")), sys_days(year(10000) / 1 / 1) - 1s);
}

void TimestampTest::refusesEverythingElse_data()
{
    QTest::addColumn<QString>("text");
    for (const char *text : {"",
                             "2026-03-13",
                             "2026-03-13T09:30:00",
                             "2026-03-13T09:30Z",
                             "2026-03-13T09:30:00.5Z",
                             "2026-03-13T09:30:00.000Z",
                             "2026-03-13T09:30:00+00:00",
                             "2026-03-13T09:30:00+0Z",
                             "2026-03-13t09:30:00Z",
                             "2026-03-13T09:30:00z",
                             "2026-03-13 09:30:00Z",
                             "2026/03/13T09:30:00Z",
                             "2026-02-29T00:00:00Z",
                             "1900-02-29T00:00:00Z",
                             "2026-02-30T00:00:00Z",
                             "2026-04-31T00:00:00Z",
                             "2026-13-01T00:00:00Z",
                             "2026-00-01T00:00:00Z",
                             "2026-01-00T00:00:00Z",
                             "2026-01-01T24:00:00Z",
                             "2026-01-01T00:60:00Z",
                             "2026-01-01T00:00:60Z",
                             "0000-01-01T00:00:00Z",
                             "-026-01-01T00:00:00Z",
                             "2026-01-01T-1:00:00Z",
                             "2026-01-01T 1:00:00Z",
                             " 2026-01-01T00:00:00Z",
                             "2026-01-01T00:00:00ZZ"})
        QTest::newRow(text) << QString::fromLatin1(text);
}

void TimestampTest::refusesEverythingElse()
{
    QFETCH(QString, text);
    QCOMPARE(parsed(text), std::nullopt);
}

void TimestampTest::takesLeapDays()
{
    for (const char *text : {"2028-02-29T23:59:59Z", "2000-02-29T00:00:00Z", "0004-02-29T12:00:00Z"}) {
        const auto moment = parseIsoTimestamp(text);
        QVERIFY2(moment, text);
        QCOMPARE(written(*moment), QString::fromLatin1(text));
    }
}

void TimestampTest::secondsKeepTheirFraction()
{
    QCOMPARE(secondsSince1970(Timestamp(1773394200125ms)), 1773394200.125);
    const QTimeZone zone(QByteArrayLiteral("Asia/Kathmandu"));
    const QDateTime local = toDateTime(Timestamp(1773394200125ms), zone);
    QCOMPARE(local.time(), QTime(15, 15, 0, 125));
    QCOMPARE(toTimestamp(local), Timestamp(1773394200125ms));
}

QTEST_GUILESS_MAIN(TimestampTest)
#include "tst_timestamp.moc"
