#pragma once

#include <optional>
#include <vector>

/// Works out how one list becomes another with the fewest removals, moves and insertions, and tracks which
/// row stands where while the steps are carried out one by one.
///
/// Steps are asked for in the order removals, moves, insertions; `apply` carries out the one asked for last.
/// All of it together costs O(n log n).
class RowChanges
{
public:
    struct Range {
        int first;
        int last;
    };
    struct Move {
        int from;
        /// The row before which it goes, counted before the move.
        int before;
    };
    /// The contents that a row shows: an index into the old list or into the next one.
    struct Slot {
        bool isOld;
        int index;
    };

    /// @param oldIndexOf for each row of the next list where it stands in the old one, or -1 if it is new
    RowChanges(int oldCount, std::vector<int> oldIndexOf);

    /// How many removals, moves and insertions there are.
    int stepCount() const;
    std::optional<Range> nextRemoval();
    std::optional<Move> nextMove();
    std::optional<Range> nextInsertion();
    void apply();

    /// Rows at this moment.
    int count() const { return m_count; }
    Slot slotAt(int row) const;
    /// Where the row at this place of the next list stood in the old one; nothing if it is new.
    std::optional<int> oldIndexOf(int nextIndex) const;

private:
    /// One place in a sequence that holds the old and the next order at once: rows that stay have one place,
    /// every other row one for where it was, one for where it will be, or both.
    struct Place {
        int oldIndex = -1;
        int nextIndex = -1;
        bool stays = false;
        bool occupied = false;
    };

    void layOut(const std::vector<int> &oldIndexOf, const std::vector<int> &nextIndexOf,
                const std::vector<bool> &stays);
    /// Occupied places before this one.
    int rowsBefore(int place) const;
    void setOccupied(int place, bool occupied);

    std::vector<Place> m_places;
    std::vector<int> m_oldPlace;
    std::vector<int> m_oldIndexOf;
    /// Fenwick tree over the occupied places.
    std::vector<int> m_tree;
    int m_count = 0;
    int m_cursor = 0;
    bool m_isStarted = false;
    std::vector<int> m_pendingClear;
    std::vector<int> m_pendingFill;
};
