#pragma once

#include <string_view>
#include <tuple>

/// One field of a record: its key in files and the member that holds it.
template <typename Record, typename Member>
struct Field {
    using Value = Member;
    std::string_view name;
    Member Record::*member;
};

/// A record with its one field list, `static constexpr auto fields()`, a tuple of `Field` in the order in
/// which keys are written. Encoding and decoding both walk it.
///
/// Reading is strict: every key has to be there with a value of its type, except those of `std::optional`
/// members, which are left out when they hold nothing.
template <typename T>
concept FieldListed = requires { T::fields(); };

/// A record that says `static constexpr bool isTolerant = true` is read field by field: whatever is missing
/// or unreadable keeps the value of a fresh record. `static constexpr bool acceptsAnything = true` adds that
/// even a value that is no object reads as a fresh record.
template <typename T>
concept TolerantRecord = FieldListed<T> && requires { requires T::isTolerant; };
