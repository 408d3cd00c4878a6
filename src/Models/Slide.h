#pragma once

#include "Foundation/EnumTable.h"
#include "Foundation/FieldList.h"

#include <QStringList>
#include <QUuid>

enum class SlideKind { title, section, statement, bullets, twoColumn, quote, stats, closing };

template <>
struct EnumTable<SlideKind> {
    static constexpr auto cases = std::to_array<EnumCase<SlideKind>>({
        {SlideKind::title, "title", QT_TRANSLATE_NOOP("EnumLabel", "Title")},
        {SlideKind::section, "section", QT_TRANSLATE_NOOP("EnumLabel", "Section")},
        {SlideKind::statement, "statement", QT_TRANSLATE_NOOP("EnumLabel", "Statement")},
        {SlideKind::bullets, "bullets", QT_TRANSLATE_NOOP("EnumLabel", "Bullets")},
        {SlideKind::twoColumn, "twoColumn", QT_TRANSLATE_NOOP("EnumLabel", "Two columns")},
        {SlideKind::quote, "quote", QT_TRANSLATE_NOOP("EnumLabel", "Quote")},
        {SlideKind::stats, "stats", QT_TRANSLATE_NOOP("EnumLabel", "Stats")},
        {SlideKind::closing, "closing", QT_TRANSLATE_NOOP("EnumLabel", "Closing")},
    });
};

/// A text field of a slide that the canvas shows.
enum class SlideField { kicker, title, subtitle, body, bodyB };

/// The prompt in an empty field; empty if the kind doesn't show that field.
QString slidePlaceholder(SlideKind kind, SlideField field);

/// One slide of a deck.
struct Slide {
    QUuid id;
    SlideKind kind = SlideKind::title;
    /// Small text above the title; the big number of a section slide.
    QString kicker;
    QString title;
    /// The line under the title; who said it on a quote slide.
    QString subtitle;
    /// Main text, lines separated by line feeds.
    QString body;
    /// Second column.
    QString bodyB;
    /// Speaker notes.
    QString notes;

    bool operator==(const Slide &) const = default;

    /// The lines of the field, empty ones kept; only the line feed separates.
    QStringList bodyLines() const { return body.split(u'\n'); }
    QStringList bodyBLines() const { return bodyB.split(u'\n'); }

    /// An empty slide with this id.
    static Slide fresh(const QUuid &id);

    static constexpr bool isTolerant = true;
    static constexpr bool acceptsAnything = true;
    static constexpr auto fields()
    {
        return std::tuple{Field{"id", &Slide::id},
                          Field{"kind", &Slide::kind},
                          Field{"kicker", &Slide::kicker},
                          Field{"title", &Slide::title},
                          Field{"subtitle", &Slide::subtitle},
                          Field{"body", &Slide::body},
                          Field{"bodyB", &Slide::bodyB},
                          Field{"notes", &Slide::notes}};
    }
};
