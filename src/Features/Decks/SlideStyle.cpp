#include "Features/Decks/SlideStyle.h"

#include <algorithm>
#include <cmath>

namespace
{
/// Presentation files bound the spacing of letters by this many points; a unit of the canvas is 0.75 points.
constexpr double maxTracking = 4000 / 0.75;

bool isHexDigit(QChar digit)
{
    return (digit >= u'0' && digit <= u'9') || (digit >= u'A' && digit <= u'F') ||
           (digit >= u'a' && digit <= u'f');
}
} // namespace

QString SlideStyle::color(const QString &hex)
{
    const bool isColor = hex.size() == 6 && std::ranges::all_of(hex, isHexDigit);
    return isColor ? hex : QStringLiteral("000000");
}

double SlideStyle::tracking(double tracking)
{
    return std::isfinite(tracking) ? std::clamp(tracking, -maxTracking, maxTracking) : 0;
}

bool SlideStyle::isDrawable(QStringView character)
{
    if (character.size() == 2)
        return true;
    const char16_t unit = character.front().unicode();
    return unit == u'\t' || unit == u'\n' || unit == u'\r' ||
           (unit >= 0x20 && !character.front().isSurrogate() && unit < 0xfffe);
}

SlideStyle::ShownText SlideStyle::shown(const QString &stored, bool uppercase)
{
    ShownText result;
    result.text.reserve(stored.size());
    result.positions.reserve(stored.size() + 1);
    for (qsizetype i = 0; i < stored.size();) {
        const bool isPair =
            stored[i].isHighSurrogate() && i + 1 < stored.size() && stored[i + 1].isLowSurrogate();
        const QStringView character = QStringView(stored).sliced(i, isPair ? 2 : 1);
        for (qsizetype unit = 0; unit < character.size(); ++unit)
            result.positions.append(int(result.text.size()));
        i += character.size();
        if (character == u'\n')
            result.text += QChar::LineSeparator;
        else if (character != u'\r' && isDrawable(character))
            result.text += uppercase ? character.toString().toUpper() : character.toString();
    }
    result.positions.append(int(result.text.size()));
    return result;
}

int SlideStyle::ShownText::stored(int shownPosition) const
{
    const auto found = std::ranges::lower_bound(positions, shownPosition);
    return int(std::min(found, positions.end() - 1) - positions.begin());
}
