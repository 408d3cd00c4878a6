#pragma once

#include "Features/Code/CodeRun.h"
#include "Features/Pages/BeforeNextKey.h"
#include "Features/Pages/BlockRow.h"
#include "Features/Pages/BlockSplice.h"
#include "Features/Pages/PageFinder.h"
#include "Features/Pages/PageSelection.h"
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
    Q_PROPERTY(PageSelection *selection READ selection CONSTANT FINAL)
    Q_PROPERTY(bool isZen MEMBER m_isZen NOTIFY isZenChanged FINAL)
    /// The search within the page; lives as long as the editor.
    Q_PROPERTY(PageFinder *finder MEMBER m_finder NOTIFY finderChanged FINAL)
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
    PageSelection *selection() const { return m_selection; }
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
    /// Puts the clipboard in the place of the selection, with the blocks that it names; false if the field is
    /// to do that itself. The positions count in what is shown.
    /// @param plain whether the clipboard is taken as lines of text
    Q_INVOKABLE bool paste(const QUuid &blockID, int selectionStart, int selectionEnd, bool plain = false);
    /// Puts another word in the place of a misspelt one. The positions count in what is shown.
    Q_INVOKABLE void correctWord(const QUuid &blockID, int begin, int end, const QString &misspelt,
                                 const QString &word);
    /// Whether the text goes on before (-1) or after (1) what is shown of it.
    Q_INVOKABLE bool hasPart(const QUuid &blockID, int direction) const;
    /// Goes to the part before (-1) or after (1) the one that is shown; false if there is none.
    Q_INVOKABLE bool showPart(const QUuid &blockID, int direction);
    /// Shows the part that this position of the whole text lies in. Returns where the part begins.
    Q_INVOKABLE int showPartAt(const QUuid &blockID, int position);
    /// Where the part that is shown begins in the whole text.
    Q_INVOKABLE int partBegin(const QUuid &blockID) const;
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

    /// The address at a place in a text; empty if there is none that may be opened.
    Q_INVOKABLE QString linkIn(const QString &text, int position) const;
    /// Opens an address of the web or of mail in the program that the desktop has for it; no other.
    Q_INVOKABLE void openLink(const QString &link);
    Q_INVOKABLE void copyLink(const QString &link) const;
    /// Opens an address; false if there is no program for it.
    void setLinkOpener(std::function<bool(const QUrl &)> opener) { m_openLink = std::move(opener); }

    /// The blocks as they stand in the store; none once the page is gone.
    const QList<Block> &blocks() const;
    /// Changes the blocks of the page as one action, such that the next key already finds them so.
    void changeBlocks(const QString &name, const std::function<void(QList<Block> &)> &edit);
    std::function<QUuid()> idMaker() const;
    /// Has the block focused once its row exists.
    /// @param caret in the whole text; -1 leaves it where it is
    void focusBlock(const QUuid &blockID, qsizetype caret) { requestFocus(blockID, caret); }

signals:
    void pageIDChanged();
    void titleChanged();
    void isZenChanged();
    void finderChanged();
    void slashTypesChanged();
    /// A sentence on what could not be done.
    void message(const QString &text);
    /// The block of this row shall have the focus; sent once the row exists.
    /// @param caret where the caret goes in what is shown of its text; -1 leaves it where it is
    void focusRequested(int row, int caret);

protected:
    void start() override;
    void refresh(const ChangeSet &changes) override;
    bool reveal(const UndoPlace &place) override;

private:
    using Place = BlockSplice::Place;

    void showBlocks(const QList<Block> &pasted);
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
    void changePage(const QString &name, const std::function<void(Page &)> &edit);
    void changeBlock(const QString &name, const QUuid &blockID, const std::function<void(Block &)> &edit);
    /// Changes the text of a block, and the part of it that is shown. Returns where the caret belongs then.
    Place editText(Block before, const PageBlocks::TextEdit &edit, qsizetype caret);
    /// Makes of the block what the typed signs ask for.
    void changeKind(const Block &block);
    void pasteText(const Block &target, PageBlocks::TextEdit edit);
    void pasteBlocks(const QUuid &blockID, PageBlocks::TextEdit edit, const QList<Block> &blocks);
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
    PageSelection *m_selection;
    ClipboardReader m_clipboard;
    std::function<bool(const QUrl &)> m_openLink;
    PageFinder *m_finder = nullptr;

    QUuid m_focusedBlock;
    QList<int> m_slashTypes;
    std::optional<QString> m_dismissedText;

    QHash<QUuid, CodeRun *> m_runs;

    QUuid m_wantedFocus;
    /// In the whole text; -1 to leave it where it is.
    qsizetype m_wantedCaret = -1;
    BeforeNextKey m_beforeNextKey;
};
