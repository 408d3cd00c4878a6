#pragma once

#include "Foundation/EnumTable.h"

/// What the reader's main pane shows.
enum class ReaderMode { library, discover };

template <>
struct EnumTable<ReaderMode> {
    static constexpr auto cases = std::to_array<EnumCase<ReaderMode>>({
        {ReaderMode::library, "library", u"Library", "books.vertical"},
        {ReaderMode::discover, "discover", u"Discover", "sparkle.magnifyingglass"},
    });
};
