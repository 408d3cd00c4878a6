#pragma once

#include "Features/Notes/NoteRow.h"
#include "Foundation/KeyedListModel.h"
#include "Session/ViewModel.h"

/// What the screen of all notes shows and does.
class NotesViewModel : public ViewModel
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString query READ query WRITE setQuery NOTIFY queryChanged FINAL)
    /// `NoteRow`s.
    Q_PROPERTY(QAbstractItemModel *rows READ rows CONSTANT FINAL)
    Q_PROPERTY(bool isEmpty READ isEmpty NOTIFY shownChanged FINAL)
    Q_PROPERTY(QString emptyTitle READ emptyTitle NOTIFY shownChanged FINAL)
    /// Empty where nothing is offered.
    Q_PROPERTY(QString emptyAction READ emptyAction NOTIFY shownChanged FINAL)

public:
    explicit NotesViewModel(QObject *parent = nullptr);

    const QString &query() const { return m_query; }
    void setQuery(const QString &query);
    QAbstractItemModel *rows() { return &m_rows; }
    const QList<NoteRow> &rowList() const { return m_rows.rows(); }
    bool isEmpty() const { return m_rows.rows().isEmpty(); }
    QString emptyTitle() const;
    QString emptyAction() const;

    /// Makes an empty note and opens it.
    Q_INVOKABLE void newNote();
    Q_INVOKABLE void openNote(const QUuid &noteID);
    Q_INVOKABLE void deleteNote(const QUuid &noteID);

signals:
    void queryChanged();
    /// The cards were found anew.
    void shownChanged();
    /// The card with this index is where a step was undone.
    void revealed(int card);

protected:
    void refresh(const ChangeSet &changes) override;
    bool reveal(const UndoPlace &place) override;

private:
    /// Those that the query finds, the last changed first.
    QList<const Page *> matchingNotes() const;

    QString m_query;
    /// Whether the cards are those of a search.
    bool m_isSearch = false;
    KeyedListModel<NoteRow> m_rows;
};
