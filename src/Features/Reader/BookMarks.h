#pragma once

#include "Features/Reader/BookFinder.h"
#include "Foundation/CoalescedCall.h"

#include <QColor>
#include <QPointer>
#include <QQuickTextDocument>

/// Marks the matches of the search in the text of one row.
class BookMarks : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(BookFinder *finder READ finder WRITE setFinder NOTIFY changed FINAL)
    /// The `textDocument` of a TextEdit that shows the row.
    Q_PROPERTY(QQuickTextDocument *document READ document WRITE setDocument NOTIFY changed FINAL)
    Q_PROPERTY(int row MEMBER m_row NOTIFY changed FINAL)
    Q_PROPERTY(QColor color MEMBER m_color NOTIFY changed FINAL)
    /// Behind the match that the user is at.
    Q_PROPERTY(QColor currentColor MEMBER m_currentColor NOTIFY changed FINAL)

public:
    explicit BookMarks(QObject *parent = nullptr);

    BookFinder *finder() const { return m_finder; }
    void setFinder(BookFinder *finder);
    QQuickTextDocument *document() const { return m_document; }
    void setDocument(QQuickTextDocument *document);

signals:
    void changed();

private:
    void mark();

    QPointer<BookFinder> m_finder;
    QPointer<QQuickTextDocument> m_document;
    int m_row = -1;
    QColor m_color;
    QColor m_currentColor;
    bool m_hasMarks = false;
    // At the end of the turn, when the field has its text.
    CoalescedCall m_mark;
};
