#include "Features/Pages/BlockRow.h"
#include "Features/Pages/PageBlocks.h"

#include <QHash>
#include <QRandomGenerator>
#include <QSet>
#include <QTest>
#include <QUuid>

using namespace Qt::StringLiterals;

namespace
{
/// One block for each letter: p paragraph, n numbered, d divider, t to-do.
QList<Block> blocksOf(const QString &letters)
{
    const QHash<QChar, BlockType> types{{u'p', BlockType::paragraph},
                                        {u'n', BlockType::numbered},
                                        {u'd', BlockType::divider},
                                        {u't', BlockType::checklist}};
    QList<Block> blocks;
    for (const QChar letter : letters)
        blocks.append({.id = QUuid::createUuid(), .type = types[letter], .text = QString(letter)});
    return blocks;
}

QString labels(const QList<BlockType> &types)
{
    QStringList texts;
    for (const BlockType type : types)
        texts.append(enumLabel(type));
    return texts.join(u',');
}
} // namespace

class PageBlocksTest : public QObject
{
    Q_OBJECT

private slots:
    void numbersLists_data();
    void numbersLists();
    void offersTypes_data();
    void offersTypes();
    void measuresCode_data();
    void measuresCode();
    void breaksLines_data();
    void breaksLines();
    void keepsAnySequenceOfOperationsSound();
    void changesTypes();
    void showsPartsOfLongTexts();
    void showsRows();
};

void PageBlocksTest::numbersLists_data()
{
    QTest::addColumn<QString>("blocks");
    QTest::addColumn<QList<int>>("numbers");
    QTest::addColumn<QList<int>>("counts");
    QTest::newRow("none") << u"ptd"_s << QList{0, 0, 0} << QList{0, 0, 0};
    QTest::newRow("one list") << u"nnn"_s << QList{1, 2, 3} << QList{3, 3, 3};
    QTest::newRow("starts again after any other type")
        << u"nnpnndn"_s << QList{1, 2, 0, 1, 2, 0, 1} << QList{2, 2, 0, 2, 2, 0, 1};
}

void PageBlocksTest::numbersLists()
{
    QFETCH(QString, blocks);
    QFETCH(QList<int>, numbers);
    QFETCH(QList<int>, counts);
    const QList<PageBlocks::Number> found = PageBlocks::numbers(blocksOf(blocks));
    QCOMPARE(found.size(), numbers.size());
    for (qsizetype i = 0; i < found.size(); ++i)
        QCOMPARE(found[i], (PageBlocks::Number{numbers[i], counts[i]}));
}

void PageBlocksTest::offersTypes_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("labels");
    const QString all =
        u"Text,Heading 1,Heading 2,Heading 3,Bulleted list,Numbered list,To-do,Quote,Callout,Code,Divider"_s;
    QTest::newRow("all") << u"/"_s << all;
    QTest::newRow("part of a label") << u"/HEAD"_s << u"Heading 1,Heading 2,Heading 3"_s;
    QTest::newRow("name of a case") << u"/paragraph"_s << u"Text"_s;
    QTest::newRow("part of a name") << u"/check"_s << u"To-do"_s;
    QTest::newRow("label and name") << u"/he"_s << u"Heading 1,Heading 2,Heading 3,To-do"_s;
    QTest::newRow("nothing") << u"/xyz"_s << QString();
    QTest::newRow("blank") << u"/ he"_s << QString();
    QTest::newRow("no slash") << u"he"_s << QString();
    QTest::newRow("later slash") << u"a/he"_s << QString();
}

void PageBlocksTest::offersTypes()
{
    QFETCH(QString, text);
    QTEST(labels(PageBlocks::slashMenu({.text = text})), "labels");
    QVERIFY(PageBlocks::slashMenu({.type = BlockType::code, .text = text}).isEmpty());
}

void PageBlocksTest::measuresCode_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("lines");
    QTest::addColumn<int>("height");
    QTest::newRow("empty") << QString() << 1 << 58;
    QTest::newRow("ends in a line feed") << u"a\n"_s << 2 << 78;
    QTest::newRow("last to grow") << QString(15, u'\n') << 16 << 358;
    QTest::newRow("scrolls") << QString(16, u'\n') << 17 << 358;
}

void PageBlocksTest::measuresCode()
{
    QFETCH(QString, text);
    QTEST(PageBlocks::codeLineCount(text), "lines");
    QTEST(PageBlocks::codeEditorHeight(PageBlocks::codeLineCount(text)), "height");
}

void PageBlocksTest::breaksLines_data()
{
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("after");
    QTest::addColumn<QString>("lines");
    QTest::addColumn<int>("caret");
    QTest::newRow("no line feed") << u"ab"_s << u"axb"_s << u"-"_s << 0;
    QTest::newRow("in the middle") << u"ab"_s << u"ax\nyb"_s << u"ax|yb"_s << 1;
    QTest::newRow("at the end") << u"a"_s << u"ab\nc\nd"_s << u"ab|c|d"_s << 1;
    QTest::newRow("over a selection") << u"abc"_s << u"ax\ny\n\nzc"_s << u"ax|y||zc"_s << 1;
    QTest::newRow("copied with its line feed") << u"a"_s << u"ab\n"_s << u"ab"_s << 0;
    QTest::newRow("lines with the last line feed") << u""_s << u"a\nb\n"_s << u"a|b"_s << 1;
    QTest::newRow("line feed before the rest") << u"ab"_s << u"ax\nb"_s << u"ax|b"_s << 0;
    QTest::newRow("line feeds of before stay") << u"a\nb"_s << u"a\nb!"_s << u"-"_s << 0;
    QTest::newRow("and are not broken") << u"a\nb"_s << u"a\nbc\nd"_s << u"a\nbc|d"_s << 1;
    QTest::newRow("line feed taken away") << u"a\nb"_s << u"ab"_s << u"-"_s << 0;
}

