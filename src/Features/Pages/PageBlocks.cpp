#include "Features/Pages/PageBlocks.h"

#include <algorithm>

namespace PageBlocks
{
qsizetype indexOf(const QList<Block> &blocks, const QUuid &id)
{
    const auto found = std::ranges::find(blocks, id, &Block::id);
    return found == blocks.end() ? -1 : found - blocks.begin();
}

QList<Number> numbers(const QList<Block> &blocks)
{
    QList<Number> numbers(blocks.size());
    int last = 0;
    for (qsizetype i = 0; i < blocks.size(); ++i) {
        last = blocks[i].type == BlockType::numbered ? last + 1 : 0;
        numbers[i].number = last;
    }
    for (qsizetype i = blocks.size() - 1; i >= 0; --i)
        if (numbers[i].number > 0)
            numbers[i].count = std::max(numbers[i].number, i + 1 < blocks.size() ? numbers[i + 1].count : 0);
    return numbers;
}

QList<BlockType> slashMatches(const QString &text)
{
    const QString query = text.mid(1).trimmed().toLower();
    QList<BlockType> matches;
    for (const auto &entry : enumCases<BlockType>())
        if (enumLabel(entry.value).toLower().contains(query) || enumRawText(entry.value).contains(query))
            matches.append(entry.value);
    return matches;
}

QList<BlockType> slashMenu(const Block &block)
{
    if (block.type == BlockType::code || !block.text.startsWith(u'/') || block.text.contains(u' '))
        return {};
    return slashMatches(block.text);
}

int codeLineCount(const QString &text)
{
    return int(text.count(u'\n')) + 1;
}

int codeEditorHeight(int lines)
{
    return std::min(38 + 20 * lines, maxCodeEditorHeight);
}

bool insertAfter(QList<Block> &blocks, const QUuid &id, const Block &block)
{
    const qsizetype index = indexOf(blocks, id);
    if (index < 0)
        return false;
    blocks.insert(index + 1, block);
    return true;
}

void duplicate(QList<Block> &blocks, const QUuid &id, const QUuid &newID)
{
    const qsizetype index = indexOf(blocks, id);
    if (index < 0)
        return;
    Block copy = blocks[index];
    copy.id = newID;
    blocks.insert(index + 1, copy);
}

void remove(QList<Block> &blocks, const QUuid &id, const Block &fresh)
{
    const qsizetype index = indexOf(blocks, id);
    if (index < 0)
        return;
    blocks.removeAt(index);
    if (blocks.isEmpty())
        blocks.append(fresh);
}

void move(QList<Block> &blocks, const QUuid &id, int delta)
{
    const qsizetype index = indexOf(blocks, id);
    const qsizetype target = index + delta;
    if (index >= 0 && target >= 0 && target < blocks.size())
        blocks.move(index, target);
}

void changeType(Block &block, BlockType type)
{
    block.type = type;
    block.checked = block.checked && type == BlockType::checklist;
}

TextEdit editBetween(const QString &before, const QString &after)
{
    const qsizetype shorter = std::min(before.size(), after.size());
    qsizetype begin = 0;
    while (begin < shorter && before[begin] == after[begin])
        ++begin;
    qsizetype tail = 0;
    while (tail < shorter - begin && before[before.size() - 1 - tail] == after[after.size() - 1 - tail])
        ++tail;
    return {begin, before.size() - tail, after.sliced(begin, after.size() - tail - begin)};
}

std::optional<Lines> brokenLines(const QString &before, const TextEdit &edit)
{
    QStringList lines = edit.inserted.split(u'\n');
    if (lines.size() == 1)
        return std::nullopt;
    const QString tail = before.sliced(edit.end);
    if (lines.last().isEmpty() && tail.isEmpty())
        lines.removeLast();
    const QString first = before.first(edit.begin) + lines.takeFirst();
    if (lines.isEmpty())
        return Lines{first, {}};
    const qsizetype caret = lines.last().size();
    lines.last() += tail;
    return Lines{first, lines, caret};
}
} // namespace PageBlocks
