#pragma once

#include "Foundation/EnumTable.h"
#include "Foundation/FieldList.h"
#include "Foundation/Timestamp.h"

#include <QList>
#include <QMap>
#include <QUuid>

#include <array>
#include <bitset>
#include <functional>
#include <optional>
#include <set>
#include <simdjson.h>

/// What a fresh record needs when a tolerant one has to be filled up.
struct DecodeContext {
    Timestamp now;
    std::function<QUuid()> makeId = &QUuid::createUuid;
};

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

/// The field list turned into tables, so that a key is found by comparing it with the one that should come
/// next.
template <FieldListed Record>
struct FieldTable {
    struct Entry {
        std::string_view name;
        bool mayBeMissing;
        bool (*read)(Element json, Record &record, const DecodeContext &context);
    };

    static constexpr std::size_t size = std::tuple_size_v<decltype(Record::fields())>;

    template <std::size_t Index>
    static constexpr Entry entry()
    {
        constexpr auto field = std::get<Index>(Record::fields());
        using Value = typename decltype(field)::Value;
        return {field.name, isOptional<Value>,
                [](Element json, Record &record, const DecodeContext &context) {
                    Value value{};
                    if (!RecordDecoder::read(json, value, context))
                        return false;
                    record.*std::get<Index>(Record::fields()).member = std::move(value);
                    return true;
                }};
    }

    static constexpr std::array<Entry, size> entries =
        []<std::size_t... Index>(std::index_sequence<Index...>) {
            return std::array<Entry, size>{entry<Index>()...};
        }(std::make_index_sequence<size>());

    /// The field with this name, looked for from the expected one on; `size` if there is none.
    static std::size_t find(std::string_view name, std::size_t expected)
    {
        for (std::size_t step = 0; step < size; ++step) {
            const std::size_t index = (expected + step) % size;
            if (entries[index].name == name)
                return index;
        }
        return size;
    }

    /// The value of each field, as far as the object has it.
    struct Values {
        std::array<Element, size> elements;
        std::bitset<size> present;
    };

    /// Nothing if the element is no object.
    static std::optional<Values> collect(Element json)
    {
        simdjson::dom::object object;
        if (json.get(object) != simdjson::SUCCESS)
            return std::nullopt;
        std::optional<Values> values(std::in_place);
        std::size_t expected = 0;
        for (const auto [key, value] : object) {
            const std::size_t index = find(key, expected);
            if (index == size)
                continue;
            expected = index + 1;
            values->elements[index] = value;
            values->present.set(index);
        }
        return values;
    }
};

/// A fresh record, as the missing fields of a tolerant one are taken from it.
template <FieldListed Record>
Record fresh(const DecodeContext &context)
{
    if constexpr (requires { Record::fresh(context.now, context.makeId()); })
        return Record::fresh(context.now, context.makeId());
    else if constexpr (requires { Record::fresh(context.makeId()); })
        return Record::fresh(context.makeId());
    else
        return Record();
}

/// Always leaves a usable record; false tells that the element was no object.
template <TolerantRecord Record>
bool readTolerant(Element json, Record &out, const DecodeContext &context)
{
    using Table = FieldTable<Record>;
    out = fresh<Record>(context);
    const auto values = Table::collect(json);
    if (!values)
        return false;
    for (std::size_t i = 0; i < Table::size; ++i)
        if (values->present[i] && !values->elements[i].is_null())
            Table::entries[i].read(values->elements[i], out, context);
    return true;
}

template <FieldListed Record>
bool readStrict(Element json, Record &out, const DecodeContext &context)
{
    using Table = FieldTable<Record>;
    const auto values = Table::collect(json);
    if (!values)
        return false;
    for (std::size_t i = 0; i < Table::size; ++i) {
        const auto &entry = Table::entries[i];
        const bool isFine =
            values->present[i] ? entry.read(values->elements[i], out, context) : entry.mayBeMissing;
        if (!isFine)
            return false;
    }
    return true;
}

template <FieldListed Record>
bool read(Element json, Record &out, const DecodeContext &context)
{
    if constexpr (TolerantRecord<Record>) {
        const bool isObject = readTolerant(json, out, context);
        if constexpr (requires { requires Record::acceptsAnything; })
            return true;
        else
            return isObject;
    } else {
        return readStrict(json, out, context);
    }
}
} // namespace RecordDecoder
