#pragma once

#include "Support/Destination.h"
#include "Support/Quotes.h"

#include <QObject>

/// Where the user is in the window. There is one for the process, and nothing of it is stored: it starts
/// afresh with each launch. Of the ids, null means none.
class UIState : public QObject
{
    Q_OBJECT
    /// What the window shows.
    Q_PROPERTY(Destination selection READ selection WRITE setSelection NOTIFY selectionChanged FINAL)
    Q_PROPERTY(bool isSearchPresented READ isSearchPresented WRITE setSearchPresented NOTIFY
                   isSearchPresentedChanged FINAL)
    Q_PROPERTY(bool isShortcutsPresented READ isShortcutsPresented WRITE setShortcutsPresented NOTIFY
                   isShortcutsPresentedChanged FINAL)
    Q_PROPERTY(bool isSidebarVisible READ isSidebarVisible WRITE setSidebarVisible NOTIFY
                   isSidebarVisibleChanged FINAL)
    /// The quote shuffled in; nothing means the quote of the day.
    Q_PROPERTY(std::optional<Quote> randomQuote READ randomQuote WRITE setRandomQuote NOTIFY
                   randomQuoteChanged FINAL)
    /// The document to open in the code screen.
    Q_PROPERTY(
        QUuid codeDocumentID READ codeDocumentID WRITE setCodeDocumentID NOTIFY codeDocumentIDChanged FINAL)
    /// The book to open in the reader.
    Q_PROPERTY(QUuid bookID READ bookID WRITE setBookID NOTIFY bookIDChanged FINAL)
    /// The deck to open in the deck screen.
    Q_PROPERTY(QUuid deckID READ deckID WRITE setDeckID NOTIFY deckIDChanged FINAL)
    /// The deck presented over the whole window.
    Q_PROPERTY(QUuid presentingDeckID READ presentingDeckID WRITE setPresentingDeckID NOTIFY
                   presentingDeckIDChanged FINAL)

public:
    using QObject::QObject;

    const Destination &selection() const { return m_selection; }
    void setSelection(const Destination &selection);
    /// Selects the destination with this `Destination::text()`, such as "settings"; ignores any other text.
    Q_INVOKABLE void select(const QString &destination);
    Q_INVOKABLE void selectPage(const QUuid &id) { setSelection(Destination::page(id)); }
    Q_INVOKABLE void selectProject(const QUuid &id) { setSelection(Destination::project(id)); }
    Q_INVOKABLE void selectCodeDocument(const QUuid &id) { setSelection(Destination::codeDocument(id)); }
    Q_INVOKABLE void selectDeck(const QUuid &id) { setSelection(Destination::deck(id)); }

    /// Goes to the place, whose screen then shows where this text stands in it.
    void showText(const Destination &place, const QString &text);
    /// The text to show in the place that is selected, for its screen to take once; empty for none.
    QString takeSoughtText();

    bool isSearchPresented() const { return m_isSearchPresented; }
    void setSearchPresented(bool presented);
    bool isShortcutsPresented() const { return m_isShortcutsPresented; }
    void setShortcutsPresented(bool presented);
    bool isSidebarVisible() const { return m_isSidebarVisible; }
    void setSidebarVisible(bool visible);

    const std::optional<Quote> &randomQuote() const { return m_randomQuote; }
    void setRandomQuote(const std::optional<Quote> &quote);

    QUuid codeDocumentID() const { return m_codeDocumentID; }
    void setCodeDocumentID(const QUuid &id);
    QUuid bookID() const { return m_bookID; }
    void setBookID(const QUuid &id);
    QUuid deckID() const { return m_deckID; }
    void setDeckID(const QUuid &id);
    QUuid presentingDeckID() const { return m_presentingDeckID; }
    void setPresentingDeckID(const QUuid &id);

signals:
    void selectionChanged();
    /// The screen that is shown is asked to show a text, see `takeSoughtText`.
    void textSought();
    void isSearchPresentedChanged();
    void isShortcutsPresentedChanged();
    void isSidebarVisibleChanged();
    void randomQuoteChanged();
    void codeDocumentIDChanged();
    void bookIDChanged();
    void deckIDChanged();
    void presentingDeckIDChanged();

private:
    template <typename T>
    void set(T &member, const T &value, void (UIState::*changed)());

    Destination m_selection;
    QString m_soughtText;
    bool m_isSearchPresented = false;
    bool m_isShortcutsPresented = false;
    bool m_isSidebarVisible = true;
    std::optional<Quote> m_randomQuote;
    QUuid m_codeDocumentID;
    QUuid m_bookID;
    QUuid m_deckID;
    QUuid m_presentingDeckID;
};
