#pragma once

#include "Foundation/EnumTable.h"

enum class CodeLanguage {
    swift,
    python,
    javascript,
    typescript,
    json,
    html,
    css,
    sql,
    shell,
    markdown,
    plain
};

template <>
struct EnumTable<CodeLanguage> {
    static constexpr auto cases = std::to_array<EnumCase<CodeLanguage>>({
        {CodeLanguage::swift, "swift", u"Swift"},
        {CodeLanguage::python, "python", u"Python"},
        {CodeLanguage::javascript, "javascript", u"JavaScript"},
        {CodeLanguage::typescript, "typescript", u"TypeScript"},
        {CodeLanguage::json, "json", u"JSON"},
        {CodeLanguage::html, "html", u"HTML"},
        {CodeLanguage::css, "css", u"CSS"},
        {CodeLanguage::sql, "sql", u"SQL"},
        {CodeLanguage::shell, "shell", u"Shell"},
        {CodeLanguage::markdown, "markdown", u"Markdown"},
        {CodeLanguage::plain, "plain", u"Plain text"},
    });
};
