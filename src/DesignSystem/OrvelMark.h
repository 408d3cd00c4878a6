#pragma once

#include <QColor>
#include <QPainterPath>
#include <QQuickPaintedItem>

/// The program's mark: one stroke that zigzags through the corners of an inner box.
class OrvelMark : public QQuickPaintedItem
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QColor color MEMBER m_color NOTIFY changed FINAL)
    /// How much of the thin stroke is drawn, from 0 to 1.
    Q_PROPERTY(qreal outlineProgress MEMBER m_outlineProgress NOTIFY changed FINAL)
    /// How far the full form has come in, from 0 to 1.
    Q_PROPERTY(qreal fillProgress MEMBER m_fillProgress NOTIFY changed FINAL)

public:
    explicit OrvelMark(QQuickItem *parent = nullptr);

    void paint(QPainter *painter) override;

    /// The whole stroke in a box of this size.
    static QPainterPath path(const QSizeF &size);
    /// The beginning of a path, up to a part of its length from 0 to 1.
    static QPainterPath trimmed(const QPainterPath &path, qreal progress);

signals:
    void changed();

private:
    QColor m_color;
    qreal m_outlineProgress = 1;
    qreal m_fillProgress = 1;
};
