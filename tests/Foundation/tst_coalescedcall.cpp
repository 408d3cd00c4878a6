#include "Foundation/CoalescedCall.h"

#include <QtTest>

class CoalescedCallTest : public QObject
{
    Q_OBJECT

private slots:
    void manyRequestsAreOneCall();
    void flushCallsAtOnceAndOnlyIfRequested();
    void aRequestFromTheCallWaitsForTheNextTurn();
    void nothingIsCalledAfterTheEnd();
};

void CoalescedCallTest::manyRequestsAreOneCall()
{
    int calls = 0;
    CoalescedCall call([&calls] { ++calls; });
    for (int turn = 1; turn <= 2; ++turn) {
        call.request();
        call.request();
        QCOMPARE(calls, turn - 1);
        QCoreApplication::processEvents();
        QCOMPARE(calls, turn);
    }
}

void CoalescedCallTest::flushCallsAtOnceAndOnlyIfRequested()
{
    int calls = 0;
    CoalescedCall call([&calls] { ++calls; });
    call.flush();
    QCOMPARE(calls, 0);
    call.request();
    call.flush();
    QCOMPARE(calls, 1);
    QCoreApplication::processEvents();
    QCOMPARE(calls, 1);
}

void CoalescedCallTest::aRequestFromTheCallWaitsForTheNextTurn()
{
    int calls = 0;
    CoalescedCall *again = nullptr;
    CoalescedCall call([&] {
        if (++calls == 1)
            again->request();
    });
    again = &call;
    call.request();
    call.flush();
    QCOMPARE(calls, 1);
    QCoreApplication::processEvents();
    QCOMPARE(calls, 2);
}

void CoalescedCallTest::nothingIsCalledAfterTheEnd()
{
    int calls = 0;
    {
        CoalescedCall call([&calls] { ++calls; });
        call.request();
    }
    QCoreApplication::processEvents();
    QCOMPARE(calls, 0);
}

QTEST_GUILESS_MAIN(CoalescedCallTest)
#include "tst_coalescedcall.moc"
