#include "DesignSystem/OVFonts.h"

#include <QFont>
#include <QFontDatabase>

#include <algorithm>

namespace
{

QString installedFamily(FontChoice design)
{
    const QStringList wished = OVFonts::families(design);
    const auto installed =
        std::ranges::find_if(wished, [](const QString &family) { return QFontDatabase::hasFamily(family); });
    const QString chosen = installed == wished.end() ? wished.first() : *installed;
    QStringList standIns = wished;
    standIns.removeOne(chosen);
    standIns.append(QStringLiteral("Noto Color Emoji"));
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
        return {QStringLiteral("Vollkorn"), QStringLiteral("Source Serif 4"), QStringLiteral("Noto Serif"),
                QStringLiteral("Liberation Serif"), QStringLiteral("DejaVu Serif")};
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
        installedFamily(FontChoice::system),
        installedFamily(FontChoice::rounded),
        installedFamily(FontChoice::serif),
        installedFamily(FontChoice::monospaced),
    });
    return chosen.at(static_cast<std::size_t>(design));
}
