#include "Foundation/SystemClock.h"

#include <QSignalSpy>
#include <QtTest>

using namespace std::chrono_literals;

namespace
{
QTimeZone zoneNamed(const char *id)
{
    return QTimeZone(QByteArray(id));
}
} // namespace

class ClockTest : public QObject
{
    Q_OBJECT

private:
    Timestamp m_now;
    QTimeZone m_zone;

    SystemClock::Source source()
    {
        return {[this] { return m_now; }, [this] { return m_zone; }};
    }
    Timestamp local(int day, int hour, int minute, int second = 0, int milliseconds = 0) const
    {
        return toTimestamp(QDateTime(QDate(2026, 3, day), QTime(hour, minute, second, milliseconds), m_zone));
    }

private slots:
    void init();
    void announcesEachNewDay();
    void noticesThatItHasSlept();
    void noticesAnotherTimeZone();
    void looksAtMidnightAndOnceAMinute();
    void wakesByItself();
};

void ClockTest::init()
{
    m_zone = zoneNamed("America/New_York");
    m_now = local(13, 23, 59, 59);
}

void ClockTest::announcesEachNewDay()
{
    const SystemClock::Source machine = source();
    SystemClock clock(machine);
    QSignalSpy spy(&clock, &Clock::dayChanged);
    clock.check();
    QCOMPARE(spy.count(), 0);
    m_now += 1s;
    clock.check();
    QCOMPARE(spy.count(), 1);
    QCOMPARE(clock.today(), QDate(2026, 3, 14));
    m_now += 23h;
    clock.check();
    QCOMPARE(spy.count(), 1);
}

void ClockTest::noticesThatItHasSlept()
{
    SystemClock clock(source());
    QSignalSpy spy(&clock, &Clock::dayChanged);
    m_now += 24h * 9;
    clock.check();
    QCOMPARE(spy.count(), 1);
    m_now -= 24h * 4;
    clock.check();
    QCOMPARE(spy.count(), 2);
    QCOMPARE(clock.today(), QDate(2026, 3, 18));
}

void ClockTest::noticesAnotherTimeZone()
{
    SystemClock clock(source());
    QSignalSpy spy(&clock, &Clock::dayChanged);
    m_zone = zoneNamed("Asia/Tokyo");
    clock.check();
    QCOMPARE(spy.count(), 1);
    QCOMPARE(clock.timeZone(), m_zone);
    QCOMPARE(clock.today(), QDate(2026, 3, 14));
    clock.check();
    QCOMPARE(spy.count(), 1);
    m_zone = zoneNamed("Asia/Seoul");
    clock.check();
    QCOMPARE(spy.count(), 2);
}

void ClockTest::looksAtMidnightAndOnceAMinute()
{
    m_now = local(13, 12, 0);
    SystemClock clock(source());
    QCOMPARE(clock.untilNextLook(), 1min);
    m_now = local(13, 23, 59, 30);
    QCOMPARE(clock.untilNextLook(), 30s);
    m_now = local(13, 23, 59, 59, 999);
    QCOMPARE(clock.untilNextLook(), 1ms);
    m_now = local(15, 12, 0);
    QCOMPARE(clock.untilNextLook(), 1ms);

    m_zone = zoneNamed("Africa/Cairo");
    m_now = toTimestamp(QDateTime(QDate(2024, 4, 25), QTime(23, 59, 50), m_zone));
    clock.check();
    QCOMPARE(clock.untilNextLook(), 10s);
}

void ClockTest::wakesByItself()
{
    m_now = local(13, 23, 59, 59, 999);
    SystemClock clock(source());
    QSignalSpy spy(&clock, &Clock::dayChanged);
    m_now += 1ms;
    QVERIFY(spy.wait());
    QCOMPARE(clock.today(), QDate(2026, 3, 14));
}

QTEST_GUILESS_MAIN(ClockTest)
#include "tst_clock.moc"
