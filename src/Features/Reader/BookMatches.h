#pragma once

#include "Features/Reader/BookContents.h"

/// Where a query stands in a book; case and the shape of quotation marks make no difference.
class BookMatches
{
public:
    struct Match {
        int row = 0;
        /// In the row, in UTF-16 units.
        int start = 0;
        int length = 0;

        bool operator==(const Match &) const = default;
    };

    BookMatches() = default;
    /// A blank query stands nowhere.
    BookMatches(SharedBookContents contents, const QString &query);

    int count() const { return int(m_positions.size()); }
    Match at(int index) const;
    /// The first match in this row or behind it, from the beginning again if there is none; -1 without any.
    int firstFrom(int row) const;
    /// The matches in one row, by their numbers from `first` to before `last`.
    struct Numbers {
        int first = 0;
        int last = 0;
    };
    Numbers inRow(int row) const;

private:
    SharedBookContents m_contents;
    /// In the text of the book, in order, none overlapping another.
    QList<int> m_positions;
    int m_length = 0;
};
