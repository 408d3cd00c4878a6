#pragma once

#include "Features/Code/CodeLanguages.h"

#include <QString>

#include <random>

/// Source texts made of what is hard to colour: half-open strings and comments, escapes at line ends, quotes
/// in comments, numbers beside words.
class RandomSource
{
public:
    explicit RandomSource(unsigned seed) : m_random(seed) {}

    /// A number from 0 to below the limit.
    int below(int limit) { return std::uniform_int_distribution(0, limit - 1)(m_random); }

    QString text(int pieces, CodeLanguage language)
    {
        QString text;
        for (int i = 0; i < pieces; ++i)
            text += piece(language);
        return text;
    }

private:
    QString piece(CodeLanguage language)
    {
        static const QStringList pieces{
            QStringLiteral("\n"),        QStringLiteral("\n"),     QStringLiteral(" "),
            QStringLiteral("\""),        QStringLiteral("'"),      QStringLiteral("`"),
            QStringLiteral("\\"),        QStringLiteral("\\\n"),   QStringLiteral("/*"),
            QStringLiteral("*/"),        QStringLiteral("//"),     QStringLiteral("#"),
            QStringLiteral("--"),        QStringLiteral("\"\"\""), QStringLiteral("'''"),
            QStringLiteral("0xFF_1"),    QStringLiteral("12px"),   QStringLiteral("Type"),
            QStringLiteral("$a1"),       QStringLiteral("."),      QStringLiteral("\u00e9"),
            QStringLiteral("\U0001F600")};
        const auto keywords = CodeLanguages::traits(language).keywords.words();
        const int choice = below(int(pieces.size()) + (keywords.empty() ? 0 : 3));
        if (choice < pieces.size())
            return pieces.at(choice);
        const std::u16string_view word = keywords[std::size_t(below(int(keywords.size())))];
        return QString::fromUtf16(word.data(), qsizetype(word.size()));
    }

    std::mt19937 m_random;
};
