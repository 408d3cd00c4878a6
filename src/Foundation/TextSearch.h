#pragma once

#include <QList>
#include <QString>

/// Looks for words in long texts. Case and the shape of quotation marks make no difference.
namespace TextSearch
{
/// The text as it is compared: in lower case and with plain quotation marks, unit for unit.
QString fold(QStringView text);

/// Where the query stands in a text, both folded; none overlaps another. An empty query stands nowhere.
QList<int> find(QStringView folded, QStringView query);
} // namespace TextSearch
