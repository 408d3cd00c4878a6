#pragma once

#include "Store/RecordList.h"
#include "Store/SearchedTexts.h"

#include <QDeadlineTimer>

#include <ranges>
#include <utility>
#include <vector>

/// Of the signature of one record of a kind; those of short texts need few.
template <typename Record>
inline constexpr std::size_t signatureBits = 512;
template <>
inline constexpr std::size_t signatureBits<Page> = TextSignature::bitCount;
template <>
inline constexpr std::size_t signatureBits<CodeDocument> = TextSignature::bitCount;
template <>
inline constexpr std::size_t signatureBits<Deck> = TextSignature::bitCount;

/// One signature for each record of a list. Each keeps the texts it was made from: as long as it does, a
/// changed text cannot lie at the same place in memory, and so never passes for it.
template <typename Record>
class SearchSignatures
{
public:
    /// Has the next `follow` look for changes.
    void listChanged() { m_isCurrent = false; }

    /// Brings the entries in line with the list; what is new or changed has no signature until `makeUntil`.
    void follow(const RecordList<Record> &list)
    {
        if (m_isCurrent && list.size() == qsizetype(m_entries.size()))
            return;
        m_isCurrent = true;
        m_next = 0;
        const QList<Record> &records = list.all();
        const auto size = std::size_t(records.size());
        std::size_t i = 0;
        for (; i < size && i < m_entries.size() && m_entries[i].id == records[qsizetype(i)].id; ++i)
            updateAt(i, records[qsizetype(i)]);
        if (i < size || i < m_entries.size())
            followFrom(i, records);
    }

    /// Hands on each record whose texts may hold the query, in the order of the list, until `take` answers
    /// false. Makes missing signatures on the way.
    /// @param list as it was followed last
    template <typename Take>
    void forEachCandidate(const RecordList<Record> &list, const SignatureQuery &query, Take take)
    {
        m_candidates.clear();
        quint64 any = 0;
        for (std::size_t block = 0; block < m_signatures.blockCount(); ++block) {
            m_candidates.push_back(m_signatures.mayHold(block, query));
            any |= m_candidates.back();
        }
        if (any == 0 && m_next == m_numbers.size())
            return;
        for (std::size_t i = 0; i < m_numbers.size(); ++i) {
            const Record &record = list.all()[qsizetype(i)];
            const bool isMissing = m_numbers[i] == none;
            if (isMissing)
                make(i, record);
            if ((isMissing || isCandidate(m_numbers[i])) && !take(record))
                return;
        }
    }

    /// Makes missing signatures until the deadline, but one at least; true once none is missing.
    bool makeUntil(const RecordList<Record> &list, const QDeadlineTimer &deadline)
    {
        while (m_next < m_numbers.size()) {
            const std::size_t i = m_next++;
            if (m_numbers[i] != none)
                continue;
            make(i, list.all()[qsizetype(i)]);
            if (deadline.hasExpired())
                break;
        }
        return m_next == m_numbers.size();
    }

private:
    static constexpr quint32 none = ~quint32(0);

    template <typename... Part>
    static std::tuple<Part...> copied(const std::tuple<const Part &...> &parts)
    {
        return parts;
    }

    struct Entry {
        QUuid id;
        decltype(copied(searchedParts(std::declval<const Record &>()))) texts;
    };

    /// Whether the texts of both are still one and the same piece of memory, which a change of either ends.
    /// Different memory may hold equal texts; that costs no more than a new signature.
    static bool sharesTexts(const Entry &entry, const Record &record)
    {
        const auto shares = [](const auto &a, const auto &b) {
            return a.constData() == b.constData() && a.size() == b.size();
        };
        const auto parts = searchedParts(record);
        return [&]<std::size_t... I>(std::index_sequence<I...>) {
            return (shares(std::get<I>(entry.texts), std::get<I>(parts)) && ...);
        }(std::make_index_sequence<std::tuple_size_v<decltype(parts)>>());
    }

    void updateAt(std::size_t i, const Record &record)
    {
        if (m_numbers[i] != none && !sharesTexts(m_entries[i], record))
            release(std::exchange(m_numbers[i], none));
    }

    /// From this place on, records have come or gone.
    void followFrom(std::size_t start, const QList<Record> &records)
    {
        std::vector<Entry> entries(std::make_move_iterator(m_entries.begin() + std::ptrdiff_t(start)),
                                   std::make_move_iterator(m_entries.end()));
        std::vector<quint32> numbers(m_numbers.begin() + std::ptrdiff_t(start), m_numbers.end());
        m_entries.resize(start);
        m_numbers.resize(start);
        QHash<QUuid, std::size_t> places;
        for (std::size_t place = entries.size(); place-- > 0;)
            places.insert(entries[place].id, place);
        for (const Record &record : records | std::views::drop(start)) {
            m_entries.push_back({record.id, {}});
            m_numbers.push_back(none);
            if (const auto place = places.constFind(record.id); place != places.cend()) {
                m_entries.back().texts = std::move(entries[*place].texts);
                m_numbers.back() = std::exchange(numbers[*place], none);
                updateAt(m_numbers.size() - 1, record);
            }
        }
        for (const quint32 number : numbers)
            if (number != none)
                release(number);
    }

    void make(std::size_t i, const Record &record)
    {
        m_entries[i].texts = searchedParts(record);
        if (m_free.empty()) {
            m_numbers[i] = m_nextNumber++;
        } else {
            m_numbers[i] = m_free.back();
            m_free.pop_back();
        }
        m_signatures.set(m_numbers[i], m_texts.signature(record));
    }

    void release(quint32 number)
    {
        m_signatures.clear(number);
        m_free.push_back(number);
    }

    bool isCandidate(quint32 number) const
    {
        return m_candidates[number / TextSignatures::blockSize] >> (number % TextSignatures::blockSize) & 1;
    }

    /// In the order of the list.
    std::vector<Entry> m_entries;
    /// Those of the entries' signatures.
    std::vector<quint32> m_numbers;
    std::vector<quint32> m_free;
    quint32 m_nextNumber = 0;
    TextSignatures m_signatures{signatureBits<Record>};
    /// Which signatures may hold the query of the search under way.
    std::vector<quint64> m_candidates;
    SearchedTexts m_texts;
    /// Before this place no signature is missing.
    std::size_t m_next = 0;
    bool m_isCurrent = false;
};
