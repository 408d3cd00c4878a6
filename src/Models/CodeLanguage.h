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
        {CodeLanguage::swift, "swift", QT_TRANSLATE_NOOP("EnumLabel", "Swift")},
        {CodeLanguage::python, "python", QT_TRANSLATE_NOOP("EnumLabel", "Python")},
        {CodeLanguage::javascript, "javascript", QT_TRANSLATE_NOOP("EnumLabel", "JavaScript")},
        {CodeLanguage::typescript, "typescript", QT_TRANSLATE_NOOP("EnumLabel", "TypeScript")},
        {CodeLanguage::json, "json", QT_TRANSLATE_NOOP("EnumLabel", "JSON")},
        {CodeLanguage::html, "html", QT_TRANSLATE_NOOP("EnumLabel", "HTML")},
        {CodeLanguage::css, "css", QT_TRANSLATE_NOOP("EnumLabel", "CSS")},
        {CodeLanguage::sql, "sql", QT_TRANSLATE_NOOP("EnumLabel", "SQL")},
        {CodeLanguage::shell, "shell", QT_TRANSLATE_NOOP("EnumLabel", "Shell")},
        {CodeLanguage::markdown, "markdown", QT_TRANSLATE_NOOP("EnumLabel", "Markdown")},
        {CodeLanguage::plain, "plain", QT_TRANSLATE_NOOP("EnumLabel", "Plain text")},
    });
};
