#include "Foundation/RowChanges.h"

#include <algorithm>
#include <bit>

namespace
{
/// Marks the longest run of old rows that is already in the next order.
std::vector<bool> longestKeptRun(const std::vector<int> &nextIndexOf)
{
    std::vector<int> tails;
    std::vector<int> previous(nextIndexOf.size(), -1);
    for (int i = 0; i < int(nextIndexOf.size()); ++i) {
        if (nextIndexOf[std::size_t(i)] < 0)
            continue;
        const auto at = std::ranges::lower_bound(tails, nextIndexOf[std::size_t(i)], {},
                                                 [&](int tail) { return nextIndexOf[std::size_t(tail)]; });
        if (at != tails.begin())
            previous[std::size_t(i)] = *(at - 1);
        if (at == tails.end())
            tails.push_back(i);
        else
            *at = i;
    }
    std::vector<bool> kept(nextIndexOf.size(), false);
    for (int i = tails.empty() ? -1 : tails.back(); i >= 0; i = previous[std::size_t(i)])
        kept[std::size_t(i)] = true;
    return kept;
}
} // namespace

RowChanges::RowChanges(int oldCount, std::vector<int> oldIndexOf) : m_oldIndexOf(std::move(oldIndexOf))
{
    std::vector<int> nextIndexOf(std::size_t(oldCount), -1);
    for (std::size_t next = 0; next < m_oldIndexOf.size(); ++next)
        if (const int old = m_oldIndexOf[next]; old >= 0)
            nextIndexOf[std::size_t(old)] = int(next);
    layOut(m_oldIndexOf, nextIndexOf, longestKeptRun(nextIndexOf));
}

void RowChanges::layOut(const std::vector<int> &oldIndexOf, const std::vector<int> &nextIndexOf,
                        const std::vector<bool> &stays)
{
    m_oldPlace.assign(nextIndexOf.size(), -1);
    std::size_t old = 0;
    const auto placeOldUntilStaying = [&] {
        for (; old < nextIndexOf.size() && !stays[old]; ++old) {
            m_oldPlace[old] = int(m_places.size());
            m_places.push_back({int(old), nextIndexOf[old], false, true});
        }
    };
    for (std::size_t next = 0; next < oldIndexOf.size(); ++next) {
        const int from = oldIndexOf[next];
        if (from < 0 || !stays[std::size_t(from)]) {
            m_places.push_back({-1, int(next), false, false});
            continue;
        }
        placeOldUntilStaying();
        m_oldPlace[old] = int(m_places.size());
        m_places.push_back({int(old), int(next), true, true});
        ++old;
    }
    placeOldUntilStaying();

    m_tree.assign(m_places.size() + 1, 0);
    for (std::size_t i = 0; i < m_places.size(); ++i) {
        m_tree[i + 1] += m_places[i].occupied ? 1 : 0;
        m_count += m_places[i].occupied ? 1 : 0;
        const std::size_t parent = (i + 1) + ((i + 1) & (~(i + 1) + 1));
        if (parent < m_tree.size())
            m_tree[parent] += m_tree[i + 1];
    }
}

int RowChanges::stepCount() const
{
    int steps = 0;
    bool isRemoving = false;
    bool isInserting = false;
    for (const Place &place : m_places) {
        if (place.oldIndex >= 0) {
            const bool goes = place.nextIndex < 0;
            steps += goes && !isRemoving ? 1 : 0;
            isRemoving = goes;
        }
        if (place.stays) {
            isInserting = false;
        } else if (place.oldIndex < 0) {
            const bool comes = m_oldIndexOf[std::size_t(place.nextIndex)] < 0;
            steps += comes && isInserting ? 0 : 1;
            isInserting = comes;
        }
    }
    return steps;
}

