#pragma once

#include "Features/Code/CodeLanguages.h"
#include "Features/Code/CodeSyntax.h"

#include <QList>
#include <QRegularExpression>
#include <QStringList>

/// Finds the same tokens as the scanner, by one regular expression: a second opinion for tests and the rival
/// for benchmarks.
class RegexTokenizer
{
public:
    explicit RegexTokenizer(CodeLanguage language)
    {
        const CodeLanguageTraits &traits = CodeLanguages::traits(language);
        const auto text = [](std::u16string_view view) {
            return QString::fromUtf16(view.data(), qsizetype(view.size()));
        };
        QStringList comments, strings, keywords;
        for (const std::u16string_view word : traits.keywords.words())
            keywords += text(word);
        if (!traits.lineComment.empty())
            comments += QRegularExpression::escape(text(traits.lineComment)) + QStringLiteral("[^\\n\\r]*+");
        if (traits.hasBlockComments)
            comments += QStringLiteral("/\\*(?:[\\s\\S]*?\\*/|[\\s\\S]*+)");
        for (const char16_t quote : traits.tripleQuotes)
            strings += QStringLiteral("%1%1%1(?:[\\s\\S]*?%1%1%1|[\\s\\S]*+)").arg(QChar(quote));
        for (const char16_t quote : traits.quotes)
            strings += QStringLiteral("%1(?:\\\\[\\s\\S]?+|[^%1\\\\%2])*+%1?+")
                           .arg(QString(QChar(quote)), quote == u'`' ? QString() : QStringLiteral("\\n\\r"));
        const QString never = QStringLiteral("(?!)");
        const auto either = [&](const QStringList &choices) {
            return QLatin1Char('(') + (choices.isEmpty() ? never : choices.join(QLatin1Char('|'))) +
                   QLatin1Char(')');
        };
        m_expression.setPattern(
            QStringList{either(comments), either(strings), QStringLiteral("([0-9][0-9._a-fA-Fx]*+)"),
                        either(keywords) + QStringLiteral("(?![A-Za-z0-9_$])"),
                        QStringLiteral("([A-Z][A-Za-z0-9_$]*+)"), QStringLiteral("[A-Za-z_$][A-Za-z0-9_$]*+")}
                .join(QLatin1Char('|')));
        m_expression.optimize();
    }

    QList<CodeToken> tokens(const QString &text) const
    {
        using enum CodeTokenKind;
        static constexpr std::array kinds{comment, string, number, keyword, typeName};
        QList<CodeToken> found;
        auto matches = m_expression.globalMatch(text);
        while (matches.hasNext()) {
            const QRegularExpressionMatch match = matches.next();
            const int group = match.lastCapturedIndex();
            if (group > 0)
                found.append({match.capturedStart(), match.capturedLength(), kinds[std::size_t(group - 1)]});
        }
        return found;
    }

private:
    QRegularExpression m_expression;
};
