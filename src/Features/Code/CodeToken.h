#pragma once

#include <QtGlobal>

enum class CodeTokenKind { keyword, typeName, string, comment, number };

/// A coloured stretch of a source text, in UTF-16 units.
struct CodeToken {
    qsizetype location = 0;
    qsizetype length = 0;
    CodeTokenKind kind = CodeTokenKind::keyword;

    bool operator==(const CodeToken &) const = default;
};
