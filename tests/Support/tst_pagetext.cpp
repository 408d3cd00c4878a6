#include "Support/PageText.h"

#include <QtTest>

using namespace Qt::StringLiterals;

class PageTextTest : public QObject
{
    Q_OBJECT

private:
    static Page page(const QString &title, const QList<Block> &content)
    {
        return Page{.title = title, .content = content};
    }
    static Block block(BlockType type, const QString &text, bool checked = false)
    {
        return Block{.type = type, .text = text, .checked = checked, .language = u"python"_s};
    }
    static Page everyType()
    {
        using enum BlockType;
        return page(u" My page "_s,
                    {block(paragraph, u"One"_s), block(paragraph, u" \n"_s), block(heading1, u"A"_s),
                     block(heading2, u""_s), block(heading3, u"C"_s), block(bulleted, u"b"_s),
                     block(numbered, u"n"_s), block(numbered, u"m"_s), block(checklist, u"yes"_s, true),
                     block(checklist, u""_s), block(paragraph, u"After"_s), block(quote, u"two\nlines"_s),
                     block(callout, u"mind"_s), block(code, u"x = 1\n"_s), block(code, u""_s),
                     block(divider, u""_s), block(heading1, u"Last"_s)});
    }

private slots:
    void markdown()
    {
        QCOMPARE(
            PageText::markdownExport(everyType()),
            u"#  My page \n\nOne\n\n# A\n\n## \n\n### C\n\n- b\n1. n\n1. m\n- [x] yes\n- [ ] \nAfter\n\n"
            "> two\nlines\n\n> mind\n\n```python\nx = 1\n\n```\n\n```python\n\n```\n\n---\n\n# Last\n"_s);
        QCOMPARE(PageText::markdownExport(page(u" "_s, {})), u"# Untitled\n"_s);
        QCOMPARE(PageText::markdownExport(page(u"T"_s, {block(BlockType::paragraph, QString())})),
                 u"# T\n"_s);
    }

    void plainText()
    {
        QCOMPARE(PageText::plainTextExport(everyType()),
                 u" My page \nOne\nA\nC\nb\nn\nm\nyes\nAfter\ntwo\nlines\nmind\nx = 1\n\nLast"_s);
        QCOMPARE(PageText::plainTextExport(page(u"\t"_s, {})), QString());
    }

    void countsWordsAndMinutes_data()
    {
        QTest::addColumn<int>("words");
        QTest::addColumn<QString>("label");
        QTest::newRow("none") << 0 << u"1 min read"_s;
        QTest::newRow("200") << 200 << u"1 min read"_s;
        QTest::newRow("201") << 201 << u"2 min read"_s;
    }
    void countsWordsAndMinutes()
    {
        QFETCH(int, words);
        QFETCH(QString, label);
        const Page counted = page(u"A title"_s, {block(BlockType::code, u"a\u00a0b\n"_s.repeated(words / 2)),
                                                 block(BlockType::quote, words % 2 ? u" one "_s : u" "_s)});
        QCOMPARE(PageText::wordCount(counted), words);
        QCOMPARE(PageText::readingTimeLabel(counted), label);
    }
};

QTEST_GUILESS_MAIN(PageTextTest)
#include "tst_pagetext.moc"
