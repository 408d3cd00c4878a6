#pragma once

#include "Models/Slide.h"

/// The labels are those of the fields in the inspector.
template <>
struct EnumTable<SlideField> {
    static constexpr auto cases = std::to_array<EnumCase<SlideField>>({
        {SlideField::kicker, "kicker", u"Kicker"},
        {SlideField::title, "title", u"Title"},
        {SlideField::subtitle, "subtitle", u"Subtitle"},
        {SlideField::body, "body", u"Body"},
        {SlideField::bodyB, "bodyB", u"Second column"},
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
