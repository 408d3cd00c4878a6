#include "Features/Decks/DeckLayout.h"

#include <algorithm>

namespace
{
using Kind = SlideRegion::Kind;
using Align = SlideRegion::Align;
using Anchor = SlideRegion::Anchor;
using Weight = SlideTheme::Weight;

QString trimmedBlanks(const QString &text)
{
    const auto isBlank = [](QChar character) { return character == u' ' || character == u'\t'; };
    const auto first = std::ranges::find_if_not(text, isBlank);
    const auto last = std::find_if_not(text.rbegin(), std::make_reverse_iterator(first), isBlank).base();
    return QString(first, last - first);
}

QList<SlideRegion::Line> plainLine(const QString &text)
{
    if (text.isEmpty())
        return {};
    return {{QString(), text}};
}

SlideRegion box(const QRectF &rect, const QString &fill)
{
    SlideRegion region;
    region.kind = Kind::box;
    region.rect = rect;
    region.fill = fill;
    return region;
}

SlideRegion text(const QRectF &rect, double size, const QString &color, const QString &content,
                 std::optional<SlideField> field = std::nullopt)
{
    SlideRegion region;
    region.rect = rect;
    region.lines = plainLine(content);
    region.size = size;
    region.color = color;
    region.field = field;
    return region;
}

/// A heading in the theme's title style.
SlideRegion titleText(const QRectF &rect, double size, const Slide &slide, const SlideTheme &theme)
{
    SlideRegion region = text(rect, size, theme.ink, slide.title, SlideField::title);
    region.weight = theme.titleWeight;
    region.font = theme.fontKind;
    region.tracking = theme.tracking;
    region.uppercase = theme.uppercaseTitle;
    region.fit = true;
    return region;
}

void appendRule(QList<SlideRegion> &regions, const SlideTheme &theme, const QRectF &rect)
{
    if (theme.decoration == SlideTheme::Decoration::rule)
        regions.append(box(rect, theme.accent));
}

SlideRegion bulletText(const QRectF &rect, double size, double leading, const QStringList &lines,
                       const SlideTheme &theme, SlideField field)
{
    SlideRegion region = text(rect, size, theme.ink, QString(), field);
    region.lines = DeckLayout::bulletLines(lines, theme);
    region.leading = leading;
    return region;
}

SlideRegion headingText(const Slide &slide, const SlideTheme &theme)
{
    return titleText({100, 104, 1080, 84}, 54, slide, theme);
}

void appendStatCard(QList<SlideRegion> &regions, const DeckLayout::Stat &stat, const SlideTheme &theme,
                    double x, double width)
{
    SlideRegion card = box({x, 266, width, 228}, theme.wash);
    card.corner = 18;
    SlideRegion value = text({x + 30, 302, width - 60, 104}, 62, theme.accent, stat.value);
    value.weight = Weight::bold;
    value.anchor = Anchor::center;
    value.fit = true;
    SlideRegion label = text({x + 30, 412, width - 60, 60}, 22, theme.soft, stat.label);
    label.weight = Weight::medium;
    label.leading = 4;
    regions << card << box({x, 266, width, 6}, theme.accent) << value << label;
}
} // namespace

QList<SlideRegion> DeckLayout::regions(const Slide &slide, const SlideTheme &theme, int index, int total,
                                       bool showNumbers, const QString &deckTitle)
{
    QList<SlideRegion> regions{box({QPointF(), canvas}, theme.background)};
    if (theme.decoration == SlideTheme::Decoration::band)
        regions.append(box({0, 0, 1280, 74}, theme.band));
    else if (theme.decoration == SlideTheme::Decoration::edge)
        regions.append(box({0, 0, 18, 720}, theme.accent));

    using Layout = QList<SlideRegion> (*)(const Slide &, const SlideTheme &);
    static constexpr auto layouts =
        std::to_array<Layout>({&titleSlide, &sectionSlide, &statementSlide, &bulletsSlide, &twoColumnSlide,
                               &quoteSlide, &statsSlide, &closingSlide});
    static_assert(layouts.size() == EnumTable<SlideKind>::cases.size());
    return regions + layouts.at(std::size_t(slide.kind))(slide, theme) +
           footer(theme, index, total, showNumbers, deckTitle);
}

