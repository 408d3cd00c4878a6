#include "Features/Pages/BlockHtml.h"

#include <QTextBlock>
#include <QTextDocument>
#include <QTextList>
#include <QTextTable>

namespace
{
/// Loads nothing: neither pictures nor style sheets, from nowhere.
class Document : public QTextDocument
{
protected:
    QVariant loadResource(int, const QUrl &) override { return {}; }
};

QString escaped(const QString &text)
{
    return text.toHtmlEscaped().replace(u'\n', QStringLiteral("<br>"));
}

QString element(const QString &name, const QString &text)
{
    return QStringLiteral("<%1>%2</%1>").arg(name, escaped(text));
}

/// The list that an item of this type stands in; empty for other blocks.
QString listName(BlockType type)
{
    if (type == BlockType::numbered)
        return QStringLiteral("ol");
    return type == BlockType::bulleted || type == BlockType::checklist ? QStringLiteral("ul") : QString();
}

QString written(const Block &block)
{
    switch (block.type) {
    case BlockType::heading1:
    case BlockType::heading2:
    case BlockType::heading3:
        return element(QStringLiteral("h%1").arg(int(block.type) - int(BlockType::heading1) + 1), block.text);
    case BlockType::bulleted:
    case BlockType::numbered:
        return element(QStringLiteral("li"), block.text);
    case BlockType::checklist:
        return QStringLiteral("<li class=\"%1\">%2 %3</li>")
            .arg(block.checked ? QStringLiteral("checked") : QStringLiteral("unchecked"),
                 block.checked ? QStringLiteral("☑") : QStringLiteral("☐"), escaped(block.text));
    case BlockType::quote:
    case BlockType::callout:
        return QStringLiteral("<blockquote><p>%1</p></blockquote>").arg(escaped(block.text));
    case BlockType::code:
        return QStringLiteral("<pre><code class=\"language-%1\">%2</code></pre>")
            .arg(block.language.toHtmlEscaped(), block.text.toHtmlEscaped());
    case BlockType::divider:
        return QStringLiteral("<hr>");
    case BlockType::paragraph:
        break;
    }
    return element(QStringLiteral("p"), block.text);
}

/// Walks through a document and makes blocks of its parts.
class Reader
{
public:
    QList<Block> read(const QTextDocument &document)
    {
        for (QTextBlock part = document.begin(); part.isValid(); part = part.next())
            take(part);
        // What a browser puts around what was copied leaves empty lines.
        m_blocks.removeIf([](const Block &block) {
            return block.text.trimmed().isEmpty() && block.type != BlockType::divider;
        });
        return m_blocks;
    }

private:
    void take(const QTextBlock &part)
    {
        const bool isCode = part.blockFormat().nonBreakableLines();
        const bool goesOn = isCode && m_wasCode;
        const QTextTable *const table = QTextCursor(part).currentTable();
        const int row = table ? table->cellAt(part.position()).row() : -1;
        const bool isInRow = table && table == m_table && row == m_row;
        m_wasCode = isCode;
        m_table = table;
        m_row = row;
        Block block = typed(part);
        if (goesOn)
            m_blocks.last().text += u'\n' + block.text;
        else if (isInRow && !m_blocks.isEmpty())
            m_blocks.last().text += QStringLiteral(" | ") + block.text;
        else
            m_blocks.append(block);
    }

    static Block typed(const QTextBlock &part)
    {
        const QTextBlockFormat format = part.blockFormat();
        Block block;
        block.text = part.text().replace(QChar::LineSeparator, u'\n').replace(QChar::Nbsp, u' ');
        block.text.remove(QChar::ObjectReplacementCharacter);
        if (format.nonBreakableLines()) {
            block.type = BlockType::code;
            block.language = QStringLiteral("plain");
            return block;
        }
        if (format.hasProperty(QTextFormat::BlockTrailingHorizontalRulerWidth))
            block.type = BlockType::divider;
        else if (const int level = format.headingLevel())
            block.type = BlockType(int(BlockType::heading1) + std::min(level, 3) - 1);
        else if (const QTextList *const list = part.textList())
            takeItem(block, list->format().style(), format.marker());
        else if (format.leftMargin() > 0 && format.rightMargin() > 0)
            block.type = BlockType::quote;
        block.text = block.text.trimmed();
        return block;
    }

    static void takeItem(Block &block, QTextListFormat::Style style, QTextBlockFormat::MarkerType marker)
    {
        // Of the styles those with numbers and letters come after those with marks.
        block.type = style <= QTextListFormat::ListDecimal ? BlockType::numbered : BlockType::bulleted;
        const QChar box = block.text.isEmpty() ? QChar() : block.text.front();
        const bool isBox = box == u'☐' || box == u'☑' || box == u'☒';
        if (!isBox && marker == QTextBlockFormat::MarkerType::NoMarker)
            return;
        block.type = BlockType::checklist;
        block.checked = isBox ? box != u'☐' : marker == QTextBlockFormat::MarkerType::Checked;
        if (isBox)
            block.text.remove(0, 1);
    }

    QList<Block> m_blocks;
    bool m_wasCode = false;
    const QTextTable *m_table = nullptr;
    int m_row = -1;
};
} // namespace

QString BlockHtml::write(const QList<Block> &blocks)
{
    QString html;
    QString list;
    for (const Block &block : blocks) {
        const QString next = listName(block.type);
        if (next != list && !list.isEmpty())
            html += QStringLiteral("</%1>\n").arg(list);
        if (next != list && !next.isEmpty())
            html += QStringLiteral("<%1>\n").arg(next);
        html += written(block) + u'\n';
        list = next;
    }
    if (!list.isEmpty())
        html += QStringLiteral("</%1>\n").arg(list);
    return html;
}

QList<Block> BlockHtml::read(const QString &html)
{
    Document document;
    document.setHtml(html);
    return Reader().read(document);
}
