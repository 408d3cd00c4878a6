#include "Features/Decks/PowerPointShapes.h"

#include "Features/Decks/SlideStyle.h"
#include "Features/Decks/SlideText.h"

#include <algorithm>
#include <cmath>

namespace
{
/// Font sizes, letter and line spacing count in hundredths of a point; a unit of the canvas is 0.75 points.
qint64 hundredths(double units)
{
    return std::llround(units * 75);
}

QString frameXML(const QRectF &rect)
{
    return QStringLiteral(R"(<a:xfrm><a:off x="%1" y="%2"/><a:ext cx="%3" cy="%4"/></a:xfrm>)")
        .arg(PowerPointShapes::emu(rect.x()))
        .arg(PowerPointShapes::emu(rect.y()))
        .arg(PowerPointShapes::emu(rect.width()))
        .arg(PowerPointShapes::emu(rect.height()));
}

QString geometryXML(const SlideRegion &region)
{
    if (region.corner <= 0)
        return QStringLiteral(R"(<a:prstGeom prst="rect"><a:avLst/></a:prstGeom>)");
    const double shorter = std::max(std::min(region.rect.width(), region.rect.height()), 1.0);
    const qint64 adjustment = std::min<qint64>(qint64(region.corner / shorter * 100000), 50000);
    return QStringLiteral(
               R"(<a:prstGeom prst="roundRect"><a:avLst><a:gd name="adj" fmla="val %1"/></a:avLst></a:prstGeom>)")
        .arg(adjustment);
}

QString boxXML(const SlideRegion &region, int id)
{
    using namespace PowerPointShapes;
    const QString fill = region.fill.isEmpty() ? QStringLiteral("<a:noFill/>")
                                               : QStringLiteral("<a:solidFill>") +
                                                     colorXML(region.fill, alpha(region.opacity)) +
                                                     QStringLiteral("</a:solidFill>");
    const bool hasLine = !region.stroke.isEmpty() && region.strokeW > 0;
    const QString line = hasLine ? QStringLiteral("<a:ln w=\"%1\"><a:solidFill>")
                                           .arg(std::max<qint64>(qint64(region.strokeW * 12700), 1)) +
                                       colorXML(region.stroke) + QStringLiteral("</a:solidFill></a:ln>")
                                 : QStringLiteral("<a:ln><a:noFill/></a:ln>");
    return QStringLiteral("<p:sp><p:nvSpPr><p:cNvPr id=\"%1\" name=\"Shape "
                          "%1\"/><p:cNvSpPr/><p:nvPr/></p:nvSpPr><p:spPr>")
               .arg(id) +
           frameXML(region.rect) + geometryXML(region) + fill + line +
           QStringLiteral("</p:spPr><p:txBody><a:bodyPr/><a:lstStyle/><a:p/></p:txBody></p:sp>");
}

/// Other programs shrink such a text only once it is edited, so the file says how much ours is shrunk.
QString autofitXML(const SlideRegion &region)
{
    if (!region.fit)
        return {};
    const auto percent = std::llround(SlideText(region).scale() * 100);
    return percent == 100 ? QStringLiteral("<a:normAutofit/>")
                          : QStringLiteral("<a:normAutofit fontScale=\"%1\"/>").arg(percent * 1000);
}

QString textXML(const SlideRegion &region, int id, const SlideTheme &theme)
{
    const QString anchor =
        region.anchor == SlideRegion::Anchor::center ? QStringLiteral("ctr") : QStringLiteral("t");
    return QStringLiteral("<p:sp><p:nvSpPr><p:cNvPr id=\"%1\" name=\"Text %1\"/><p:cNvSpPr "
                          "txBox=\"1\"/><p:nvPr/></p:nvSpPr><p:spPr>")
               .arg(id) +
           frameXML(region.rect) +
           QStringLiteral(
               "<a:prstGeom prst=\"rect\"><a:avLst/></a:prstGeom><a:noFill/><a:ln><a:noFill/></a:ln></p:spPr>"
               "<p:txBody><a:bodyPr wrap=\"square\" lIns=\"0\" tIns=\"0\" rIns=\"0\" bIns=\"0\" "
               "anchor=\"%1\" "
               "rtlCol=\"0\">")
               .arg(anchor) +
           autofitXML(region) + QStringLiteral("</a:bodyPr><a:lstStyle/>") +
           PowerPointShapes::paragraphXML(region, theme) + QStringLiteral("</p:txBody></p:sp>");
}

/// What a run says of its text besides size and colour.
struct RunStyle {
    bool isBold = false;
    bool isUppercase = false;
};

QString runXML(const SlideRegion &region, const QString &content, const QString &color, RunStyle style)
{
    const qint64 spacing = hundredths(SlideStyle::tracking(region.tracking));
    QString run = QStringLiteral("<a:r><a:rPr lang=\"en-US\" sz=\"%1\"").arg(hundredths(region.size));
    if (style.isBold)
        run += QStringLiteral(" b=\"1\"");
    if (spacing != 0)
        run += QStringLiteral(" spc=\"%1\"").arg(spacing);
    if (style.isUppercase)
        run += QStringLiteral(" cap=\"all\"");
    return run + QStringLiteral(" dirty=\"0\"><a:solidFill>") + PowerPointShapes::colorXML(color) +
           QStringLiteral("</a:solidFill><a:latin typeface=\"") + PowerPointShapes::fontName(region.font) +
           QStringLiteral("\"/></a:rPr><a:t xml:space=\"preserve\">") + PowerPointShapes::escaped(content) +
           QStringLiteral("</a:t></a:r>");
}
} // namespace

