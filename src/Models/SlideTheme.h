#pragma once

#include "Foundation/EnumTable.h"
#include "Foundation/FieldList.h"

#include <QList>

/// How the slides of a deck look. A deck stores its theme by value, so one outside the catalogue is kept.
/// Colours are six upper-case hexadecimal digits. The initial values fill up a stored theme with missing
/// keys; they are not those of the `ink` theme.
struct SlideTheme {
    enum class Decoration { plain, rule, band, edge };
    enum class FontKind { system, serif, rounded, monospaced };
    enum class Weight { regular, medium, semibold, bold, heavy, black };
    enum class Marker { bar, square, dot, dash, number };

    QString id = QStringLiteral("ink");
    QString name = QStringLiteral("Ink");
    QString background = QStringLiteral("FFFFFF");
    /// Main text.
    QString ink = QStringLiteral("111111");
    /// Secondary text, footer, dividers.
    QString soft = QStringLiteral("6E6E6E");
    QString accent = QStringLiteral("111111");
    /// Fill of stat cards.
    QString wash = QStringLiteral("F4F4F2");
    /// Fill of the top band.
    QString band = QStringLiteral("111111");
    Decoration decoration = Decoration::rule;
    FontKind fontKind = FontKind::system;
    Weight titleWeight = Weight::heavy;
    bool uppercaseTitle = false;
    /// Letter spacing of titles in points on the reference canvas.
    double tracking = 0;
    Marker marker = Marker::bar;

    bool operator==(const SlideTheme &) const = default;

    static bool isBold(Weight weight) { return weight >= Weight::semibold; }

    /// The eight built-in themes in the order of menus.
    static const QList<SlideTheme> &catalog();
    /// The first of the catalogue, which a deck without a stored theme gets.
    static const SlideTheme &inkTheme();

    static constexpr bool isTolerant = true;
    static constexpr bool acceptsAnything = true;
    static constexpr auto fields()
    {
        return std::tuple{Field{"id", &SlideTheme::id},
                          Field{"name", &SlideTheme::name},
                          Field{"background", &SlideTheme::background},
                          Field{"ink", &SlideTheme::ink},
                          Field{"soft", &SlideTheme::soft},
                          Field{"accent", &SlideTheme::accent},
                          Field{"wash", &SlideTheme::wash},
                          Field{"band", &SlideTheme::band},
                          Field{"decoration", &SlideTheme::decoration},
                          Field{"fontKind", &SlideTheme::fontKind},
                          Field{"titleWeight", &SlideTheme::titleWeight},
                          Field{"uppercaseTitle", &SlideTheme::uppercaseTitle},
                          Field{"tracking", &SlideTheme::tracking},
                          Field{"marker", &SlideTheme::marker}};
    }
};

template <>
struct EnumTable<SlideTheme::Decoration> {
    static constexpr auto cases = std::to_array<EnumCase<SlideTheme::Decoration>>({
        {SlideTheme::Decoration::plain, "plain", QT_TRANSLATE_NOOP("EnumLabel", "Plain")},
        {SlideTheme::Decoration::rule, "rule", QT_TRANSLATE_NOOP("EnumLabel", "Rule")},
        {SlideTheme::Decoration::band, "band", QT_TRANSLATE_NOOP("EnumLabel", "Band")},
        {SlideTheme::Decoration::edge, "edge", QT_TRANSLATE_NOOP("EnumLabel", "Edge")},
    });
};

template <>
struct EnumTable<SlideTheme::FontKind> {
    static constexpr auto cases = std::to_array<EnumCase<SlideTheme::FontKind>>({
        {SlideTheme::FontKind::system, "system", QT_TRANSLATE_NOOP("EnumLabel", "System")},
        {SlideTheme::FontKind::serif, "serif", QT_TRANSLATE_NOOP("EnumLabel", "Serif")},
        {SlideTheme::FontKind::rounded, "rounded", QT_TRANSLATE_NOOP("EnumLabel", "Rounded")},
        {SlideTheme::FontKind::monospaced, "monospaced", QT_TRANSLATE_NOOP("EnumLabel", "Monospaced")},
    });
};

template <>
struct EnumTable<SlideTheme::Weight> {
    static constexpr auto cases = std::to_array<EnumCase<SlideTheme::Weight>>({
        {SlideTheme::Weight::regular, "regular", QT_TRANSLATE_NOOP("EnumLabel", "Regular")},
        {SlideTheme::Weight::medium, "medium", QT_TRANSLATE_NOOP("EnumLabel", "Medium")},
        {SlideTheme::Weight::semibold, "semibold", QT_TRANSLATE_NOOP("EnumLabel", "Semibold")},
        {SlideTheme::Weight::bold, "bold", QT_TRANSLATE_NOOP("EnumLabel", "Bold")},
        {SlideTheme::Weight::heavy, "heavy", QT_TRANSLATE_NOOP("EnumLabel", "Heavy")},
        {SlideTheme::Weight::black, "black", QT_TRANSLATE_NOOP("EnumLabel", "Black")},
    });
};

template <>
struct EnumTable<SlideTheme::Marker> {
    static constexpr auto cases = std::to_array<EnumCase<SlideTheme::Marker>>({
        {SlideTheme::Marker::bar, "bar", QT_TRANSLATE_NOOP("EnumLabel", "Bar")},
        {SlideTheme::Marker::square, "square", QT_TRANSLATE_NOOP("EnumLabel", "Square")},
        {SlideTheme::Marker::dot, "dot", QT_TRANSLATE_NOOP("EnumLabel", "Dot")},
        {SlideTheme::Marker::dash, "dash", QT_TRANSLATE_NOOP("EnumLabel", "Dash")},
        {SlideTheme::Marker::number, "number", QT_TRANSLATE_NOOP("EnumLabel", "Number")},
    });
};
