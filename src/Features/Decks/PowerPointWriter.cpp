#include "Features/Decks/PowerPointWriter.h"

#include "Features/Decks/OVZip.h"
#include "Features/Decks/PowerPointParts.h"

using namespace Qt::StringLiterals;

std::expected<QByteArray, DeckExportError> PowerPointWriter::presentation(const Deck &deck,
                                                                          const QDateTime &localMoment)
{
    QList<OVZip::Entry> parts;
    const auto add = [&parts](const QString &name, const QString &text) {
        parts.append({name, text.toUtf8()});
    };
    const qsizetype count = deck.slides.size();

    add(u"[Content_Types].xml"_s, PowerPointParts::contentTypes(count));
    add(u"_rels/.rels"_s, PowerPointParts::packageRelationships());
    add(u"docProps/core.xml"_s, PowerPointParts::coreProperties(deck));
    add(u"docProps/app.xml"_s, PowerPointParts::appProperties(count));
    add(u"ppt/presentation.xml"_s, PowerPointParts::presentation(count));
    add(u"ppt/_rels/presentation.xml.rels"_s, PowerPointParts::presentationRelationships(count));
    for (int i = 0; i < count; ++i) {
        add(u"ppt/slides/slide%1.xml"_s.arg(i + 1), PowerPointParts::slide(deck, i));
        add(u"ppt/slides/_rels/slide%1.xml.rels"_s.arg(i + 1), PowerPointParts::slideRelationships());
    }
    add(u"ppt/slideMasters/slideMaster1.xml"_s, PowerPointParts::master(deck.theme));
    add(u"ppt/slideMasters/_rels/slideMaster1.xml.rels"_s, PowerPointParts::masterRelationships());
    add(u"ppt/slideLayouts/slideLayout1.xml"_s, PowerPointParts::layout());
    add(u"ppt/slideLayouts/_rels/slideLayout1.xml.rels"_s, PowerPointParts::layoutRelationships());
    add(u"ppt/theme/theme1.xml"_s, PowerPointParts::theme(deck.theme));

    const auto archive = OVZip::pack(parts, localMoment);
    if (!archive || archive->isEmpty())
        return std::unexpected(DeckExportError::writeFailed);
    return *archive;
}
