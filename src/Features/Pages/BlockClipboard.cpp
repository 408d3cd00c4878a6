#include "Features/Pages/BlockClipboard.h"

#include "Features/Pages/BlockHtml.h"
#include "Foundation/LineText.h"
#include "Support/Markdown/BlockMarkdown.h"

#include <algorithm>

namespace
{
const QString markdownType = QStringLiteral("text/markdown");

bool namesKinds(const QList<Block> &blocks)
{
    return std::ranges::any_of(blocks, [](const Block &block) { return block.type != BlockType::paragraph; });
}
} // namespace

std::unique_ptr<QMimeData> BlockClipboard::dataOf(const QList<Block> &blocks)
{
    auto data = std::make_unique<QMimeData>();
    QStringList texts;
    for (const Block &block : blocks)
        if (block.type != BlockType::divider)
            texts.append(block.text);
    data->setText(texts.join(u'\n'));
    data->setHtml(BlockHtml::write(blocks));
    data->setData(markdownType, BlockMarkdown::write(blocks).toUtf8());
    return data;
}

BlockClipboard::Texts BlockClipboard::Texts::of(const QMimeData &data)
{
    return {QString::fromUtf8(data.data(markdownType)), data.html(), LineText::withLineFeeds(data.text())};
}

QList<Block> BlockClipboard::blocksIn(const Texts &texts)
{
    if (!texts.markdown.isEmpty())
        return BlockMarkdown::read(texts.markdown).blocks;
    const QList<Block> fromHtml = texts.html.isEmpty() ? QList<Block>() : BlockHtml::read(texts.html);
    if (namesKinds(fromHtml))
        return fromHtml;
    // Programs for plain text lend it as HTML too, so that paragraphs alone say nothing.
    const QList<Block> fromText = BlockMarkdown::read(texts.plain).blocks;
    if (namesKinds(fromText))
        return fromText;
    return {};
}

QList<Block> BlockClipboard::linesIn(const QString &text)
{
    QList<Block> blocks;
    for (const QStringView line : QStringView(text).split(u'\n'))
        if (!line.trimmed().isEmpty())
            blocks.append(Block{.text = line.toString()});
    return blocks;
}
