#include "Features/Code/RowLayout.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QTextDocument>
#include <QTextLayout>

#include <algorithm>
#include <cmath>
#include <limits>
#include <numeric>

namespace
{
/// The lines between two sums.
constexpr int stride = 128;
/// Lines that stay laid out though they are out of view.
constexpr qsizetype mostKeptLines = 1000;
/// A change of no more than this is laid out at once.
constexpr int mostLinesAtOnce = 4, mostUnitsAtOnce = 4000;
constexpr int tabColumns = 4;
/// A longer line is wrapped in any case and laid out from its beginning as far as it is asked for, with some
/// rows more than that.
constexpr int giantUnits = 20'000, giantColumns = 200, giantMargin = 16;

bool isGiant(const QTextBlock &block)
{
    return block.length() > giantUnits;
}

bool isComplete(const QTextBlock &block)
{
    const QTextLayout &layout = *block.layout();
    if (layout.lineCount() == 0)
        return false;
    const QTextLine last = layout.lineAt(layout.lineCount() - 1);
    return last.textStart() + last.textLength() >= block.length() - 1 + layout.preeditAreaText().size();
}

/// The columns that a text takes, with wide characters as two.
qint64 columnsOf(const QString &text)
{
    qint64 columns = 0;
    for (const QChar unit : text) {
        const char16_t code = unit.unicode();
        if (code == u'\t')
            columns += tabColumns - columns % tabColumns;
        else if (code < 0x300)
            ++columns;
        else if (!unit.isMark() && !unit.isLowSurrogate() && code != 0x200d && code != 0xfe0f)
            columns += code >= 0x1100 ? 2 : 1;
    }
    return columns;
}
} // namespace

RowLayout *RowLayout::of(QTextDocument *document)
{
    auto *layout = qobject_cast<RowLayout *>(document->documentLayout());
    if (!layout) {
        layout = new RowLayout(document);
        document->setDocumentLayout(layout);
    }
    return layout;
}

RowLayout::RowLayout(QTextDocument *document) : QAbstractTextDocumentLayout(document)
{
    measure();
}

void RowLayout::layOut(qreal top, qreal bottom)
{
    const int first = lineAt(top);
    QTextBlock block = document()->findBlockByNumber(first);
    for (int line = first; block.isValid() && topOf(line) < bottom; block = block.next(), ++line) {
        const int before = m_rows[std::size_t(line)];
        if (block.layout()->lineCount() == 0)
            m_laidOut.append(block);
        layOutBlock(block, int((bottom - topOf(line)) / m_rowHeight));
        const int rows = isComplete(block) ? block.layout()->lineCount()
                                           : std::max(before, block.layout()->lineCount() + 1);
        if (rows != before) {
            setRows(line, rows);
            emit corrected(line, (rows - before) * m_rowHeight);
        }
        if (!wraps())
            m_textWidth = std::max(m_textWidth, block.layout()->maximumWidth());
    }
    const int last = block.isValid() ? block.blockNumber() : document()->blockCount();
    if (m_laidOut.size() > mostKeptLines) {
        for (const QTextBlock &kept : std::as_const(m_laidOut))
            if (kept.blockNumber() < first || kept.blockNumber() > last)
                release(kept);
        m_laidOut.clear();
    }
    tellSize();
}

int RowLayout::lineAt(qreal y) const
{
    const auto wanted = qint64(std::floor(y / m_rowHeight));
    int first = 0, last = int(m_rows.size()) - 1;
    while (first < last) {
        const int middle = (first + last + 1) / 2;
        if (rowsBefore(middle) <= wanted)
            first = middle;
        else
            last = middle - 1;
    }
    return first;
}

qreal RowLayout::topOf(int line) const
{
    return qreal(rowsBefore(line)) * m_rowHeight;
}

qreal RowLayout::baselineOf(int line) const
{
    return topOf(line) + m_ascent;
}

void RowLayout::draw(QPainter *painter, const PaintContext &context)
{
    painter->setPen(context.palette.color(QPalette::Text));
    int line = lineAt(context.clip.top());
    for (QTextBlock block = document()->findBlockByNumber(line);
         block.isValid() && topOf(line) < context.clip.bottom(); block = block.next(), ++line) {
        QList<QTextLayout::FormatRange> ranges;
        for (const Selection &selection : context.selections) {
            const int start = std::max(0, selection.cursor.selectionStart() - block.position());
            const int end = std::min(block.length() - 1, selection.cursor.selectionEnd() - block.position());
            if (start < end)
                ranges.append({start, end - start, selection.format});
        }
        block.layout()->draw(painter, QPointF(0, topOf(line)), ranges, context.clip);
    }
}

int RowLayout::hitTest(const QPointF &point, Qt::HitTestAccuracy) const
{
    const int line = lineAt(point.y());
    const QTextBlock block = document()->findBlockByNumber(line);
    const int wanted = int((point.y() - topOf(line)) / m_rowHeight);
    layOutBlock(block, wanted);
    const QTextLayout &layout = *block.layout();
    const int row = std::clamp(wanted, 0, layout.lineCount() - 1);
    return block.position() + layout.lineAt(row).xToCursor(point.x());
}

QSizeF RowLayout::documentSize() const
{
    const qreal width = wraps() ? document()->textWidth() : m_textWidth;
    return {width, topOf(int(m_rows.size()))};
}

