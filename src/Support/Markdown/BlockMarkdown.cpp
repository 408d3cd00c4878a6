#include "Support/Markdown/BlockMarkdown.h"

#include "Models/CodeLanguage.h"
#include "Support/Markdown/MarkdownEscapes.h"
#include "Support/Markdown/MarkdownReader.h"

#include <QHash>
#include <QStringList>

#include <algorithm>

namespace
{
using MarkdownEscapes::Context;

QString toneName(CalloutTone tone)
{
    switch (tone) {
    case CalloutTone::info:
        return QStringLiteral("NOTE");
    case CalloutTone::tip:
        return QStringLiteral("TIP");
    case CalloutTone::warning:
        return QStringLiteral("WARNING");
    case CalloutTone::danger:
        return QStringLiteral("CAUTION");
    }
    return {};
}

bool isListItem(BlockType type)
{
    return type == BlockType::bulleted || type == BlockType::numbered || type == BlockType::checklist;
}

/// The text in lines, of which those after the first begin with the indent. A line that can't stand by
/// itself, being empty, shares one with those around it.
QString lines(const QString &text, Context context, const QString &indent)
{
    QString result;
    qsizetype begin = 0;
    for (qsizetype at = text.indexOf(u'\n'); at >= 0; at = text.indexOf(u'\n', at + 1)) {
        const bool isBesideEmpty =
            at == begin || at + 1 == text.size() || text[at - 1] == u'\n' || text[at + 1] == u'\n';
        if (isBesideEmpty || context == Context::heading)
            continue;
        result += MarkdownEscapes::escaped(QStringView(text).sliced(begin, at - begin), context) +
                  QStringLiteral("\\\n") + indent;
        begin = at + 1;
    }
    return result + MarkdownEscapes::escaped(QStringView(text).sliced(begin), context);
}

QString codeLines(const Block &block)
{
    qsizetype longest = 0;
    qsizetype run = 0;
    for (const QChar character : block.text) {
        run = character == u'`' ? run + 1 : 0;
        longest = std::max(longest, run);
    }
    const QString fence(std::max<qsizetype>(longest + 1, 3), u'`');
    const QString word = block.language.section(u'\n', 0, 0).remove(u'`').simplified().section(u' ', 0, 0);
    return fence + word + u'\n' + block.text + u'\n' + fence;
}

QString item(const QString &sign, const QString &text, const QString &indent)
{
    const QString written = lines(text, Context::listItem, indent);
    return written.isEmpty() ? sign : sign + u' ' + written;
}

QString heading(int level, const QString &text)
{
    const QString written = lines(text, Context::heading, {});
    return QString(level, u'#') + (written.isEmpty() ? QString() : u' ' + written);
}

QString quote(const QString &text)
{
    const QString written = lines(text, Context::quote, QStringLiteral("> "));
    return written.isEmpty() ? QStringLiteral(">") : QStringLiteral("> ") + written;
}

/// @param number of a numbered block
QString written(const Block &block, int number)
{
    switch (block.type) {
    case BlockType::heading1:
    case BlockType::heading2:
    case BlockType::heading3:
        return heading(int(block.type) - int(BlockType::heading1) + 1, block.text);
    case BlockType::bulleted:
        return item(QStringLiteral("-"), block.text, QStringLiteral("  "));
    case BlockType::numbered: {
        const QString sign = QStringLiteral("%1.").arg(number);
        return item(sign, block.text, QString(sign.size() + 1, u' '));
    }
    case BlockType::checklist:
        return item(block.checked ? QStringLiteral("- [x]") : QStringLiteral("- [ ]"), block.text,
                    QStringLiteral("  "));
    case BlockType::quote:
        return quote(block.text);
    case BlockType::callout: {
        const QString first = QStringLiteral("> [!%1]").arg(toneName(block.tone));
        return block.text.isEmpty() ? first : first + u'\n' + quote(block.text);
    }
    case BlockType::code:
        return codeLines(block);
    case BlockType::divider:
        return QStringLiteral("---");
    case BlockType::paragraph:
        break;
    }
    return block.text.isEmpty() ? QStringLiteral("&nbsp;") : lines(block.text, Context::paragraph, {});
}
} // namespace

QString BlockMarkdown::write(const QList<Block> &blocks)
{
    QString text;
    int number = 0;
    const Block *before = nullptr;
    for (const Block &block : blocks) {
        number = block.type == BlockType::numbered ? number + 1 : 0;
        if (before)
            text += isListItem(block.type) && before->type == block.type ? QStringLiteral("\n")
                                                                         : QStringLiteral("\n\n");
        text += written(block, number);
        before = &block;
    }
    if (before)
        text += u'\n';
    return text;
}

BlockMarkdown::Reading BlockMarkdown::read(const QString &markdown)
{
    return MarkdownReader().read(markdown);
}

QString BlockMarkdown::languageNamed(const QString &word)
{
    static const QHash<QString, CodeLanguage> aliases{
        {QStringLiteral("py"), CodeLanguage::python},     {QStringLiteral("python3"), CodeLanguage::python},
        {QStringLiteral("js"), CodeLanguage::javascript}, {QStringLiteral("node"), CodeLanguage::javascript},
        {QStringLiteral("ts"), CodeLanguage::typescript}, {QStringLiteral("sh"), CodeLanguage::shell},
        {QStringLiteral("bash"), CodeLanguage::shell},    {QStringLiteral("zsh"), CodeLanguage::shell},
        {QStringLiteral("console"), CodeLanguage::shell}, {QStringLiteral("md"), CodeLanguage::markdown},
        {QStringLiteral("htm"), CodeLanguage::html},      {QStringLiteral("text"), CodeLanguage::plain},
        {QStringLiteral("txt"), CodeLanguage::plain},     {QString(), CodeLanguage::plain}};
    const QString lower = word.toLower();
    if (const auto found = aliases.constFind(lower); found != aliases.cend())
        return enumRawText(*found);
    return enumFromRaw<CodeLanguage>(lower) ? lower : word;
}
