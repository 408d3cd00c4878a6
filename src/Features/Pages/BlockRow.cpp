#include "Features/Pages/BlockRow.h"

#include <QLocale>

QList<BlockRow> BlockRow::ofBlocks(const QList<Block> &blocks, const ShownParts &parts)
{
    const QList<PageBlocks::Number> numbers = PageBlocks::numbers(blocks);
    QList<BlockRow> rows(blocks.size());
    for (qsizetype i = 0; i < blocks.size(); ++i) {
        rows[i].setBlock(blocks[i], parts);
        rows[i].number = numbers[i];
        rows[i].isFirst = i == 0;
        rows[i].isLast = i == blocks.size() - 1;
    }
    return rows;
}

void BlockRow::setBlock(const Block &next, const ShownParts &parts)
{
    id = next.id;
    block = next;
    part = parts.of(next);
    text = next.type == BlockType::divider ? QString() : part.in(next.text);
    codeLines = next.type == BlockType::code ? PageBlocks::codeLineCount(next.text) : 0;
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

QString BlockRow::partText() const
{
    if (text.size() == block.text.size() || block.type == BlockType::divider)
        return {};
    const QLocale english(QLocale::English);
    return tr("Characters %1–%2 of %3")
        .arg(english.toString(part.begin + 1), english.toString(part.end),
             english.toString(block.text.size()));
}

QString BlockRow::placeholder() const
{
    switch (block.type) {
    case BlockType::paragraph:
        return tr("Type '/' for commands…");
    case BlockType::heading1:
    case BlockType::heading2:
    case BlockType::heading3:
        return enumLabel(block.type);
    case BlockType::bulleted:
    case BlockType::numbered:
        return tr("List item");
    case BlockType::checklist:
        return tr("To-do");
    case BlockType::quote:
        return tr("Empty quote");
    case BlockType::code:
        return tr("Code");
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
    return number.number > 0 ? QStringLiteral("%1.").arg(number.number) : QString();
}

QString BlockRow::widestNumber() const
{
    return number.number > 0 ? QString(QString::number(number.count).size(), u'0') + u'.' : QString();
}

QString BlockRow::lineCountText() const
{
    return block.type == BlockType::code ? tr("%1 lines").arg(codeLines) : QString();
}

int BlockRow::codeHeight() const
{
    return block.type == BlockType::code ? PageBlocks::codeEditorHeight(codeLines) : 0;
}
