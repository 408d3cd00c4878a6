#include "DesignSystem/AccentColors.h"
#include "DesignSystem/ChartScale.h"
#include "DesignSystem/Contrast.h"
#include "DesignSystem/OVColors.h"

#include <QtTest>

#include <cmath>

class ChartScaleTest : public QObject
{
    Q_OBJECT

private slots:
    void ticksAreRoundAndReachTheLargest_data();
    void ticksAreRoundAndReachTheLargest();
    void labelsNeverOverlap();
    void numbersStayShort_data();
    void numbersStayShort();
    void coloursStandOutFromTheCard();
};

void ChartScaleTest::ticksAreRoundAndReachTheLargest_data()
{
    QTest::addColumn<double>("largest");
    QTest::addColumn<QList<double>>("ticks");
    QTest::newRow("nothing") << 0.0 << QList<double>{0, 1};
    QTest::newRow("not a number") << double(NAN) << QList<double>{0, 1};
    QTest::newRow("one") << 1.0 << QList<double>{0, 1};
    QTest::newRow("counts have no halves") << 3.0 << QList<double>{0, 1, 2, 3};
    QTest::newRow("five") << 5.0 << QList<double>{0, 2, 4, 6};
    QTest::newRow("nineteen") << 19.0 << QList<double>{0, 5, 10, 15, 20};
    QTest::newRow("huge") << 3.1e6 << QList<double>{0, 1e6, 2e6, 3e6, 4e6};
}

void ChartScaleTest::ticksAreRoundAndReachTheLargest()
{
    QFETCH(const double, largest);
    QTEST(ChartScale::ticks(largest), "ticks");
}

/// Lays labels out as a chart does, those at the ends moved inwards, and looks for two that touch.
void ChartScaleTest::labelsNeverOverlap()
{
    for (const int count : {1, 2, 3, 6, 14, 20, 60})
        for (const double plot : {40.0, 120.0, 333.0, 900.0})
            for (const double width : {5.0, 38.0, 90.0, 200.0}) {
                const double pitch = plot / count;
                const double shown = std::min(width, plot);
                const int step = ChartScale::labelStep(pitch, shown, 12);
                double end = -12;
                for (int i = 0; i < count; ++i) {
                    if ((count - 1 - i) % step != 0)
                        continue;
                    const double left = std::clamp((i + 0.5) * pitch - shown / 2, 0.0, plot - shown);
                    QVERIFY2(left >= end + 4,
                             qPrintable(QStringLiteral("%1 in %2 of %3").arg(count).arg(plot).arg(width)));
                    end = left + shown;
                }
            }
}

void ChartScaleTest::numbersStayShort_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<QString>("text");
    QTest::newRow("zero") << 0.0 << QStringLiteral("0");
    QTest::newRow("hundreds") << 950.0 << QStringLiteral("950");
    QTest::newRow("thousands") << 9500.0 << QStringLiteral("9,500");
    QTest::newRow("more") << 12'000.0 << QStringLiteral("12K");
    QTest::newRow("part") << 12'550.0 << QStringLiteral("12.6K");
    QTest::newRow("millions") << 1'250'000.0 << QStringLiteral("1.3M");
    QTest::newRow("billions") << 4e9 << QStringLiteral("4B");
}

void ChartScaleTest::numbersStayShort()
{
    QFETCH(const double, value);
    QTEST(ChartScale::shortNumber(value), "text");
}

void ChartScaleTest::coloursStandOutFromTheCard()
{
    for (const bool isDark : {false, true}) {
        const OVColors colors = OVColors::of(false, isDark);
        QList<QColor> drawn{colors.inkSecondary, colors.info, colors.success};
        for (const auto &accent : enumCases<AccentPalette>())
            drawn.append(isDark ? accentColors(accent.value).dark : accentColors(accent.value).light);
        for (const QColor &color : std::as_const(drawn))
            QVERIFY2(Contrast::ratio(color, colors.surface) >= 3, qPrintable(color.name()));
    }
    const OVColors paper = OVColors::of(true, false);
    for (const QColor &color : {paper.inkTertiary, paper.inkSecondary, paper.ink})
        QVERIFY2(Contrast::ratio(color, paper.surface) >= 3, qPrintable(color.name()));
}

QTEST_GUILESS_MAIN(ChartScaleTest)
#include "tst_chartscale.moc"
