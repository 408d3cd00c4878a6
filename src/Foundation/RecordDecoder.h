#pragma once

#include "Foundation/EnumTable.h"
#include "Foundation/FieldList.h"
#include "Foundation/Timestamp.h"

#include <QList>
#include <QMap>
#include <QStringList>
#include <QUuid>

#include <algorithm>
#include <array>
#include <bitset>
#include <functional>
#include <optional>
#include <set>
#include <simdjson.h>

/// Lets equal short texts read one after the other share their contents: keys of table rows, names of
/// languages, icons and the like come in thousands.
class SharedTexts
{
public:
    QString text(std::string_view utf8);

private:
    /// Longer texts are seldom equal. Ids as text have 36 characters.
    static constexpr std::size_t longest = 36;
    static constexpr std::size_t places = 256;

    static std::size_t slot(std::string_view utf8);

    struct Known {
        std::array<char, longest> utf8;
        QString text;
        std::size_t size = longest + 1;
    };
    std::array<Known, places> m_known;
};

/// What a document holds that the records read from it do not: it would be lost if they were written back.
struct DecodeReport {
    /// The keys of tolerant records whose values were there but could not be read, each once.
    QStringList unreadableKeys;
    /// Whether some object has a key that its record does not know.
    bool hasUnknownKeys = false;

    void addUnreadable(std::string_view key);
};

/// What goes along with the reading of one document.
struct DecodeContext {
    /// What a fresh record needs when a tolerant one has to be filled up.
    Timestamp now;
    std::function<QUuid()> makeId = &QUuid::createUuid;
    mutable SharedTexts texts = {};
    mutable DecodeReport report = {};
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

/// The field list as tables.
template <FieldListed Record>
struct FieldTable {
    static constexpr std::size_t size = std::tuple_size_v<decltype(Record::fields())>;

    static constexpr std::array<std::string_view, size> names =
        std::apply([](const auto &...field) { return std::array{field.name...}; }, Record::fields());

    static std::size_t find(std::string_view name)
    {
        return std::size_t(std::ranges::find(names, name) - names.begin());
    }

    /// The value of each field, as far as the object has it.
    struct Values {
        std::array<Element, size> elements;
        std::bitset<size> present;
        bool hasUnknownKeys = false;
    };

    /// Calls `readField` with each field and its value, or null, until one call returns false; tells whether
    /// none did.
    static bool readEach(const Values &values, auto readField)
    {
        return [&]<std::size_t... Index>(std::index_sequence<Index...>) {
            return (readField(std::get<Index>(Record::fields()),
                              values.present[Index] ? &values.elements[Index] : nullptr) &&
                    ...);
        }(std::make_index_sequence<size>());
    }

    /// Nothing if the element is no object.
    static std::optional<Values> collect(Element json)
    {
        simdjson::dom::object object;
        if (json.get(object) != simdjson::SUCCESS)
            return std::nullopt;
        std::optional<Values> values(std::in_place);
        auto member = object.begin();
        const auto end = object.end();
        // Files written by this program have the keys in order, so each is first compared with one name only.
        const auto takeNext = [&]<std::size_t Index>() {
            static constexpr std::string_view name = std::get<Index>(Record::fields()).name;
            if (member == end || member.key() != name)
                return;
            values->elements[Index] = member.value();
            values->present.set(Index);
            ++member;
        };
        [&]<std::size_t... Index>(std::index_sequence<Index...>) {
            (takeNext.template operator()<Index>(), ...);
        }(std::make_index_sequence<size>());
        for (; member != end; ++member) {
            const std::size_t index = find(member.key());
            if (index == size) {
                values->hasUnknownKeys = true;
                continue;
            }
            values->elements[index] = member.value();
            values->present.set(index);
        }
        return values;
    }
};

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
