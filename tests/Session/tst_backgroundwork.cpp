#include "Session/BackgroundWork.h"

#include <QSemaphore>
#include <QSignalSpy>
#include <QtTest>

class BackgroundWorkTest : public QObject
{
    Q_OBJECT

private:
    /// A folder on a network that does not answer.
    const std::shared_ptr<QSemaphore> m_network = std::make_shared<QSemaphore>();
    const std::shared_ptr<QSemaphore> m_left = std::make_shared<QSemaphore>();
    int m_done = 0;

    BackgroundWork::Work stuck()
    {
        return [this, network = m_network, left = m_left](BackgroundWork::Job &job) {
            network->acquire();
            job.goOn(0.5);
            left->release();
            return [this] { ++m_done; };
        };
    }
    /// The network answers, and the worker finds that nobody is there.
    void answer()
    {
        m_network->release();
        QVERIFY(m_left->tryAcquire(1, 10'000));
        QTest::qWait(20);
    }

private slots:
    void init() { m_done = 0; }

    void tellsItsProgressAndItsEnd()
    {
        BackgroundWork work;
        QList<double> shares;
        connect(&work, &BackgroundWork::changed, this, [&] { shares.append(work.progress()); });
        work.start([this](BackgroundWork::Job &job) {
            for (const double share : {0.1, 0.101, 0.6})
                job.goOn(share);
            return [this] { ++m_done; };
        });
        QVERIFY(work.isBusy());
        QTRY_VERIFY(!work.isBusy());
        QCOMPARE(m_done, 1);
        QCOMPARE(shares, (QList<double>{0, 0.1, 0.6, 0.6}));
    }

    void workThatIsStuckHoldsNobodyUp()
    {
        QElapsedTimer time;
        {
            BackgroundWork work;
            work.start(stuck());
            time.start();
        }
        QVERIFY2(time.elapsed() < 5'000, qPrintable(QString::number(time.elapsed())));
        answer();
        QCOMPARE(m_done, 0);
    }

    void workThatIsStuckGivesWayToTheNext()
    {
        BackgroundWork work;
        work.start(stuck());
        work.cancel();
        QVERIFY(!work.isBusy());
        work.start(stuck());
        work.start([this](BackgroundWork::Job &) { return [this] { m_done += 10; }; });
        QTRY_VERIFY(!work.isBusy());
        answer();
        answer();
        QCOMPARE(m_done, 10);
        QCOMPARE(work.progress(), 0.0);
    }
};

QTEST_GUILESS_MAIN(BackgroundWorkTest)
#include "tst_backgroundwork.moc"
