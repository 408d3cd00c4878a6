#pragma once

#include <QByteArrayView>
#include <QString>
#include <QStringList>

#include <string>
#include <vector>

/// A table as files of comma-separated values hold it. The texts of all cells lie one behind the other in
/// UTF-8, since a string each would take several times the memory and the time.
class CsvTable
{
public:
    /// The first row.
    QStringList names;
    /// How many rows had fewer or more cells than there are names.
    qsizetype ragged = 0;

    qsizetype rowCount() const { return m_rowCount; }
    qsizetype columnCount() const { return names.size(); }
    /// The text of a cell in UTF-8, which holds until a cell is added.
    QByteArrayView cell(qsizetype row, qsizetype column) const
    {
        const auto i = std::size_t(row * columnCount() + column);
        const std::size_t from = i == 0 ? 0 : m_ends[i - 1];
        return {m_text.data() + from, qsizetype(m_ends[i] - from)};
    }
    QString text(qsizetype row, qsizetype column) const { return QString::fromUtf8(cell(row, column)); }

    /// Prepares for this many bytes of text.
    void reserve(qsizetype bytes) { m_text.reserve(std::size_t(bytes)); }
    /// Adds a cell to the row that is not ended yet.
    void appendCell(QByteArrayView text)
    {
        m_text.append(text.data(), std::size_t(text.size()));
        m_ends.push_back(quint32(m_text.size()));
    }
    /// Ends a row. Cells beyond the names are dropped, missing ones are empty.
    void endRow();

    /// Most bytes that the texts of all cells can have.
    static constexpr qsizetype maxBytes = 0xFFFF'FFFF;

private:
    std::string m_text;
    /// Where the texts of the cells end, row by row.
    std::vector<quint32> m_ends;
    qsizetype m_rowCount = 0;
};