QList<SlideRegion> DeckLayout::titleSlide(const Slide &slide, const SlideTheme &theme)
{
    QList<SlideRegion> regions;
    if (!slide.kicker.isEmpty()) {
        SlideRegion kicker = text({100, 116, 1080, 34}, 21, theme.accent, slide.kicker, SlideField::kicker);
        kicker.weight = Weight::semibold;
        kicker.tracking = 4;
        kicker.uppercase = true;
        regions.append(kicker);
    }
    appendRule(regions, theme, {100, 176, 100, 6});
    SlideRegion title = titleText({100, 218, 1080, 290}, 76, slide, theme);
    title.leading = 4;
    SlideRegion subtitle = text({100, 524, 940, 76}, 30, theme.soft, slide.subtitle, SlideField::subtitle);
    subtitle.leading = 4;
    return regions << title << subtitle;
}

QList<SlideRegion> DeckLayout::sectionSlide(const Slide &slide, const SlideTheme &theme)
{
    QList<SlideRegion> regions;
    if (!slide.kicker.isEmpty()) {
        SlideRegion number = text({100, 138, 500, 172}, 140, theme.accent, slide.kicker, SlideField::kicker);
        number.weight = Weight::black;
        number.opacity = 0.16;
        number.fit = true;
        regions.append(number);
    }
    appendRule(regions, theme, {100, 330, 130, 6});
    SlideRegion title = titleText({100, 364, 1080, 172}, 68, slide, theme);
    title.leading = 4;
    return regions << title
                   << text({100, 548, 900, 56}, 27, theme.soft, slide.subtitle, SlideField::subtitle);
}

QList<SlideRegion> DeckLayout::statementSlide(const Slide &slide, const SlideTheme &theme)
{
    SlideRegion title = titleText({140, 232, 1000, 244}, 74, slide, theme);
    title.align = Align::center;
    title.anchor = Anchor::center;
    title.leading = 4;
    QList<SlideRegion> regions{title};
    appendRule(regions, theme, {576, 500, 128, 6});
    SlideRegion subtitle = text({140, 532, 1000, 60}, 27, theme.soft, slide.subtitle, SlideField::subtitle);
    subtitle.align = Align::center;
    return regions << subtitle;
}

QList<SlideRegion> DeckLayout::bulletsSlide(const Slide &slide, const SlideTheme &theme)
{
    QList<SlideRegion> regions{headingText(slide, theme)};
    appendRule(regions, theme, {100, 212, 100, 5});
    return regions << bulletText({100, 252, 1050, 340}, 31, 16, slide.bodyLines(), theme, SlideField::body);
}

QList<SlideRegion> DeckLayout::twoColumnSlide(const Slide &slide, const SlideTheme &theme)
{
    SlideRegion divider = box({636, 250, 2, 336}, theme.soft);
    divider.opacity = 0.3;
    return {headingText(slide, theme), divider,
            bulletText({100, 250, 500, 340}, 28, 14, slide.bodyLines(), theme, SlideField::body),
            bulletText({684, 250, 500, 340}, 28, 14, slide.bodyBLines(), theme, SlideField::bodyB)};
}

QList<SlideRegion> DeckLayout::quoteSlide(const Slide &slide, const SlideTheme &theme)
{
    SlideRegion mark = text({86, 128, 220, 170}, 170, theme.accent, QStringLiteral("“"));
    mark.weight = Weight::black;
    mark.opacity = 0.22;
    SlideRegion quotation = text({170, 244, 950, 264}, 44, theme.ink, slide.body, SlideField::body);
    quotation.weight = Weight::medium;
    quotation.font = theme.fontKind;
    quotation.leading = 6;
    quotation.fit = true;
    QList<SlideRegion> regions{mark, quotation};
    if (!slide.subtitle.isEmpty()) {
        SlideRegion attribution = text({170, 546, 950, 48}, 24, theme.soft,
                                       QStringLiteral("— ") + slide.subtitle, SlideField::subtitle);
        attribution.weight = Weight::medium;
        regions.append(attribution);
    }
    return regions;
}

