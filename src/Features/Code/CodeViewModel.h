#pragma once

#include "Features/Code/CodeRow.h"
#include "Features/Code/CodeRun.h"
#include "Foundation/CoalescedCall.h"
#include "Foundation/KeyedListModel.h"
#include "Store/WorkspaceStore.h"

#include <QtQml/qqmlregistration.h>

/// What the code screen shows and does: the rail of documents, the one that is open, and its last run.
class CodeViewModel : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(WorkspaceStore *store READ store WRITE setStore NOTIFY storeChanged REQUIRED FINAL)
    Q_PROPERTY(bool active READ isActive WRITE setActive NOTIFY activeChanged FINAL)
    /// The document that the person came for; null for none.
    Q_PROPERTY(
        QVariant focusDocument READ focusDocument WRITE setFocusDocument NOTIFY focusDocumentChanged FINAL)

    /// `CodeRow`s.
    Q_PROPERTY(QAbstractItemModel *rows READ rows CONSTANT FINAL)
    Q_PROPERTY(QString query READ query WRITE setQuery NOTIFY queryChanged FINAL)
    /// Whether there are no documents at all.
    Q_PROPERTY(bool isEmpty READ isEmpty NOTIFY isEmptyChanged FINAL)
    /// Whether the query finds none.
    Q_PROPERTY(bool findsNothing READ findsNothing NOTIFY findsNothingChanged FINAL)
    /// The place of the open document among the rows, -1 if it is not among them.
    Q_PROPERTY(int selectedRow READ selectedRow NOTIFY selectedRowChanged FINAL)

    Q_PROPERTY(QVariant selectedID READ selectedVariant NOTIFY selectionChanged FINAL)
    Q_PROPERTY(QString title READ title NOTIFY titleChanged FINAL)
    Q_PROPERTY(QString language READ language NOTIFY languageChanged FINAL)
    Q_PROPERTY(QString languageText READ languageText NOTIFY languageChanged FINAL)
    Q_PROPERTY(QString source READ source NOTIFY sourceChanged FINAL)
    Q_PROPERTY(QString lineCountText READ lineCountText NOTIFY sourceChanged FINAL)

    Q_PROPERTY(bool wrap MEMBER m_wrap NOTIFY wrapChanged FINAL)
    Q_PROPERTY(bool showLineNumbers MEMBER m_showLineNumbers NOTIFY showLineNumbersChanged FINAL)
    /// Pixels at the ordinary size of text.
    Q_PROPERTY(int fontSize READ fontSize WRITE setFontSize NOTIFY fontSizeChanged FINAL)
    Q_PROPERTY(bool canShrink READ canShrink NOTIFY fontSizeChanged FINAL)
    Q_PROPERTY(bool canGrow READ canGrow NOTIFY fontSizeChanged FINAL)

    Q_PROPERTY(CodeRun *result READ result CONSTANT FINAL)
    Q_PROPERTY(bool isRunning READ isRunning NOTIFY isRunningChanged FINAL)
    Q_PROPERTY(bool showConsole READ showConsole WRITE setShowConsole NOTIFY showConsoleChanged FINAL)
    Q_PROPERTY(QString consoleText READ consoleText NOTIFY consoleTextChanged FINAL)

public:
    static constexpr int smallestFont = 9, usualFont = 13, largestFont = 28;

    explicit CodeViewModel(QObject *parent = nullptr);

    WorkspaceStore *store() const { return m_store; }
    void setStore(WorkspaceStore *store);
    bool isActive() const { return m_active; }
    void setActive(bool active);
    QVariant focusDocument() const { return m_focusDocument; }
    void setFocusDocument(const QVariant &document);

    QAbstractItemModel *rows() { return &m_rows; }
    const QString &query() const { return m_query; }
    void setQuery(const QString &query);
    bool isEmpty() const { return m_isEmpty; }
    bool findsNothing() const { return m_findsNothing; }
    int selectedRow() const { return m_selectedRow; }

    QUuid selectedID() const { return m_selectedID; }
    QVariant selectedVariant() const { return m_selectedID; }
    QString title() const { return m_shown.title; }
    QString language() const { return enumRawText(m_shown.language); }
    QString languageText() const { return enumLabel(m_shown.language); }
    QString source() const { return m_shown.source; }
    QString lineCountText() const { return CodeRow::lineCountText(m_shown.lineCount()); }

    int fontSize() const { return m_fontSize; }
    /// Keeps it within bounds.
    void setFontSize(int size);
    bool canShrink() const { return m_fontSize > smallestFont; }
    bool canGrow() const { return m_fontSize < largestFont; }

    CodeRun *result() { return &m_result; }
    bool isRunning() const { return m_result.isRunning(); }
    bool showConsole() const { return m_showConsole; }
    void setShowConsole(bool shown);
    QString consoleText() const;

    /// Makes an untitled document and opens it. A query that hides it is taken back.
    Q_INVOKABLE void newDocument();
    Q_INVOKABLE void select(const QUuid &id);
    /// Opens the document so many rows further down, or the last one; the first one if none is open.
    Q_INVOKABLE void selectBy(int rows);
    Q_INVOKABLE void duplicate(const QUuid &id);
    /// If it was open, the first document is opened in its place.
    Q_INVOKABLE void deleteDocument(const QUuid &id);
    /// A blank title changes nothing.
    Q_INVOKABLE void rename(const QUuid &id, const QString &title);
    Q_INVOKABLE void setLanguage(const QString &raw);
    Q_INVOKABLE void setSource(const QString &source);
    Q_INVOKABLE void copySource() const;
    /// Opens the console and runs the open document, unless a run is going.
    Q_INVOKABLE void runSnippet();

signals:
    void storeChanged();
    void activeChanged();
    void focusDocumentChanged();
    void queryChanged();
    void isEmptyChanged();
    void findsNothingChanged();
    void selectedRowChanged();
    void selectionChanged();
    void titleChanged();
    void languageChanged();
    void sourceChanged();
    void wrapChanged();
    void showLineNumbersChanged();
    void fontSizeChanged();
    void isRunningChanged();
    void showConsoleChanged();
    void consoleTextChanged();

private:
    template <typename Edit>
    void change(const QUuid &id, Edit edit);
    void follow(const ChangeSet &changes);
    void refresh();
    /// Takes a query back that does not find the document.
    void showInList(const CodeDocument &document);
    /// Selects the document that is wanted, or another one when the present one is gone.
    void syncSelection();
    void layOut();
    void updateRows();
    void showDocument();
    void locateSelection();

    WorkspaceStore *m_store = nullptr;
    bool m_active = true;
    QUuid m_focusDocument;
    /// Whether `m_focusDocument` has still to be opened.
    bool m_focusWanted = false;

    KeyedListModel<CodeRow> m_rows;
    QString m_query;
    bool m_isEmpty = true;
    bool m_findsNothing = false;
    int m_selectedRow = -1;

    QUuid m_selectedID;
    /// The open document as it was told last.
    CodeDocument m_shown;
    bool m_wrap = false;
    bool m_showLineNumbers = true;
    int m_fontSize = usualFont;
    CodeRun m_result;
    bool m_showConsole = false;

    CoalescedCall m_refresh;
    bool m_layoutNeeded = true;
    QSet<QUuid> m_changedDocuments;
};
