#pragma once

#include "Models/Slide.h"

/// The labels are those of the fields in the inspector.
template <>
struct EnumTable<SlideField> {
    static constexpr auto cases = std::to_array<EnumCase<SlideField>>({
        {SlideField::kicker, "kicker", QT_TRANSLATE_NOOP("EnumLabel", "Kicker")},
        {SlideField::title, "title", QT_TRANSLATE_NOOP("EnumLabel", "Title")},
        {SlideField::subtitle, "subtitle", QT_TRANSLATE_NOOP("EnumLabel", "Subtitle")},
        {SlideField::body, "body", QT_TRANSLATE_NOOP("EnumLabel", "Body")},
        {SlideField::bodyB, "bodyB", QT_TRANSLATE_NOOP("EnumLabel", "Second column")},
    });
};

/// The text fields of a slide.
namespace SlideFields
{
inline QString Slide::*member(SlideField field)
{
    static constexpr auto members = std::to_array<QString Slide::*>(
        {&Slide::kicker, &Slide::title, &Slide::subtitle, &Slide::body, &Slide::bodyB});
    return members.at(std::size_t(field));
}

/// Whether the field takes more than one line.
inline bool isMultiLine(SlideField field)
{
    return field == SlideField::body || field == SlideField::bodyB;
}

/// Whether slides of this kind show the field.
inline bool isShown(SlideKind kind, SlideField field)
{
    return !slidePlaceholder(kind, field).isEmpty();
}
} // namespace SlideFields
