#include "Foundation/LineText.h"

#include <QTest>

using namespace Qt::StringLiterals;

class LineTextTest : public QObject
{
    Q_OBJECT

private slots:
    void shown_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("expected");

        const QString marks = QString(1000, QChar(0x0301));
        QTest::newRow("plain") << u"Write the letter"_s << u"Write the letter"_s;
        QTest::newRow("line breaks and controls") << u"a\r\nb\u2029c\td\0e"_s << u"a  b c d e"_s;
        QTest::newRow("as long as may be") << QString(500, u'x') << QString(500, u'x');
        QTest::newRow("too long") << QString(20'000'000, u'x') << QString(500, u'x') + u'…';
        QTest::newRow("emoji at the cut")
            << QString(499, u'x') + u"\U0001F600y"_s << QString(499, u'x') + u'…';
        QTest::newRow("letter with a mark at the cut")
            << QString(499, u'x') + u"e\u0301"_s << QString(499, u'x') + u'…';
        QTest::newRow("stacked marks")
            << u"a"_s + marks + u"b"_s + marks << u"a"_s + marks.first(8) + u"b"_s + marks.first(8);
        QTest::newRow("lone surrogate") << u"a"_s + QChar(0xD800) << u"a\uFFFD"_s;
    }
    void shown()
    {
        QFETCH(const QString, text);
        QFETCH(const QString, expected);
        QCOMPARE(LineText::shown(text), expected);
    }

    void blankTitlesAreUntitled()
    {
        QCOMPARE(LineText::shownTitle(u" \n\u00A0 "), u"Untitled"_s);
        QCOMPARE(LineText::shownTitle(u" Plan "), u"Plan"_s);
    }
};

QTEST_GUILESS_MAIN(LineTextTest)
#include "tst_linetext.moc"
