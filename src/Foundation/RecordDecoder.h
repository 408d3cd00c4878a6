#pragma once

#include "Foundation/DecodeContext.h"
#include "Foundation/EnumTable.h"
#include "Foundation/FieldTable.h"

#include <QList>
#include <QMap>

#include <optional>
#include <set>

/// Reads records from parsed JSON by walking their field lists. Every function fills its output and returns
/// true, or returns false and leaves the output in no particular state. Of a key given twice the last counts.
namespace RecordDecoder
{
using Element = simdjson::dom::element;

bool read(Element json, bool &out, const DecodeContext &context);
/// Takes any number without a fraction, 1.0 as well as 1.
bool read(Element json, qint64 &out, const DecodeContext &context);
bool read(Element json, double &out, const DecodeContext &context);
bool read(Element json, QString &out, const DecodeContext &context);
bool read(Element json, QUuid &out, const DecodeContext &context);
bool read(Element json, Timestamp &out, const DecodeContext &context);
bool read(Element json, std::set<QString> &out, const DecodeContext &context);
bool read(Element json, QMap<QString, QString> &out, const DecodeContext &context);

template <TabledEnum Enum>
bool read(Element json, Enum &out, const DecodeContext &)
{
    std::string_view raw;
    if (json.get(raw) != simdjson::SUCCESS)
        return false;
    const auto value = enumFromRaw<Enum>(raw);
    out = value.value_or(out);
    return value.has_value();
}

template <FieldListed Record>
bool read(Element json, Record &out, const DecodeContext &context);

template <typename T>
bool read(Element json, std::optional<T> &out, const DecodeContext &context)
{
    if (json.is_null()) {
        out.reset();
        return true;
    }
    return read(json, out.emplace(), context);
}

template <typename T>
bool read(Element json, QList<T> &out, const DecodeContext &context)
{
    simdjson::dom::array array;
    if (json.get(array) != simdjson::SUCCESS)
        return false;
    out.clear();
    out.reserve(qsizetype(array.size()));
    for (const Element element : array)
        if (!read(element, out.emplaceBack(), context))
            return false;
    return true;
}

template <typename T>
inline constexpr bool isOptional = false;
template <typename T>
inline constexpr bool isOptional<std::optional<T>> = true;

/// A fresh record, as the missing fields of a tolerant one are taken from it. It has no id yet.
template <FieldListed Record>
Record fresh(const DecodeContext &context)
{
    if constexpr (requires { Record::fresh(context.now, QUuid()); })
        return Record::fresh(context.now, QUuid());
    else if constexpr (requires { Record::fresh(QUuid()); })
        return Record::fresh(QUuid());
    else
        return Record();
}

/// Always leaves a usable record; false tells that the element was no object.
template <TolerantRecord Record>
bool readTolerant(Element json, Record &out, const DecodeContext &context)
{
    using Table = FieldTable<Record>;
    constexpr bool isIdentified = requires { out.id = context.makeId(); };
    out = fresh<Record>(context);
    const auto values = Table::collect(json);
    bool hasId = false;
    const auto readField = [&](const auto &field, const Element *value) {
        using Value = typename std::decay_t<decltype(field)>::Value;
        // What can't be read keeps the value of the fresh record.
        Value read{};
        if (!value || value->is_null())
            return true;
        if (!RecordDecoder::read(*value, read, context)) {
            context.report.addUnreadable(field.name);
            return true;
        }
        out.*field.member = std::move(read);
        if constexpr (isIdentified)
            if constexpr (std::is_same_v<Value, QUuid>)
                hasId |= &(out.*field.member) == &out.id;
        return true;
    };
    if (values) {
        context.report.hasUnknownKeys |= values->hasUnknownKeys;
        Table::readEach(*values, readField);
    }
    // Making an id is slow, and nearly every record has one.
    if constexpr (isIdentified)
        if (!hasId)
            out.id = context.makeId();
    return values.has_value();
}

template <FieldListed Record>
bool readStrict(Element json, Record &out, const DecodeContext &context)
{
    using Table = FieldTable<Record>;
    const auto values = Table::collect(json);
    if (!values)
        return false;
    context.report.hasUnknownKeys |= values->hasUnknownKeys;
    return Table::readEach(*values, [&](const auto &field, const Element *value) {
        return value ? RecordDecoder::read(*value, out.*field.member, context)
                     : isOptional<typename std::decay_t<decltype(field)>::Value>;
    });
}

template <FieldListed Record>
bool read(Element json, Record &out, const DecodeContext &context)
{
    if constexpr (TolerantRecord<Record>) {
        const bool isObject = readTolerant(json, out, context);
        if constexpr (requires { requires Record::acceptsAnything; }) {
            if (!isObject)
                context.report.addUnreadable("record");
            return true;
        } else
            return isObject;
    } else {
        return readStrict(json, out, context);
    }
}
} // namespace RecordDecoder
