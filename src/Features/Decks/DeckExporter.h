#pragma once

#include "Features/Decks/DeckExportError.h"
#include "Models/Deck.h"

#include <QDateTime>
#include <QImage>

#include <atomic>
#include <expected>

enum class DeckExportFormat { pdf, pptx, markdown, text };

/// The label is the wording of the export menu.
template <>
struct EnumTable<DeckExportFormat> {
    static constexpr auto cases = std::to_array<EnumCase<DeckExportFormat>>({
        {DeckExportFormat::pdf, "pdf", QT_TRANSLATE_NOOP("EnumLabel", "PDF document")},
        {DeckExportFormat::pptx, "pptx", QT_TRANSLATE_NOOP("EnumLabel", "PowerPoint")},
        {DeckExportFormat::markdown, "markdown", QT_TRANSLATE_NOOP("EnumLabel", "Markdown")},
        {DeckExportFormat::text, "text", QT_TRANSLATE_NOOP("EnumLabel", "Plain text")},
    });
};

/// How far an export is, and the word to stop it. May be read and written while another thread exports.
struct DeckExportProgress {
    std::atomic<int> slidesDone = 0;
    std::atomic<bool> isCancelled = false;
};

/// The front of all exports of decks. May be called from any thread.
namespace DeckExporter
{
/// The bytes of the deck in this format.
/// @param localMoment now, in the user's time zone
/// @param progress null if nobody wants to know; a cancelled export fails
std::expected<QByteArray, DeckExportError> make(const Deck &deck, DeckExportFormat format,
                                                const QDateTime &localMoment,
                                                DeckExportProgress *progress = nullptr);

/// One page of 960 by 540 points a slide, of text that can be searched and of shapes.
std::expected<QByteArray, DeckExportError> pdf(const Deck &deck, DeckExportProgress *progress = nullptr);

/// The picture of one slide, of three pixels a point of its page in the PDF.
QImage picture(const Deck &deck, int index);

/// What files of this format end in, without the dot.
QString fileExtension(DeckExportFormat format);
/// The file name offered for the deck.
QString fileName(const Deck &deck, DeckExportFormat format);
} // namespace DeckExporter
