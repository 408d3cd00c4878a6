#pragma once

#include "Features/Reader/BookMatches.h"

#include <QObject>
#include <QtQml/qqmlregistration.h>

/// Looks for a word in the open book and goes from match to match.
class BookFinder : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The open book has it.")
    Q_PROPERTY(QString query READ query WRITE setQuery NOTIFY queryChanged FINAL)
    Q_PROPERTY(int count READ count NOTIFY matchesChanged FINAL)
    /// "3 of 12" or "No matches"; empty without a query.
    Q_PROPERTY(QString countText READ countText NOTIFY matchesChanged FINAL)

public:
    using QObject::QObject;

    const QString &query() const { return m_query; }
    /// Goes to the first match from the row on that is shown at the top.
    void setQuery(const QString &query);
    int count() const { return m_matches.count(); }
    QString countText() const;
    const BookMatches &matches() const { return m_matches; }
    /// The number of the match that the user is at; -1 for none.
    int current() const { return m_current; }

    /// Goes to the next match, or the one before; after the last one comes the first.
    Q_INVOKABLE void next() { step(1); }
    Q_INVOKABLE void previous() { step(-1); }

    void setContents(SharedBookContents contents);
    /// Where the user reads: the search goes on from there.
    void setTopRow(int row) { m_topRow = row; }

signals:
    void queryChanged();
    void matchesChanged();
    /// This match is to be brought into view.
    void shown(int row, int start);

private:
    void step(int by);
    void goTo(int match);

    SharedBookContents m_contents;
    QString m_query;
    BookMatches m_matches;
    int m_current = -1;
    int m_topRow = 0;
};
