#pragma once

#include "Features/Decks/DeckExportError.h"
#include "Models/Deck.h"

#include <QDateTime>

#include <expected>

/// Writes decks as PowerPoint packages: every region of a slide becomes an editable shape on a blank layout.
/// Speaker notes are left out.
namespace PowerPointWriter
{
/// The bytes of the package.
/// @param localMoment stamps its entries, in the time zone that they are to show
std::expected<QByteArray, DeckExportError> presentation(const Deck &deck, const QDateTime &localMoment);
} // namespace PowerPointWriter
