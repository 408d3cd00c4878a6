#include "Support/Markdown/BlockMarkdown.h"

#include <QtTest>

#include <random>

using namespace Qt::StringLiterals;

using enum BlockType;
using BlockMarkdown::Loss;

namespace
{
Block block(BlockType type, const QString &text = {}, bool checked = false)
{
    return Block{.type = type, .text = text, .checked = checked};
}

Block codeBlock(const QString &text, const QString &language)
{
    return Block{.type = BlockType::code, .text = text, .language = language};
}

QString described(const QList<Block> &blocks)
{
    QString text;
    for (const Block &block : blocks)
        text += enumRawText(block.type) + (block.checked ? u"+ "_s : u" "_s) + enumRawText(block.tone) +
                u' ' + block.language + u": "_s +
                QString::fromUtf8(QJsonDocument(QJsonArray{block.text}).toJson(QJsonDocument::Compact)) +
                u'\n';
    return text;
}

/// Pages of blocks whose texts are full of what Markdown takes for something.
class RandomPages
{
public:
    explicit RandomPages(unsigned seed) : m_random(seed) {}

    QList<Block> page()
    {
        QList<Block> blocks(below(8));
        for (Block &block : blocks)
            block = randomBlock();
        return blocks;
    }

private:
    int below(int limit) { return int(m_random() % unsigned(limit)); }

    Block randomBlock()
    {
        Block block;
        block.type = enumCases<BlockType>()[size_t(below(int(enumCases<BlockType>().size())))].value;
        if (block.type != divider)
            block.text = text();
        if (block.type == checklist)
            block.checked = below(2) == 1;
        if (block.type == callout)
            block.tone = CalloutTone(below(4));
        if (block.type == BlockType::code)
            block.language = QStringList{u"swift"_s, u"python"_s, u"plain"_s, u"rust"_s}[below(4)];
        return block;
    }

    QString text()
    {
        static const QStringList pieces{u"word"_s,   u" "_s,
                                        u"  "_s,     u"\n"_s,
                                        u"\t"_s,     u"# "_s,
                                        u"#"_s,      u"- "_s,
                                        u"-"_s,      u"---"_s,
                                        u"* "_s,     u"***"_s,
                                        u"_"_s,      u"1. "_s,
                                        u"12) "_s,   u"> "_s,
                                        u"`"_s,      u"```"_s,
                                        u"~~~"_s,    u"[ ] "_s,
                                        u"[x]"_s,    u"[!NOTE]"_s,
                                        u"[a](b)"_s, u"[a]: b"_s,
                                        u"\\"_s,     u"&"_s,
                                        u"&amp;"_s,  u"&nbsp;"_s,
                                        u"&#10;"_s,  u"<b>"_s,
                                        u"<div>"_s,  u"</pre>"_s,
                                        u"<!--"_s,   u"<http://a.b>"_s,
                                        u"="_s,      u"==="_s,
                                        u"|"_s,      u"|-|"_s,
                                        u"+ "_s,     u"é"_s,
                                        u"🍀"_s,     u"\u00a0"_s,
                                        u"!"_s,      u"$"_s,
                                        u"~~"_s,     u"\f"_s};
        QString text;
        for (int count = below(6); count > 0; --count)
            text += pieces[below(int(pieces.size()))];
        return text;
    }

    std::mt19937 m_random;
};
} // namespace

class BlockMarkdownTest : public QObject
{
    Q_OBJECT

private slots:
    void writesWhatOthersRead()
    {
        const QList<Block> blocks{
            block(heading1, u"Plan"_s),
            block(paragraph, u"Costs 5 * 3, **bold** & [link](https://a.b)."_s),
            block(bulleted, u"a"_s),
            block(bulleted, u"two\nlines"_s),
            block(numbered, u"x"_s),
            block(numbered, u"y"_s),
            block(checklist, u"done"_s, true),
            block(checklist),
            block(paragraph, u"# no heading"_s),
            block(paragraph),
            Block{.type = callout, .text = u"mind"_s, .tone = CalloutTone::danger},
            block(quote, u"q"_s),
            codeBlock(u"a ``` b\n"_s, u"python"_s),
            block(divider),
        };
        QCOMPARE(BlockMarkdown::write(blocks),
                 u"# Plan\n\nCosts 5 * 3, **bold** & [link](https://a.b).\n\n- a\n- two\\\n  lines\n\n1. "
                 u"x\n2. y\n\n"
                 "- [x] done\n- [ ]\n\n\\# no heading\n\n&nbsp;\n\n> [!CAUTION]\n> mind\n\n> q\n\n"
                 "````python\na ``` b\n\n````\n\n---\n"_s);
        QCOMPARE(BlockMarkdown::write({}), QString());
    }

