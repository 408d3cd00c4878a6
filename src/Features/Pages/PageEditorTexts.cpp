#include "Features/Pages/PageEditorViewModel.h"
#include "Features/Pages/TextLinks.h"
#include "Features/Pages/TypedKind.h"

#include <QClipboard>
#include <QDesktopServices>
#include <QGuiApplication>
#include <QRegularExpression>

// What is written and pasted into the texts of the blocks, and the links in them.

QString PageEditorViewModel::setText(const QUuid &blockID, const QString &text, int caret)
{
    const Block *const before = block(blockID);
    if (!before)
        return text;
    const ShownParts::Part part = m_parts.of(*before);
    PageBlocks::TextEdit edit = PageBlocks::editBetween(part.in(before->text), text);
    if (edit.begin == edit.end && edit.inserted.isEmpty())
        return text;
    edit.begin += part.begin;
    edit.end += part.begin;
    const Place end = editText(*before, edit, caret < 0 ? -1 : part.begin + caret);
    if (end.blockID != blockID)
        requestFocus(end.blockID, end.position);
    const Block *after = block(blockID);
    if (const auto typed = after ? TypedKind::of(*after, edit, after->text) : std::nullopt) {
        changeKind(*typed);
        after = block(blockID);
    }
    return after ? m_parts.of(*after).in(after->text) : text;
}

bool PageEditorViewModel::paste(const QUuid &blockID, int selectionStart, int selectionEnd, bool plain)
{
    const Block *const target = block(blockID);
    const QMimeData *const data = QGuiApplication::clipboard()->mimeData();
    if (!target || !data)
        return false;
    const BlockClipboard::Texts texts = BlockClipboard::Texts::of(*data);
    const qsizetype begin = m_parts.of(*target).begin;
    const PageBlocks::TextEdit edit{begin + selectionStart, begin + selectionEnd, texts.plain};
    if (target->type == BlockType::code || plain) {
        // The editor of code takes what it can lay out, which costs less than to show the text anew.
        const bool isCode = target->type == BlockType::code;
        if (texts.plain.isEmpty() || (isCode && texts.plain.size() <= ShownParts::maxTextLength))
            return false;
        pasteText(*target, edit);
        return true;
    }
    if (texts.size() == 0)
        return false;
    m_clipboard.read(
        texts, [this, blockID, edit](const QList<Block> &blocks) { pasteBlocks(blockID, edit, blocks); });
    return true;
}

void PageEditorViewModel::correctWord(const QUuid &blockID, int begin, int end, const QString &misspelt,
                                      const QString &word)
{
    const Block *const target = block(blockID);
    if (!target)
        return;
    const ShownParts::Part part = m_parts.of(*target);
    if (begin < 0 || begin > end || target->text.mid(part.begin + begin, end - begin) != misspelt)
        return;
    const Action action(store(), tr("Correct Spelling"));
    const Place caret = editText(*target, {part.begin + begin, part.begin + end, word}, -1);
    requestFocus(caret.blockID, caret.position);
}

void PageEditorViewModel::pasteText(const Block &target, PageBlocks::TextEdit edit)
{
    // Between lines of text an empty one only sets apart.
    static const QRegularExpression emptyLines(QStringLiteral("\\n(?:[ \\t]*\\n)+"));
    if (target.type != BlockType::code)
        edit.inserted.replace(emptyLines, QStringLiteral("\n"));
    // A divider shows no text.
    if (target.type == BlockType::divider) {
        if (const QList<Block> lines = BlockClipboard::linesIn(edit.inserted); !lines.isEmpty())
            pasteBlocks(target.id, edit, lines);
        return;
    }
    const Action action(store(), tr("Paste"));
    const Place end = editText(target, edit, -1);
    requestFocus(end.blockID, end.position);
}

void PageEditorViewModel::pasteBlocks(const QUuid &blockID, PageBlocks::TextEdit edit,
                                      const QList<Block> &pasted)
{
    const Block *const target = block(blockID);
    if (!target)
        return;
    // Reading took a while, in which the text may have become shorter.
    edit.end = std::min(edit.end, target->text.size());
    edit.begin = std::min(edit.begin, edit.end);
    const bool isBlank = target->text.trimmed().isEmpty();
    const bool isLine = pasted.size() == 1 && pasted.first().type != BlockType::code &&
                        pasted.first().type != BlockType::divider;
    if (target->type != BlockType::divider && !isBlank && isLine)
        edit.inserted = pasted.first().text;
    else if (!pasted.isEmpty()) {
        Place end;
        changeBlocks(tr("Paste"), [&](QList<Block> &blocks) {
            end = BlockSplice::insert(blocks, blockID, edit.begin, edit.end, pasted, idMaker());
        });
        requestFocus(end.blockID, end.position);
        return;
    }
    if (!edit.inserted.isEmpty())
        pasteText(*target, edit);
}

void PageEditorViewModel::changeKind(const Block &next)
{
    QUuid focused = next.id;
    changeBlocks(tr("Change Block Type"), [&](QList<Block> &blocks) {
        const qsizetype index = PageBlocks::indexOf(blocks, next.id);
        blocks[index] = next;
        // A divider has no text to go on in.
        if (next.type == BlockType::divider) {
            blocks.insert(index + 1, freshBlock());
            focused = blocks[index + 1].id;
        }
    });
    requestFocus(focused, 0);
}

PageEditorViewModel::Place PageEditorViewModel::editText(const Block before, const PageBlocks::TextEdit &edit,
                                                         qsizetype caret)
{
    const ShownParts::Part part = m_parts.of(before);
    const auto lines =
        before.type == BlockType::code ? std::nullopt : PageBlocks::brokenLines(before.text, edit);
    const QString text =
        lines ? lines->first : QString(before.text).replace(edit.begin, edit.end - edit.begin, edit.inserted);
    const auto write = [&](Block &block) {
        block.text = text;
        m_parts.keep(block, {part.begin, text.size() - (lines ? 0 : before.text.size() - part.end)});
    };
    if (!lines || lines->rest.isEmpty()) {
        const Action action(store(), Typing{.text = {before.id, QStringLiteral("text")},
                                            .before = before.text,
                                            .after = text,
                                            .caret = caret});
        changeBlock({}, before.id, write);
        return {before.id, std::min(edit.begin + edit.inserted.size(), text.size())};
    }
    Place end;
    changeBlocks(tr("Paste"), [&](QList<Block> &blocks) {
        qsizetype index = PageBlocks::indexOf(blocks, before.id);
        write(blocks[index]);
        blocks.insert(index + 1, lines->rest.size(), Block());
        for (const QString &line : lines->rest)
            blocks[++index] = freshBlock(line);
        end = {blocks[index].id, lines->caret};
    });
    return end;
}

QString PageEditorViewModel::linkIn(const QString &text, int position) const
{
    return TextLinks::at(text, position).toString(QUrl::FullyEncoded);
}

void PageEditorViewModel::openLink(const QString &link)
{
    const QUrl url(link);
    if (!TextLinks::isSafe(url))
        return;
    const bool isOpen = m_openLink ? m_openLink(url) : QDesktopServices::openUrl(url);
    if (!isOpen)
        emit message(tr("There is no program to open this link."));
}

void PageEditorViewModel::copyLink(const QString &link) const
{
    QGuiApplication::clipboard()->setText(link);
}
