#include "Support/Markdown/MarkdownReader.h"

#include "Support/Markdown/InertMarkdown.h"
#include "Support/Markdown/MarkdownEscapes.h"

#include <QRegularExpression>

namespace
{
using BlockMarkdown::Loss;

/// Marks a line break that shall stay, which two blanks at the end of a line ask for.
constexpr QChar hardBreak = u'\v';

std::optional<CalloutTone> toneNamed(const QString &name)
{
    static const QHash<QString, CalloutTone> tones{{QStringLiteral("note"), CalloutTone::info},
                                                   {QStringLiteral("info"), CalloutTone::info},
                                                   {QStringLiteral("tip"), CalloutTone::tip},
                                                   {QStringLiteral("important"), CalloutTone::warning},
                                                   {QStringLiteral("warning"), CalloutTone::warning},
                                                   {QStringLiteral("caution"), CalloutTone::danger},
                                                   {QStringLiteral("danger"), CalloutTone::danger}};
    const auto found = tones.constFind(name.toLower());
    return found == tones.cend() ? std::nullopt : std::optional(*found);
}

bool isTable(const QStringList &lines)
{
    static const QRegularExpression delimiters(
        QStringLiteral("^\\|?[ \\t]*:?-+:?[ \\t]*(\\|[ \\t]*:?-+:?[ \\t]*)*\\|?$"));
    return lines.size() >= 2 && lines[0].contains(u'|') && lines[1].contains(u'|') &&
           delimiters.match(lines[1]).hasMatch();
}

/// The text that lines stand for; those that only wrap are joined with a blank.
QString joined(const QStringList &lines)
{
    QString text;
    for (qsizetype i = 0; i < lines.size(); ++i) {
        QStringView line = lines[i];
        const bool isLast = i == lines.size() - 1;
        const bool breaks = !isLast && (line.endsWith(hardBreak) || MarkdownEscapes::endsInBreak(line));
        if (breaks)
            line.chop(1);
        text += MarkdownEscapes::unescaped(line);
        if (!isLast)
            text += breaks ? u'\n' : u' ';
    }
    return text;
}
} // namespace

BlockMarkdown::Reading MarkdownReader::read(const QString &markdown)
{
    MD_PARSER parser{};
    parser.flags = MD_FLAG_NOHTMLSPANS;
    parser.enter_block = [](MD_BLOCKTYPE type, void *detail, void *self) {
        static_cast<MarkdownReader *>(self)->enterBlock(type, detail);
        return 0;
    };
    parser.leave_block = [](MD_BLOCKTYPE type, void *, void *self) {
        static_cast<MarkdownReader *>(self)->leaveBlock(type);
        return 0;
    };
    parser.enter_span = parser.leave_span = [](MD_SPANTYPE, void *, void *) { return 0; };
    parser.text = [](MD_TEXTTYPE type, const char *text, MD_SIZE size, void *self) {
        static_cast<MarkdownReader *>(self)->takeText(type, text, size);
        return 0;
    };
    const QByteArray inert = InertMarkdown::of(markdown).toUtf8();
    md_parse(inert.constData(), MD_SIZE(inert.size()), &parser, this);
    return std::move(m_reading);
}

void MarkdownReader::enterBlock(MD_BLOCKTYPE type, const void *detail)
{
    endLeaf();
    switch (type) {
    case MD_BLOCK_UL:
    case MD_BLOCK_OL:
        m_listsAreOrdered.append(type == MD_BLOCK_OL);
        noteNesting();
        break;
    case MD_BLOCK_LI:
        m_containers.append(Container{.isOrdered = m_listsAreOrdered.last()});
        beginLeaf(Leaf::paragraph);
        break;
    case MD_BLOCK_QUOTE:
        noteNesting();
        m_containers.append(Container{.isQuote = true});
        break;
    case MD_BLOCK_H:
        m_headingLevel = int(static_cast<const MD_BLOCK_H_DETAIL *>(detail)->level);
        beginLeaf(Leaf::heading);
        break;
    case MD_BLOCK_CODE: {
        const MD_ATTRIBUTE &language = static_cast<const MD_BLOCK_CODE_DETAIL *>(detail)->lang;
        m_language = InertMarkdown::restored(QString::fromUtf8(language.text, language.size));
        beginLeaf(Leaf::code);
        break;
    }
    case MD_BLOCK_HTML:
        beginLeaf(Leaf::html);
        break;
    case MD_BLOCK_P:
        beginLeaf(Leaf::paragraph);
        break;
    case MD_BLOCK_HR:
        add(Block{.type = BlockType::divider});
        break;
    default:
        break;
    }
}