QList<SlideRegion> DeckLayout::statsSlide(const Slide &slide, const SlideTheme &theme)
{
    static constexpr int mostCards = 3;
    static constexpr double totalWidth = 1080, gap = 34;
    QList<Stat> stats;
    for (const QString &line : slide.bodyLines().mid(0, mostCards))
        if (const Stat found = stat(line); !found.value.isEmpty())
            stats.append(found);
    QList<SlideRegion> regions{headingText(slide, theme)};
    const double count = double(stats.size());
    const double width = (totalWidth - gap * (count - 1)) / std::max(count, 1.0);
    for (qsizetype i = 0; i < stats.size(); ++i)
        appendStatCard(regions, stats[i], theme, 100 + (width + gap) * double(i), width);
    return regions;
}

QList<SlideRegion> DeckLayout::closingSlide(const Slide &slide, const SlideTheme &theme)
{
    SlideRegion title = titleText({100, 244, 1080, 150}, 72, slide, theme);
    title.align = Align::center;
    title.leading = 4;
    QList<SlideRegion> regions{title};
    appendRule(regions, theme, {576, 418, 128, 6});
    SlideRegion subtitle = text({100, 452, 1080, 60}, 28, theme.soft, slide.subtitle, SlideField::subtitle);
    subtitle.align = Align::center;
    return regions << subtitle;
}

QList<SlideRegion::Line> DeckLayout::bulletLines(const QStringList &lines, const SlideTheme &theme)
{
    static constexpr auto marks = std::to_array<std::u16string_view>({u"—", u"▪", u"•", u"–"});
    QList<SlideRegion::Line> result;
    for (qsizetype i = 0; i < lines.size(); ++i) {
        QString marker;
        if (theme.marker == SlideTheme::Marker::number)
            marker = QString::number(i + 1) + u'.';
        else
            marker = QStringView(marks.at(std::size_t(theme.marker))).toString();
        result.append({isBlankLine(lines[i]) ? QString() : marker, lines[i]});
    }
    return result;
}

QList<SlideRegion> DeckLayout::footer(const SlideTheme &theme, int index, int total, bool showNumbers,
                                      const QString &deckTitle)
{
    if (!showNumbers && deckTitle.isEmpty())
        return {};
    SlideRegion line = box({100, 630, 1080, 1.5}, theme.soft);
    line.opacity = 0.35;
    QList<SlideRegion> regions{line};
    const auto small = [&theme](const QRectF &rect, const QString &content) {
        SlideRegion region = text(rect, 17, theme.soft, content);
        region.weight = Weight::medium;
        region.tracking = 1.4;
        return region;
    };
    if (!deckTitle.isEmpty()) {
        SlideRegion title = small({100, 646, 700, 26}, deckTitle);
        title.uppercase = true;
        regions.append(title);
    }
    if (showNumbers) {
        const int count = std::max(total, 1);
        SlideRegion page =
            small({880, 646, 300, 26}, QStringLiteral("%1 / %2").arg(std::min(count, index + 1)).arg(count));
        page.align = Align::trailing;
        regions.append(page);
    }
    return regions;
}

DeckLayout::Stat DeckLayout::stat(const QString &line)
{
    const qsizetype bar = line.indexOf(u'|');
    if (bar < 0)
        return {trimmedBlanks(line), QString()};
    return {trimmedBlanks(line.left(bar)), trimmedBlanks(line.mid(bar + 1))};
}

bool DeckLayout::isBlankLine(const QString &line)
{
    return trimmedBlanks(line).isEmpty();
}
