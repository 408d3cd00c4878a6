#pragma once

#include <QObject>
#include <QtQml/qqmlregistration.h>

/// Looks for a text in what a screen shows, and goes from match to match; `OVFindBar` is its face. A screen
/// derives its own from it, which knows where the texts are.
class TextFinder : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("A screen has its own.")
    /// Whether the bar is shown, and the matches are marked.
    Q_PROPERTY(bool isOpen READ isOpen NOTIFY isOpenChanged FINAL)
    /// Kept while the bar is closed, so that the search can go on.
    Q_PROPERTY(QString query READ query WRITE setQuery NOTIFY queryChanged FINAL)
    Q_PROPERTY(bool canReplace READ canReplace CONSTANT FINAL)
    /// Whether the bar offers to replace.
    Q_PROPERTY(bool isReplacing READ isReplacing WRITE setReplacing NOTIFY isReplacingChanged FINAL)
    Q_PROPERTY(QString replacement MEMBER m_replacement NOTIFY replacementChanged FINAL)
    Q_PROPERTY(int count READ count NOTIFY matchesChanged FINAL)
    /// The number of the match that the user is at, from 0; -1 for none.
    Q_PROPERTY(int current READ current NOTIFY matchesChanged FINAL)
    /// "3 of 12" or "No matches"; empty without a query.
    Q_PROPERTY(QString countText READ countText NOTIFY matchesChanged FINAL)
    /// Counts on whenever other marks are to be shown.
    Q_PROPERTY(int revision MEMBER m_revision NOTIFY revisionChanged FINAL)

public:
    explicit TextFinder(QObject *parent = nullptr);

    bool isOpen() const { return m_isOpen; }
    const QString &query() const { return m_query; }
    /// Goes to the match that is nearest to where the user is.
    void setQuery(const QString &query);
    virtual bool canReplace() const { return false; }
    bool isReplacing() const { return m_isReplacing; }
    void setReplacing(bool replacing);
    int count() const { return m_count; }
    int current() const { return m_current; }
    QString countText() const;

    /// Shows the bar and gives it the keyboard.
    /// @param text what the user has selected, to look for; empty for what was looked for last
    Q_INVOKABLE void open(const QString &text = {});
    /// The same, with the field to replace.
    Q_INVOKABLE void openReplace(const QString &text = {});
    Q_INVOKABLE void close();
    /// Goes to the next match, or the one before; after the last one comes the first. While the bar is closed
    /// it is opened.
    Q_INVOKABLE void next() { step(1); }
    Q_INVOKABLE void previous() { step(-1); }
    /// Puts the replacement in the place of the match that the user is at, and goes to the next.
    Q_INVOKABLE void replace();
    Q_INVOKABLE void replaceAll();

signals:
    void isOpenChanged();
    void isReplacingChanged();
    void queryChanged();
    void replacementChanged();
    void matchesChanged();
    void revisionChanged();
    /// The bar is shown, or asked for again.
    void opened();

protected:
    struct Found {
        int count = 0;
        /// The match to begin at.
        int first = -1;
    };
    /// Looks for a query that is not empty. It begins where the user is, or where the last search has led.
    virtual Found search(const QString &query) = 0;
    /// No text is looked for any more.
    virtual void clearMatches() = 0;
    /// Brings the match into view.
    virtual void showMatch(int match) = 0;
    /// Replaces as many matches as one action of the user.
    virtual void replaceMatches(int, int, const QString &) {}

    /// Looks again, since the text is another one.
    /// @param shows whether the view goes to the match
    void searchAgain(bool shows);
    /// Forgets the query: there is another text.
    void reset();

private:
    void step(int by);
    void goTo(int match, bool shows);

    QString m_query;
    QString m_replacement;
    bool m_isOpen = false;
    bool m_isReplacing = false;
    int m_count = 0;
    int m_current = -1;
    int m_revision = 0;
};