    void readsBackWhatItWrites()
    {
        for (unsigned seed = 0; seed < 20'000; ++seed) {
            const QList<Block> blocks = RandomPages(seed).page();
            const QString written = BlockMarkdown::write(blocks);
            const QList<Block> back = BlockMarkdown::read(written).blocks;
            if (back != blocks)
                QFAIL(qPrintable(u"seed %1\n%2is written as\n%3and read as\n%4"_s.arg(seed).arg(
                    described(blocks), written, described(back))));
        }
    }

    void readsMarkdownFromElsewhere_data()
    {
        QTest::addColumn<QString>("markdown");
        QTest::addColumn<QList<Block>>("blocks");
        QTest::addColumn<int>("losses");
        const auto row = [](const char *name, const QString &markdown, const QList<Block> &blocks,
                            BlockMarkdown::Losses losses = {}) {
            QTest::newRow(name) << markdown << blocks << int(losses);
        };
        row("nothing", u" \n\n"_s, {});
        row("underlined headings", u"One\r\n===\r\nTwo\r\n---\r\n#### Four\n"_s,
            {block(heading1, u"One"_s), block(heading2, u"Two"_s), block(heading3, u"Four"_s)},
            Loss::headingLevels);
        row("wrapped lines and breaks", u"one\ntwo  \nthree\\\nfour\n\n\n\nfive"_s,
            {block(paragraph, u"one two\nthree\nfour"_s), block(paragraph, u"five"_s)});
        row("signs within lines", u"**b** _i_ `c\\*` ![p](q) \\*x\\* &copy; <b>h</b>"_s,
            {block(paragraph, u"**b** _i_ `c\\*` ![p](q) *x* © <b>h</b>"_s)});
        row("lists", u"* a\n+ b\n\n3) c\n4) d\n- [X] e\n  f\n- g\n    - h\n\n  i\n"_s,
            {block(bulleted, u"a"_s), block(bulleted, u"b"_s), block(numbered, u"c"_s),
             block(numbered, u"d"_s), block(checklist, u"e f"_s, true), block(bulleted, u"g"_s),
             block(bulleted, u"h"_s), block(paragraph, u"i"_s)},
            Loss::nesting);
        row("quotes", u"> a\nb\n>\n> c\n\n> [!tip] d\n>\n> e\n\n>\n"_s,
            {block(quote, u"a b"_s), block(quote, u"c"_s),
             Block{.type = callout, .text = u"d"_s, .tone = CalloutTone::tip},
             Block{.type = callout, .text = u"e"_s, .tone = CalloutTone::tip}, block(quote)});
        row("code", u"~~~ sh extra\n\ta `b`\n~~~\n\n    indented *x*\n\n1. z\n   ```js\n   y\n   ```\n"_s,
            {codeBlock(u"\ta `b`"_s, u"shell"_s), codeBlock(u"indented *x*"_s, u"plain"_s),
             block(numbered, u"z"_s), codeBlock(u"y"_s, u"javascript"_s)});
        row("a table and HTML",
            u"|a|b|\n|-|:-:|\n|1|2|\n\n<pre>\n\nx</pre>\n\n<p align=\"center\">\n *y*</p>\n"_s,
            {codeBlock(u"|a|b|\n|-|:-:|\n|1|2|"_s, u"markdown"_s),
             codeBlock(u"<pre>\n\nx</pre>"_s, u"html"_s),
             codeBlock(u"<p align=\"center\">\n *y*</p>"_s, u"html"_s)},
            Loss::tables | Loss::html);
        row("rules", u"***\n_ _ _\n* * *\n"_s, {block(divider), block(divider), block(divider)});
    }
    void readsMarkdownFromElsewhere()
    {
        QFETCH(QString, markdown);
        QFETCH(QList<Block>, blocks);
        const BlockMarkdown::Reading reading = BlockMarkdown::read(markdown);
        QCOMPARE(described(reading.blocks), described(blocks));
        QTEST(int(reading.losses), "losses");
    }

    /// Anything may be pasted; reading ends, soon, and what it gives can be written.
    void readsAnything()
    {
        const QString nested = QString(20'000, u'>') + u"x\n"_s;
        const QList<QString> texts{nested,
                                   u"- "_s.repeated(20'000),
                                   u"`"_s.repeated(20'001) + u" ``"_s.repeated(20'000),
                                   u"<pre>\n```\n"_s.repeated(5'000),
                                   u"["_s.repeated(100'000),
                                   u"a\n"_s.repeated(500'000)};
        QElapsedTimer timer;
        timer.start();
        for (const QString &text : texts) {
            const QList<Block> blocks = BlockMarkdown::read(text).blocks;
            QVERIFY(!blocks.isEmpty());
            QCOMPARE(BlockMarkdown::read(BlockMarkdown::write(blocks)).blocks, blocks);
            QVERIFY2(timer.restart() < 5'000, qPrintable(text.left(20)));
        }
    }
};

QTEST_APPLESS_MAIN(BlockMarkdownTest)
#include "tst_blockmarkdown.moc"
