#pragma once

#include "Foundation/EnumTable.h"

/// Why a deck could not be exported; the label is the sentence that the person sees.
enum class DeckExportError { noSlides, renderFailed, writeFailed };

template <>
struct EnumTable<DeckExportError> {
    static constexpr auto cases = std::to_array<EnumCase<DeckExportError>>({
        {DeckExportError::noSlides, "noSlides", u"This deck has no slides yet."},
        {DeckExportError::renderFailed, "renderFailed", u"Orvel could not render this deck."},
        {DeckExportError::writeFailed, "writeFailed", u"Orvel could not build this file."},
    });
};
