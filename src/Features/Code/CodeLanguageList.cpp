#include "Features/Code/CodeLanguageList.h"

#include "Features/Code/CodeRunner.h"

namespace
{
CodeLanguage languageOf(const QString &raw)
{
    return enumFromRaw<CodeLanguage>(raw).value_or(enumCases<CodeLanguage>().front().value);
}
} // namespace

QString CodeLanguageList::label(const QString &raw) const
{
    return enumLabel(languageOf(raw));
}

bool CodeLanguageList::canRun(const QString &raw) const
{
    return CodeRunner::canRun(languageOf(raw));
}

QString CodeLanguageList::unsupportedReason(const QString &raw) const
{
    return CodeRunner::unsupportedReason(languageOf(raw));
}
