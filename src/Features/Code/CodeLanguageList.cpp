#include "Features/Code/CodeLanguageList.h"

#include "Features/Code/CodeRunner.h"

namespace
{
CodeLanguage languageOf(const QString &raw)
{
    return enumFromRaw<CodeLanguage>(raw).value_or(enumCases<CodeLanguage>().front().value);
}
} // namespace

QStringList CodeLanguageList::rawTexts() const
{
    QStringList texts;
    for (const auto &entry : enumCases<CodeLanguage>())
        texts.append(enumRawText(entry.value));
    return texts;
}

QStringList CodeLanguageList::labels() const
{
    QStringList texts;
    for (const auto &entry : enumCases<CodeLanguage>())
        texts.append(enumLabel(entry.value));
    return texts;
}

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
