#include "Features/Pages/PageSelection.h"

#include "Features/Pages/PageEditorViewModel.h"

#include <QClipboard>
#include <QGuiApplication>

PageSelection::PageSelection(PageEditorViewModel *editor) : QObject(editor), m_editor(*editor) {}

int PageSelection::focusRow() const
{
    return m_selection.focus() == m_selection.anchor() ||
                   m_editor.blocks().value(m_range.first).id != m_selection.focus()
               ? last()
               : first();
}

QString PageSelection::text() const
{
    if (!isActive())
        return {};
    return m_range.count == 1 ? tr("1 block selected") : tr("%1 blocks selected").arg(m_range.count);
}

QList<Block> PageSelection::blocks() const
{
    return m_selection.in(m_editor.blocks()).of(m_editor.blocks());
}

void PageSelection::select(const QUuid &anchor, const QUuid &focus)
{
    BlockSelection selection;
    selection.select(anchor, focus);
    setSelection(selection);
}

void PageSelection::extendTo(const QUuid &blockID)
{
    select(isActive() ? m_selection.anchor() : blockID, blockID);
}

void PageSelection::extend(int delta)
{
    BlockSelection selection = m_selection;
    selection.extend(m_editor.blocks(), delta);
    setSelection(selection);
}

void PageSelection::selectAll()
{
    BlockSelection selection;
    selection.selectAll(m_editor.blocks());
    setSelection(selection);
}

void PageSelection::clear()
{
    setSelection({});
}

void PageSelection::copy() const
{
    if (isActive())
        QGuiApplication::clipboard()->setMimeData(BlockClipboard::dataOf(blocks()).release());
}

void PageSelection::cut()
{
    copy();
    replace(tr("Cut Blocks"), {}, -1);
}

void PageSelection::remove()
{
    replace(tr("Delete Blocks"), {}, -1);
}

void PageSelection::typeOver(const QString &text)
{
    replace(tr("Replace Blocks"), {Block{.text = text}}, text.size());
}

void PageSelection::paste(bool plain)
{
    const QMimeData *const data = QGuiApplication::clipboard()->mimeData();
    if (!data || !isActive())
        return;
    const BlockClipboard::Texts texts = BlockClipboard::Texts::of(*data);
    const auto take = [this, plainText = texts.plain](const QList<Block> &blocks) {
        const QList<Block> pasted = blocks.isEmpty() ? BlockClipboard::linesIn(plainText) : blocks;
        if (!pasted.isEmpty())
            replace(tr("Paste"), pasted, pasted.last().text.size());
    };
    if (plain)
        take({});
    else
        m_clipboard.read(texts, take);
}

void PageSelection::duplicate()
{
    const BlockRange range = m_selection.in(m_editor.blocks());
    if (range.isEmpty())
        return;
    m_editor.changeBlocks(tr("Duplicate Blocks"),
                          [&](QList<Block> &blocks) { range.duplicate(blocks, m_editor.idMaker()); });
    const QList<Block> &blocks = m_editor.blocks();
    select(blocks[range.end()].id, blocks[range.end() + range.count - 1].id);
}

void PageSelection::changeType(int type)
{
    const BlockRange range = m_selection.in(m_editor.blocks());
    if (EnumChoices::isCase<BlockType>(type) && !range.isEmpty())
        m_editor.changeBlocks(tr("Change Block Type"),
                              [&](QList<Block> &blocks) { range.changeType(blocks, BlockType(type)); });
}

void PageSelection::move(int direction)
{
    const BlockRange range = m_selection.in(m_editor.blocks());
    moveTo(int(direction < 0 ? range.first - 1 : range.end() + 1));
}

void PageSelection::moveTo(int row)
{
    const BlockRange range = m_selection.in(m_editor.blocks());
    const bool moves = row < range.first || row > range.end();
    if (!range.isEmpty() && moves && row >= 0 && row <= m_editor.blocks().size())
        m_editor.changeBlocks(tr("Move Blocks"), [&](QList<Block> &blocks) { range.moveTo(blocks, row); });
}

void PageSelection::update()
{
    const BlockRange range = m_selection.in(m_editor.blocks());
    if (range.isEmpty())
        m_selection.clear();
    if (std::exchange(m_range, range) != range)
        emit changed();
}

void PageSelection::replace(const QString &name, QList<Block> blocks, qsizetype caret)
{
    const BlockRange range = m_selection.in(m_editor.blocks());
    if (range.isEmpty())
        return;
    // A page is never left without a block.
    if (blocks.isEmpty() && range.count == m_editor.blocks().size())
        blocks.append(Block());
    for (Block &block : blocks)
        block.id = m_editor.idMaker()();
    m_editor.changeBlocks(name, [&](QList<Block> &content) { range.replace(content, blocks); });
    clear();
    const QList<Block> &content = m_editor.blocks();
    const qsizetype next = blocks.isEmpty() ? range.first : range.first + blocks.size() - 1;
    m_editor.focusBlock(content[std::min(next, content.size() - 1)].id, caret);
}

void PageSelection::setSelection(const BlockSelection &selection)
{
    const bool isSameFocus = m_selection.focus() == selection.focus();
    m_selection = selection;
    const BlockRange range = m_selection.in(m_editor.blocks());
    if (std::exchange(m_range, range) != range || !isSameFocus)
        emit changed();
}
