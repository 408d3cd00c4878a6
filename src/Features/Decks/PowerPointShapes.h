#pragma once

#include "Features/Decks/SlideRegion.h"

/// The drawing language of presentation packages: regions as shapes. All functions return XML.
namespace PowerPointShapes
{
/// One region as one shape.
/// @param id number of the shape within its slide
QString shapeXML(const SlideRegion &region, int id, const SlideTheme &theme);
/// All lines of a region as one paragraph.
QString paragraphXML(const SlideRegion &region, const SlideTheme &theme);
/// The child element that makes a colour translucent; nothing for an opaque one.
QString alpha(double opacity);
/// `<a:srgbClr .../>` around its children. What is no colour of six digits is drawn black, since a package
/// that names it could not be opened.
QString colorXML(const QString &hex, const QString &children = {});
QString fontName(SlideTheme::FontKind kind);
/// The user's text within XML. Characters that XML cannot hold at all are dropped.
QString escaped(const QString &text);
/// The unit of packages; the reference canvas's unit is 9525 of them.
qint64 emu(double units);
} // namespace PowerPointShapes
