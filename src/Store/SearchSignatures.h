#pragma once

#include "Store/RecordList.h"
#include "Store/SearchedTexts.h"

#include <QDeadlineTimer>

#include <memory>
#include <vector>

/// Whether the searched texts of both are still one and the same piece of memory, which a change of either
/// ends. Different memory may hold equal texts; that costs no more than a new signature.
inline bool sharesTexts(const Page &a, const Page &b)
{
    return a.title.constData() == b.title.constData() && a.title.size() == b.title.size() &&
           a.content.constData() == b.content.constData() && a.content.size() == b.content.size();
}
inline bool sharesTexts(const CodeDocument &a, const CodeDocument &b)
{
    return a.title.constData() == b.title.constData() && a.title.size() == b.title.size() &&
           a.source.constData() == b.source.constData() && a.source.size() == b.source.size();
}

/// One signature for each record of a list, in the order of the list. Each keeps the record it was made from:
/// as long as it does, a changed record cannot lie at the same place in memory, and so never passes for it.
template <typename Record>
class SearchSignatures
{
public:
    /// Has the next `follow` look for changes.
    void listChanged() { m_isCurrent = false; }

    /// Brings the entries in line with the list; what is new or changed has none until `signature`.
    void follow(const RecordList<Record> &list)
    {
        if (m_isCurrent && list.size() == qsizetype(m_entries.size()))
            return;
        m_isCurrent = true;
        m_next = 0;
        const QList<Record> &records = list.all();
        std::size_t i = 0;
        for (; i < std::size_t(records.size()); ++i) {
            // Most lists change by one record at a time.
            if (i + 1 < m_entries.size() && !isOf(i, records[qsizetype(i)]) &&
                isOf(i + 1, records[qsizetype(i)]))
                m_entries.erase(m_entries.begin() + std::ptrdiff_t(i));
            if (i == m_entries.size())
                m_entries.resize(std::size_t(records.size()));
            if (m_entries[i] && !sharesTexts(m_entries[i]->record, records[qsizetype(i)]))
                m_entries[i].reset();
        }
        m_entries.resize(i);
    }

    /// @param list as it was followed last
    const TextSignature &signature(const RecordList<Record> &list, qsizetype index)
    {
        std::unique_ptr<Entry> &entry = m_entries[std::size_t(index)];
        if (!entry) {
            const Record &record = list.all()[index];
            entry = std::make_unique<Entry>(Entry{record, m_texts.signature(record)});
        }
        return entry->signature;
    }

    /// Most of a search is waiting for memory: has it fetched ahead of being asked for.
    void prefetch(qsizetype index, const SignatureQuery &query) const
    {
        if (std::size_t(index) < m_entries.size() && m_entries[std::size_t(index)])
            m_entries[std::size_t(index)]->signature.prefetch(query);
    }

    /// Makes missing signatures until the deadline, but one at least; true once none is missing.
    bool makeUntil(const RecordList<Record> &list, const QDeadlineTimer &deadline)
    {
        while (m_next < m_entries.size()) {
            const bool isMissing = !m_entries[m_next];
            signature(list, qsizetype(m_next++));
            if (isMissing && deadline.hasExpired())
                break;
        }
        return m_next == m_entries.size();
    }

private:
    struct Entry {
        Record record;
        TextSignature signature;
    };

    bool isOf(std::size_t entry, const Record &record) const
    {
        return m_entries[entry] && m_entries[entry]->record.id == record.id;
    }

    /// Null where the signature is still to be made.
    std::vector<std::unique_ptr<Entry>> m_entries;
    SearchedTexts m_texts;
    /// Before this place no signature is missing.
    std::size_t m_next = 0;
    bool m_isCurrent = false;
};
