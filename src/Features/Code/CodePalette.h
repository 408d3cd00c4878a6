#pragma once

#include "Features/Code/CodeSyntax.h"

#include <optional>
#include <string_view>

/// The colour of one kind of token in each appearance.
struct CodeColor {
    /// Six hexadecimal digits; empty where the text's own colour counts.
    std::string_view dark;
    std::string_view light;
    /// The theme's colour that takes their place in ink mode, and wherever they are empty.
    std::string_view inkRole;
};

/// The colours of source text as data; drawing asks the theme which of them counts.
namespace CodePalette
{
/// @param kind none for plain text
constexpr CodeColor color(std::optional<CodeTokenKind> kind)
{
    if (!kind)
        return {{}, {}, "ovInk"};
    switch (*kind) {
    case CodeTokenKind::keyword:
        return {"FF7AB2", "9B2393", "ovInk"};
    case CodeTokenKind::typeName:
        return {"6BDFFF", "267F99", "ovInk"};
    case CodeTokenKind::string:
        return {"FF8170", "C41A16", "ovInkSecondary"};
    case CodeTokenKind::comment:
        return {"7F8C98", "5D6C79", "ovInkTertiary"};
    case CodeTokenKind::number:
        return {"D9C97C", "1C00CF", "ovInkSecondary"};
    }
    return {{}, {}, "ovInk"};
}
} // namespace CodePalette
