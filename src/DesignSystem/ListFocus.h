#pragma once

#include <QJSValue>
#include <QPointer>
#include <QQuickItem>

/// The keyboard in a view of items that is one stop for Tab: arrow keys, Page Up and Down, Home and End go
/// from item to item, and beyond the first and the last one they leave the view.
class ListFocus : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    /// A `ListView` or `GridView`.
    Q_PROPERTY(QQuickItem *view READ view WRITE setView NOTIFY viewChanged FINAL)
    /// Items in a row of a grid.
    Q_PROPERTY(int columns READ columns WRITE setColumns NOTIFY columnsChanged FINAL)
    /// Height of a row; 0 for that of the current item.
    Q_PROPERTY(qreal rowHeight READ rowHeight WRITE setRowHeight NOTIFY rowHeightChanged FINAL)
    /// Whether the items stand side by side, so that Left and Right go from one to the next.
    Q_PROPERTY(bool horizontal READ isHorizontal WRITE setHorizontal NOTIFY horizontalChanged FINAL)
    /// A function that tells of the item at an index whether the focus stops there; undefined for all.
    Q_PROPERTY(QJSValue stopsAt READ stopsAt WRITE setStopsAt NOTIFY stopsAtChanged FINAL)
    /// Whether the focus was moved by keys, so that its ring shows.
    Q_PROPERTY(bool ringShown READ isRingShown WRITE setRingShown NOTIFY ringShownChanged FINAL)

public:
    using QObject::QObject;

    QQuickItem *view() const { return m_view; }
    void setView(QQuickItem *view);
    int columns() const { return m_columns; }
    void setColumns(int columns);
    qreal rowHeight() const { return m_rowHeight; }
    void setRowHeight(qreal height);
    bool isHorizontal() const { return m_horizontal; }
    void setHorizontal(bool horizontal);
    QJSValue stopsAt() const { return m_stopsAt; }
    void setStopsAt(const QJSValue &function);
    bool isRingShown() const { return m_ringShown; }
    void setRingShown(bool shown);

    /// Makes the item current, brings it into view and gives it the focus. An index beyond an end means the
    /// item at that end.
    Q_INVOKABLE void focus(int index, int reason = Qt::TabFocusReason);
    /// Does what the key stands for; false for any other key.
    Q_INVOKABLE bool press(int key);
    /// The index that a key leads to; the current one where it leaves the view, and -1 for any other key.
    Q_INVOKABLE int target(int key) const;
    /// The next index from one on at which the focus stops, in steps of 1 or -1; -1 for none.
    Q_INVOKABLE int stopFrom(int index, int step) const;

signals:
    void viewChanged();
    void columnsChanged();
    void rowHeightChanged();
    void horizontalChanged();
    void stopsAtChanged();
    void ringShownChanged();
    /// The user goes on beyond an edge of the view, a `Qt::Edge`.
    void exited(int edge);

private:
    struct Motion {
        int index = -1;
        /// 0 while the focus stays in the view.
        int edge = 0;
    };

    Motion motion(int key) const;
    Motion byRow(int step) const;
    int pageRows() const;
    int count() const;
    int current() const;

    QPointer<QQuickItem> m_view;
    QJSValue m_stopsAt;
    qreal m_rowHeight = 0;
    int m_columns = 1;
    bool m_horizontal = false;
    bool m_ringShown = false;
};
