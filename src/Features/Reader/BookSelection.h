#pragma once

#include "Features/Reader/BookContents.h"

#include <QObject>
#include <QPoint>
#include <QtQml/qqmlregistration.h>

/// The selected text of the open book, which may go over any number of rows.
class BookSelection : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The open book has it.")
    Q_PROPERTY(bool isEmpty READ isEmpty NOTIFY changed FINAL)
    /// The row at which the selection ends that moves.
    Q_PROPERTY(int row READ row NOTIFY changed FINAL)

public:
    using QObject::QObject;

    bool isEmpty() const { return m_anchor == m_head; }
    int row() const { return m_head.row; }

    /// Begins an empty selection at this place of a row, in UTF-16 units.
    Q_INVOKABLE void begin(int row, int position);
    /// Moves the end of the selection there.
    Q_INVOKABLE void extend(int row, int position);
    Q_INVOKABLE void selectWord(int row, int position);
    Q_INVOKABLE void selectRow(int row);
    Q_INVOKABLE void selectAll();
    /// Makes the selection a paragraph longer, or shorter with a step of -1; without one it begins at the
    /// row.
    Q_INVOKABLE void extendByRow(int topRow, int step);
    Q_INVOKABLE void clear();
    /// The part of a row that is selected: x its start and y its end.
    Q_INVOKABLE QPoint inRow(int row) const;
    /// The selected text, with blank lines between paragraphs.
    QString text() const;
    Q_INVOKABLE void copy() const;

    void setContents(SharedBookContents contents);

signals:
    void changed();

private:
    struct Place {
        int row = 0;
        int position = 0;

        auto operator<=>(const Place &) const = default;
    };

    Place valid(int row, int position) const;
    void set(Place anchor, Place head);

    SharedBookContents m_contents;
    Place m_anchor;
    Place m_head;
};
