#pragma once

#include "DesignSystem/OVTextMarks.h"
#include "DesignSystem/TextFinder.h"
#include "Foundation/CoalescedCall.h"
#include "Models/Block.h"
#include "Session/OrvelSession.h"

/// Looks for a text in the blocks of a page, marks where it stands, and replaces it.
class PageFinder : public TextFinder
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(OrvelSession *session READ session WRITE setSession NOTIFY sessionChanged REQUIRED FINAL)
    Q_PROPERTY(QUuid pageID READ pageID WRITE setPageID NOTIFY pageIDChanged REQUIRED FINAL)

public:
    explicit PageFinder(QObject *parent = nullptr);

    OrvelSession *session() const { return m_session; }
    void setSession(OrvelSession *session);
    QUuid pageID() const { return m_pageID; }
    void setPageID(const QUuid &pageID);
    bool canReplace() const override { return true; }

    /// Where the user is: the search begins there.
    /// @param position in the whole text of the block
    Q_INVOKABLE void startAt(const QUuid &blockID, int position);
    /// The marks in a part of the text of a block, counted from the beginning of the part.
    Q_INVOKABLE TextMarkList marksIn(const QUuid &blockID, int partBegin) const;
    /// Shows the first place of the text that was asked for from elsewhere, if it was for this page.
    Q_INVOKABLE void showSoughtText();
    /// Shows the match that the user is at, with the keyboard on it; false if there is none.
    Q_INVOKABLE bool choose();

signals:
    void sessionChanged();
    void pageIDChanged();
    /// This match is to be brought into view.
    /// @param start in the whole text of the block
    /// @param selects whether the keyboard goes to it as well
    void shown(int row, const QUuid &blockID, int start, int length, bool selects);

protected:
    Found search(const QString &query) override;
    void clearMatches() override;
    void showMatch(int match) override { tell(match, false); }
    void replaceMatches(int first, int last, const QString &by) override;

private:
    struct Place {
        int row = 0;
        int start = 0;

        auto operator<=>(const Place &) const = default;
    };

    /// Whether what is looked for still stands there.
    bool stands(const QList<Block> &blocks, Place place) const;
    const QList<Block> *blocks() const;
    /// Folds what has changed since the last time.
    void readBlocks();
    void followStore(const ChangeSet &changes);
    void tell(int match, bool selects);

    OrvelSession *m_session = nullptr;
    QUuid m_pageID;
    QList<Block> m_blocks;
    QStringList m_folded;
    QList<Place> m_matches;
    QString m_wanted;
    Place m_from;
    CoalescedCall m_refresh;
};
