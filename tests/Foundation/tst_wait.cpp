#include "Foundation/Wait.h"

#include <QTest>

using namespace std::chrono_literals;

class WaitTest : public QObject
{
    Q_OBJECT

private slots:
    void callsOnceEachInTheOrderOfTheirTimes()
    {
        QString calls;
        QObject owner;
        const Wait wait = systemWait();
        wait(60ms, &owner, [&] { calls += u'b'; });
        wait(0ms, &owner, [&] { calls += u'a'; });
        QCOMPARE(calls, QString());
        QTRY_COMPARE(calls, QStringLiteral("ab"));
        QTRY_VERIFY(owner.children().isEmpty());
        QCOMPARE(calls, QStringLiteral("ab"));
    }

    void endsWithItsOwner()
    {
        bool isCalled = false;
        const Wait wait = systemWait();
        auto owner = std::make_unique<QObject>();
        wait(1ms, owner.get(), [&] { isCalled = true; });
        owner.reset();
        QTest::qWait(30);
        QVERIFY(!isCalled);
    }

    void maySpendItsOwnerOrWaitAgain()
    {
        const Wait wait = systemWait();
        auto *const spent = new QObject;
        int rounds = 0;
        wait(1ms, spent, [&] {
            ++rounds;
            delete spent;
        });
        QTRY_COMPARE(rounds, 1);
        QObject owner;
        std::function<void()> again = [&] {
            if (++rounds < 4)
                wait(1ms, &owner, again);
        };
        wait(1ms, &owner, again);
        QTRY_COMPARE(rounds, 4);
    }
};

QTEST_GUILESS_MAIN(WaitTest)
#include "tst_wait.moc"
