#pragma once

#include "Features/Code/CodeDesk.h"
#include "Features/Code/CodeFinder.h"
#include "Features/Code/CodeRow.h"
#include "Foundation/Choice.h"
#include "Foundation/KeyedListModel.h"
#include "Session/ViewModel.h"

/// What the code screen shows and does: the rail of documents and the one that is open.
class CodeViewModel : public ViewModel
{
    Q_OBJECT
    QML_ELEMENT
    /// Keeps the runs; lives longer than the view model.
    Q_PROPERTY(CodeDesk *desk MEMBER m_desk NOTIFY deskChanged REQUIRED FINAL)

    /// `CodeRow`s.
    Q_PROPERTY(QAbstractItemModel *rows READ rows CONSTANT FINAL)
    Q_PROPERTY(QString query READ query WRITE setQuery NOTIFY queryChanged FINAL)
    /// Whether there are no documents at all.
    Q_PROPERTY(bool isEmpty READ isEmpty NOTIFY isEmptyChanged FINAL)
    /// The place of the open document among the rows, -1 if it is not among them.
    Q_PROPERTY(int selectedRow READ selectedRow NOTIFY selectedRowChanged FINAL)

    Q_PROPERTY(QVariant selectedID READ selectedVariant NOTIFY selectionChanged FINAL)
    Q_PROPERTY(QString title READ title NOTIFY documentChanged FINAL)
    Q_PROPERTY(Choice language READ language NOTIFY documentChanged FINAL)
    Q_PROPERTY(QString source READ source NOTIFY documentChanged FINAL)
    /// The search within the open document.
    Q_PROPERTY(CodeFinder *finder READ finder CONSTANT FINAL)
    Q_PROPERTY(QString lineCountText READ lineCountText NOTIFY documentChanged FINAL)

public:
    explicit CodeViewModel(QObject *parent = nullptr);

    QAbstractItemModel *rows() { return &m_rows; }
    const QString &query() const { return m_query; }
    void setQuery(const QString &query);
    bool isEmpty() const { return m_isEmpty; }
    int selectedRow() const { return m_selectedRow; }

    QUuid selectedID() const { return m_document.id; }
    QVariant selectedVariant() const { return m_document.id; }
    QString title() const { return m_document.title; }
    Choice language() const { return Choice::of(m_document.language); }
    QString source() const { return m_document.source; }
    CodeFinder *finder() { return &m_finder; }
    QString lineCountText() const { return CodeRow::lineCountText(m_document.lineCount()); }

    /// Makes an untitled document and opens it.
    Q_INVOKABLE void newDocument();
    /// Opens a document. A query that hides it is taken back.
    Q_INVOKABLE void select(const QUuid &id);
    /// Opens the document so many rows further down, or the last one; the first one if none is open.
    Q_INVOKABLE void selectBy(int rows);
    Q_INVOKABLE void duplicate(const QUuid &id);
    /// If it was open, the first document is opened in its place.
    Q_INVOKABLE void deleteDocument(const QUuid &id);
    /// A blank title changes nothing.
    Q_INVOKABLE void rename(const QUuid &id, const QString &title);
    Q_INVOKABLE void setLanguage(const QString &raw);
    /// @param caret where the caret stands after the change
    Q_INVOKABLE void setSource(const QString &source, int caret = -1);
    Q_INVOKABLE void copySource() const;
    /// "Untitled" for a blank title.
    Q_INVOKABLE QString titleOf(const QUuid &id) const;
    /// Opens the console and runs the open document, unless it is running.
    Q_INVOKABLE void runSnippet();
    /// Shows the text that was asked for from elsewhere, if it was for the open document.
    Q_INVOKABLE void showSoughtText();

signals:
    void deskChanged();
    void queryChanged();
    void isEmptyChanged();
    void selectedRowChanged();
    void selectionAboutToChange();
    void selectionChanged();
    void documentChanged();
    /// Typing was undone or redone, and the caret belongs here.
    void caretRestored(int caret);

protected:
    void start() override;
    void refresh(const ChangeSet &changes) override;
    bool reveal(const UndoPlace &place) override;

private:
    /// The document as the store has it, which the screen may not show yet; null for an unknown one.
    const CodeDocument *find(const QUuid &id) const { return store().codeDocuments().first(id); }
    void showDocument();
    void replaceSource(const QString &source, int caret, int count);
    void layOut();

    CodeDesk *m_desk = nullptr;
    KeyedListModel<CodeRow> m_rows;
    QString m_query;
    bool m_isEmpty = true;
    int m_selectedRow = -1;
    /// The open document as it was told last.
    CodeDocument m_document;
    CodeFinder m_finder;
    bool m_needsLayout = false;
};
