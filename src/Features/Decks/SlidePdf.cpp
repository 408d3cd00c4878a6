#include "Features/Decks/SlidePdf.h"

#include "Features/Decks/DeckLayout.h"
#include "Features/Decks/SlidePainter.h"

namespace
{
/// With so many units an inch the page has the units of the reference canvas.
constexpr int resolution = 96;
constexpr double pointsPerUnit = 72.0 / resolution;
} // namespace

SlidePdf::SlidePdf(const QString &title) : m_writer(&m_buffer)
{
    m_buffer.open(QIODevice::WriteOnly);
    m_writer.setPageSize(
        QPageSize(DeckLayout::canvas * pointsPerUnit, QPageSize::Point, {}, QPageSize::ExactMatch));
    m_writer.setPageMargins({});
    m_writer.setResolution(resolution);
    m_writer.setTitle(title);
    m_writer.setCreator(QStringLiteral("Orvel"));
}

bool SlidePdf::addPage(const QList<SlideRegion> &regions, const SlideTheme &theme)
{
    if (!(m_painter.isActive() ? m_writer.newPage() : m_painter.begin(&m_writer)))
        return false;
    m_painter.setRenderHint(QPainter::LosslessImageRendering);
    SlidePainter::paint(m_painter, regions, theme, DeckLayout::canvas.width());
    return true;
}

QByteArray SlidePdf::finish()
{
    return m_painter.end() ? m_buffer.data() : QByteArray();
}
