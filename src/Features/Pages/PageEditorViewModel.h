#pragma once

#include "Features/Code/CodeRun.h"
#include "Features/Pages/BeforeNextKey.h"
#include "Features/Pages/BlockRow.h"
#include "Foundation/EnumChoices.h"
#include "Foundation/KeyedListModel.h"
#include "Session/ViewModel.h"

/// What the editor of one page shows and does. Every operation goes straight into the store; once the page is
/// gone they do nothing, and the rows show what they showed last. Positions stand for the cases of the tables
/// of type and tone, in their order.
class PageEditorViewModel : public ViewModel
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QUuid pageID READ pageID WRITE setPageID NOTIFY pageIDChanged REQUIRED FINAL)
    Q_PROPERTY(QString title READ title NOTIFY titleChanged FINAL)
    /// `BlockRow`s.
    Q_PROPERTY(QAbstractItemModel *rows READ rows CONSTANT FINAL)
    Q_PROPERTY(bool isZen MEMBER m_isZen NOTIFY isZenChanged FINAL)
    /// The types that the slash menu offers below the focused block; empty while it is closed.
    Q_PROPERTY(QList<int> slashTypes READ slashTypes NOTIFY slashTypesChanged FINAL)

    /// Before any scaling.
    Q_PROPERTY(int maxCodeHeight READ maxCodeHeight CONSTANT FINAL)

    Q_PROPERTY(QList<QString> typeLabels READ typeLabels CONSTANT FINAL)
    Q_PROPERTY(QList<QString> typeSymbols READ typeSymbols CONSTANT FINAL)
    Q_PROPERTY(QList<QString> toneLabels READ toneLabels CONSTANT FINAL)
    Q_PROPERTY(QList<QString> toneSymbols READ toneSymbols CONSTANT FINAL)

public:
    explicit PageEditorViewModel(QObject *parent = nullptr);

    QUuid pageID() const { return m_pageID; }
    void setPageID(const QUuid &pageID);
    const QString &title() const { return m_title; }
    QAbstractItemModel *rows() { return &m_rows; }
    const QList<int> &slashTypes() const { return m_slashTypes; }

    static int maxCodeHeight() { return PageBlocks::maxCodeEditorHeight; }
    static QStringList typeLabels() { return EnumChoices::labels<BlockType>(); }
    static QStringList typeSymbols() { return EnumChoices::symbols<BlockType>(); }
    static QStringList toneLabels() { return EnumChoices::labels<CalloutTone>(); }
    static QStringList toneSymbols() { return EnumChoices::symbols<CalloutTone>(); }

    /// The block that has the keyboard's focus; null for none.
    const QUuid &focusedBlock() const { return m_focusedBlock; }
    /// The view tells where the keyboard's focus went.
    Q_INVOKABLE void blockFocused(const QUuid &blockID);
    Q_INVOKABLE void blockLeft(const QUuid &blockID);

    /// A fresh block directly after this one gets the focus.
    Q_INVOKABLE void insertBlock(const QUuid &after);
    /// A fresh block at the end gets the focus.
    Q_INVOKABLE void appendBlock();
    Q_INVOKABLE void duplicateBlock(const QUuid &blockID);
    /// A page is never left without a block. If the block had the focus, its neighbour gets it.
    Q_INVOKABLE void deleteBlock(const QUuid &blockID);
    /// Moves the block by as many places, downwards if positive; beyond either end it stays.
    Q_INVOKABLE void moveBlock(const QUuid &blockID, int delta);
    /// Keeps the text and focuses the block.
    Q_INVOKABLE void changeType(const QUuid &blockID, int type);
    /// Changes the type, takes the typed query away and focuses the block.
    Q_INVOKABLE void applySlash(const QUuid &blockID, int type);
    /// Closes the slash menu until the text changes.
    Q_INVOKABLE void dismissSlash();

    /// Writes the text of a block as far as it is shown. Lines that the edit brings into a block of one line
    /// become blocks of their own, the last of which gets the focus. Returns what the block shows then.
    /// @param caret where it stands in the text; -1 if that is not known
    Q_INVOKABLE QString setText(const QUuid &blockID, const QString &text, int caret = -1);
    /// Puts the clipboard in the place of the selection; false if the field is to do that itself. The
    /// positions count in what is shown.
    Q_INVOKABLE bool paste(const QUuid &blockID, int selectionStart, int selectionEnd);
    /// Whether the text goes on before (-1) or after (1) what is shown of it.
    Q_INVOKABLE bool hasPart(const QUuid &blockID, int direction) const;
    /// Goes to the part before (-1) or after (1) the one that is shown; false if there is none.
    Q_INVOKABLE bool showPart(const QUuid &blockID, int direction);
    Q_INVOKABLE void toggleChecked(const QUuid &blockID);
    Q_INVOKABLE void setTone(const QUuid &blockID, int tone);
    /// @param language the raw text of a language
    Q_INVOKABLE void setLanguage(const QUuid &blockID, const QString &language);

    /// The runs of a code block, for as long as the block and this object are there.
    Q_INVOKABLE CodeRun *codeRun(const QUuid &blockID);
    /// Runs the code as it stands now, unless it is running already.
    Q_INVOKABLE void runInlineCode(const QUuid &blockID);
    Q_INVOKABLE void copyCode(const QUuid &blockID) const;
    Q_INVOKABLE void copyOutput(const QUuid &blockID);

signals:
    void pageIDChanged();
    void titleChanged();
    void isZenChanged();
    void slashTypesChanged();
    /// The block of this row shall have the focus; sent once the row exists.
    /// @param caret where the caret goes in what is shown of its text; -1 leaves it where it is
    void focusRequested(int row, int caret);

protected:
    void start() override;
    void refresh(const ChangeSet &changes) override;
    bool reveal(const UndoPlace &place) override;

private:
    struct Place {
        QUuid blockID;
        qsizetype position = 0;
    };

    void showBlocks(const QList<Block> &blocks);
    void dropRuns();
    void showSlashMenu();
    void requestFocus(const QUuid &blockID, qsizetype caret);
    void giveFocus();

    Block freshBlock(const QString &text = {}) const;
    const Page *page() const;
    /// The block as it stands in the store; null if it or the page is gone.
    const Block *block(const QUuid &blockID) const;
    /// Changes the page, with `updatedDate` now.
    /// @param name how the Edit menu calls it; empty within an action
    template <typename Edit>
    void changePage(const QString &name, Edit edit);
    /// The next key already finds the blocks as the edit leaves them.
    template <typename Edit>
    void changeList(const QString &name, Edit edit);
    template <typename Edit>
    void changeBlock(const QString &name, const QUuid &blockID, Edit edit);
    /// Changes the text of a block, and the part of it that is shown. Returns where the caret belongs then.
    Place editText(Block before, const PageBlocks::TextEdit &edit, qsizetype caret);
    /// Where these blocks were changed to become others.
    static Place changedPlace(const QList<Block> &before, const QList<Block> &after);

    QUuid m_pageID;
    QString m_title;
    /// As the rows show them.
    QList<Block> m_blocks;
    /// As they showed them before that.
    QList<Block> m_earlierBlocks;
    ShownParts m_parts;
    KeyedListModel<BlockRow> m_rows;
    bool m_isZen = false;

    QUuid m_focusedBlock;
    QList<int> m_slashTypes;
    std::optional<QString> m_dismissedText;

    QHash<QUuid, CodeRun *> m_runs;

    QUuid m_wantedFocus;
    /// In the whole text; -1 to leave it where it is.
    qsizetype m_wantedCaret = -1;
    BeforeNextKey m_beforeNextKey;
};