QString PowerPointShapes::shapeXML(const SlideRegion &region, int id, const SlideTheme &theme)
{
    return region.kind == SlideRegion::Kind::box ? boxXML(region, id) : textXML(region, id, theme);
}

QString PowerPointShapes::paragraphXML(const SlideRegion &region, const SlideTheme &theme)
{
    if (region.lines.isEmpty())
        return QStringLiteral("<a:p/>");
    static constexpr auto aligns = std::to_array<const char *>({"l", "ctr", "r"});
    QString paragraph =
        QStringLiteral("<a:p><a:pPr algn=\"%1\"><a:lnSpc><a:spcPts val=\"%2\"/></a:lnSpc></a:pPr>")
            .arg(QLatin1String(aligns.at(std::size_t(region.align))))
            .arg(hundredths(region.size * 1.2 + region.leading));
    for (qsizetype i = 0; i < region.lines.size(); ++i) {
        const SlideRegion::Line &line = region.lines[i];
        if (i > 0)
            paragraph += QStringLiteral("<a:br/>");
        if (!line.marker.isEmpty())
            paragraph += runXML(region, line.marker + QStringLiteral("  "), theme.accent, {});
        paragraph += runXML(region, region.uppercase ? line.text.toUpper() : line.text, region.color,
                            {SlideTheme::isBold(region.weight), region.uppercase});
    }
    return paragraph + QStringLiteral("</a:p>");
}

QString PowerPointShapes::alpha(double opacity)
{
    return opacity >= 0.999 ? QString()
                            : QStringLiteral("<a:alpha val=\"%1\"/>").arg(std::llround(opacity * 100000));
}

QString PowerPointShapes::colorXML(const QString &hex, const QString &children)
{
    const QString start = QStringLiteral("<a:srgbClr val=\"") + SlideStyle::color(hex) + u'"';
    return children.isEmpty() ? start + QStringLiteral("/>")
                              : start + u'>' + children + QStringLiteral("</a:srgbClr>");
}

QString PowerPointShapes::fontName(SlideTheme::FontKind kind)
{
    static constexpr auto names =
        std::to_array<const char *>({"Helvetica Neue", "Georgia", "Avenir Next", "Menlo"});
    return QString::fromLatin1(names.at(std::size_t(kind)));
}

QString PowerPointShapes::escaped(const QString &text)
{
    QString result;
    result.reserve(text.size() + 16);
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar character = text[i];
        const char16_t unit = character.unicode();
        if (character.isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate())
            result += QStringView(text).mid(i++, 2);
        else if (unit == u'&')
            result += QLatin1String("&amp;");
        else if (unit == u'<')
            result += QLatin1String("&lt;");
        else if (unit == u'>')
            result += QLatin1String("&gt;");
        else if (unit == u'"')
            result += QLatin1String("&quot;");
        else if (unit == u'\'')
            result += QLatin1String("&apos;");
        else if (SlideStyle::isDrawable(QStringView(text).sliced(i, 1)))
            result += character;
    }
    return result;
}

qint64 PowerPointShapes::emu(double units)
{
    return std::llround(units * 9525);
}
