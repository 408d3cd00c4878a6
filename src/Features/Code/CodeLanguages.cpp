#include "Features/Code/CodeLanguages.h"

namespace
{
constexpr auto table = std::to_array<CodeLanguageTraits>({
    {.language = CodeLanguage::swift,
     .fileExtension = u"swift",
     .canRun = true,
     .lineComment = u"//",
     .hasBlockComments = true,
     .quotes = u"\"'",
     .tripleQuotes = u"\"",
     .keywords =
         u"func let var if else guard return for while in struct class enum protocol extension import "
         u"init self switch case default break continue try throws async await actor public private "
         u"internal static final where defer nil true false some any typealias inout mutating"},
    {.language = CodeLanguage::python,
     .fileExtension = u"py",
     .canRun = true,
     .lineComment = u"#",
     .quotes = u"\"'",
     .tripleQuotes = u"\"'",
     .keywords =
         u"def class if elif else for while return import from as with try except finally raise lambda "
         u"yield async await pass break continue global nonlocal assert del in is not and or None True "
         u"False self"},
    {.language = CodeLanguage::javascript,
     .fileExtension = u"js",
     .canRun = true,
     .lineComment = u"//",
     .hasBlockComments = true,
     .quotes = u"\"'`",
     .keywords = u"function const let var if else for while return class extends new import export from "
                 u"default async await try catch finally throw typeof instanceof this switch case break "
                 u"continue null undefined true false"},
    {.language = CodeLanguage::typescript,
     .fileExtension = u"ts",
     .canRun = true,
     .lineComment = u"//",
     .hasBlockComments = true,
     .quotes = u"\"'`",
     .keywords = u"function const let var if else for while return class extends implements interface type "
                 u"enum new import export from default async await try catch finally throw typeof instanceof "
                 u"this public private protected readonly switch case break continue null undefined true "
                 u"false"},
    {.language = CodeLanguage::json,
     .fileExtension = u"json",
     .canRun = true,
     .quotes = u"\"",
     .keywords = u"true false null"},
    {.language = CodeLanguage::html,
     .fileExtension = u"html",
     .keywords = u"html head body div span a p ul li section header footer main nav script style link meta "
                 u"title"},
    {.language = CodeLanguage::css,
     .fileExtension = u"css",
     .hasBlockComments = true,
     .quotes = u"\"'",
     .keywords = u"important inherit initial unset none auto flex grid block inline absolute relative fixed "
                 u"sticky"},
    {.language = CodeLanguage::sql,
     .fileExtension = u"sql",
     .canRun = true,
     .lineComment = u"--",
     .hasBlockComments = true,
     .quotes = u"'",
     .keywords =
         u"select from where insert into values update set delete join left right inner outer on group "
         u"by order having limit offset create table index drop alter primary key foreign references "
         u"and or not null SELECT FROM WHERE INSERT INTO VALUES UPDATE SET JOIN ON AND OR NOT NULL "
         u"ORDER BY GROUP LIMIT"},
    {.language = CodeLanguage::shell,
     .fileExtension = u"sh",
     .canRun = true,
     .lineComment = u"#",
     .quotes = u"\"'",
     .keywords = u"if then else elif fi for while do done case esac function return export local echo cd"},
    {.language = CodeLanguage::markdown, .fileExtension = u"md"},
    {.language = CodeLanguage::plain, .fileExtension = u"txt"},
});

constexpr bool followsTheEnumeration()
{
    for (std::size_t i = 0; i < table.size(); ++i)
        if (table[i].language != EnumTable<CodeLanguage>::cases.at(i).value)
            return false;
    return table.size() == EnumTable<CodeLanguage>::cases.size();
}
static_assert(followsTheEnumeration());
} // namespace

const CodeLanguageTraits &CodeLanguages::traits(CodeLanguage language)
{
    return table.at(std::size_t(language));
}
