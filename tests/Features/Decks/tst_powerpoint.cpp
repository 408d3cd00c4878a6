#include "Features/Decks/DeckLayout.h"
#include "Features/Decks/PowerPointShapes.h"
#include "Features/Decks/SlideText.h"
#include "PackageReader.h"
#include "SampleSlides.h"

#include <QFile>
#include <QTest>
#include <QXmlStreamReader>

#include <random>

using namespace Qt::StringLiterals;

class PowerPointTest : public QObject
{
    Q_OBJECT

private:
    static void verifyWellFormed(const QString &name, const QByteArray &xml)
    {
        QXmlStreamReader reader(xml);
        while (!reader.atEnd())
            reader.readNext();
        QVERIFY2(!reader.hasError(), qPrintable(name + u": "_s + reader.errorString()));
    }

private slots:
    void partsStandInTheirOrder()
    {
        Deck deck = SampleSlides::deck();
        deck.slides = deck.slides.mid(0, 1);
        QStringList names;
        for (const PackageReader::Part &part : PackageReader::partsOf(deck))
            names.append(part.name);
        QCOMPARE(names,
                 QStringList({u"[Content_Types].xml"_s, u"_rels/.rels"_s, u"docProps/core.xml"_s,
                              u"docProps/app.xml"_s, u"ppt/presentation.xml"_s,
                              u"ppt/_rels/presentation.xml.rels"_s, u"ppt/slides/slide1.xml"_s,
                              u"ppt/slides/_rels/slide1.xml.rels"_s, u"ppt/slideMasters/slideMaster1.xml"_s,
                              u"ppt/slideMasters/_rels/slideMaster1.xml.rels"_s,
                              u"ppt/slideLayouts/slideLayout1.xml"_s,
                              u"ppt/slideLayouts/_rels/slideLayout1.xml.rels"_s, u"ppt/theme/theme1.xml"_s}));
    }

    /// The whole text of every part that does not depend on the slides' layout, and of one slide.
    void writesTheBytesOfTheFormat()
    {
        Deck deck = SampleSlides::deck();
        deck.slides = {SampleSlides::slide(SlideKind::stats), SampleSlides::slide(SlideKind::bullets)};
        QByteArray text;
        for (const PackageReader::Part &part : PackageReader::partsOf(deck))
            text += "== " + part.name.toUtf8() + '\n' + QByteArray(part.data).replace("><", ">\n<") + '\n';
        QFile golden(QFINDTESTDATA("golden-package.txt"));
        QVERIFY(golden.open(QIODevice::ReadOnly));
        const QByteArrayList expected = golden.readAll().split('\n'), lines = text.split('\n');
        if (lines != expected && qEnvironmentVariableIsSet("ORVEL_PRINT_GOLDEN"))
            fwrite(text.constData(), 1, std::size_t(text.size()), stdout);
        for (qsizetype i = 0; i < std::min(lines.size(), expected.size()); ++i)
            QCOMPARE(lines[i], expected[i]);
        QCOMPARE(lines.size(), expected.size());
    }

    void textsAndColoursAreSafe()
    {
        QCOMPARE(PowerPointShapes::escaped(u"R&D <5> \"a\" 'b'"_s),
                 u"R&amp;D &lt;5&gt; &quot;a&quot; &apos;b&apos;"_s);
        QCOMPARE(PowerPointShapes::escaped(QString(u"a\0\x01\x0b\x1f\ufffe\uffff"_s) + QChar(0xd83d) +
                                           u"b😀\t\n"_s),
                 u"ab😀\t\n"_s);
        QCOMPARE(PowerPointShapes::colorXML(u"\"/><x"_s), u"<a:srgbClr val=\"000000\"/>"_s);
        QCOMPARE(PowerPointShapes::alpha(1), QString());
        QCOMPARE(PowerPointShapes::alpha(0.35), u"<a:alpha val=\"35000\"/>"_s);
    }

    void hostileDecksStayReadable()
    {
        std::mt19937 random(31);
        for (int round = 0; round < 100; ++round) {
            const auto text = [&random] {
                QString text;
                for (unsigned i = 0; i < random() % 20; ++i)
                    text.append(QChar(char16_t(random() % 4 ? random() % 0x80 : random() % 0x10000)));
                return text;
            };
            Deck deck = SampleSlides::deck();
            deck.title = text();
            deck.author = text();
            for (QString *value :
                 {&deck.theme.ink, &deck.theme.background, &deck.theme.accent, &deck.theme.soft})
                *value = text();
            for (Slide &slide : deck.slides)
                for (QString *value :
                     {&slide.kicker, &slide.title, &slide.subtitle, &slide.body, &slide.bodyB})
                    *value = text();
            const auto parts = PackageReader::package(deck);
            for (auto it = parts.cbegin(); it != parts.cend(); ++it)
                verifyWellFormed(it.key(), *it);
        }
    }

    void notesStayAtHome()
    {
        const auto parts = PackageReader::package(SampleSlides::deck());
        for (const QByteArray &xml : parts)
            QVERIFY(!xml.contains("Breathe"));
    }

    /// Other programs shrink a text that has the mark only once it is edited, so the file says how much.
    void shrunkTextSaysHowMuch()
    {
        SlideRegion region;
        region.rect = {0, 0, 400, 60};
        region.size = 40;
        region.fit = true;
        region.lines = {{{}, u"short"_s}};
        QVERIFY(PowerPointShapes::shapeXML(region, 2, {}).contains(u"<a:normAutofit/>"_s));
        region.lines = {{{}, u"a text of several words that does not fit"_s}};
        const int percent = qRound(SlideText(region).scale() * 100);
        QVERIFY(percent < 100);
        QVERIFY(PowerPointShapes::shapeXML(region, 2, {})
                    .contains(u"<a:normAutofit fontScale=\"%1\"/>"_s.arg(percent * 1000)));
        region.fit = false;
        QVERIFY(!PowerPointShapes::shapeXML(region, 2, {}).contains(u"Autofit"_s));
    }

    void roundedCornersHaveALimit()
    {
        SlideRegion box;
        box.kind = SlideRegion::Kind::box;
        box.corner = 18;
        box.rect = {0, 0, 337.33, 228};
        QVERIFY(PowerPointShapes::shapeXML(box, 2, {}).contains(u"val 7894\""_s));
        box.rect = {0, 0, 10, 10};
        QVERIFY(PowerPointShapes::shapeXML(box, 2, {}).contains(u"val 50000\""_s));
        box.stroke = u"FF0000"_s;
        box.strokeW = 0.00001;
        QVERIFY(PowerPointShapes::shapeXML(box, 2, {}).contains(u"<a:ln w=\"1\">"_s));
    }
};

QTEST_MAIN(PowerPointTest)
#include "tst_powerpoint.moc"
