#include "Foundation/TextSearch.h"

#include "Foundation/LowerCase.h"

#include <algorithm>

namespace
{
constexpr char16_t plainMark(char16_t unit)
{
    switch (unit) {
    case u'\u2018':
    case u'\u2019':
        return u'\'';
    case u'\u201C':
    case u'\u201D':
        return u'"';
    case u'\u0130': // two units in lower case
        return u'i';
    default:
        return unit;
    }
}

/// Which unit of the query is rare in English, so that looking for it first skips most of the text.
qsizetype rarestUnit(QStringView query)
{
    static constexpr QStringView frequentFirst = u" etaoinshrdlucmfwygpbvk";
    qsizetype rarest = 0;
    qsizetype best = -1;
    for (qsizetype i = 0; i < query.size(); ++i) {
        const qsizetype place = frequentFirst.indexOf(query[i]);
        const qsizetype rarity = place < 0 ? frequentFirst.size() : place;
        if (rarity > best) {
            best = rarity;
            rarest = i;
        }
    }
    return rarest;
}
} // namespace

QString TextSearch::fold(QStringView text)
{
    QString plain = text.toString();
    const auto units = reinterpret_cast<char16_t *>(plain.data());
    std::transform(units, units + plain.size(), units, plainMark);
    QString folded;
    LowerCase::append(folded, plain);
    return folded;
}

QList<int> TextSearch::find(QStringView folded, QStringView query)
{
    QList<int> positions;
    if (query.isEmpty())
        return positions;
    const qsizetype offset = rarestUnit(query);
    const QChar unit = query[offset];
    for (qsizetype at = folded.indexOf(unit, offset); at >= 0;) {
        const qsizetype start = at - offset;
        const bool isMatch = folded.sliced(start).startsWith(query);
        if (isMatch)
            positions.append(int(start));
        at = folded.indexOf(unit, isMatch ? at + query.size() : at + 1);
    }
    return positions;
}
