#pragma once

#include "Features/Decks/DeckRow.h"
#include "Foundation/KeyedListModel.h"
#include "Session/ViewModel.h"

/// The rail of decks, and which of them is open. What is in the open one is in `DeckEditorViewModel`.
class DecksViewModel : public ViewModel
{
    Q_OBJECT
    QML_ELEMENT
    /// `DeckRow`s, the one changed last first.
    Q_PROPERTY(QAbstractItemModel *rows READ rows CONSTANT FINAL)
    Q_PROPERTY(QString query READ query WRITE setQuery NOTIFY queryChanged FINAL)
    /// Whether there are no decks at all.
    Q_PROPERTY(bool isEmpty READ isEmpty NOTIFY isEmptyChanged FINAL)
    /// The place of the open deck among the rows, -1 if it is not among them.
    Q_PROPERTY(int selectedRow READ selectedRow NOTIFY selectedRowChanged FINAL)
    Q_PROPERTY(QVariant deckID READ deckVariant NOTIFY selectionChanged FINAL)
    Q_PROPERTY(QList<SlideThemeChoice> themes READ themes CONSTANT FINAL)

public:
    explicit DecksViewModel(QObject *parent = nullptr);

    QAbstractItemModel *rows() { return &m_rows; }
    const QString &query() const { return m_query; }
    void setQuery(const QString &query);
    bool isEmpty() const { return m_isEmpty; }
    int selectedRow() const { return m_selectedRow; }
    QUuid deckID() const { return m_deckID; }
    QVariant deckVariant() const { return m_deckID; }
    static QList<SlideThemeChoice> themes() { return SlideThemeChoice::catalog(); }

    /// Makes a deck to begin with and opens it.
    /// @param themeID of the catalogue; any other stands for its first theme
    Q_INVOKABLE void newDeck(const QString &themeID);
    /// Opens a deck. A query that hides it is taken back.
    Q_INVOKABLE void select(const QUuid &id);
    /// Opens the deck so many rows further down, or the last one; the first one if none is open.
    Q_INVOKABLE void selectBy(int rows);
    Q_INVOKABLE void duplicate(const QUuid &id);
    /// If it was open, the first deck is opened in its place.
    Q_INVOKABLE void remove(const QUuid &id);
    /// "Untitled" for a blank title.
    Q_INVOKABLE QString titleOf(const QUuid &id) const;
    Q_INVOKABLE void present(const QUuid &id);

signals:
    void queryChanged();
    void isEmptyChanged();
    void selectedRowChanged();
    void selectionChanged();
    /// A step was undone in this slide of the open deck; of typing also its field and the caret.
    void slideRevealed(const QVariant &slideID, const QString &field, int caret);

protected:
    void start() override;
    void refresh(const ChangeSet &changes) override;
    bool reveal(const UndoPlace &place) override;

private:
    const Deck *find(const QUuid &id) const { return store().list<Deck>().first(id); }
    QList<DeckRow> matchingRows() const;
    void chooseDeck();

    KeyedListModel<DeckRow> m_rows;
    QString m_query;
    bool m_isEmpty = true;
    int m_selectedRow = -1;
    QUuid m_deckID;
};
