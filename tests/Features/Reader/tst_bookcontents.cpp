#include "Features/Reader/BookHeading.h"
#include "Features/Reader/BookMatches.h"

#include <QtTest>

using namespace Qt::StringLiterals;

namespace
{
SharedBookContents bookOf(const QStringList &paragraphs)
{
    return std::make_shared<const BookContents>(paragraphs);
}

QString found(const SharedBookContents &book, const QString &query)
{
    const BookMatches matches(book, query);
    QStringList places;
    for (int i = 0; i < matches.count(); ++i) {
        const BookMatches::Match match = matches.at(i);
        places.append(u"%1:%2"_s.arg(match.row).arg(match.start));
    }
    return places.join(u' ');
}
} // namespace

class BookContentsTest : public QObject
{
    Q_OBJECT

private slots:
    void makesParagraphs_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QStringList>("paragraphs");
        QTest::newRow("empty") << QString() << QStringList();
        QTest::newRow("blank") << u" \n\n\t\n\n\n"_s << QStringList();
        QTest::newRow("wrapped lines")
            << u"It was\nthe best\n\nof times"_s << QStringList{u"It was the best"_s, u"of times"_s};
        QTest::newRow("no blank line") << u"a\nb\nc"_s << QStringList{u"a b c"_s};
        QTest::newRow("three line ends") << u"a\n\n\nb"_s << QStringList{u"a"_s, u"b"_s};
        QTest::newRow("many line ends") << u"\n\na\n\n\n\n\n\nb\n"_s << QStringList{u"a"_s, u"b"_s};
        QTest::newRow("indented") << u"  a\n  b  \n\n   c"_s << QStringList{u"a   b"_s, u"c"_s};
        QTest::newRow("other line ends") << u"a\r\n\r\nb"_s << QStringList{u"a\r \r b"_s};
    }
    void makesParagraphs()
    {
        QFETCH(QString, text);
        QTEST(BookContents::makeParagraphs(text), "paragraphs");
    }

    void keepsPlacesByParagraph()
    {
        // The second paragraph is too long for one row, and has a character of two units at every cut.
        const QString longOne = u"😀"_s.repeated(BookContents::longestRow);
        const auto book = bookOf({u"first"_s, u"x"_s + longOne, u"last"_s});
        QCOMPARE_GT(book->rowCount(), 4);
        QString joined;
        for (int row = 1; row < book->rowCount() - 1; ++row) {
            QCOMPARE(book->rows()[row].paragraph, 1);
            QCOMPARE(book->rows()[row].continues, row > 1);
            QVERIFY(!book->rowText(row).front().isLowSurrogate());
            joined += book->rowText(row);
        }
        QCOMPARE(joined, u"x"_s + longOne);
        QCOMPARE(book->rowOfParagraph(1), 1);
        QCOMPARE(book->rowOfParagraph(2), book->rowCount() - 1);
        QCOMPARE(book->rowOfParagraph(99), book->rowCount() - 1);
        QCOMPARE(book->rowOfParagraph(-1), 0);
        QCOMPARE(bookOf({})->rowOfParagraph(0), -1);
    }

    void longParagraphsBreakAtBlanks()
    {
        const auto book = bookOf({u"seven77 "_s.repeated(2000).trimmed()});
        for (int row = 1; row < book->rowCount(); ++row)
            QVERIFY(book->rowText(row).startsWith(u"seven77"));
    }

    void tellsHowMuchIsLeft()
    {
        const QString minute = u"word "_s.repeated(BookContents::readingSpeed).trimmed();
        const auto book = bookOf({minute, minute, minute, u"end"_s});
        QCOMPARE(book->minutesLeft(0), 4);
        QCOMPARE(book->minutesLeft(2), 2);
        QCOMPARE(book->minutesLeft(3), 1);
        QCOMPARE(book->minutesLeft(4), 0);
        QCOMPARE(book->progressAt(0), 0.0);
        QVERIFY(qAbs(book->progressAt(2) - 460.0 / 691) < 1e-9);
        QCOMPARE(bookOf({})->progressAt(0), 0.0);
    }

    void findsText_data()
    {
        QTest::addColumn<QString>("query");
        QTest::addColumn<QString>("places");
        QTest::newRow("nothing") << u""_s << u""_s;
        QTest::newRow("blank") << u"  "_s << u""_s;
        QTest::newRow("any case") << u"HARBOUR"_s << u"0:4 2:0"_s;
        QTest::newRow("one letter") << u"z"_s << u"1:0 1:1 1:5 1:6"_s;
        QTest::newRow("not overlapping") << u"aa"_s << u"3:0 3:2"_s;
        QTest::newRow("whole row") << u"aaaaa"_s << u"3:0"_s;
        QTest::newRow("never over rows") << u"harbour\nfiz"_s << u""_s;
        QTest::newRow("quotation marks") << u"\"don't\""_s << u"4:0"_s;
        QTest::newRow("other script") << u"ÉTÉ"_s << u"5:1"_s;
        QTest::newRow("end of the book") << u"été"_s << u"5:1"_s;
        QTest::newRow("absent") << u"harbours"_s << u""_s;
    }
    void findsText()
    {
        QFETCH(QString, query);
        const auto book =
            bookOf({u"The harbour"_s, u"zz  -zz"_s, u"Harbour, İ"_s, u"aaaaa"_s, u"“Don’t”"_s, u"İété"_s});
        QTEST(found(book, query), "places");
    }

    void matchesAreFoundByRow()
    {
        const BookMatches matches(bookOf({u"a b"_s, u"b"_s, u"a a"_s, u"b"_s}), u"a"_s);
        QCOMPARE(matches.inRow(0).last, 1);
        QCOMPARE(matches.inRow(1).first, matches.inRow(1).last);
        QCOMPARE(matches.inRow(2).first, 1);
        QCOMPARE(matches.inRow(2).last, 3);
        QCOMPARE(matches.inRow(9).last, 0);
        QCOMPARE(matches.firstFrom(1), 1);
        QCOMPARE(matches.firstFrom(3), 0);
        QCOMPARE(BookMatches().firstFrom(0), -1);
    }

    void recognizesHeadings_data()
    {
        QTest::addColumn<bool>("isHeading");
        for (const char *text : {"CHAPTER I", "Chapter 12. The Return", "chapter the last", "THE LETTER",
                                 "IV.", "Chapter Two", "PART 2: 1805"})
            QTest::newRow(text) << true;
        for (const char *text : {"It was late.", "1805", "* * *", "Chapter after chapter he read.", "chapter",
                                 "A LINE IN CAPITALS THAT GOES ON FOR SO LONG THAT IT IS A PARAGRAPH AND NO "
                                 "HEADING"})
            QTest::newRow(text) << false;
    }
    void recognizesHeadings()
    {
        QTEST(BookHeading::looksLikeOne(QString::fromUtf8(QTest::currentDataTag())), "isHeading");
    }
};

QTEST_GUILESS_MAIN(BookContentsTest)
#include "tst_bookcontents.moc"