void MarkdownReader::leaveBlock(MD_BLOCKTYPE type)
{
    if (type == MD_BLOCK_H && m_text.isEmpty())
        add(textBlock());
    endLeaf();
    if (type == MD_BLOCK_UL || type == MD_BLOCK_OL)
        m_listsAreOrdered.removeLast();
    else if (type == MD_BLOCK_LI || type == MD_BLOCK_QUOTE)
        endContainer();
}

void MarkdownReader::takeText(MD_TEXTTYPE type, const char *text, MD_SIZE size)
{
    if (type == MD_TEXT_BR)
        m_text += "\v\n";
    else if (type == MD_TEXT_SOFTBR)
        m_text += '\n';
    else
        m_text.append(text, qsizetype(size));
}

void MarkdownReader::noteNesting()
{
    if (!m_containers.isEmpty())
        m_reading.losses |= Loss::nesting;
}

void MarkdownReader::beginLeaf(Leaf leaf)
{
    m_leaf = leaf;
    m_text.clear();
}

void MarkdownReader::endLeaf()
{
    const Leaf leaf = std::exchange(m_leaf, Leaf::none);
    if (leaf == Leaf::code) {
        addCode(BlockMarkdown::languageNamed(m_language), InertMarkdown::restored(QString::fromUtf8(m_text)));
    } else if (leaf == Leaf::html) {
        m_reading.losses |= Loss::html;
        addCode(QStringLiteral("html"), InertMarkdown::restored(QString::fromUtf8(m_text)));
    } else if (!m_text.isEmpty()) {
        m_leaf = leaf;
        addLines();
        m_leaf = Leaf::none;
    }
    m_text.clear();
}

void MarkdownReader::endContainer()
{
    const Container &last = m_containers.last();
    // A container without anything in it is a block without text.
    if (last.isFresh)
        add(textBlock());
    m_containers.removeLast();
}

void MarkdownReader::addLines()
{
    QStringList lines = InertMarkdown::restored(QString::fromUtf8(m_text)).split(u'\n');
    if (m_leaf == Leaf::paragraph && isTable(lines)) {
        m_reading.losses |= Loss::tables;
        addCode(QStringLiteral("markdown"), lines.join(u'\n') + u'\n');
        return;
    }
    if (m_leaf == Leaf::paragraph && takeTone(lines) && lines.isEmpty())
        return;
    Block block = textBlock();
    if (block.type == BlockType::bulleted || block.type == BlockType::numbered) {
        static const QRegularExpression check(QStringLiteral("^\\[([ xX])\\](?:[ \\t]+|$)"));
        if (const QRegularExpressionMatch match = check.match(lines[0]); match.hasMatch()) {
            block.type = BlockType::checklist;
            block.checked = match.capturedView(1) != u" ";
            lines[0].remove(0, match.capturedLength());
        }
    }
    block.text = lines == QStringList{QStringLiteral("&nbsp;")} ? QString() : joined(lines);
    add(std::move(block));
}

bool MarkdownReader::takeTone(QStringList &lines)
{
    if (m_containers.isEmpty() || !m_containers.last().isQuote || !m_containers.last().isFresh)
        return false;
    static const QRegularExpression alert(QStringLiteral("^\\[!([A-Za-z]+)\\][ \\t\\v]*"));
    const QRegularExpressionMatch match = alert.match(lines[0]);
    const auto tone = match.hasMatch() ? toneNamed(match.captured(1)) : std::nullopt;
    if (!tone)
        return false;
    m_containers.last().tone = tone;
    lines[0].remove(0, match.capturedLength());
    if (lines[0].isEmpty())
        lines.removeFirst();
    return true;
}

void MarkdownReader::addCode(const QString &language, QString text)
{
    if (text.endsWith(u'\n'))
        text.chop(1);
    add(Block{.type = BlockType::code, .text = text, .language = language});
}

Block MarkdownReader::textBlock()
{
    Block block;
    const Container *const inner = m_containers.isEmpty() ? nullptr : &m_containers.last();
    if (m_leaf == Leaf::heading) {
        if (m_headingLevel > 3)
            m_reading.losses |= Loss::headingLevels;
        block.type = BlockType(int(BlockType::heading1) + std::min(m_headingLevel, 3) - 1);
    } else if (inner && inner->isQuote) {
        block.type = inner->tone ? BlockType::callout : BlockType::quote;
        block.tone = inner->tone.value_or(block.tone);
    } else if (inner && inner->isFresh) {
        block.type = inner->isOrdered ? BlockType::numbered : BlockType::bulleted;
    }
    return block;
}

void MarkdownReader::add(Block block)
{
    m_reading.blocks.append(std::move(block));
    for (Container &container : m_containers)
        container.isFresh = false;
}
