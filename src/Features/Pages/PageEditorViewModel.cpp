#include "Features/Pages/PageEditorViewModel.h"

#include "Models/CodeLanguage.h"

#include <QClipboard>
#include <QGuiApplication>

#include <utility>

PageEditorViewModel::PageEditorViewModel(QObject *parent)
    : ViewModel(parent), m_selection(new PageSelection(this)), m_beforeNextKey([this] { flush(); })
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
    if (!blockID.isNull())
        m_selection->clear();
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
    changeBlocks(tr("Add Block"),
                 [&](QList<Block> &blocks) { PageBlocks::insertAfter(blocks, after, fresh); });
    requestFocus(fresh.id, 0);
}

void PageEditorViewModel::appendBlock()
{
    const Block fresh = freshBlock();
    changeBlocks(tr("Add Block"), [&](QList<Block> &blocks) { blocks.append(fresh); });
    requestFocus(fresh.id, 0);
}

void PageEditorViewModel::duplicateBlock(const QUuid &blockID)
{
    changeBlocks(tr("Duplicate Block"),
                 [&](QList<Block> &blocks) { PageBlocks::duplicate(blocks, blockID, store().makeId()); });
}

void PageEditorViewModel::deleteBlock(const QUuid &blockID)
{
    qsizetype index = -1;
    changeBlocks(tr("Delete Block"), [&](QList<Block> &blocks) {
        index = PageBlocks::indexOf(blocks, blockID);
        PageBlocks::remove(blocks, blockID, freshBlock());
    });
    if (index < 0 || m_focusedBlock != blockID)
        return;
    const QList<Block> &blocks = page()->content;
    requestFocus(blocks[std::min(index, blocks.size() - 1)].id, -1);
}

void PageEditorViewModel::moveBlock(const QUuid &blockID, int delta)
{
    changeBlocks(tr("Move Block"), [&](QList<Block> &blocks) { PageBlocks::move(blocks, blockID, delta); });
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

int PageEditorViewModel::showPartAt(const QUuid &blockID, int position)
{
    if (const Block *const found = block(blockID)) {
        m_parts.show(*found, position);
        m_rows.changeRow(blockID, [&](BlockRow &row) { row.setBlock(*found, m_parts); });
    }
    return partBegin(blockID);
}

int PageEditorViewModel::partBegin(const QUuid &blockID) const
{
    const Block *const found = block(blockID);
    return found ? int(m_parts.of(*found).begin) : 0;
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
    m_selection->update();
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

const QList<Block> &PageEditorViewModel::blocks() const
{
    static const QList<Block> none;
    const Page *const shown = page();
    return shown ? shown->content : none;
}

std::function<QUuid()> PageEditorViewModel::idMaker() const
{
    return [&store = store()] { return store.makeId(); };
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

void PageEditorViewModel::changePage(const QString &name, const std::function<void(Page &)> &edit)
{
    const Action action(store(), name);
    store().change<Page>(m_pageID, [&](Page &page) {
        edit(page);
        page.updatedDate = store().now();
    });
}

void PageEditorViewModel::changeBlocks(const QString &name, const std::function<void(QList<Block> &)> &edit)
{
    changePage(name, [&](Page &page) { edit(page.content); });
    m_beforeNextKey.arm();
}

void PageEditorViewModel::changeBlock(const QString &name, const QUuid &blockID,
                                      const std::function<void(Block &)> &edit)
{
    changePage(name, [&](Page &page) {
        const qsizetype index = PageBlocks::indexOf(page.content, blockID);
        if (index >= 0)
            edit(page.content[index]);
    });
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
