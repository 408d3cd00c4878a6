#include "DesignSystem/OVFonts.h"

#include <QFont>
#include <QFontDatabase>

#include <algorithm>
#include <array>

namespace
{

const QString colorEmoji = QStringLiteral("Noto Color Emoji");

/// The first installed family; the others stand in for what it lacks.
QString installed(const QStringList &wished)
{
    const auto found =
        std::ranges::find_if(wished, [](const QString &family) { return QFontDatabase::hasFamily(family); });
    const QString chosen = found == wished.end() ? wished.first() : *found;
    QStringList standIns = wished;
    standIns.removeOne(chosen);
    // Other families have plain drawings of some emoji, so the coloured ones come before them.
    standIns.removeOne(colorEmoji);
    if (chosen != colorEmoji)
        standIns.prepend(colorEmoji);
    QFont::insertSubstitutions(chosen, standIns);
    return chosen;
}

} // namespace

QStringList OVFonts::families(FontChoice design)
{
    switch (design) {
    case FontChoice::system:
        return {QStringLiteral("Inter"),      QStringLiteral("Inter Variable"), QStringLiteral("Noto Sans"),
                QStringLiteral("Cantarell"),  QStringLiteral("Ubuntu"),         QStringLiteral("Open Sans"),
                QStringLiteral("DejaVu Sans")};
    case FontChoice::rounded:
        return {QStringLiteral("Quicksand"), QStringLiteral("Nunito"), QStringLiteral("Varela Round"),
                QStringLiteral("Comfortaa"), QStringLiteral("Inter"),  QStringLiteral("DejaVu Sans")};
    case FontChoice::serif:
        // Figures as high as capitals come first: old-style ones read as letters ("Note I", "24:5q").
        return {QStringLiteral("Caladea"),          QStringLiteral("Cambria"),
                QStringLiteral("Source Serif 4"),   QStringLiteral("Noto Serif"),
                QStringLiteral("Liberation Serif"), QStringLiteral("Vollkorn"),
                QStringLiteral("DejaVu Serif")};
    case FontChoice::monospaced:
        return {QStringLiteral("JetBrains Mono"),  QStringLiteral("Fira Code"),
                QStringLiteral("Source Code Pro"), QStringLiteral("Noto Sans Mono"),
                QStringLiteral("Liberation Mono"), QStringLiteral("DejaVu Sans Mono")};
    }
    return {};
}

QString OVFonts::family(FontChoice design)
{
    static const auto chosen = std::to_array<QString>({
        installed(families(FontChoice::system)),
        installed(families(FontChoice::rounded)),
        installed(families(FontChoice::serif)),
        installed(families(FontChoice::monospaced)),
    });
    return chosen.at(static_cast<std::size_t>(design));
}

QString OVFonts::emojiFamily()
{
    static const QString chosen =
        installed(QStringList{colorEmoji, QStringLiteral("Twemoji"), QStringLiteral("Emoji One")} +
                  families(FontChoice::system));
    return chosen;
}
