#include "Features/Decks/DeckRow.h"

#include "Features/Decks/SlideFields.h"
#include "Features/Decks/SlidePainter.h"
#include "Foundation/LineText.h"

#include <QCoreApplication>

namespace
{
QString slideCountText(qsizetype count)
{
    return count == 1 ? QCoreApplication::translate("DeckRow", "1 slide")
                      : QCoreApplication::translate("DeckRow", "%L1 slides").arg(count);
}

/// What a slide says first, by which a user knows it again.
QString firstText(const Slide &slide)
{
    for (const SlideField field : {SlideField::title, SlideField::body, SlideField::subtitle})
        if (const QString text = (slide.*SlideFields::member(field)).trimmed();
            !text.isEmpty() && SlideFields::isShown(slide.kind, field))
            return LineText::shown(text);
    return enumLabel(slide.kind);
}
} // namespace

DeckRow DeckRow::of(const Deck &deck)
{
    ShownSlide cover;
    cover.theme = deck.theme;
    if (deck.slides.isEmpty())
        cover.showNumbers = false;
    else
        cover = ShownSlide::of(deck, 0);
    return {deck.id, LineText::shownTitle(deck.title),
            slideCountText(deck.slides.size()) + QStringLiteral(" · ") + LineText::shown(deck.theme.name),
            cover};
}

SlideRow SlideRow::of(const Deck &deck, int index)
{
    const Slide &slide = deck.slides[index];
    return {slide.id, index + 1,
            QCoreApplication::translate("SlideRow", "Slide %1: %2").arg(index + 1).arg(firstText(slide)),
            ShownSlide::of(deck, index)};
}

QList<SlideFieldRow> SlideFieldRow::of(const Slide &slide)
{
    QList<SlideFieldRow> rows;
    for (const EnumCase<SlideField> &field : enumCases<SlideField>()) {
        if (!SlideFields::isShown(slide.kind, field.value))
            continue;
        SlideFieldRow row{.field = enumRawText(field.value),
                          .label = enumLabel(field.value),
                          .placeholder = slidePlaceholder(slide.kind, field.value),
                          .content = slide.*SlideFields::member(field.value),
                          .hint = {},
                          .isMultiLine = SlideFields::isMultiLine(field.value)};
        if (slide.kind == SlideKind::stats && field.value == SlideField::body)
            row.hint =
                QCoreApplication::translate("SlideFieldRow", "Write one card per line as `value | label`.");
        rows.append(row);
    }
    return rows;
}

QList<SlideThemeChoice> SlideThemeChoice::catalog()
{
    QList<SlideThemeChoice> choices;
    for (const SlideTheme &theme : SlideTheme::catalog())
        choices.append({theme.id, theme.name, SlidePainter::color(theme.background),
                        SlidePainter::color(theme.ink), SlidePainter::color(theme.accent)});
    return choices;
}
