#pragma once

#include "Foundation/EnumTable.h"

/// What the reader's main pane shows.
enum class ReaderMode { library, discover };

template <>
struct EnumTable<ReaderMode> {
    static constexpr auto cases = std::to_array<EnumCase<ReaderMode>>({
        {ReaderMode::library, "library", QT_TRANSLATE_NOOP("EnumLabel", "Library"), "books.vertical"},
        {ReaderMode::discover, "discover", QT_TRANSLATE_NOOP("EnumLabel", "Discover"),
         "sparkle.magnifyingglass"},
    });
};
