#pragma once

#include "DesignSystem/OVTextMarks.h"
#include "DesignSystem/TextFinder.h"
#include "Features/Reader/BookMatches.h"

/// Looks for a word in the open book and goes from match to match.
class BookFinder : public TextFinder
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The open book has it.")

public:
    using TextFinder::TextFinder;

    /// The marks in a row, while the bar is open.
    Q_INVOKABLE TextMarkList marksIn(int row) const;

    void setContents(SharedBookContents contents);
    /// Where the user reads: the search goes on from there.
    void setTopRow(int row) { m_topRow = row; }

signals:
    /// This match is to be brought into view.
    void shown(int row, int start);

protected:
    Found search(const QString &query) override;
    void clearMatches() override { m_matches = {}; }
    void showMatch(int match) override;

private:
    SharedBookContents m_contents;
    BookMatches m_matches;
    int m_topRow = 0;
};
