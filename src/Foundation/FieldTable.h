#pragma once

#include "Foundation/FieldList.h"

#include <algorithm>
#include <array>
#include <bitset>
#include <optional>
#include <simdjson.h>

/// The field list of a record as tables, and how an object of JSON is sorted into them.
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
        std::array<simdjson::dom::element, size> elements;
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
    static std::optional<Values> collect(simdjson::dom::element json)
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