void PageBlocksTest::breaksLines()
{
    QFETCH(QString, before);
    QFETCH(QString, after);
    QFETCH(int, caret);
    const auto broken = PageBlocks::brokenLines(before, PageBlocks::editBetween(before, after));
    QTEST(broken ? (QStringList{broken->first} + broken->rest).join(u'|') : u"-"_s, "lines");
    if (broken)
        QCOMPARE(int(broken->caret), caret);
}

void PageBlocksTest::keepsAnySequenceOfOperationsSound()
{
    QRandomGenerator random(7);
    QList<Block> blocks = blocksOf(u"p"_s);
    // The same by hand, on texts alone.
    QStringList model{u"p"_s};
    for (int step = 0; step < 4000; ++step) {
        const int index = int(random.bounded(qint64(blocks.size())));
        const QUuid id = random.bounded(10) == 0 ? QUuid::createUuid() : blocks[index].id;
        const bool isKnown = id == blocks[index].id;
        const Block fresh{.id = QUuid::createUuid(), .text = QString::number(step)};
        const int delta = int(random.bounded(7)) - 3;
        switch (random.bounded(4)) {
        case 0:
            QCOMPARE(PageBlocks::insertAfter(blocks, id, fresh), isKnown);
            if (isKnown)
                model.insert(index + 1, fresh.text);
            break;
        case 1:
            PageBlocks::duplicate(blocks, id, fresh.id);
            if (isKnown)
                model.insert(index + 1, model[index]);
            break;
        case 2:
            PageBlocks::remove(blocks, id, fresh);
            if (isKnown)
                model.removeAt(index);
            if (model.isEmpty())
                model.append(fresh.text);
            break;
        default:
            PageBlocks::move(blocks, id, delta);
            if (isKnown && index + delta >= 0 && index + delta < model.size())
                model.move(index, index + delta);
        }
        QStringList texts;
        QSet<QUuid> ids;
        for (const Block &block : std::as_const(blocks)) {
            texts.append(block.text);
            ids.insert(block.id);
        }
        QCOMPARE(texts, model);
        QCOMPARE(ids.size(), blocks.size());
    }
}

void PageBlocksTest::changesTypes()
{
    Block block{.type = BlockType::checklist, .text = u"milk"_s, .checked = true};
    PageBlocks::changeType(block, BlockType::checklist);
    QVERIFY(block.checked);
    PageBlocks::changeType(block, BlockType::paragraph);
    QVERIFY(!block.checked);
    PageBlocks::changeType(block, BlockType::checklist);
    QVERIFY(!block.checked);
    QCOMPARE(block.text, u"milk"_s);
}

void PageBlocksTest::showsPartsOfLongTexts()
{
    ShownParts parts;
    Block block{.id = QUuid::createUuid(), .text = QString(ShownParts::maxTextLength, u'a')};
    const auto shown = [&] { return parts.of(block); };
    QCOMPARE(shown(), (ShownParts::Part{0, block.text.size()}));
    QVERIFY(!parts.step(block, 1));

    // Going through it from end to end and back, the parts are bounded and leave nothing out.
    block.text = u"word 👩‍👩‍👧 "_s.repeated(20'000);
    QString read = shown().in(block.text);
    while (parts.step(block, 1)) {
        QVERIFY(shown().end - shown().begin <= ShownParts::maxTextLength);
        QVERIFY(block.text[shown().begin - 1] == u' ');
        read += shown().in(block.text);
    }
    QVERIFY(read == block.text);
    read = shown().in(block.text);
    while (parts.step(block, -1))
        read.prepend(shown().in(block.text));
    QVERIFY(read == block.text);

    parts.show(block, 100'000);
    QVERIFY(shown().begin <= 100'000 && shown().end >= 100'000);
    const ShownParts::Part kept = shown();
    parts.show(block, 100'010);
    QCOMPARE(shown(), kept);
    block.text.truncate(50'000);
    QVERIFY(shown().end <= block.text.size());
    QVERIFY(shown().end > shown().begin);
    block.text.truncate(10);
    QCOMPARE(shown(), (ShownParts::Part{0, 10}));
    block.text = QString::fromUcs4(U"😀").repeated(20'000);
    QVERIFY(!shown().in(block.text).back().isHighSurrogate());
}

void PageBlocksTest::showsRows()
{
    QList<Block> blocks = blocksOf(u"npd"_s);
    blocks[1].checked = true;
    const QList<BlockRow> rows = BlockRow::ofBlocks(blocks, {});
    QCOMPARE(rows[0].numberText(), u"1."_s);
    QVERIFY(!rows[0].canMoveUp() && rows[0].canMoveDown());
    QVERIFY(rows[2].canMoveUp() && !rows[2].canMoveDown());
    QVERIFY(!rows[1].isChecked());
    QCOMPARE(rows[1].placeholder(), u"Type '/' for commands…"_s);
    QCOMPARE(rows[2].body(), u"divider"_s);
    for (const auto &entry : enumCases<BlockType>()) {
        const int level =
            QStringList{u"heading1"_s, u"heading2"_s, u"heading3"_s}.indexOf(enumRawText(entry.value)) + 1;
        QCOMPARE(BlockRow{.block = {.type = entry.value}}.headingLevel(), level);
    }
}

QTEST_MAIN(PageBlocksTest)
#include "tst_pageblocks.moc"
