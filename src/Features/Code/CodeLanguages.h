#pragma once

#include "Features/Code/KeywordSet.h"
#include "Models/CodeLanguage.h"

/// What the program knows about a language beyond its name: how its text is coloured, saved and run.
struct CodeLanguageTraits {
    CodeLanguage language;
    std::u16string_view fileExtension;
    /// Whether a text in it can be run at all, given an interpreter.
    bool canRun = false;
    /// Empty if the language has none.
    std::u16string_view lineComment = {};
    /// Whether `/*` and `*/` enclose comments.
    bool hasBlockComments = false;
    /// Each unit is a quote.
    std::u16string_view quotes = {};
    /// The quotes that, three in a row, enclose strings of many lines.
    std::u16string_view tripleQuotes = {};
    KeywordSet keywords = {};
};

namespace CodeLanguages
{
const CodeLanguageTraits &traits(CodeLanguage language);
} // namespace CodeLanguages
