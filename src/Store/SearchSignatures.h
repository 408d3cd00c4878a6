#pragma once

#include "Foundation/TextSignature.h"
#include "Models/CodeDocument.h"
#include "Models/Page.h"
#include "Store/RecordList.h"

#include <QDeadlineTimer>
#include <QStringList>

#include <memory>
#include <vector>

/// The long texts of a record that a search looks into.
inline QStringList searchedTexts(const Page &page)
{
    return {page.title, page.previewText()};
}
inline QStringList searchedTexts(const CodeDocument &document)
{
    return {document.title, document.source};
}

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

    /// Brings the entries in line with the list; what is new or changed has no signature until `signature`.
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
            if (i + 1 < m_entries.size() && m_entries[i]->record.id != records[qsizetype(i)].id &&
                m_entries[i + 1]->record.id == records[qsizetype(i)].id)
                m_entries.erase(m_entries.begin() + std::ptrdiff_t(i));
            if (i == m_entries.size())
                m_entries.push_back(std::make_unique<Entry>());
            if (!sharesTexts(m_entries[i]->record, records[qsizetype(i)]))
                *m_entries[i] = Entry{records[qsizetype(i)], {}, false};
        }
        m_entries.resize(i);
    }

    const TextSignature &signature(qsizetype index)
    {
        Entry &entry = *m_entries[std::size_t(index)];
        if (!entry.isMade) {
            for (const QString &text : searchedTexts(entry.record))
                entry.signature.add(text.toLower());
            entry.isMade = true;
        }
        return entry.signature;
    }

    /// Makes missing signatures until the deadline, but one at least; true once none is missing.
    bool makeUntil(const QDeadlineTimer &deadline)
    {
        while (m_next < m_entries.size()) {
            const bool isMissing = !m_entries[m_next]->isMade;
            signature(qsizetype(m_next++));
            if (isMissing && deadline.hasExpired())
                break;
        }
        return m_next == m_entries.size();
    }

private:
    struct Entry {
        Record record;
        TextSignature signature;
        bool isMade = false;
    };
    std::vector<std::unique_ptr<Entry>> m_entries;
    /// Before this place no signature is missing.
    std::size_t m_next = 0;
    bool m_isCurrent = false;
};
