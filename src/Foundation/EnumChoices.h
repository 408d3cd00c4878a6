#pragma once

#include "Foundation/EnumTable.h"

#include <QStringList>

/// The cases of an enum as choices for menus, which name them by their position in its table.
namespace EnumChoices
{
/// Whether a case stands at this position.
template <TabledEnum Enum>
bool isCase(int position)
{
    return position >= 0 && position < int(enumCases<Enum>().size());
}

template <TabledEnum Enum>
QStringList labels()
{
    QStringList texts;
    for (const auto &entry : enumCases<Enum>())
        texts.append(enumLabel(entry.value));
    return texts;
}

template <TabledEnum Enum>
QStringList symbols()
{
    QStringList texts;
    for (const auto &entry : enumCases<Enum>())
        texts.append(enumSymbol(entry.value));
    return texts;
}
} // namespace EnumChoices
