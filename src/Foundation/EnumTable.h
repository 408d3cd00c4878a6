#pragma once

#include "Foundation/BadgeTone.h"

#include <QCoreApplication>
#include <QString>
#include <QStringView>

#include <array>
#include <concepts>
#include <optional>
#include <string_view>

/// One case of an enumeration: its value, the raw text stored in files, and how menus show it.
template <typename Enum>
struct EnumCase {
    Enum value;
    std::string_view raw;
    /// In English, marked by `QT_TRANSLATE_NOOP("EnumLabel", "...")`.
    const char *label = "";
    /// Name of the product's own symbol set; the design system maps it to an icon.
    std::string_view symbol = {};
    std::string_view filledSymbol = {};
    BadgeTone tone = BadgeTone::neutral;
};

/// The one table of an enumeration. Specialise it beside the enumeration with
/// `static constexpr auto cases = std::to_array<EnumCase<Enum>>({...})`, in the order of declaration.
template <typename Enum>
struct EnumTable;

template <typename Enum>
concept TabledEnum = std::is_enum_v<Enum> && requires { EnumTable<Enum>::cases.size(); };

/// All cases in order, for menus and pickers.
template <TabledEnum Enum>
constexpr const auto &enumCases()
{
    return EnumTable<Enum>::cases;
}

/// The entry of one value; values are the positions in the table.
template <TabledEnum Enum>
constexpr const EnumCase<Enum> &enumCase(Enum value)
{
    return EnumTable<Enum>::cases.at(static_cast<std::size_t>(value));
}

template <TabledEnum Enum>
constexpr std::string_view enumRaw(Enum value)
{
    return enumCase(value).raw;
}

/// How the user reads the case, in the user's language.
template <TabledEnum Enum>
QString enumLabel(Enum value)
{
    return QCoreApplication::translate("EnumLabel", enumCase(value).label);
}

template <TabledEnum Enum>
QString enumSymbol(Enum value)
{
    const auto symbol = enumCase(value).symbol;
    return QString::fromLatin1(symbol.data(), qsizetype(symbol.size()));
}

template <TabledEnum Enum>
QString enumRawText(Enum value)
{
    const auto raw = enumRaw(value);
    return QString::fromLatin1(raw.data(), qsizetype(raw.size()));
}

/// The value with this raw text; nothing if no case has it.
template <TabledEnum Enum>
constexpr std::optional<Enum> enumFromRaw(std::string_view raw)
{
    for (const auto &entry : EnumTable<Enum>::cases)
        if (entry.raw == raw)
            return entry.value;
    return std::nullopt;
}

template <TabledEnum Enum>
std::optional<Enum> enumFromRaw(const QString &raw)
{
    return enumFromRaw<Enum>(std::string_view(raw.toUtf8()));
}

/// The case after this one, going round after the last.
template <TabledEnum Enum>
constexpr Enum nextCase(Enum value)
{
    const auto &cases = EnumTable<Enum>::cases;
    return cases[(static_cast<std::size_t>(value) + 1) % cases.size()].value;
}
