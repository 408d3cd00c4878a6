#include "Features/Decks/PdfText.h"

#include <QGlyphRun>
#include <QImage>
#include <QPainter>
#include <QRawFont>
#include <QTextLayout>

namespace
{
/// Of a page that is 96 units an inch; four pixels a point.
constexpr double pixelsPerUnit = 3;

bool isColored(const QRawFont &font)
{
    return !font.fontTable("CBLC").isEmpty() || !font.fontTable("COLR").isEmpty();
}

QImage picture(const QGlyphRun &run, const QRectF &rect, double scale)
{
    QImage image((rect.size() * scale).toSize(), QImage::Format_ARGB32_Premultiplied);
    if (image.isNull())
        return image;
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHints(QPainter::TextAntialiasing | QPainter::SmoothPixmapTransform);
    painter.scale(image.width() / rect.width(), image.height() / rect.height());
    painter.drawGlyphRun(-rect.topLeft(), run);
    return image;
}
} // namespace

void PdfText::paint(QPainter &painter, const QTextLayout &layout, QPointF position)
{
    const double scale = painter.combinedTransform().m11() * pixelsPerUnit;
    const auto runs = layout.glyphRuns();
    for (const QGlyphRun &run : runs) {
        // Such a font must not reach the file at all: Qt forgets its pictures when asked for outlines.
        if (!isColored(run.rawFont())) {
            painter.drawGlyphRun(position, run);
            continue;
        }
        const QRectF rect = run.boundingRect().adjusted(-1, -1, 1, 1);
        if (const QImage image = picture(run, rect, scale); !image.isNull())
            painter.drawImage(rect.translated(position), image);
    }
}
