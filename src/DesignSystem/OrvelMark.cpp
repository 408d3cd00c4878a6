#include "DesignSystem/OrvelMark.h"

#include <QLineF>
#include <QPainter>

namespace
{

constexpr qreal thin = 0.035;
constexpr qreal full = 0.12;

QPen stroke(const QColor &color, qreal width)
{
    return {color, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin};
}

} // namespace

OrvelMark::OrvelMark(QQuickItem *parent) : QQuickPaintedItem(parent)
{
    connect(this, &OrvelMark::changed, this, [this] { update(); });
}

void OrvelMark::paint(QPainter *painter)
{
    const QSizeF size = this->size();
    const qreal side = std::min(size.width(), size.height());
    const QPainterPath whole = path(size);
    painter->setRenderHint(QPainter::Antialiasing);
    // The full form swells out of the thin stroke.
    const qreal width = thin + (full - thin) * m_fillProgress;
    if (m_outlineProgress > 0)
        painter->strokePath(trimmed(whole, m_outlineProgress), stroke(m_color, width * side));
}

QPainterPath OrvelMark::path(const QSizeF &size)
{
    const QRectF box(QPointF(size.width() * 0.16, size.height() * 0.06),
                     QPointF(size.width() * 0.84, size.height() * 0.94));
    QPainterPath path(box.topLeft());
    path.lineTo(box.bottomLeft());
    path.lineTo(box.topRight());
    path.lineTo(box.bottomRight());
    return path;
}

QPainterPath OrvelMark::trimmed(const QPainterPath &path, qreal progress)
{
    qreal left = path.length() * std::clamp(progress, 0.0, 1.0);
    QPainterPath part(path.elementAt(0));
    for (int i = 1; i < path.elementCount() && left > 0; ++i) {
        const QLineF line(path.elementAt(i - 1), path.elementAt(i));
        part.lineTo(line.pointAt(std::min(1.0, left / line.length())));
        left -= line.length();
    }
    return part;
}
