#include "Features/Decks/DeckExporter.h"
#include "Features/Decks/OVZip.h"
#include "Features/Decks/PowerPointWriter.h"
#include "Harness/Comparison.h"

#include <QBuffer>
#include <QGuiApplication>
#include <QPainter>
#include <QPdfWriter>

using namespace Qt::StringLiterals;

namespace
{
Deck deckOf(int slides)
{
    Deck deck;
    deck.title = u"A year in review"_s;
    deck.theme = SlideTheme::catalog().at(3);
    for (int i = 0; i < slides; ++i) {
        Slide slide;
        slide.kind = enumCases<SlideKind>()[std::size_t(i) % enumCases<SlideKind>().size()].value;
        slide.kicker = u"Part %1"_s.arg(i);
        slide.title = u"What we learned about steady work"_s;
        slide.subtitle = u"One line that says why"_s;
        slide.body = u"72 | First of several points that matter\nSecond, with a little more to say\nThird"_s;
        slide.bodyB = u"The other side\nof the same thing"_s;
        deck.slides.append(slide);
    }
    return deck;
}

/// The same pictures as pages of Qt's own writer, without loss.
QByteArray pdfByQt(const Deck &deck)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setPageSize(QPageSize(QSizeF(960, 540), QPageSize::Point));
    writer.setPageMargins({});
    writer.setResolution(216);
    QPainter painter(&writer);
    painter.setRenderHint(QPainter::LosslessImageRendering);
    for (int i = 0; i < deck.slides.size(); ++i) {
        if (i > 0)
            writer.newPage();
        painter.drawImage(QRect(0, 0, 2880, 1620), DeckExporter::picture(deck, i));
    }
    painter.end();
    return bytes;
}
} // namespace

int main(int argc, char *argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    Comparison comparison;

    const Deck large = deckOf(100);
    const QDateTime moment(QDate(2026, 3, 1), QTime(9, 0));
    const QByteArray package = PowerPointWriter::presentation(large, moment).value();
    const auto pptx = Comparison::alternate(
        15, [&] { return timed([&] { (void)PowerPointWriter::presentation(large, moment); }); },
        [&] { return timed([&] { (void)OVZip::pack({{u"all"_s, package}}, moment); }); });
    comparison.timeUnder(u"PowerPoint of 100 slides, beside packing its bytes alone"_s,
                         Comparison::best(pptx.ours), Comparison::best(pptx.baseline),
                         Comparison::Duration(20));

    const Deck small = deckOf(8);
    const auto pdf = Comparison::alternate(
        3, [&] { return timed([&] { (void)DeckExporter::pdf(small); }); },
        [&] { return timed([&] { pdfByQt(small); }); });
    comparison.timeAtMost(u"PDF of 8 slides, against QPdfWriter's pictures without loss"_s,
                          Comparison::best(pdf.ours), Comparison::best(pdf.baseline), 0.3);
    const Deck whole = deckOf(300);
    comparison.figureAtMost(u"PDF of 300 slides, against 3 MB"_s, u"bytes"_s,
                            double(DeckExporter::pdf(whole).value().size()), 3e6, 1);
    return comparison.exitCode();
}
