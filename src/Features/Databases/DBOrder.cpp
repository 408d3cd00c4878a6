#include "Features/Databases/DBOrder.h"

#include "Features/Databases/DBValue.h"

#include <QHash>

#include <algorithm>
#include <optional>
#include <vector>

namespace
{
/// A different value made ready for comparing.
struct Prepared {
    std::optional<double> number;
    /// Numbers have one only where they have to be filed among texts.
    std::optional<QCollatorSortKey> key;
};

int compare(const Prepared &a, const Prepared &b)
{
    if (a.number && b.number)
        return *a.number < *b.number ? -1 : (*b.number < *a.number ? 1 : 0);
    return a.key->compare(*b.key);
}

/// Numbers by their value and texts by their key, either of which alone is an order.
struct Kinds {
    std::vector<int> numbers;
    std::vector<int> texts;

    Kinds(const std::vector<Prepared> &prepared, int first)
    {
        for (int i = first; i < int(prepared.size()); ++i)
            (prepared[std::size_t(i)].number ? numbers : texts).push_back(i);
        std::ranges::sort(numbers, [&prepared](int a, int b) {
            const Prepared &left = prepared[std::size_t(a)], &right = prepared[std::size_t(b)];
            const int order = compare(left, right);
            return order == 0 && left.key ? left.key->compare(*right.key) < 0 : order < 0;
        });
        std::ranges::sort(texts, [&prepared](int a, int b) {
            return compare(prepared[std::size_t(a)], prepared[std::size_t(b)]) < 0;
        });
    }
};

/// Gives each value its rank. Between numbers and texts the order may run in a circle ("1e3", "5x", "9",
/// "1e3"), which no sorting by comparing bears; merging the two kinds ends on any values, and gives the order
/// itself where it is one.
std::vector<int> mergedRanks(const std::vector<Prepared> &prepared, int first)
{
    const Kinds kinds(prepared, first);
    std::vector<int> ranks(prepared.size(), 0);
    auto number = kinds.numbers.begin();
    auto text = kinds.texts.begin();
    int rank = first - 1;
    int last = -1;
    while (number != kinds.numbers.end() || text != kinds.texts.end()) {
        const auto at = [&prepared](int index) -> const Prepared & { return prepared[std::size_t(index)]; };
        const bool takesNumber = text == kinds.texts.end() ||
                                 (number != kinds.numbers.end() && compare(at(*number), at(*text)) <= 0);
        const int next = takesNumber ? *number++ : *text++;
        if (last < 0 || compare(at(last), at(next)) != 0)
            ++rank;
        ranks[std::size_t(next)] = rank;
        last = next;
        // Numbers of one value stay together, whatever they are written like.
        while (takesNumber && number != kinds.numbers.end() && compare(at(last), at(*number)) == 0)
            ranks[std::size_t(*number++)] = rank;
    }
    return ranks;
}
} // namespace

DBOrder::DBOrder(const QLocale &locale)
    : m_collator(locale.language() == QLocale::C ? QLocale(QLocale::English) : locale)
{
    m_collator.setNumericMode(true);
    m_collator.setCaseSensitivity(Qt::CaseSensitive);
}

bool DBOrder::comesFirst(const QString &a, const QString &b, bool descending) const
{
    const auto numberA = DBValue::number(a), numberB = DBValue::number(b);
    if (numberA && numberB)
        return descending ? *numberA > *numberB : *numberA < *numberB;
    const int order = m_collator.compare(a.normalized(QString::NormalizationForm_C),
                                         b.normalized(QString::NormalizationForm_C));
    return descending ? order > 0 : order < 0;
}

QList<int> DBOrder::ranks(const QList<QString> &values) const
{
    // The empty value stands first among the different ones.
    QHash<QString, int> indexOf{{QString(), 0}};
    indexOf.reserve(values.size());
    QList<int> ranks;
    ranks.reserve(values.size());
    std::vector<Prepared> prepared(1);
    bool hasText = false;
    for (const QString &value : values) {
        const auto known = indexOf.constFind(value);
        if (known != indexOf.cend()) {
            ranks.append(*known);
            continue;
        }
        const int index = int(prepared.size());
        indexOf.insert(value, index);
        ranks.append(index);
        prepared.push_back({DBValue::number(value), std::nullopt});
        hasText = hasText || !prepared.back().number;
    }
    if (hasText)
        for (auto it = indexOf.cbegin(); it != indexOf.cend(); ++it)
            prepared[std::size_t(*it)].key =
                m_collator.sortKey(it.key().normalized(QString::NormalizationForm_C));
    const std::vector<int> rankOf = mergedRanks(prepared, 1);
    for (int &index : ranks)
        index = rankOf[std::size_t(index)];
    return ranks;
}
