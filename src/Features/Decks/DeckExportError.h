#pragma once

#include "Foundation/EnumTable.h"

/// Why a deck could not be exported; the label is the sentence that the user sees.
enum class DeckExportError { noSlides, renderFailed, writeFailed };

template <>
struct EnumTable<DeckExportError> {
    static constexpr auto cases = std::to_array<EnumCase<DeckExportError>>({
        {DeckExportError::noSlides, "noSlides",
         QT_TRANSLATE_NOOP("EnumLabel", "This deck has no slides yet.")},
        {DeckExportError::renderFailed, "renderFailed",
         QT_TRANSLATE_NOOP("EnumLabel", "Orvel could not render this deck.")},
        {DeckExportError::writeFailed, "writeFailed",
         QT_TRANSLATE_NOOP("EnumLabel", "Orvel could not build this file.")},
    });
};
