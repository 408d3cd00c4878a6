#pragma once

#include "Features/Notes/NoteRow.h"
#include "Features/Notes/NotesSearch.h"
#include "Foundation/CoalescedCall.h"
#include "Foundation/KeyedListModel.h"
#include "Session/SessionTypes.h"

#include <QTimer>
#include <QtQml/qqmlregistration.h>

/// What the screen of all notes shows and does.
class NotesViewModel : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(WorkspaceStore *store READ store WRITE setStore NOTIFY storeChanged REQUIRED FINAL)
    Q_PROPERTY(UIState *ui MEMBER m_ui REQUIRED FINAL)
    /// Whether the screen is shown; the cards stand still while it is not.
    Q_PROPERTY(bool active READ isActive WRITE setActive NOTIFY activeChanged FINAL)

    Q_PROPERTY(QString query READ query WRITE setQuery NOTIFY queryChanged FINAL)
    /// `NoteRow`s.
    Q_PROPERTY(QAbstractItemModel *rows READ rows CONSTANT FINAL)
    Q_PROPERTY(bool isEmpty READ isEmpty NOTIFY shownChanged FINAL)
    Q_PROPERTY(QString emptyTitle READ emptyTitle NOTIFY shownChanged FINAL)
    /// Empty where nothing is offered.
    Q_PROPERTY(QString emptyAction READ emptyAction NOTIFY shownChanged FINAL)

public:
    explicit NotesViewModel(QObject *parent = nullptr);

    WorkspaceStore *store() const { return m_store; }
    void setStore(WorkspaceStore *store);
    bool isActive() const { return m_active; }
    void setActive(bool active);

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
    void storeChanged();
    void activeChanged();
    void queryChanged();
    /// The cards were found anew.
    void shownChanged();

private:
    void refresh();
    void prepareSearch();

    WorkspaceStore *m_store = nullptr;
    UIState *m_ui = nullptr;
    bool m_active = true;
    QString m_query;
    /// Whether the cards are those of a search.
    bool m_isSearch = false;
    std::optional<NotesSearch> m_search;
    KeyedListModel<NoteRow> m_rows;
    CoalescedCall m_refresh;
    QTimer m_prepareTimer;
};
