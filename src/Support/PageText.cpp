#include "Support/PageText.h"

#include <algorithm>

namespace
{
bool isBlank(const QString &text)
{
    return std::ranges::all_of(text, [](QChar character) { return character.isSpace(); });
}

/// The mark before a block's text, for the types that are one line of text.
QString linePrefix(const Block &block)
{
    switch (block.type) {
    case BlockType::heading1:
        return QStringLiteral("# ");
    case BlockType::heading2:
        return QStringLiteral("## ");
    case BlockType::heading3:
        return QStringLiteral("### ");
    case BlockType::bulleted:
        return QStringLiteral("- ");
    case BlockType::numbered:
        return QStringLiteral("1. ");
    case BlockType::checklist:
        return block.checked ? QStringLiteral("- [x] ") : QStringLiteral("- [ ] ");
    case BlockType::quote:
    case BlockType::callout:
        return QStringLiteral("> ");
    default:
        return {};
    }
}

bool isListItem(BlockType type)
{
    return type == BlockType::bulleted || type == BlockType::numbered || type == BlockType::checklist;
}

void appendMarkdown(QStringList &lines, const Block &block)
{
    if (block.type == BlockType::paragraph && isBlank(block.text))
        return;
    if (block.type == BlockType::code)
        lines << QStringLiteral("```") + block.language << block.text << QStringLiteral("```");
    else if (block.type == BlockType::divider)
        lines << QStringLiteral("---");
    else
        lines << linePrefix(block) + block.text;
    if (!isListItem(block.type))
        lines << QString();
}
} // namespace

QString PageText::markdownExport(const Page &page)
{
    QStringList lines{QStringLiteral("# ") + (isBlank(page.title) ? QStringLiteral("Untitled") : page.title),
                      QString()};
    for (const Block &block : page.content)
        appendMarkdown(lines, block);
    while (lines.last().isEmpty())
        lines.removeLast();
    return lines.join(u'\n') + u'\n';
}

QString PageText::plainTextExport(const Page &page)
{
    QStringList lines{page.title};
    for (const Block &block : page.content)
        lines << block.text;
    lines.removeIf(isBlank);
    return lines.join(u'\n');
}

PageText::Counts PageText::countsOf(QStringView text)
{
    Counts counts;
    bool isInWord = false;
    for (const QChar character : text) {
        const bool isSpace = character.isSpace();
        counts.words += !isSpace && !isInWord ? 1 : 0;
        counts.characters += character.isLowSurrogate() ? 0 : 1;
        isInWord = !isSpace;
    }
    return counts;
}

PageText::Counts PageText::countsOf(const QList<Block> &blocks)
{
    Counts sum;
    for (const Block &block : blocks) {
        const Counts counts = countsOf(block.text);
        sum.words += counts.words;
        sum.characters += counts.characters;
    }
    return sum;
}

qsizetype PageText::wordCount(const Page &page)
{
    return countsOf(page.content).words;
}

QString PageText::readingTimeLabel(qsizetype words)
{
    static constexpr qsizetype wordsPerMinute = 200;
    const qsizetype minutes = (words + wordsPerMinute - 1) / wordsPerMinute;
    return QCoreApplication::translate("PageText", "%1 min read").arg(std::max<qsizetype>(minutes, 1));
}
