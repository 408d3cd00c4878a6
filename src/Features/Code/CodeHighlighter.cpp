#include "Features/Code/CodeHighlighter.h"

#include <QAbstractTextDocumentLayout>
#include <QScopedValueRollback>
#include <QTextDocument>
#include <QTextLayout>

#include <utility>

namespace
{
using CodeSyntax::Open;
using Ranges = QList<QTextLayout::FormatRange>;

/// What an edit itself may cost, and each portion after it; an empty line counts for something too.
constexpr qsizetype editUnits = 4000, portionUnits = 20'000, unitsPerLine = 20;

/// A longer line stays plain.
constexpr int mostLineUnits = 20'000;

/// What a block remembers: what was open before it, what it leaves open to the next one, and whether it has
/// the colours of that.
struct BlockState {
    Open before;
    Open after;
    bool isColored = false;

    static constexpr int unknown = -1;

    static int packed(Open open)
    {
        static_assert(int(Open::Construct::quote) < 4);
        // Quotes are ASCII.
        return int(open.construct) | int(open.quote) << 2;
    }
    static Open unpacked(int bits) { return {Open::Construct(bits & 3), char16_t(bits >> 2 & 0x7f)}; }
    int toUserState() const { return packed(before) | packed(after) << 9 | int(isColored) << 18; }
    static BlockState of(const QTextBlock &block)
    {
        const int bits = block.userState();
        return {unpacked(bits & 0x1ff), unpacked(bits >> 9 & 0x1ff), (bits >> 18 & 1) == 1};
    }
};

/// The text of the block with the line feeds that a document keeps within a block.
QString textOf(const QTextBlock &block)
{
    QString text = block.text();
    for (const QChar inner : {QChar(QChar::LineSeparator), QChar(0xfdd0), QChar(0xfdd1)})
        if (text.contains(inner))
            text.replace(inner, QLatin1Char('\n'));
    return text;
}

/// Puts the ranges around the text that an input method is still composing, whose own formats stay.
Ranges aroundComposition(Ranges ranges, const QTextLayout &layout)
{
    const int start = layout.preeditAreaPosition(), length = int(layout.preeditAreaText().size());
    if (length == 0)
        return ranges;
    for (QTextLayout::FormatRange &range : ranges) {
        if (range.start >= start)
            range.start += length;
        else if (range.start + range.length > start)
            range.length += length;
    }
    const Ranges present = layout.formats();
    for (const QTextLayout::FormatRange &range : present)
        if (range.start >= start && range.start + range.length <= start + length)
            ranges.append(range);
    return ranges;
}
} // namespace

CodeHighlighter::CodeHighlighter(QTextDocument *document, QObject *parent)
    : QObject(parent), m_document(document)
{
    // Without a layout a document does not tell what changed.
    m_document->documentLayout();
    m_formats[std::size_t(CodeTokenKind::keyword)].setFontWeight(QFont::DemiBold);
    m_formats[std::size_t(CodeTokenKind::typeName)].setFontWeight(QFont::Medium);
    m_portions.setSingleShot(true);
    m_portions.setInterval(0);
    connect(&m_portions, &QTimer::timeout, this, [this] { colorPortion(portionUnits); });
    connect(m_document, &QTextDocument::contentsChange, this, &CodeHighlighter::recolor);
    recolorAll();
}

void CodeHighlighter::setLanguage(CodeLanguage language)
{
    if (std::exchange(m_language, language) != language)
        recolorAll();
}

void CodeHighlighter::setColors(const Colors &colors)
{
    bool isChanged = false;
    for (std::size_t kind = 0; kind < colors.size(); ++kind) {
        isChanged = isChanged || m_formats[kind].foreground() != QBrush(colors[kind]);
        m_formats[kind].setForeground(colors[kind]);
    }
    if (isChanged)
        recolorAll();
}

void CodeHighlighter::setVisibleLines(int first, int last)
{
    m_firstVisible = first;
    m_lastVisible = last;
    const QScopedValueRollback coloring(m_isColoring, true);
    QTextCursor cursor(m_document);
    QTextBlock start, end;
    for (QTextBlock block = m_document->findBlockByNumber(first); block.isValid() && first <= last;
         block = block.next(), ++first) {
        if (block.userState() == BlockState::unknown || BlockState::of(block).isColored)
            continue;
        if (!start.isValid()) {
            start = block;
            // An edit without a change makes views repaint what has other colours.
            cursor.beginEditBlock();
        }
        const BlockState state = BlockState::of(block);
        scan(block, state.before);
        paint(block);
        block.setUserState(BlockState{state.before, state.after, true}.toUserState());
        end = block;
    }
    if (!start.isValid())
        return;
    m_document->markContentsDirty(start.position(), end.position() + end.length() - start.position() - 1);
    cursor.endEditBlock();
}

