#include "Features/Decks/DeckLayout.h"
#include "SampleSlides.h"

#include <QFile>
#include <QTest>

using namespace Qt::StringLiterals;

class DeckLayoutTest : public QObject
{
    Q_OBJECT

private:
    /// One line a region, naming only what differs from a fresh region.
    static QString described(const SlideRegion &region)
    {
        const SlideRegion fresh;
        QStringList words{region.kind == SlideRegion::Kind::box ? u"box"_s : u"text"_s,
                          u"%1,%2 %3x%4"_s.arg(region.rect.x())
                              .arg(region.rect.y())
                              .arg(region.rect.width())
                              .arg(region.rect.height())};
        const auto add = [&words](bool differs, const QString &name, const QString &value) {
            if (differs)
                words.append(name + u'=' + value);
        };
        add(region.fill != fresh.fill, u"fill"_s, region.fill);
        add(region.corner != fresh.corner, u"corner"_s, QString::number(region.corner));
        add(region.opacity != fresh.opacity, u"opacity"_s, QString::number(region.opacity));
        if (region.kind == SlideRegion::Kind::box)
            return words.join(u' ');
        add(true, u"size"_s, QString::number(region.size));
        add(region.weight != fresh.weight, u"weight"_s, enumRawText(region.weight));
        add(region.font != fresh.font, u"font"_s, enumRawText(region.font));
        add(true, u"color"_s, region.color);
        add(region.align != fresh.align, u"align"_s,
            region.align == SlideRegion::Align::center ? u"center"_s : u"trailing"_s);
        add(region.anchor != fresh.anchor, u"anchor"_s, u"center"_s);
        add(region.tracking != fresh.tracking, u"tracking"_s, QString::number(region.tracking));
        add(region.uppercase, u"uppercase"_s, u"yes"_s);
        add(region.leading != fresh.leading, u"leading"_s, QString::number(region.leading));
        add(region.fit, u"fit"_s, u"yes"_s);
        static constexpr auto fields =
            std::to_array<const char *>({"kicker", "title", "subtitle", "body", "bodyB"});
        if (region.field)
            add(true, u"field"_s, QString::fromLatin1(fields.at(std::size_t(*region.field))));
        for (const SlideRegion::Line &line : region.lines)
            words.append(u"[%1|%2]"_s.arg(line.marker, line.text));
        return words.join(u' ');
    }

    static QString described(const QList<SlideRegion> &regions)
    {
        QString text;
        for (const SlideRegion &region : regions)
            text += described(region) + u'\n';
        return text;
    }

    static QList<SlideRegion> kindRegions(const Slide &slide,
                                          const SlideTheme &theme = SlideTheme::inkTheme())
    {
        return DeckLayout::regions(slide, theme, 0, 1, false, QString()).mid(1);
    }

private slots:
    void everyKindInEveryTheme()
    {
        QString text;
        for (const SlideTheme &theme : SlideTheme::catalog())
            for (const auto &kind : enumCases<SlideKind>())
                text += u"== %1, %2\n"_s.arg(theme.id, enumRawText(kind.value)) +
                        described(DeckLayout::regions(SampleSlides::slide(kind.value), theme, 2, 9, true,
                                                      u"My deck"_s));
        QFile golden(QFINDTESTDATA("golden-regions.txt"));
        QVERIFY(golden.open(QIODevice::ReadOnly));
        const QStringList expected = QString::fromUtf8(golden.readAll()).split(u'\n');
        const QStringList lines = text.split(u'\n');
        if (lines != expected && qEnvironmentVariableIsSet("ORVEL_PRINT_GOLDEN"))
            fputs(qPrintable(text), stdout);
        for (qsizetype i = 0; i < std::min(lines.size(), expected.size()); ++i)
            QCOMPARE(lines[i], expected[i]);
        QCOMPARE(lines.size(), expected.size());
    }

