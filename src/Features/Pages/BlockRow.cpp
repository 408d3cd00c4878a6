#include "Features/Pages/BlockRow.h"

#include "Features/Pages/PageBlocks.h"

QList<BlockRow> BlockRow::ofBlocks(const QList<Block> &blocks)
{
    const QList<int> numbers = PageBlocks::numbers(blocks);
    QList<BlockRow> rows;
    rows.reserve(blocks.size());
    for (qsizetype i = 0; i < blocks.size(); ++i)
        rows.append({blocks[i].id, blocks[i], numbers[i], i == 0, i == blocks.size() - 1});
    return rows;
}

QString BlockRow::body() const
{
    switch (block.type) {
    case BlockType::code:
        return QStringLiteral("code");
    case BlockType::divider:
        return QStringLiteral("divider");
    default:
        return QStringLiteral("text");
    }
}

QString BlockRow::text() const
{
    return block.type == BlockType::divider ? QString() : block.text;
}

QString BlockRow::placeholder() const
{
    switch (block.type) {
    case BlockType::paragraph:
        return QObject::tr("Type '/' for commands…");
    case BlockType::heading1:
    case BlockType::heading2:
    case BlockType::heading3:
        return enumLabel(block.type);
    case BlockType::bulleted:
    case BlockType::numbered:
        return QObject::tr("List item");
    case BlockType::checklist:
        return QObject::tr("To-do");
    case BlockType::quote:
        return QObject::tr("Empty quote");
    case BlockType::code:
        return QObject::tr("Code");
    default:
        return {};
    }
}

int BlockRow::headingLevel() const
{
    const int level = int(block.type) - int(BlockType::heading1) + 1;
    return level >= 1 && level <= 3 ? level : 0;
}

QString BlockRow::marker() const
{
    switch (block.type) {
    case BlockType::bulleted:
        return QStringLiteral("bullet");
    case BlockType::numbered:
        return QStringLiteral("number");
    case BlockType::checklist:
        return QStringLiteral("check");
    case BlockType::quote:
        return QStringLiteral("bar");
    case BlockType::callout:
        return QStringLiteral("tone");
    default:
        return {};
    }
}

QString BlockRow::numberText() const
{
    return number > 0 ? QStringLiteral("%1.").arg(number) : QString();
}

QString BlockRow::lineCountText() const
{
    return block.type == BlockType::code ? QObject::tr("%1 lines").arg(PageBlocks::codeLineCount(block.text))
                                         : QString();
}

int BlockRow::codeHeight() const
{
    return block.type == BlockType::code ? PageBlocks::codeEditorHeight(block.text) : 0;
}
