#include "Features/Pages/PageEditorViewModel.h"

#include "Foundation/EnumChoices.h"
#include "Foundation/LineText.h"
#include "Models/CodeLanguage.h"

#include <QClipboard>
#include <QGuiApplication>

#include <utility>

namespace
{
Block freshBlock(const QString &text = {})
{
    Block block;
    block.id = QUuid::createUuid();
    block.text = text;
    return block;
}
} // namespace

PageEditorViewModel::PageEditorViewModel(QObject *parent)
    : QObject(parent), m_refresh([this] { refresh(); }), m_beforeNextKey([this] { m_refresh.flush(); })
{
}

void PageEditorViewModel::setStore(WorkspaceStore *store)
{
    if (m_store == store)
        return;
    if (m_store)
        m_store->disconnect(this);
    m_store = store;
    if (m_store)
        connect(m_store, &WorkspaceStore::changed, this, &PageEditorViewModel::follow);
    emit storeChanged();
    refresh();
}

void PageEditorViewModel::setPageID(const QUuid &pageID)
{
    if (m_pageID == pageID)
        return;
    m_pageID = pageID;
    emit pageIDChanged();
    refresh();
}

QStringList PageEditorViewModel::typeLabels()
{
    return EnumChoices::labels<BlockType>();
}

QStringList PageEditorViewModel::typeSymbols()
{
    return EnumChoices::symbols<BlockType>();
}

QStringList PageEditorViewModel::toneLabels()
{
    return EnumChoices::labels<CalloutTone>();
}

QStringList PageEditorViewModel::toneSymbols()
{
    return EnumChoices::symbols<CalloutTone>();
}

void PageEditorViewModel::blockFocused(const QUuid &blockID)
{
    if (m_focusedBlock == blockID)
        return;
    m_focusedBlock = blockID;
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
    changeList([&](Page &page) { PageBlocks::insertAfter(page.content, after, fresh); });
    requestFocus(fresh.id, 0);
}

void PageEditorViewModel::appendBlock()
{
    const Block fresh = freshBlock();
    changeList([&](Page &page) { page.content.append(fresh); });
    requestFocus(fresh.id, 0);
}

void PageEditorViewModel::duplicateBlock(const QUuid &blockID)
{
    changeList([&](Page &page) { PageBlocks::duplicate(page.content, blockID, QUuid::createUuid()); });
}

void PageEditorViewModel::deleteBlock(const QUuid &blockID)
{
    qsizetype index = -1;
    changeList([&](Page &page) {
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
    changeList([&](Page &page) { PageBlocks::move(page.content, blockID, delta); });
}

void PageEditorViewModel::changeType(const QUuid &blockID, int type)
{
    if (!EnumChoices::isCase<BlockType>(type))
        return;
    changeBlock(blockID, [&](Block &block) { PageBlocks::changeType(block, BlockType(type)); });
    requestFocus(blockID, -1);
}

void PageEditorViewModel::applySlash(const QUuid &blockID, int type)
{
    if (!EnumChoices::isCase<BlockType>(type))
        return;
    changeBlock(blockID, [&](Block &block) {
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

QString PageEditorViewModel::setText(const QUuid &blockID, const QString &text)
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
    const Place caret = editText(*before, edit);
    if (caret.blockID != blockID)
        requestFocus(caret.blockID, caret.position);
    const Block *const after = block(blockID);
    return after ? m_parts.of(*after).in(after->text) : text;
}

bool PageEditorViewModel::pasteLong(const QUuid &blockID, int selectionStart, int selectionEnd)
{
    const Block *const target = block(blockID);
    const QString pasted = LineText::withLineFeeds(QGuiApplication::clipboard()->text());
    if (!target || pasted.size() <= ShownParts::maxTextLength)
        return false;
    const qsizetype begin = m_parts.of(*target).begin;
    const Place caret = editText(*target, {begin + selectionStart, begin + selectionEnd, pasted});
    requestFocus(caret.blockID, caret.position);
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
    changeBlock(blockID, [](Block &block) { block.checked = !block.checked; });
}

void PageEditorViewModel::setTone(const QUuid &blockID, int tone)
{
    if (EnumChoices::isCase<CalloutTone>(tone))
        changeBlock(blockID, [&](Block &block) { block.tone = CalloutTone(tone); });
}

void PageEditorViewModel::setLanguage(const QUuid &blockID, const QString &language)
{
    if (enumFromRaw<CodeLanguage>(language))
        changeBlock(blockID, [&](Block &block) { block.language = language; });
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

void PageEditorViewModel::follow(const ChangeSet &changes)
{
    if (changes.of<Page>().contains(m_pageID))
        m_refresh.request();
}

void PageEditorViewModel::refresh()
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
    m_blocks = blocks;
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
    m_refresh.request();
    m_beforeNextKey.arm();
}

void PageEditorViewModel::giveFocus()
{
    const auto row = std::ranges::find(m_rows.rows(), std::exchange(m_wantedFocus, {}), &BlockRow::id);
    if (row != m_rows.rows().end())
        emit focusRequested(int(row - m_rows.rows().begin()),
                            int(m_wantedCaret < 0 ? -1 : m_wantedCaret - row->part.begin));
}

const Page *PageEditorViewModel::page() const
{
    return m_store ? m_store->pages().first(m_pageID) : nullptr;
}

const Block *PageEditorViewModel::block(const QUuid &blockID) const
{
    const Page *const shown = page();
    const qsizetype index = shown ? PageBlocks::indexOf(shown->content, blockID) : -1;
    return index < 0 ? nullptr : &shown->content[index];
}

template <typename Edit>
void PageEditorViewModel::changePage(Edit edit)
{
    if (!m_store)
        return;
    m_store->change<Page>(m_pageID, [&](Page &page) {
        edit(page);
        page.updatedDate = m_store->clock().now();
    });
}

template <typename Edit>
void PageEditorViewModel::changeList(Edit edit)
{
    changePage(edit);
    m_beforeNextKey.arm();
}

template <typename Edit>
void PageEditorViewModel::changeBlock(const QUuid &blockID, Edit edit)
{
    changePage([&](Page &page) {
        const qsizetype index = PageBlocks::indexOf(page.content, blockID);
        if (index >= 0)
            edit(page.content[index]);
    });
}

PageEditorViewModel::Place PageEditorViewModel::editText(const Block before, const PageBlocks::TextEdit &edit)
{
    const ShownParts::Part part = m_parts.of(before);
    auto lines = before.type == BlockType::code ? std::nullopt : PageBlocks::brokenLines(before.text, edit);
    Place caret{before.id, edit.begin + edit.inserted.size()};
    const auto write = [&](Block &block) {
        block.text = lines ? lines->first
                           : QString(before.text).replace(edit.begin, edit.end - edit.begin, edit.inserted);
        const qsizetype behind = lines ? 0 : before.text.size() - part.end;
        m_parts.keep(block, {part.begin, block.text.size() - behind});
        caret.position = std::min(caret.position, block.text.size());
    };
    if (!lines || lines->rest.isEmpty()) {
        changeBlock(before.id, write);
        return caret;
    }
    changeList([&](Page &page) {
        qsizetype index = PageBlocks::indexOf(page.content, before.id);
        write(page.content[index]);
        page.content.insert(index + 1, lines->rest.size(), Block());
        for (const QString &line : lines->rest)
            page.content[++index] = freshBlock(line);
        caret = {page.content[index].id, lines->caret};
    });
    return caret;
}
