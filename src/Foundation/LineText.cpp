#include "Foundation/LineText.h"

#include <QCoreApplication>

namespace
{
/// The character at a place, and how many units it takes.
char32_t characterAt(QStringView text, qsizetype at, int &units)
{
    const QChar first = text[at];
    units = first.isHighSurrogate() && at + 1 < text.size() && text[at + 1].isLowSurrogate() ? 2 : 1;
    if (units == 2)
        return QChar::surrogateToUcs4(first, text[at + 1]);
    return first.isSurrogate() ? char32_t{QChar::ReplacementCharacter} : char32_t{first.unicode()};
}

/// No writing system stacks more on one letter.
constexpr int maxMarks = 8;

bool isMark(char32_t character)
{
    const QChar::Category category = QChar::category(character);
    return category == QChar::Mark_NonSpacing || category == QChar::Mark_Enclosing;
}

bool isControl(char32_t character)
{
    const QChar::Category category = QChar::category(character);
    return category == QChar::Other_Control || category == QChar::Separator_Line ||
           category == QChar::Separator_Paragraph;
}
} // namespace

QString LineText::shown(QStringView text, qsizetype maxLength)
{
    QString result;
    result.reserve(std::min(text.size(), maxLength));
    qsizetype letterStart = 0;
    int marks = 0;
    int units = 1;
    for (qsizetype i = 0; i < text.size(); i += units) {
        const char32_t character = characterAt(text, i, units);
        const bool mark = isMark(character);
        marks = mark ? marks + 1 : 0;
        if (marks > maxMarks)
            continue;
        if (!mark)
            letterStart = result.size();
        if (result.size() + units > maxLength) {
            result.truncate(letterStart);
            return result + u'…';
        }
        result += isControl(character) ? QStringView(u" ") : QStringView(QChar::fromUcs4(character));
    }
    return result;
}

QString LineText::shownTitle(QStringView title)
{
    const QString text = shown(title.trimmed());
    return text.isEmpty() ? QCoreApplication::translate("LineText", "Untitled") : text;
}
