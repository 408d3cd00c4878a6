#include "Features/Pages/PageEditorViewModel.h"

#include "Foundation/LineText.h"
#include "Models/CodeLanguage.h"

#include <QClipboard>
#include <QGuiApplication>

#include <utility>

PageEditorViewModel::PageEditorViewModel(QObject *parent)
    : ViewModel(parent), m_beforeNextKey([this] { flush(); })
{
    follow<Page>();
}

void PageEditorViewModel::start()
{
    // A key that follows an undo at once must find the text as it is then.
    connect(session()->undo(), &UndoController::restoredChanged, this, [this] { m_beforeNextKey.arm(); });
}

void PageEditorViewModel::setPageID(const QUuid &pageID)
{
    if (m_pageID == pageID)
        return;
    m_pageID = pageID;
    emit pageIDChanged();
    requestWholeRefresh();
    flush();
}

void PageEditorViewModel::blockFocused(const QUuid &blockID)
{
    if (m_focusedBlock == blockID)
        return;
    m_focusedBlock = blockID;
    store().endTyping();
    m_dismissedText.reset();
    showSlashMenu();
}

void PageEditorViewModel::blockLeft(const QUuid &blockID)
{
    if (m_focusedBlock == blockID)
        blockFocused({});
}

void PageEditorViewModel::insertBlock(const QUuid &after)
{
    const Block fresh = freshBlock();
    changeList(tr("Add Block"), [&](Page &page) { PageBlocks::insertAfter(page.content, after, fresh); });
    requestFocus(fresh.id, 0);
}

void PageEditorViewModel::appendBlock()
{
    const Block fresh = freshBlock();
    changeList(tr("Add Block"), [&](Page &page) { page.content.append(fresh); });
    requestFocus(fresh.id, 0);
}

void PageEditorViewModel::duplicateBlock(const QUuid &blockID)
{
    changeList(tr("Duplicate Block"),
               [&](Page &page) { PageBlocks::duplicate(page.content, blockID, store().makeId()); });
}

void PageEditorViewModel::deleteBlock(const QUuid &blockID)
{
    qsizetype index = -1;
    changeList(tr("Delete Block"), [&](Page &page) {
        index = PageBlocks::indexOf(page.content, blockID);
        PageBlocks::remove(page.content, blockID, freshBlock());
    });
    if (index < 0 || m_focusedBlock != blockID)
        return;
    const QList<Block> &blocks = page()->content;
    requestFocus(blocks[std::min(index, blocks.size() - 1)].id, -1);
}

void PageEditorViewModel::moveBlock(const QUuid &blockID, int delta)
{
    changeList(tr("Move Block"), [&](Page &page) { PageBlocks::move(page.content, blockID, delta); });
}

void PageEditorViewModel::changeType(const QUuid &blockID, int type)
{
    if (!EnumChoices::isCase<BlockType>(type))
        return;
    changeBlock(tr("Change Block Type"), blockID,
                [&](Block &block) { PageBlocks::changeType(block, BlockType(type)); });
    requestFocus(blockID, -1);
}

void PageEditorViewModel::applySlash(const QUuid &blockID, int type)
{
    if (!EnumChoices::isCase<BlockType>(type))
        return;
    changeBlock(tr("Change Block Type"), blockID, [&](Block &block) {
        PageBlocks::changeType(block, BlockType(type));
        block.text.clear();
    });
    requestFocus(blockID, 0);
}

void PageEditorViewModel::dismissSlash()
{
    if (const Block *const focused = block(m_focusedBlock))
        m_dismissedText = focused->text;
    showSlashMenu();
}

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
    const Block *const after = block(blockID);
    return after ? m_parts.of(*after).in(after->text) : text;
}