QRectF RowLayout::frameBoundingRect(QTextFrame *) const
{
    return {{}, documentSize()};
}

QRectF RowLayout::blockBoundingRect(const QTextBlock &block) const
{
    if (!block.isValid() || std::size_t(block.blockNumber()) >= m_rows.size())
        return {};
    const int line = block.blockNumber();
    const qreal columnsBefore = block.contains(m_caret) ? m_caret - block.position() : 0;
    layOutBlock(block, int(columnsBefore * m_columnWidth / widthOf(block)));
    return {0, topOf(line), documentSize().width(), m_rows[std::size_t(line)] * m_rowHeight};
}

void RowLayout::documentChanged(int from, int removed, int added)
{
    const bool isWhole = from == 0 && (added >= document()->characterCount() - 1 || m_rows.empty());
    if (isWhole)
        measure();
    const QTextBlock first = isWhole ? document()->begin() : document()->findBlock(from);
    const QTextBlock last =
        isWhole ? document()->lastBlock()
                : document()->findBlock(std::min(from + added, document()->characterCount() - 1));
    const int start = first.blockNumber(), count = last.blockNumber() - start + 1;
    const int grown = document()->blockCount() - int(m_rows.size());
    const auto at = m_rows.begin() + (isWhole ? 0 : start);
    if (isWhole)
        m_rows.assign(std::size_t(count), 1);
    else if (grown > 0)
        m_rows.insert(at, std::size_t(grown), 1);
    else
        m_rows.erase(at, at - grown);
    if (isWhole)
        m_textWidth = 0;
    int line = start;
    for (QTextBlock block = first; line < start + count; block = block.next(), ++line) {
        release(block);
        m_rows[std::size_t(line)] = estimatedRows(block);
        // What is being typed keeps its rows from one key to the next.
        if (wraps() && count <= mostLinesAtOnce && block.length() <= mostUnitsAtOnce) {
            layOutBlock(block, 0);
            m_rows[std::size_t(line)] = block.layout()->lineCount();
        }
    }
    m_sums.resize(std::min(m_sums.size(), std::size_t(start) / stride + 1));
    Q_UNUSED(removed);
    tellSize();
    emit update();
}

bool RowLayout::wraps() const
{
    return document()->defaultTextOption().wrapMode() != QTextOption::NoWrap && document()->textWidth() > 0;
}

void RowLayout::measure()
{
    const QFontMetricsF metrics(document()->defaultFont());
    m_rowHeight = std::ceil(metrics.height()) + rowSpacing;
    m_ascent = metrics.ascent();
    m_columnWidth = std::max(1.0, metrics.horizontalAdvance(u'0'));
}

int RowLayout::estimatedRows(const QTextBlock &block)
{
    const qreal width = qreal(columnsOf(block.text())) * m_columnWidth;
    if (!wraps() && !isGiant(block)) {
        m_textWidth = std::max(m_textWidth, width);
        return 1;
    }
    return std::max(1, int(std::ceil(width / widthOf(block))));
}

qreal RowLayout::widthOf(const QTextBlock &block) const
{
    if (wraps())
        return document()->textWidth();
    return isGiant(block) ? giantColumns * m_columnWidth : 1e7;
}

void RowLayout::layOutBlock(const QTextBlock &block, int lastRow) const
{
    QTextLayout &layout = *block.layout();
    const int present = layout.lineCount();
    if (present > 0 && (!isGiant(block) || present > lastRow + 1 || isComplete(block)))
        return;
    QTextOption option = document()->defaultTextOption();
    int rows = std::numeric_limits<int>::max();
    if (isGiant(block)) {
        option.setWrapMode(QTextOption::WrapAnywhere);
        rows = std::max(lastRow + giantMargin, 2 * present);
    }
    layout.setTextOption(option);
    layout.beginLayout();
    for (int row = 0; row < rows; ++row) {
        QTextLine line = layout.createLine();
        if (!line.isValid())
            break;
        line.setLineWidth(widthOf(block));
        // Fonts that help out stand on the same line as the one they help.
        line.setPosition({0, row * m_rowHeight + m_ascent - line.ascent()});
    }
    layout.endLayout();
}

void RowLayout::release(const QTextBlock &block)
{
    if (block.layout()->lineCount() > 0)
        block.layout()->clearLayout();
}

void RowLayout::tellSize()
{
    const QSizeF size = documentSize();
    if (std::exchange(m_toldSize, size) != size)
        emit documentSizeChanged(size);
}

qint64 RowLayout::rowsBefore(int line) const
{
    if (m_sums.empty())
        m_sums.push_back(0);
    const std::size_t wanted = std::size_t(line) / stride;
    while (m_sums.size() <= wanted) {
        const auto start = m_rows.begin() + std::ptrdiff_t(m_sums.size() - 1) * stride;
        m_sums.push_back(std::accumulate(start, start + stride, m_sums.back()));
    }
    const auto start = m_rows.begin() + std::ptrdiff_t(wanted) * stride;
    return std::accumulate(start, m_rows.begin() + line, m_sums[wanted]);
}

void RowLayout::setRows(int line, int rows)
{
    m_rows[std::size_t(line)] = rows;
    m_sums.resize(std::min(m_sums.size(), std::size_t(line) / stride + 1));
}
