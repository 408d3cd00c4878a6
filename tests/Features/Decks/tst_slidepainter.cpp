#include "Features/Decks/DeckLayout.h"
#include "Features/Decks/SlideFont.h"
#include "Features/Decks/SlidePainter.h"
#include "SampleSlides.h"

#include <QFontDatabase>
#include <QFontInfo>
#include <QImage>
#include <QPainter>
#include <QSet>
#include <QTest>

using namespace Qt::StringLiterals;

class SlidePainterTest : public QObject
{
    Q_OBJECT

private:
    static QImage drawn(const QList<SlideRegion> &regions, int width = 640)
    {
        QImage image(width, width * 9 / 16, QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        SlidePainter::paint(painter, regions, SlideTheme::inkTheme(), width);
        return image;
    }
    /// The rectangle that holds all pixels other than white, on the reference canvas.
    static QRect inked(const QList<SlideRegion> &regions)
    {
        const QImage image = drawn(regions, 1280);
        QRect found;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                if (image.pixel(x, y) != qRgb(255, 255, 255))
                    found |= QRect(x, y, 1, 1);
        return found;
    }
    static SlideRegion text(const QString &content, const QRectF &rect = {100, 100, 400, 300})
    {
        SlideRegion region;
        region.rect = rect;
        region.lines = {{QString(), content}};
        region.size = 40;
        return region;
    }

private slots:
    void boxesFillTheirRectangle()
    {
        SlideRegion box;
        box.kind = SlideRegion::Kind::box;
        box.rect = {100, 50, 200, 100};
        box.fill = u"FF0000"_s;
        QCOMPARE(inked({box}), QRect(100, 50, 200, 100));
        const QImage image = drawn({box}, 640);
        QCOMPARE(image.pixel(100, 50), qRgb(255, 0, 0));
        box.opacity = 0.5;
        QVERIFY(std::abs(qGreen(drawn({box}).pixel(100, 50)) - 127) <= 1);
        box.opacity = 1;
        box.corner = 40;
        QCOMPARE(drawn({box}).pixel(51, 26), qRgb(255, 255, 255));
        // A circle's corner would not have begun here yet.
        QVERIFY(qGreen(drawn({box}, 1280).pixel(142, 50)) > 2);
        QCOMPARE(drawn({box}, 1280).pixel(200, 50), qRgb(255, 0, 0));
        box.corner = 0;
        box.fill.clear();
        box.stroke = u"0000FF"_s;
        box.strokeW = 4;
        QCOMPARE(inked({box}), QRect(98, 48, 204, 104));
        QCOMPARE(drawn({box}).pixel(100, 50), qRgb(255, 255, 255));
    }

    void textKeepsItsPlace()
    {
        const QRectF rect(100, 100, 400, 300);
        SlideRegion region = text(u"Hx"_s, rect);
        const QRect leading = inked({region});
        QVERIFY(leading.left() >= 100 && leading.left() < 110);
        QVERIFY(leading.top() >= 100 && leading.bottom() < 100 + 40 * 1.2);
        region.align = SlideRegion::Align::trailing;
        QVERIFY(std::abs(inked({region}).right() - 500) < 10);
        region.align = SlideRegion::Align::center;
        region.anchor = SlideRegion::Anchor::center;
        const QRect centred = inked({region});
        QVERIFY(std::abs(centred.center().x() - 300) < 4);
        QVERIFY(std::abs(centred.center().y() - 250) < 12);
    }

    void linesStandAtTheirPitch()
    {
        SlideRegion region = text(u"one"_s);
        region.lines = {{QString(), u"one"_s}, {QString(), u"two\nthree"_s}};
        region.leading = 10;
        const auto placed = SlidePainter::placedLines(region);
        QCOMPARE(placed.size(), 3);
        QCOMPARE(placed[1].rect.top() - placed[0].rect.top(), 58.0);
        QCOMPARE(placed[2].rect.top() - placed[1].rect.top(), 58.0);
    }

    void longTextWrapsInsideItsRectangle()
    {
        const SlideRegion region =
            text(u"word "_s.repeated(60) + u"Unbreakable"_s.repeated(8), {100, 100, 400, 100});
        const QRect found = inked({region});
        QVERIFY(found.left() >= 98 && found.right() <= 502);
        QVERIFY(found.bottom() <= 202);
    }

    void linesBreakAtTheSameWordsAtEverySize()
    {
        const Slide slide = SampleSlides::slide(SlideKind::bullets);
        const auto regions = DeckLayout::regions(slide, SlideTheme::inkTheme(), 0, 1, true, u"Deck"_s);
        const QImage large =
            drawn(regions, 2560).scaled(320, 180, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        const QImage small = drawn(regions, 320);
        int differing = 0;
        for (int y = 0; y < 180; ++y)
            for (int x = 0; x < 320; ++x)
                differing += std::abs(qGray(large.pixel(x, y)) - qGray(small.pixel(x, y))) > 90 ? 1 : 0;
        QVERIFY2(differing < 60, qPrintable(QString::number(differing)));
    }

    void markersStandBeforeTheirText()
    {
        SlideRegion region = text(QString());
        region.lines = {{u"•"_s, u"point "_s.repeated(12)}};
        const auto placed = SlidePainter::placedLines(region);
        QVERIFY(placed.size() > 1);
        const QFontMetricsF metrics(SlideFont::of(region));
        QVERIFY(std::abs(placed[0].rect.left() - (100 + metrics.horizontalAdvance(u"•"_s) + 40 * 0.22)) < 2);
        QCOMPARE(placed[1].rect.left(), placed[0].rect.left());
        QVERIFY(inked({region}).left() < 110);
    }

    void capitalsAndTrackingAreOnlyShown()
    {
        SlideRegion region = text(u"straße"_s);
        const double plain = SlidePainter::placedLines(region)[0].rect.width();
        region.tracking = 5;
        QVERIFY(std::abs(SlidePainter::placedLines(region)[0].rect.width() - plain - 30) < 6);
        region.uppercase = true;
        QCOMPARE(SlidePainter::placedLines(region)[0].text, u"STRASSE"_s);
    }

    void theFourKindsAreDifferentFamilies()
    {
        QSet<QString> families;
        for (const auto &kind : enumCases<SlideTheme::FontKind>()) {
            SlideRegion region = text(u"a"_s);
            region.font = kind.value;
            families.insert(QFontInfo(SlideFont::of(region)).family());
        }
        QCOMPARE(families.size(), 4);
    }

    void everySlideDraws()
    {
        for (const SlideTheme &theme : SlideTheme::catalog())
            for (const auto &kind : enumCases<SlideKind>()) {
                QImage image(320, 180, QImage::Format_RGB32);
                QPainter painter(&image);
                SlidePainter::paint(
                    painter,
                    DeckLayout::regions(SampleSlides::slide(kind.value), theme, 0, 1, true, u"Deck"_s), theme,
                    320);
                QCOMPARE(image.pixel(319, 90), QColor(u'#' + theme.background).rgb());
            }
    }
};

QTEST_MAIN(SlidePainterTest)
#include "tst_slidepainter.moc"