bool PageEditorViewModel::paste(const QUuid &blockID, int selectionStart, int selectionEnd)
{
    const Block *const target = block(blockID);
    const QString pasted = LineText::withLineFeeds(QGuiApplication::clipboard()->text());
    if (!target || pasted.isEmpty())
        return false;
    // The editor of code takes what it can lay out, which costs less than to show the text anew.
    if (target->type == BlockType::code && pasted.size() <= ShownParts::maxTextLength)
        return false;
    const qsizetype begin = m_parts.of(*target).begin;
    const Action action(store(), tr("Paste"));
    const Place end = editText(*target, {begin + selectionStart, begin + selectionEnd, pasted}, -1);
    requestFocus(end.blockID, end.position);
    return true;
}

bool PageEditorViewModel::hasPart(const QUuid &blockID, int direction) const
{
    const Block *const found = block(blockID);
    return found && ShownParts(m_parts).step(*found, direction);
}

bool PageEditorViewModel::showPart(const QUuid &blockID, int direction)
{
    const Block *const found = block(blockID);
    if (!found || !m_parts.step(*found, direction))
        return false;
    const ShownParts::Part part = m_parts.of(*found);
    requestFocus(blockID, direction > 0 ? part.begin : part.end);
    return true;
}

void PageEditorViewModel::toggleChecked(const QUuid &blockID)
{
    changeBlock(tr("Check To-do"), blockID, [](Block &block) { block.checked = !block.checked; });
}

void PageEditorViewModel::setTone(const QUuid &blockID, int tone)
{
    if (EnumChoices::isCase<CalloutTone>(tone))
        changeBlock(tr("Change Tone"), blockID, [&](Block &block) { block.tone = CalloutTone(tone); });
}

void PageEditorViewModel::setLanguage(const QUuid &blockID, const QString &language)
{
    if (enumFromRaw<CodeLanguage>(language))
        changeBlock(tr("Change Language"), blockID, [&](Block &block) { block.language = language; });
}

CodeRun *PageEditorViewModel::codeRun(const QUuid &blockID)
{
    CodeRun *&run = m_runs[blockID];
    if (!run)
        run = new CodeRun(this);
    return run;
}

void PageEditorViewModel::runInlineCode(const QUuid &blockID)
{
    if (const Block *const code = block(blockID))
        codeRun(blockID)->run(code->text, code->language);
}

void PageEditorViewModel::copyCode(const QUuid &blockID) const
{
    if (const Block *const code = block(blockID))
        QGuiApplication::clipboard()->setText(code->text);
}

void PageEditorViewModel::copyOutput(const QUuid &blockID)
{
    QGuiApplication::clipboard()->setText(codeRun(blockID)->output());
}

void PageEditorViewModel::refresh(const ChangeSet &)
{
    m_beforeNextKey.disarm();
    const Page *const shown = page();
    if (!shown)
        return;
    if (m_title != shown->title) {
        m_title = shown->title;
        emit titleChanged();
    }
    if (const Block *const wanted = block(m_wantedFocus); wanted && m_wantedCaret >= 0)
        m_parts.show(*wanted, m_wantedCaret);
    showBlocks(shown->content);
    showSlashMenu();
    giveFocus();
}

bool PageEditorViewModel::reveal(const UndoPlace &place)
{
    if (place.record != m_pageID || place.textRecord == m_pageID || !page())
        return false;
    const Place changed = place.textRecord.isNull() ? changedPlace(m_earlierBlocks, m_blocks)
                                                    : Place{place.textRecord, place.caret};
    if (!changed.blockID.isNull()) {
        requestFocus(changed.blockID, changed.position);
        flush();
    }
    return true;
}

void PageEditorViewModel::showBlocks(const QList<Block> &blocks)
{
    const auto sameList = [](const Block &a, const Block &b) { return a.id == b.id && a.type == b.type; };
    if (std::ranges::equal(m_blocks, blocks, sameList)) {
        for (qsizetype i = 0; i < blocks.size(); ++i)
            if (m_blocks[i] != blocks[i] || blocks[i].id == m_wantedFocus)
                m_rows.changeRow(blocks[i].id, [&](BlockRow &row) { row.setBlock(blocks[i], m_parts); });
    } else {
        m_rows.setRows(BlockRow::ofBlocks(blocks, m_parts));
    }
    m_earlierBlocks = std::exchange(m_blocks, blocks);
    dropRuns();
}

