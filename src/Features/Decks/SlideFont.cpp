#include "Features/Decks/SlideFont.h"

#include "DesignSystem/OVFonts.h"
#include "Features/Decks/SlideStyle.h"

#include <QFontDatabase>
#include <QFontMetricsF>
#include <QTextBoundaryFinder>
#include <QTextLayout>

#include <algorithm>
#include <array>

namespace
{
QFont::Weight fontWeight(SlideTheme::Weight weight)
{
    static constexpr auto weights = std::to_array<QFont::Weight>(
        {QFont::Normal, QFont::Medium, QFont::DemiBold, QFont::Bold, QFont::ExtraBold, QFont::Black});
    return weights.at(std::size_t(weight));
}

QString fontFamily(SlideTheme::FontKind kind)
{
    static constexpr auto choices = std::to_array<FontChoice>(
        {FontChoice::system, FontChoice::serif, FontChoice::rounded, FontChoice::monospaced});
    return OVFonts::family(choices.at(std::size_t(kind)));
}

/// Whether a font may draw the two as one sign, such as an arrow for "->" or a cross for the "x" of "3x4".
bool mayJoin(QChar left, QChar right)
{
    const auto isSign = [](QChar character) {
        return character.unicode() > u' ' && character.unicode() < 0x7f && !character.isLetterOrNumber();
    };
    const auto isCross = [](QChar character) { return character == u'x' || character == u'X'; };
    return (isSign(left) && isSign(right)) || (left.isDigit() && isCross(right)) ||
           (isCross(left) && right.isDigit());
}

/// Whether a font may raise it between capitals and figures. Such signs look better there, but files of
/// documents forget what they stand for.
bool mayRaise(QChar character)
{
    return QStringView(u"()[]{}<>-–—:+=@*|~`•×÷¡¿«»").contains(character);
}

/// Whether what is left and right of the position is shaped apart, so that each character shows its own sign.
bool isSeparated(const QString &text, int position)
{
    if (position == 0 || position >= text.size())
        return false;
    const QChar left = text[position - 1], right = text[position];
    return mayJoin(left, right) || mayRaise(left) || mayRaise(right);
}

/// Text is shaped within one format, so formats that change nothing keep characters apart. Characters that
/// ask to be drawn as emoji are set in that font, since others draw some of them in plain ink.
QList<QTextLayout::FormatRange> formats(const QString &text)
{
    static constexpr QChar asEmoji(0xfe0f);
    QList<QTextLayout::FormatRange> ranges;
    QTextBoundaryFinder characters(QTextBoundaryFinder::Grapheme, text);
    const bool hasEmoji = text.contains(asEmoji);
    int start = 0;
    const auto endRange = [&ranges, &start](int end, const QTextCharFormat &format) {
        if (end > start)
            ranges.append({start, end - start, format});
        start = end;
    };
    for (int i = 0; i < text.size();) {
        if (isSeparated(text, i))
            endRange(i, {});
        int next = i + 1;
        if (hasEmoji) {
            characters.setPosition(i);
            next = std::max(next, int(characters.toNextBoundary()));
        }
        if (hasEmoji && QStringView(text).sliced(i, next - i).contains(asEmoji)) {
            QTextCharFormat emoji;
            emoji.setFontFamilies({OVFonts::emojiFamily()});
            endRange(i, {});
            endRange(next, emoji);
        }
        i = next;
    }
    if (!ranges.isEmpty())
        endRange(int(text.size()), {});
    return ranges;
}

/// The name of the upright face with this weight; empty if the family has none.
QString faceName(const QString &family, QFont::Weight weight)
{
    for (const QString &style : QFontDatabase::styles(family))
        if (QFontDatabase::weight(family, style) == weight && !QFontDatabase::italic(family, style))
            return style;
    return {};
}

/// Asks for a heavy face by its name: files of documents would embolden one once more that was asked for by
/// its weight.
void setWeight(QFont &font, const SlideRegion &region)
{
    font.setWeight(fontWeight(region.weight));
    if (font.weight() <= QFont::Bold)
        return;
    static const auto names = [] {
        std::array<std::array<QString, 2>, 4> names;
        for (const auto &kind : enumCases<SlideTheme::FontKind>())
            names[std::size_t(kind.value)] = {faceName(fontFamily(kind.value), QFont::ExtraBold),
                                              faceName(fontFamily(kind.value), QFont::Black)};
        return names;
    }();
    const QString &name = names.at(std::size_t(region.font)).at(font.weight() == QFont::Black);
    if (name.isEmpty())
        return;
    font.setStyleName(name);
    font.setWeight(QFont::DemiBold);
}
} // namespace

QFont SlideFont::of(const SlideRegion &region)
{
    // The smallest spacing there is turns ligatures off: what is typed is what shows.
    static constexpr double unjoined = 1.0 / 64;
    const double tracking = SlideStyle::tracking(region.tracking);
    QFont font(fontFamily(region.font));
    font.setPixelSize(qRound(region.size));
    setWeight(font, region);
    // Hinted advances depend on the size on screen and would move line breaks.
    font.setHintingPreference(QFont::PreferNoHinting);
    // Coloured edges would differ from screen to file.
    font.setStyleStrategy(QFont::NoSubpixelAntialias);
    font.setLetterSpacing(QFont::AbsoluteSpacing, tracking != 0 ? tracking : unjoined);
    return font;
}

QFont SlideFont::ofMarkers(const SlideRegion &region)
{
    SlideRegion medium = region;
    medium.weight = SlideTheme::Weight::medium;
    return of(medium);
}

void SlideFont::setText(QTextLayout &layout, const QString &text, const SlideRegion &region)
{
    static constexpr auto aligns =
        std::to_array<Qt::AlignmentFlag>({Qt::AlignLeading, Qt::AlignHCenter, Qt::AlignTrailing});
    layout.setText(text);
    layout.setFont(of(region));
    layout.setFormats(formats(text));
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    option.setAlignment(aligns.at(std::size_t(region.align)));
    layout.setTextOption(option);
    layout.setCacheEnabled(true);
}

QString SlideFont::endedLine(QString line, const QFont &font, double width)
{
    const QFontMetricsF metrics(font);
    const auto trim = [&line] {
        while (!line.isEmpty() && line.back().isSpace())
            line.chop(1);
    };
    trim();
    while (!line.isEmpty() && metrics.horizontalAdvance(line + u'…') > width) {
        QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, line);
        finder.toEnd();
        line.truncate(std::max<qsizetype>(finder.toPreviousBoundary(), 0));
        trim();
    }
    return line + u'…';
}
