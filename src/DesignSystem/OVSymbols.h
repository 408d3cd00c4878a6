#pragma once

#include <QStringList>

/// The table from the product's symbol names to icons.
namespace OVSymbols
{

/// Every symbol of the table, without the filled twins.
QStringList names();

bool contains(const QString &symbol);

/// Resource path of the icon. A symbol ending in ".fill" is the filled twin of the one without.
/// An unknown symbol gives a neutral icon and is warned about once.
QString iconPath(const QString &symbol);

} // namespace OVSymbols