void PageEditorViewModel::dropRuns()
{
    m_runs.removeIf([this](const auto &run) {
        const qsizetype index = PageBlocks::indexOf(m_blocks, run.key());
        const bool isGone = index < 0 || m_blocks[index].type != BlockType::code;
        if (isGone)
            run.value()->deleteLater();
        return isGone;
    });
}

void PageEditorViewModel::showSlashMenu()
{
    QList<int> types;
    const Block *const focused = block(m_focusedBlock);
    if (!focused || m_dismissedText != focused->text)
        m_dismissedText.reset();
    if (focused && !m_dismissedText)
        for (const BlockType type : PageBlocks::slashMenu(*focused))
            types.append(int(type));
    if (types == m_slashTypes)
        return;
    m_slashTypes = types;
    emit slashTypesChanged();
}

void PageEditorViewModel::requestFocus(const QUuid &blockID, qsizetype caret)
{
    m_wantedFocus = blockID;
    m_wantedCaret = caret;
    requestRefresh();
    m_beforeNextKey.arm();
}

void PageEditorViewModel::giveFocus()
{
    const auto row = std::ranges::find(m_rows.rows(), std::exchange(m_wantedFocus, {}), &BlockRow::id);
    if (row != m_rows.rows().end())
        emit focusRequested(int(row - m_rows.rows().begin()),
                            int(m_wantedCaret < 0 ? -1 : m_wantedCaret - row->part.begin));
}

Block PageEditorViewModel::freshBlock(const QString &text) const
{
    return {.id = store().makeId(), .text = text};
}

const Page *PageEditorViewModel::page() const
{
    return session() ? store().pages().first(m_pageID) : nullptr;
}

const Block *PageEditorViewModel::block(const QUuid &blockID) const
{
    const Page *const shown = page();
    const qsizetype index = shown ? PageBlocks::indexOf(shown->content, blockID) : -1;
    return index < 0 ? nullptr : &shown->content[index];
}

template <typename Edit>
void PageEditorViewModel::changePage(const QString &name, Edit edit)
{
    const Action action(store(), name);
    store().change<Page>(m_pageID, [&](Page &page) {
        edit(page);
        page.updatedDate = store().now();
    });
}

template <typename Edit>
void PageEditorViewModel::changeList(const QString &name, Edit edit)
{
    changePage(name, edit);
    m_beforeNextKey.arm();
}

template <typename Edit>
void PageEditorViewModel::changeBlock(const QString &name, const QUuid &blockID, Edit edit)
{
    changePage(name, [&](Page &page) {
        const qsizetype index = PageBlocks::indexOf(page.content, blockID);
        if (index >= 0)
            edit(page.content[index]);
    });
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
    changeList(tr("Paste"), [&](Page &page) {
        qsizetype index = PageBlocks::indexOf(page.content, before.id);
        write(page.content[index]);
        page.content.insert(index + 1, lines->rest.size(), Block());
        for (const QString &line : lines->rest)
            page.content[++index] = freshBlock(line);
        end = {page.content[index].id, lines->caret};
    });
    return end;
}

PageEditorViewModel::Place PageEditorViewModel::changedPlace(const QList<Block> &before,
                                                             const QList<Block> &after)
{
    if (before.isEmpty() || after.isEmpty() || before == after)
        return {};
    const auto [old, now] = std::ranges::mismatch(before, after);
    if (now == after.end())
        return {after.last().id, after.last().text.size()};
    if (old != before.end() && old->id == now->id) {
        const PageBlocks::TextEdit edit = PageBlocks::editBetween(old->text, now->text);
        if (after.size() < before.size())
            return {now->id, edit.begin};
        return {now->id,
                edit.inserted.isEmpty() && edit.begin == edit.end ? -1 : edit.begin + edit.inserted.size()};
    }
    // Where a block has gone, the one before it is next to the place.
    if (old != before.end() && PageBlocks::indexOf(after, old->id) < 0 && now != after.begin())
        return {(now - 1)->id, (now - 1)->text.size()};
    return {now->id, now->text.size()};
}
