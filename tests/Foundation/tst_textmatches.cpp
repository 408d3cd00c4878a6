#include "Foundation/TextMatches.h"

#include <QTextBoundaryFinder>
#include <QtTest>

#include <random>

using namespace Qt::StringLiterals;

class TextMatchesTest : public QObject
{
    Q_OBJECT

private slots:
    void marksWholeCharacters_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("query");
        QTest::addColumn<QString>("marked");
        QTest::newRow("case") << u"Meeting"_s << u"MEET"_s << u"<b>Meet</b>ing"_s;
        QTest::newRow("several") << u"abcabc"_s << u"bc"_s << u"a<b>bc</b>a<b>bc</b>"_s;
        QTest::newRow("side by side") << u"aaaab"_s << u"aa"_s << u"<b>aaaa</b>b"_s;
        QTest::newRow("nowhere") << u"abc"_s << u"d"_s << u"abc"_s;
        QTest::newRow("empty") << u"abc"_s << QString() << u"abc"_s;
        QTest::newRow("letter that grows in lower case") << u"xİstanbul"_s << u"i"_s << u"x<b>İ</b>stanbul"_s;
        QTest::newRow("after it") << u"İİab"_s << u"A"_s << u"İİ<b>a</b>b"_s;
        QTest::newRow("combining mark") << u"caf\u0065\u0301s"_s << u"e"_s << u"caf<b>\u0065\u0301</b>s"_s;
        QTest::newRow("part of an emoji") << u"a👩‍👧b"_s << u"👧"_s << u"a<b>👩‍👧</b>b"_s;
        QTest::newRow("letters outside the first plane") << u"x𐐀𐐁"_s << u"𐐨"_s << u"x<b>𐐀</b>𐐁"_s;
        QTest::newRow("joined letters") << u"كتب x"_s << u"ت"_s << u"<b>كتب</b> x"_s;
        QTest::newRow("letters that do not join on") << u"باب"_s << u"با"_s << u"<b>با</b>ب"_s;
        QTest::newRow("marks between joined letters") << u"كِتَب"_s << u"كِ"_s << u"<b>كِتَب</b>"_s;
        QTest::newRow("mark on the last letter") << u"كتابَ ب"_s << u"ت"_s << u"<b>كتا</b>بَ ب"_s;
        QTest::newRow("signs of markup")
            << u"<b> & \"x\""_s << u"& \""_s << u"&lt;b&gt; <b>&amp; &quot;</b>x&quot;"_s;
        QTest::newRow("blanks") << u" a  b\n\tc"_s << u" b"_s << u"&nbsp;a <b>&nbsp;b</b> &nbsp;c"_s;
    }
    void marksWholeCharacters()
    {
        QFETCH(const QString, text);
        QFETCH(const QString, query);
        QTEST(TextMatches::emphasized(text, TextMatches::find(text, query)), "marked");
    }

    /// Whatever the texts: there are parts exactly where the search finds something, in order, apart, within
    /// the text and of whole characters.
    void rangesAreValid()
    {
        std::mt19937 random(7);
        const QStringList pieces{u"a"_s,
                                 u"A"_s,
                                 u"İ"_s,
                                 u"ß"_s,
                                 u"e\u0301"_s,
                                 u"\u0301"_s,
                                 u"👩‍👧"_s,
                                 u"👧"_s,
                                 u"𐐀"_s,
                                 u" "_s,
                                 u"<"_s,
                                 u"ب"_s,
                                 u"ا"_s,
                                 u"\u064E"_s,
                                 u"\u200D"_s,
                                 u"Σ"_s,
                                 QString(QChar(0xD83D))};
        const auto any = [&](unsigned most) {
            QString text;
            for (unsigned i = random() % (most + 1); i > 0; --i)
                text += pieces[qsizetype(random() % std::size_t(pieces.size()))];
            return text;
        };
        for (int round = 0; round < 20'000; ++round) {
            const QString text = any(8);
            const QString query = any(2);
            const auto parts = TextMatches::find(text, query);
            const bool isFound = !query.isEmpty() && text.toLower().contains(query.toLower());
            if (text.isValidUtf16() && query.isValidUtf16())
                QVERIFY2(parts.isEmpty() != isFound, qPrintable(text + u'|' + query));
            QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text);
            qsizetype end = -1;
            for (const TextMatches::Range &part : parts) {
                QVERIFY(part.start > end && part.length > 0);
                end = part.start + part.length;
                QVERIFY(end <= text.size());
                for (const qsizetype edge : {part.start, end}) {
                    finder.setPosition(edge);
                    QVERIFY2(finder.isAtBoundary(), qPrintable(text + u'|' + query));
                }
            }
        }
    }
};

QTEST_GUILESS_MAIN(TextMatchesTest)
#include "tst_textmatches.moc"
