#include "Features/Decks/DeckExporter.h"

#include "Features/Decks/DeckOutline.h"
#include "Features/Decks/PowerPointWriter.h"
#include "Features/Decks/ShownSlide.h"
#include "Features/Decks/SlidePainter.h"
#include "Features/Decks/SlidePdf.h"

#include <QPainter>

namespace
{
/// Of the PDF, in points.
constexpr QSize page(960, 540);
constexpr int pixelsPerPoint = 3;
} // namespace

std::expected<QByteArray, DeckExportError> DeckExporter::make(const Deck &deck, DeckExportFormat format,
                                                              const QDateTime &localMoment,
                                                              DeckExportProgress *progress)
{
    if (deck.slides.isEmpty())
        return std::unexpected(DeckExportError::noSlides);
    switch (format) {
    case DeckExportFormat::pdf:
        return pdf(deck, progress);
    case DeckExportFormat::pptx:
        return PowerPointWriter::presentation(deck, localMoment);
    case DeckExportFormat::markdown:
        return DeckOutline::markdown(deck).toUtf8();
    case DeckExportFormat::text:
        return DeckOutline::plainText(deck).toUtf8();
    }
    return std::unexpected(DeckExportError::writeFailed);
}

std::expected<QByteArray, DeckExportError> DeckExporter::pdf(const Deck &deck, DeckExportProgress *progress)
{
    SlidePdf document(deck.title);
    for (int i = 0; i < deck.slides.size(); ++i) {
        if (progress && progress->isCancelled)
            return std::unexpected(DeckExportError::writeFailed);
        if (!document.addPage(ShownSlide::of(deck, i).regions(), deck.theme))
            return std::unexpected(DeckExportError::renderFailed);
        if (progress)
            ++progress->slidesDone;
    }
    QByteArray bytes = document.finish();
    if (bytes.isEmpty())
        return std::unexpected(DeckExportError::writeFailed);
    return bytes;
}

QImage DeckExporter::picture(const Deck &deck, int index)
{
    QImage picture(page * pixelsPerPoint, QImage::Format_RGB32);
    if (picture.isNull())
        return picture;
    picture.fill(Qt::white);
    QPainter painter(&picture);
    SlidePainter::paint(painter, ShownSlide::of(deck, index).regions(), deck.theme, picture.width());
    return picture;
}

QString DeckExporter::fileExtension(DeckExportFormat format)
{
    static constexpr auto extensions = std::to_array<const char *>({"pdf", "pptx", "md", "txt"});
    return QString::fromLatin1(extensions.at(std::size_t(format)));
}

QString DeckExporter::fileName(const Deck &deck, DeckExportFormat format)
{
    QString name = deck.title.isEmpty() ? QStringLiteral("Deck") : deck.title;
    return name.replace(u'/', u'-') + u'.' + fileExtension(format);
}
