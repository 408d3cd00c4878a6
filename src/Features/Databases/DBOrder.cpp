#include "Features/Databases/DBOrder.h"

#include "Features/Databases/DBValue.h"

#include <QHash>

#include <algorithm>
#include <optional>
#include <vector>

namespace
{
/// A value made ready for comparing.
struct Prepared {
    int value = 0;
    bool isEmpty = false;
    std::optional<double> number;
    std::optional<QCollatorSortKey> key;
};

int compare(const Prepared &a, const Prepared &b)
{
    if (a.number && b.number)
        return *a.number < *b.number ? -1 : (*b.number < *a.number ? 1 : 0);
    if (a.isEmpty || b.isEmpty)
        return int(b.isEmpty) - int(a.isEmpty);
    return a.key->compare(*b.key);
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
    QHash<QString, int> indexOf;
    indexOf.reserve(values.size());
    QList<int> distinct;
    distinct.reserve(values.size());
    std::vector<Prepared> prepared;
    bool hasText = false;
    for (const QString &value : values) {
        const auto known = indexOf.constFind(value);
        if (known != indexOf.cend()) {
            distinct.append(*known);
            continue;
        }
        const int index = int(prepared.size());
        indexOf.insert(value, index);
        distinct.append(index);
        prepared.push_back({index, value.isEmpty(), DBValue::number(value), std::nullopt});
        hasText = hasText || (!value.isEmpty() && !prepared.back().number);
    }
    // Numbers need a key only where they have to be filed among texts.
    if (hasText)
        for (auto it = indexOf.cbegin(); it != indexOf.cend(); ++it)
            if (!it.key().isEmpty())
                prepared[std::size_t(*it)].key =
                    m_collator.sortKey(it.key().normalized(QString::NormalizationForm_C));

    std::ranges::stable_sort(prepared,
                             [](const Prepared &a, const Prepared &b) { return compare(a, b) < 0; });
    std::vector<int> rankOf(prepared.size());
    int rank = 0;
    for (std::size_t i = 0; i < prepared.size(); ++i) {
        if (i > 0 && compare(prepared[i - 1], prepared[i]) != 0)
            ++rank;
        rankOf[std::size_t(prepared[i].value)] = rank;
    }
    for (int &index : distinct)
        index = rankOf[std::size_t(index)];
    return distinct;
}