std::optional<RowChanges::Range> RowChanges::nextRemoval()
{
    // From the end, so that what is still to be removed keeps its row numbers.
    if (!m_isStarted) {
        m_isStarted = true;
        m_cursor = int(m_places.size()) - 1;
    }
    const auto goes = [](const Place &place) { return place.occupied && place.nextIndex < 0; };
    while (m_cursor >= 0 && !goes(m_places[std::size_t(m_cursor)]))
        --m_cursor;
    if (m_cursor < 0)
        return std::nullopt;
    for (; m_cursor >= 0; --m_cursor) {
        const Place &place = m_places[std::size_t(m_cursor)];
        if (goes(place))
            m_pendingClear.push_back(m_cursor);
        else if (place.occupied)
            break;
    }
    const int first = rowsBefore(m_pendingClear.back());
    return Range{first, first + int(m_pendingClear.size()) - 1};
}

std::optional<RowChanges::Move> RowChanges::nextMove()
{
    m_cursor = std::max(m_cursor, 0);
    for (; m_cursor < int(m_places.size()); ++m_cursor) {
        const Place &place = m_places[std::size_t(m_cursor)];
        if (place.occupied || place.nextIndex < 0 || place.oldIndex >= 0)
            continue;
        const int old = m_oldIndexOf[std::size_t(place.nextIndex)];
        if (old < 0)
            continue;
        const int from = rowsBefore(m_oldPlace[std::size_t(old)]);
        const int before = rowsBefore(m_cursor);
        m_pendingClear.push_back(m_oldPlace[std::size_t(old)]);
        m_pendingFill.push_back(m_cursor);
        if (before != from && before != from + 1)
            return Move{from, before};
        // The row already stands there once others have moved: nothing to announce.
        apply();
    }
    m_cursor = 0;
    return std::nullopt;
}

std::optional<RowChanges::Range> RowChanges::nextInsertion()
{
    const auto comes = [this](const Place &place) {
        return !place.occupied && place.nextIndex >= 0 && m_oldIndexOf[std::size_t(place.nextIndex)] < 0;
    };
    while (m_cursor < int(m_places.size()) && !comes(m_places[std::size_t(m_cursor)]))
        ++m_cursor;
    if (m_cursor == int(m_places.size()))
        return std::nullopt;
    const int first = rowsBefore(m_cursor);
    for (; m_cursor < int(m_places.size()); ++m_cursor) {
        const Place &place = m_places[std::size_t(m_cursor)];
        if (comes(place))
            m_pendingFill.push_back(m_cursor);
        else if (place.occupied)
            break;
    }
    return Range{first, first + int(m_pendingFill.size()) - 1};
}

void RowChanges::apply()
{
    for (const int place : m_pendingClear)
        setOccupied(place, false);
    for (const int place : m_pendingFill)
        setOccupied(place, true);
    m_pendingClear.clear();
    m_pendingFill.clear();
}

RowChanges::Slot RowChanges::slotAt(int row) const
{
    std::size_t position = 0;
    int remaining = row + 1;
    for (std::size_t step = std::bit_floor(m_tree.size()); step > 0; step /= 2) {
        if (position + step < m_tree.size() && m_tree[position + step] < remaining) {
            position += step;
            remaining -= m_tree[position];
        }
    }
    const Place &place = m_places.at(position);
    if (place.oldIndex >= 0)
        return {true, place.oldIndex};
    const int old = m_oldIndexOf[std::size_t(place.nextIndex)];
    return old >= 0 ? Slot{true, old} : Slot{false, place.nextIndex};
}

std::optional<int> RowChanges::oldIndexOf(int nextIndex) const
{
    const int old = m_oldIndexOf[std::size_t(nextIndex)];
    return old >= 0 ? std::optional(old) : std::nullopt;
}

int RowChanges::rowsBefore(int place) const
{
    int rows = 0;
    for (std::size_t i = std::size_t(place); i > 0; i -= i & (~i + 1))
        rows += m_tree[i];
    return rows;
}

void RowChanges::setOccupied(int place, bool occupied)
{
    m_places[std::size_t(place)].occupied = occupied;
    const int change = occupied ? 1 : -1;
    m_count += change;
    for (std::size_t i = std::size_t(place) + 1; i < m_tree.size(); i += i & (~i + 1))
        m_tree[i] += change;
}
