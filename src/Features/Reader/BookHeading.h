#pragma once

#include <QStringView>

/// Which paragraphs of a plain text are shown as headings.
namespace BookHeading
{
/// Whether the paragraph is short, and in capitals or the beginning of a chapter: "THE LETTER", "IV.",
/// "Chapter 3. The Return".
bool looksLikeOne(QStringView paragraph);
} // namespace BookHeading
