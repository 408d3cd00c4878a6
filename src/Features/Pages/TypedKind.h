#pragma once

#include "Features/Pages/PageBlocks.h"

#include <optional>

/// The signs at the beginning of a block that make another kind of it as they are typed, such as "# ".
namespace TypedKind
{
/// What the block becomes after this edit; nothing for any other edit. The text of the block has no part in
/// it.
/// @param text the whole text after the edit
std::optional<Block> of(const Block &block, const PageBlocks::TextEdit &edit, const QString &text);
} // namespace TypedKind
