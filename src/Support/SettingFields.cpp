#include "Support/SettingFields.h"

#include <cmath>

namespace
{
template <typename Value>
constexpr bool isPlain = TabledEnum<Value> || std::is_same_v<Value, bool> || std::is_same_v<Value, QString> ||
                         std::is_arithmetic_v<Value>;

/// Calls the visitor with the member that has this name; false if there is none.
template <typename Record, typename Visitor>
bool visit(Record &record, QStringView name, const Visitor &visitor)
{
    const auto tryField = [&](const auto &field) {
        using Value = std::remove_cvref_t<decltype(record.*field.member)>;
        const QLatin1String key(field.name.data(), qsizetype(field.name.size()));
        if constexpr (FieldListed<Value>)
            return name.startsWith(key) && name.sliced(key.size()).startsWith(u'.') &&
                   visit(record.*field.member, name.sliced(key.size() + 1), visitor);
        else if constexpr (isPlain<Value>)
            return name == key && visitor(record.*field.member);
        else
            return false;
    };
    return std::apply([&](const auto &...field) { return (tryField(field) || ...); },
                      std::remove_const_t<Record>::fields());
}

bool isNumber(const QVariant &value)
{
    const int type = value.typeId();
    return type == QMetaType::Int || type == QMetaType::LongLong || type == QMetaType::Double;
}

template <typename Value>
std::optional<Value> read(const QVariant &value)
{
    if constexpr (TabledEnum<Value>) {
        return value.typeId() == QMetaType::QString ? enumFromRaw<Value>(value.toString()) : std::nullopt;
    } else if constexpr (std::is_arithmetic_v<Value> && !std::is_same_v<Value, bool>) {
        const double number = isNumber(value) ? value.toDouble() : 0;
        const bool fits = std::isfinite(number) && number > 0 && number < 1e9 &&
                          (std::is_floating_point_v<Value> || number == std::floor(number));
        return fits ? std::optional(static_cast<Value>(number)) : std::nullopt;
    } else {
        return value.metaType() == QMetaType::fromType<Value>() ? std::optional(value.value<Value>())
                                                                : std::nullopt;
    }
}
} // namespace

QVariant SettingFields::value(const AppSettings &settings, QStringView field)
{
    QVariant found;
    visit(settings, field, [&found](const auto &member) {
        if constexpr (TabledEnum<std::remove_cvref_t<decltype(member)>>)
            found = enumRawText(member);
        else
            found = QVariant::fromValue(member);
        return true;
    });
    return found;
}

bool SettingFields::set(AppSettings &settings, QStringView field, const QVariant &value)
{
    return visit(settings, field, [&value](auto &member) {
        const auto next = read<std::remove_cvref_t<decltype(member)>>(value);
        if (next)
            member = *next;
        return next.has_value();
    });
}
