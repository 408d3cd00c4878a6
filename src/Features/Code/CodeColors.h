#pragma once

#include "Features/Code/CodeHighlighter.h"

/// The colours of source text in the appearance of the program.
namespace CodeColors
{
CodeHighlighter::Colors current();
} // namespace CodeColors
