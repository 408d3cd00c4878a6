#include "DesignSystem/OVIconProvider.h"

#include "DesignSystem/OVSymbols.h"

#include <QPainter>
#include <QSvgRenderer>

namespace
{

constexpr int defaultSize = 16;

} // namespace

OVIconProvider::OVIconProvider() : QQuickImageProvider(QQuickImageProvider::Image) {}

QImage OVIconProvider::requestImage(const QString &id, QSize *size, const QSize &requestedSize)
{
    const QString symbol = id.section(u'/', 0, 0);
    const QColor color = QColor::fromString(u'#' + id.section(u'/', 1, 1));
    const int side = std::max({requestedSize.width(), requestedSize.height(), 0});
    const QSize drawn(side > 0 ? side : defaultSize, side > 0 ? side : defaultSize);
    QImage image = shape(OVSymbols::iconPath(symbol), drawn);
    QPainter painter(&image);
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(image.rect(), color);
    if (size)
        *size = drawn;
    return image;
}

QImage OVIconProvider::shape(const QString &path, const QSize &size)
{
    const std::pair key(path, size.width());
    if (const auto known = m_shapes.constFind(key); known != m_shapes.cend())
        return *known;
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    QSvgRenderer(path).render(&painter);
    painter.end();
    m_shapes.insert(key, image);
    return image;
}
