#include "Features/Databases/CsvTable.h"

void CsvTable::endRow()
{
    const auto start = std::size_t(m_rowCount * columnCount());
    const std::size_t end = start + std::size_t(columnCount());
    ++m_rowCount;
    if (m_ends.size() == end)
        return;
    ++ragged;
    if (m_ends.size() > end) {
        m_ends.resize(end);
        m_text.resize(end == 0 ? 0 : m_ends.back());
    } else {
        m_ends.resize(end, quint32(m_text.size()));
    }
}