    void emptyFieldsStayPlaces()
    {
        Slide slide;
        QCOMPARE(described(kindRegions(slide)),
                 u"box 100,176 100x6 fill=141414\n"
                 "text 100,218 1080x290 size=76 weight=heavy color=141414 tracking=-1.5 leading=4 fit=yes "
                 "field=title\n"
                 "text 100,524 940x76 size=30 color=6E6E6E leading=4 field=subtitle\n"_s);
        slide.kind = SlideKind::stats;
        QCOMPARE(kindRegions(slide).size(), 1);
        slide.kind = SlideKind::quote;
        QCOMPARE(kindRegions(slide).size(), 2);
    }

    void statCards_data()
    {
        QTest::addColumn<QString>("body");
        QTest::addColumn<QStringList>("cards");
        QTest::newRow("one") << u"98"_s << QStringList{u"100+1080 98:"_s};
        QTest::newRow("two of three lines")
            << u"1 | a\n\n2 | b\n3 | c"_s << QStringList{u"100+523 1:a"_s, u"657+523 2:b"_s};
        QTest::newRow("no value") << u"| Rate\n \t| x"_s << QStringList();
        QTest::newRow("more bars") << u"\t72 | a | b "_s << QStringList{u"100+1080 72:a | b"_s};
        QTest::newRow("three at most")
            << u"1\n2\n3\n4"_s
            << QStringList{u"100+337.333 1:"_s, u"471.333+337.333 2:"_s, u"842.667+337.333 3:"_s};
    }
    void statCards()
    {
        QFETCH(QString, body);
        QFETCH(QStringList, cards);
        Slide slide;
        slide.kind = SlideKind::stats;
        slide.body = body;
        const QList<SlideRegion> regions = kindRegions(slide).mid(1);
        QStringList found;
        for (qsizetype i = 0; i + 3 < regions.size(); i += 4) {
            const auto words = [&](qsizetype at) {
                return regions[at].lines.isEmpty() ? QString() : regions[at].lines.first().text;
            };
            found.append(u"%1+%2 %3:%4"_s.arg(regions[i].rect.x())
                             .arg(regions[i].rect.width())
                             .arg(words(i + 2), words(i + 3)));
        }
        QCOMPARE(found, cards);
    }

    void markersCountEveryLine()
    {
        QStringList markers;
        for (const SlideTheme &theme : SlideTheme::catalog())
            for (const SlideRegion::Line &line : DeckLayout::bulletLines({u"a"_s, u" \t"_s, u" b"_s}, theme))
                markers.append(line.marker + line.text);
        QCOMPARE(markers.mid(0, 3), QStringList({u"—a"_s, u" \t"_s, u"— b"_s}));
        QCOMPARE(markers.mid(12, 3), QStringList({u"1.a"_s, u" \t"_s, u"3. b"_s}));
        QCOMPARE(markers[3] + markers[6] + markers[15], u"•a▪a–a"_s);
    }

    void footers_data()
    {
        QTest::addColumn<int>("index");
        QTest::addColumn<int>("total");
        QTest::addColumn<bool>("numbers");
        QTest::addColumn<QString>("title");
        QTest::addColumn<QString>("texts");
        QTest::newRow("both") << 1 << 4 << true << u"Deck"_s << u"-,Deck,2 / 4"_s;
        QTest::newRow("title only") << 1 << 4 << false << u"Deck"_s << u"-,Deck"_s;
        QTest::newRow("numbers only") << 1 << 4 << true << QString() << u"-,2 / 4"_s;
        QTest::newRow("nothing") << 1 << 4 << false << QString() << QString();
        QTest::newRow("no slides") << 0 << 0 << true << QString() << u"-,1 / 1"_s;
        QTest::newRow("beyond the end") << 9 << 4 << true << QString() << u"-,4 / 4"_s;
    }
    void footers()
    {
        QFETCH(int, index);
        QFETCH(int, total);
        QFETCH(bool, numbers);
        QFETCH(QString, title);
        QFETCH(QString, texts);
        QStringList found;
        for (const SlideRegion &region :
             DeckLayout::footer(SlideTheme::inkTheme(), index, total, numbers, title))
            found.append(region.kind == SlideRegion::Kind::box ? u"-"_s : region.lines.first().text);
        QCOMPARE(found.join(u','), texts);
    }
};

QTEST_GUILESS_MAIN(DeckLayoutTest)
#include "tst_decklayout.moc"