void CodeHighlighter::settle()
{
    if (!isSettled())
        colorPortion(std::numeric_limits<qsizetype>::max());
}

void CodeHighlighter::recolorAll()
{
    for (QTextBlock block = m_document->begin(); block.isValid(); block = block.next())
        block.setUserState(BlockState::unknown);
    m_lastChanged = QTextCursor(m_document->lastBlock());
    goOnFrom(m_document->firstBlock());
    colorPortion(portionUnits);
}

void CodeHighlighter::recolor(int from, int, int added)
{
    if (m_isColoring)
        return;
    const QTextBlock first = m_document->findBlock(from);
    // A document that was replaced as a whole counts one unit too many.
    const QTextBlock last = m_document->findBlock(qMin(from + added, m_document->characterCount() - 1));
    for (QTextBlock block = first; block.isValid() && block.blockNumber() <= last.blockNumber();
         block = block.next())
        block.setUserState(BlockState::unknown);
    if (m_lastChanged.isNull() || m_lastChanged.position() < last.position())
        m_lastChanged = QTextCursor(last);
    // Views repaint now what was edited, and no more.
    goOnFrom(colorLines(first, last.position(), editUnits));
}

void CodeHighlighter::colorPortion(qsizetype units)
{
    const QTextBlock start = m_next.block();
    m_next = QTextCursor();
    // An edit without a change makes views repaint what has other colours.
    const QScopedValueRollback coloring(m_isColoring, true);
    QTextCursor cursor(m_document);
    cursor.beginEditBlock();
    goOnFrom(colorLines(start, std::numeric_limits<int>::max(), units));
    cursor.endEditBlock();
}

QTextBlock CodeHighlighter::colorLines(QTextBlock block, int until, qsizetype units)
{
    const QTextBlock previous = block.previous();
    const bool isKnown = previous.isValid() && previous.userState() != BlockState::unknown;
    Open open = isKnown ? BlockState::of(previous).after : Open{};
    int start = -1, end = -1;
    bool isDone = false;
    for (int line = block.blockNumber(); block.isValid(); block = block.next(), ++line) {
        const bool isRight = block.userState() != BlockState::unknown && BlockState::of(block).before == open;
        isDone = isRight && block.position() > m_lastChanged.position();
        if (isDone || units <= 0 || block.position() > until)
            break;
        if (isRight) {
            open = BlockState::of(block).after;
            --units;
            continue;
        }
        const Open after = scan(block, open);
        if (isVisible(line)) {
            paint(block);
            start = start < 0 ? block.position() : start;
            end = block.position() + block.length() - 1;
        }
        block.setUserState(BlockState{open, after, isVisible(line)}.toUserState());
        open = after;
        units -= block.length() + unitsPerLine;
    }
    if (start >= 0)
        m_document->markContentsDirty(start, end - start);
    return isDone ? QTextBlock() : block;
}

CodeSyntax::Open CodeHighlighter::scan(const QTextBlock &block, Open open)
{
    m_tokens.clear();
    if (block.length() > mostLineUnits)
        return open;
    return CodeSyntax::scanLine(textOf(block), block.next().isValid(), open, m_language, m_tokens);
}

void CodeHighlighter::paint(const QTextBlock &block)
{
    Ranges ranges;
    for (const CodeToken &token : std::as_const(m_tokens))
        ranges.append({int(token.location), int(token.length), m_formats[std::size_t(token.kind)]});
    block.layout()->setFormats(aroundComposition(ranges, *block.layout()));
}

void CodeHighlighter::goOnFrom(const QTextBlock &block)
{
    if (block.isValid()) {
        if (m_next.isNull() || m_next.position() > block.position())
            m_next = QTextCursor(block);
        if (m_lastChanged.position() < block.position())
            m_lastChanged = QTextCursor(block);
    }
    if (m_next.isNull()) {
        m_lastChanged = QTextCursor();
        m_portions.stop();
    } else {
        m_portions.start();
    }
}
