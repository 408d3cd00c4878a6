#include "Models/SlideTheme.h"

const QList<SlideTheme> &SlideTheme::catalog()
{
    using enum Decoration;
    static const auto text = [](const char *latin) { return QString::fromLatin1(latin); };
    // clang-format off
    static const QList<SlideTheme> themes{
        {text("ink"), text("Ink"), text("FFFFFF"), text("141414"), text("6E6E6E"), text("141414"), text("F4F4F2"), text("141414"), rule, FontKind::system, Weight::heavy, false, -1.5, Marker::bar},
        {text("paper"), text("Paper"), text("FBF7EE"), text("2B2620"), text("7C7365"), text("9C5B28"), text("F2EBDD"), text("2B2620"), rule, FontKind::serif, Weight::semibold, false, -0.5, Marker::dot},
        {text("noir"), text("Noir"), text("0C0C0C"), text("F7F7F7"), text("9A9A9A"), text("FFFFFF"), text("1B1B1B"), text("FFFFFF"), edge, FontKind::system, Weight::heavy, true, 2.0, Marker::square},
        {text("studio"), text("Studio"), text("FFFFFF"), text("14161A"), text("6E7480"), text("FF4A1C"), text("F6F6F4"), text("14161A"), rule, FontKind::system, Weight::bold, false, -1.0, Marker::square},
        {text("boardroom"), text("Boardroom"), text("FFFFFF"), text("0E2340"), text("5B6B84"), text("1D4E89"), text("EEF2F7"), text("0E2340"), Decoration::band, FontKind::system, Weight::bold, true, 1.0, Marker::number},
        {text("mono"), text("Mono"), text("F1F1EF"), text("161616"), text("6B6B6B"), text("161616"), text("E4E4E1"), text("161616"), rule, FontKind::monospaced, Weight::semibold, true, 0.5, Marker::dash},
        {text("signal"), text("Signal"), text("111111"), text("FFFFFF"), text("B4B4B4"), text("FF6B35"), text("1E1E1E"), text("FF6B35"), edge, FontKind::system, Weight::black, false, -1.0, Marker::dot},
        {text("lagoon"), text("Lagoon"), text("F2F8F7"), text("0B3B36"), text("5C7C77"), text("0E8C74"), text("E3F0ED"), text("0B3B36"), rule, FontKind::system, Weight::semibold, false, -0.5, Marker::dot},
    };
    // clang-format on
    return themes;
}

const SlideTheme &SlideTheme::inkTheme()
{
    return catalog().first();
}
