#include "Features/Reader/BookHeading.h"

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace
{
constexpr qsizetype longestHeading = 80;

bool isInCapitals(QStringView text)
{
    const bool hasCapital = std::ranges::any_of(text, [](QChar unit) { return unit.isUpper(); });
    return hasCapital && std::ranges::none_of(text, [](QChar unit) { return unit.isLower(); });
}

bool isNumber(QStringView word)
{
    return std::ranges::all_of(
        word, [](QChar unit) { return unit.isDigit() || "IVXLCDM"_L1.contains(unit.toUpper()); });
}

/// "chapter" and its number; "Chapter after chapter he read" is a sentence.
bool beginsChapter(QStringView text)
{
    constexpr auto chapter = "chapter "_L1;
    if (!text.startsWith(chapter, Qt::CaseInsensitive))
        return false;
    QStringView word = text.sliced(chapter.size()).trimmed();
    const auto end = std::ranges::find_if(word, [](QChar unit) { return !unit.isLetterOrNumber(); });
    word = word.first(end - word.begin());
    static constexpr std::array numbers{"one"_L1, "two"_L1,   "three"_L1, "four"_L1, "five"_L1,
                                        "six"_L1, "seven"_L1, "eight"_L1, "nine"_L1, "ten"_L1,
                                        "the"_L1, "first"_L1, "last"_L1};
    return !word.isEmpty() &&
           (isNumber(word) || std::ranges::any_of(numbers, [word](QLatin1StringView number) {
                return word.compare(number, Qt::CaseInsensitive) == 0;
            }));
}
} // namespace

bool BookHeading::looksLikeOne(QStringView paragraph)
{
    return paragraph.size() <= longestHeading && (isInCapitals(paragraph) || beginsChapter(paragraph));
}
