#include "Features/Relax/BreathingCycle.h"
#include "Features/Relax/ScenePainter.h"

#include <QPainter>
#include <QtTest>

namespace
{
QImage picture(RelaxScene scene, double seconds, QSize size = {310, 205})
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::magenta);
    QPainter painter(&image);
    ScenePainter().paint(painter, size, scene, seconds);
    return image;
}

/// The mean difference of a channel, and the greatest one of a tile of the picture, from 0 to 255.
struct Difference {
    double mean = 0;
    double brightness = 0;
};

Difference difference(const QImage &first, const QImage &second)
{
    Difference result;
    for (int y = 0; y < first.height(); ++y)
        for (int x = 0; x < first.width(); ++x) {
            const int change = qGray(second.pixel(x, y)) - qGray(first.pixel(x, y));
            result.mean += std::abs(change);
            result.brightness += change;
        }
    const double pixels = double(first.width()) * first.height();
    return {result.mean / pixels, std::abs(result.brightness) / pixels};
}

void addScenes()
{
    QTest::addColumn<RelaxScene>("scene");
    for (const auto &entry : enumCases<RelaxScene>())
        QTest::newRow(entry.raw.data()) << entry.value;
}
} // namespace

class RelaxScenesTest : public QObject
{
    Q_OBJECT

private slots:
    void areTheSameForTheSameSecond_data() { addScenes(); }
    void areTheSameForTheSameSecond()
    {
        QFETCH(RelaxScene, scene);
        const QImage first = picture(scene, 7.25);
        QCOMPARE(picture(scene, 7.25), first);
        QVERIFY(first != picture(scene, 8.25));
        // A painter that has drawn other scenes and sizes before draws the same.
        QImage image(first.size(), QImage::Format_RGB32);
        QPainter painter(&image);
        ScenePainter used;
        used.paint(painter, {100, 80}, RelaxScene::forest, 3);
        used.paint(painter, first.size(), RelaxScene::night, 3);
        used.paint(painter, first.size(), scene, 7.25);
        painter.end();
        QCOMPARE(image, first);
    }

    void fillTheirSize_data() { addScenes(); }
    void fillTheirSize()
    {
        QFETCH(RelaxScene, scene);
        for (const QSize size : {QSize(1, 1), QSize(120, 74), QSize(640, 97)}) {
            const QImage image = picture(scene, 1e6, size);
            for (int y = 0; y < size.height(); ++y)
                for (int x = 0; x < size.width(); ++x)
                    QVERIFY(image.pixel(x, y) != QColor(Qt::magenta).rgb());
        }
    }

    void moveWithoutFlashing_data() { addScenes(); }
    void moveWithoutFlashing()
    {
        QFETCH(RelaxScene, scene);
        QImage before = picture(scene, 0);
        for (int frame = 1; frame <= 60; ++frame) {
            const QImage now = picture(scene, frame / 10.0);
            const Difference change = difference(before, now);
            QVERIFY2(change.brightness < 1.5, qPrintable(QString::number(change.brightness)));
            QVERIFY2(change.mean < 6, qPrintable(QString::number(change.mean)));
            before = now;
        }
    }

    void breathesIn478_data()
    {
        QTest::addColumn<double>("seconds");
        QTest::addColumn<QString>("phase");
        QTest::addColumn<double>("scale");
        QTest::addColumn<int>("left");
        QTest::newRow("beginning") << 0.0 << "Breathe in" << 0.6 << 4;
        QTest::newRow("half in") << 2.0 << "Breathe in" << 0.8 << 2;
        QTest::newRow("hold") << 4.0 << "Hold" << 1.0 << 7;
        QTest::newRow("end of hold") << 10.9 << "Hold" << 1.0 << 1;
        QTest::newRow("out") << 11.0 << "Breathe out" << 1.0 << 8;
        QTest::newRow("half out") << 15.0 << "Breathe out" << 0.8 << 4;
        QTest::newRow("again") << 19.0 << "Breathe in" << 0.6 << 4;
        QTest::newRow("much later") << 19.0 * 1000 + 12 << "Breathe out" << 0.98 << 7;
    }
    void breathesIn478()
    {
        QFETCH(double, seconds);
        QFETCH(double, scale);
        const BreathingCycle::Moment moment = BreathingCycle::at(seconds);
        QTEST(enumLabel(moment.phase), "phase");
        QTEST(moment.secondsLeft, "left");
        QVERIFY2(std::abs(moment.scale - scale) < 0.01, qPrintable(QString::number(moment.scale)));
    }
};

QTEST_GUILESS_MAIN(RelaxScenesTest)
#include "tst_relaxscenes.moc"
