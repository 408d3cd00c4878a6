#pragma once

#include "Models/Slide.h"
#include "Models/SlideTheme.h"

#include <QRectF>

#include <optional>

/// One piece of a drawn slide, a text or a box, on the reference canvas of 1280 by 720 points. A slide is a
/// list of them from back to front, and that list is all that canvas, presenter, PDF and PowerPoint know of
/// it.
struct SlideRegion {
    enum class Kind { text, box };
    enum class Align { leading, center, trailing };
    enum class Anchor { top, center };

    /// One paragraph. The marker stands before the text and is not part of it.
    struct Line {
        QString marker;
        QString text;

        bool operator==(const Line &) const = default;
    };

    Kind kind = Kind::text;
    QRectF rect;
    QList<Line> lines;
    /// Font size.
    double size = 30;
    SlideTheme::Weight weight = SlideTheme::Weight::regular;
    SlideTheme::FontKind font = SlideTheme::FontKind::system;
    QString color = QStringLiteral("000000");
    Align align = Align::leading;
    Anchor anchor = Anchor::top;
    /// Letter spacing.
    double tracking = 0;
    /// The shown text is in capitals; the field keeps its case.
    bool uppercase = false;
    /// Space between the lines of the region.
    double leading = 8;
    /// Opacity of text or fill.
    double opacity = 1;
    /// The text is shrunk to stay inside, here and by presentation programs.
    bool fit = false;
    /// The field that can be edited here.
    std::optional<SlideField> field;
    /// Fill and line of a box; empty for none.
    QString fill;
    QString stroke;
    double strokeW = 0;
    double corner = 0;

    bool operator==(const SlideRegion &) const = default;
};
