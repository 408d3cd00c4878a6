#include "Features/Reader/BookSelection.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QTextBoundaryFinder>

#include <algorithm>

using namespace Qt::StringLiterals;

void BookSelection::begin(int row, int position)
{
    const Place place = valid(row, position);
    set(place, place);
}

void BookSelection::extend(int row, int position)
{
    set(m_anchor, valid(row, position));
}

void BookSelection::selectWord(int row, int position)
{
    if (!m_contents)
        return;
    const Place place = valid(row, position);
    const QString text = m_contents->rowText(place.row).toString();
    QTextBoundaryFinder finder(QTextBoundaryFinder::Word, text);
    finder.setPosition(place.position);
    if (!finder.isAtBoundary())
        finder.toPreviousBoundary();
    const int start = int(finder.position());
    const int end = int(finder.toNextBoundary());
    set({place.row, start}, {place.row, std::max(start, end)});
}

void BookSelection::selectRow(int row)
{
    if (m_contents)
        set(valid(row, 0), valid(row, INT_MAX));
}

void BookSelection::selectAll()
{
    if (m_contents)
        set(valid(0, 0), valid(m_contents->rowCount() - 1, INT_MAX));
}

void BookSelection::extendByRow(int topRow, int step)
{
    if (!m_contents)
        return;
    if (isEmpty()) {
        selectRow(topRow);
        return;
    }
    const int next = m_head.row + step;
    if (next < m_anchor.row)
        set(std::max(valid(m_anchor.row, INT_MAX), m_anchor), valid(next, 0));
    else
        set(valid(m_anchor.row, 0), valid(next, INT_MAX));
}

void BookSelection::clear()
{
    set(m_head, m_head);
}

QPoint BookSelection::inRow(int row) const
{
    const auto [first, last] = std::minmax(m_anchor, m_head);
    if (!m_contents || first == last || row < first.row || row > last.row)
        return {};
    return {row == first.row ? first.position : 0,
            row == last.row ? last.position : m_contents->rows()[row].length};
}

QString BookSelection::text() const
{
    if (!m_contents || isEmpty())
        return {};
    const auto [first, last] = std::minmax(m_anchor, m_head);
    QString text;
    for (int row = first.row; row <= last.row; ++row) {
        if (row > first.row && !m_contents->rows()[row].continues)
            text += "\n\n"_L1;
        const QPoint part = inRow(row);
        text += m_contents->rowText(row).sliced(part.x(), part.y() - part.x());
    }
    return text;
}

void BookSelection::copy() const
{
    if (!isEmpty())
        QGuiApplication::clipboard()->setText(text());
}

void BookSelection::setContents(SharedBookContents contents)
{
    m_contents = std::move(contents);
    set({}, {});
}

BookSelection::Place BookSelection::valid(int row, int position) const
{
    if (!m_contents || m_contents->rowCount() == 0)
        return {};
    row = std::clamp(row, 0, m_contents->rowCount() - 1);
    return {row, std::clamp(position, 0, m_contents->rows()[row].length)};
}

void BookSelection::set(Place anchor, Place head)
{
    if (m_anchor == anchor && m_head == head)
        return;
    m_anchor = anchor;
    m_head = head;
    emit changed();
}
