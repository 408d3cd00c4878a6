#include "Features/Decks/DeckLayout.h"
#include "Features/Decks/SlideFont.h"
#include "Features/Decks/SlidePainter.h"

#include <QFontDatabase>
#include <QGlyphRun>
#include <QImage>
#include <QPainter>
#include <QRawFont>
#include <QTest>
#include <QTextLayout>

#include <algorithm>

using namespace Qt::StringLiterals;

/// What is laid out of a region's text: what fits, what is left out, and where the caret goes.
class SlideTextTest : public QObject
{
    Q_OBJECT

private:
    static SlideRegion text(const QString &content, const QRectF &rect = {100, 100, 400, 100})
    {
        SlideRegion region;
        region.rect = rect;
        region.lines = {{QString(), content}};
        region.size = 40;
        return region;
    }
    static SlideRegion lines(const QStringList &contents, const QRectF &rect)
    {
        SlideRegion region = text({}, rect);
        region.lines.clear();
        for (const QString &content : contents)
            region.lines.append({u"•"_s, content});
        return region;
    }
    static QImage drawn(const QList<SlideRegion> &regions)
    {
        QImage image(1280, 720, QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        SlidePainter::paint(painter, regions, SlideTheme::inkTheme(), 1280);
        return image;
    }

private slots:
    void whatFitsKeepsItsSize()
    {
        SlideRegion region = text(u"Two lines that fit"_s);
        region.fit = true;
        const SlideText text(region);
        QVERIFY(text.fits());
        QCOMPARE(text.scale(), 1.0);
    }

    void markedTextIsScaledUntilItFits()
    {
        SlideRegion region = text(u"word "_s.repeated(16));
        region.fit = true;
        const SlideText text(region);
        QVERIFY(text.fits());
        QVERIFY(text.scale() < 0.9 && text.scale() > 0.4);
        QCOMPARE(text.placedLines().last().text.trimmed().right(4), u"word"_s);
        for (const auto &line : text.placedLines())
            QVERIFY(region.rect.adjusted(-1, -1, 1, 1).contains(line.rect));
    }

    void theRestEndsInAnEllipsis_data()
    {
        QTest::addColumn<bool>("fit");
        QTest::addColumn<double>("scale");
        QTest::newRow("without the mark") << false << 1.0;
        QTest::newRow("below the smallest scale") << true << 0.4;
    }
    void theRestEndsInAnEllipsis()
    {
        QFETCH(bool, fit);
        QFETCH(double, scale);
        SlideRegion region = text(u"word "_s.repeated(400));
        region.fit = fit;
        const SlideText text(region);
        QVERIFY(!text.fits());
        QCOMPARE(text.scale(), scale);
        QVERIFY(text.placedLines().last().text.endsWith(u"word…"_s));
        for (const auto &line : text.placedLines())
            QVERIFY(region.rect.adjusted(-1, -1, 1, 1).contains(line.rect));
    }

    void linesLeftOutShowAtTheLastOneShown()
    {
        // Room for two lines of 48 with 8 between them.
        const SlideText text(lines({u"one"_s, u"two"_s, u"three"_s}, {100, 100, 400, 110}));
        const auto placed = text.placedLines();
        QCOMPARE(placed.size(), 2);
        QCOMPARE(placed[1].text, u"two…"_s);
    }

    void everySlideStaysInItsRegions()
    {
        // A heading of two lines must not reach the rule, nor a seventh point the footer.
        Slide slide;
        slide.kind = SlideKind::bullets;
        slide.title = u"A heading that is a good deal too long to stand on a single line of this slide"_s;
        slide.body = QStringList(9, u"One of many points"_s).join(u'\n');
        for (const SlideTheme &theme : SlideTheme::catalog())
            for (const SlideRegion &region :
                 DeckLayout::regions(slide, theme, 0, 1, true, u"Deck "_s.repeated(60)))
                for (const auto &line : SlidePainter::placedLines(region))
                    QVERIFY2(region.rect.adjusted(-2, -2, 2, 2).contains(line.rect), qPrintable(line.text));
    }

    void theTextBeingEditedIsWholeAndScrolls()
    {
        SlideText text(lines({u"one"_s, u"two"_s, u"three"_s}, {100, 100, 400, 110}),
                       SlideText::Extent::whole);
        QVERIFY(!text.fits());
        QCOMPARE(text.placedLines().size(), 3);
        QVERIFY(text.caretRect(13).bottom() > 210);
        text.scrollTo(13);
        QVERIFY(text.caretRect(13).bottom() <= 212);
        QVERIFY(text.caretRect(0).top() < 100);
    }

    void positionsGoBothWays_data()
    {
        QTest::addColumn<QString>("content");
        QTest::addColumn<bool>("uppercase");
        QTest::newRow("plain") << u"hello there"_s << false;
        QTest::newRow("capitals that grow") << u"straße groß ﬁn"_s << true;
        QTest::newRow("dropped characters") << u"a\x01\x02z\x0b!"_s << false;
        QTest::newRow("kept apart") << u"3x4 -> => <= #️⃣"_s << false;
    }
    void positionsGoBothWays()
    {
        QFETCH(QString, content);
        QFETCH(bool, uppercase);
        SlideRegion region = text(content, {100, 100, 1000, 100});
        region.uppercase = uppercase;
        const SlideText text(region, SlideText::Extent::whole);
        double last = -1;
        for (int position = 0; position <= content.size(); ++position) {
            const QRectF caret = text.caretRect(position);
            QVERIFY(caret.left() >= last);
            last = caret.left();
            // Positions within one shown character have one place.
            QCOMPARE(text.caretRect(text.positionAt(caret.center())).left(), caret.left());
        }
        QCOMPARE(text.positionAt({1200, 120}), int(content.size()));
    }

    void theCaretGoesFromLineToLine()
    {
        const SlideText text(lines({u"first"_s, u""_s, u"third line"_s}, {100, 100, 400, 300}),
                             SlideText::Extent::whole);
        const double x = text.caretRect(3).left();
        QCOMPARE(text.positionInLine(3, 1, x), 6);
        // The nearest place to that behind "fir" is behind "th".
        QCOMPARE(text.positionInLine(6, 1, x), 9);
        QCOMPARE(text.positionInLine(3, -1, x), -1);
        QCOMPARE(text.positionInLine(10, 1, x), -1);
        QCOMPARE(text.lineStart(10), 7);
        QCOMPARE(text.lineEnd(10), 17);
        QCOMPARE(text.rects(2, 9).size(), 3);
        // A blank line has its caret where a text would begin.
        QVERIFY(std::abs(text.caretRect(6).left() - text.caretRect(0).left()) < 1);
    }

    void whatIsTypedIsWhatShows()
    {
        // No arrow for "->", no cross for "3x4", no joined "fi": each pair is as wide as its parts.
        for (const auto &kind : enumCases<SlideTheme::FontKind>())
            for (const QString &pair : {u"->"_s, u"=>"_s, u"!="_s, u"fi"_s, u"3x4"_s}) {
                SlideRegion region = text(pair, {0, 0, 1000, 100});
                region.font = kind.value;
                double parts = 0;
                for (const QChar character : pair) {
                    SlideRegion part = text(character, {0, 0, 1000, 100});
                    part.font = kind.value;
                    parts += SlideText(part).placedLines().at(0).rect.width();
                }
                const double width = SlideText(region).placedLines().at(0).rect.width();
                QVERIFY2(std::abs(width - parts) < 3, qPrintable(pair));
            }
    }

    /// Signs that stand for others, such as a raised hyphen between capitals, could not be searched in a PDF.
    void everySignIsThatOfItsCharacter()
    {
        QString signs = u"–—•×÷“”’«»¿¡"_s;
        for (char16_t sign = u'!'; sign <= u'~'; ++sign)
            if (!QChar(sign).isLetterOrNumber())
                signs.append(sign);
        for (const auto &kind : enumCases<SlideTheme::FontKind>())
            for (const QChar sign : std::as_const(signs)) {
                const QString typed = u"A%1B C %1 D 1%12 3 %1 4 a%1b %1%1 (%1) x%1x"_s.replace(u"%1"_s, sign);
                SlideRegion region;
                region.font = kind.value;
                QTextLayout layout;
                SlideFont::setText(layout, typed, region);
                layout.beginLayout();
                layout.createLine().setLineWidth(10000);
                layout.endLayout();
                const auto runs = layout.glyphRuns();
                // Signs that the font lacks come from another one, for which the same holds.
                if (runs.size() != 1)
                    continue;
                auto shown = runs.first().glyphIndexes();
                auto nominal = runs.first().rawFont().glyphIndexesForString(typed);
                std::ranges::sort(shown);
                std::ranges::sort(nominal);
                QVERIFY2(shown == nominal, qPrintable(enumRawText(kind.value) + u": "_s + typed));
            }
    }

    void controlCharactersLeaveNoTrace()
    {
        QCOMPARE(drawn({text(u"a\x01\x0b"
                             "b"_s)}),
                 drawn({text(u"ab"_s)}));
        QCOMPARE(SlideStyle::shown(u"a\xd800z"_s, false).text, u"az"_s);
    }

    void emojiAreColouredWhateverRanBefore()
    {
        if (!QFontDatabase::hasFamily(u"Noto Color Emoji"_s))
            QSKIP("no colour emoji here");
        for (const QString &emoji : {u"☕"_s, u"❤️"_s, u"🎉"_s}) {
            const QImage image = drawn({text(emoji)});
            bool isColoured = false;
            for (int y = 100; y < 200; ++y)
                for (int x = 100; x < 200; ++x)
                    isColoured = isColoured || QColor(image.pixel(x, y)).hsvSaturation() > 60;
            QVERIFY2(isColoured, qPrintable(emoji));
        }
    }

    void colorsThatAreNoneAreBlack()
    {
        QCOMPARE(SlideStyle::color(u"1d4E89"_s), u"1d4E89"_s);
        for (const QString &none : {u""_s, u"fff"_s, u"red"_s, u"11223344"_s, u"12345g"_s})
            QCOMPARE(SlideStyle::color(none), u"000000"_s);
        QCOMPARE(SlideStyle::tracking(1e300), SlideStyle::tracking(1e9));
        QCOMPARE(SlideStyle::tracking(qQNaN()), 0.0);
    }
};

QTEST_MAIN(SlideTextTest)
#include "tst_slidetext.moc"
