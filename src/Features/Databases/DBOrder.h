#pragma once

#include <QCollator>
#include <QList>
#include <QString>

/// The order of values in a sort: numbers by their value, all other texts as a user would file them, with
/// runs of digits by their value and case and accents deciding only among otherwise equal texts. The empty
/// value comes before all others.
class DBOrder
{
public:
    /// @param locale whose alphabet decides; the C locale has none and counts as English
    explicit DBOrder(const QLocale &locale = QLocale());

    /// Whether `a` comes first. Values that are equal in this order come first in neither direction.
    bool comesFirst(const QString &a, const QString &b, bool descending) const;

    /// The place of each value among them all, ascending from 0 for the empty value; equal values share
    /// theirs. Where `comesFirst` runs in a circle among numbers and texts, each of the two kinds keeps its
    /// order. It costs one parse and one collation key for each different value.
    QList<int> ranks(const QList<QString> &values) const;

private:
    QCollator m_collator;
};
