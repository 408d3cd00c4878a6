#include "Features/Decks/SlideCanvas.h"

#include "Features/Decks/SlidePainter.h"

SlideCanvas::SlideCanvas(QQuickItem *parent) : QQuickPaintedItem(parent)
{
    setOpaquePainting(true);
}

void SlideCanvas::setShown(const ShownSlide &shown)
{
    if (m_shown == shown)
        return;
    m_shown = shown;
    // The last row of pixels may be covered in part.
    setFillColor(SlidePainter::color(m_shown.theme.background));
    slideChanged();
    emit shownChanged();
    update();
}

void SlideCanvas::paint(QPainter *painter)
{
    SlidePainter::paint(*painter, m_shown.regions(), m_shown.theme, width());
}

void SlideCanvas::geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry)
{
    QQuickPaintedItem::geometryChange(newGeometry, oldGeometry);
    if (newGeometry.size() != oldGeometry.size())
        update();
}
