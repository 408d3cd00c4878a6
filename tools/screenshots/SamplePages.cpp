#include "SamplePages.h"

#include "Store/PageOperations.h"

using namespace Qt::StringLiterals;

namespace
{
const QString longText =
    u"The harbour wakes before the town does. Nets are mended on the quay, gulls argue over the first catch, "
    u"and somebody always hums. A paragraph of this length has to wrap, more than once, and still read with "
    u"ease."_s;

QUuid addPage(WorkspaceStore &store, const QString &title, QList<Block> blocks)
{
    for (Block &block : blocks)
        block.id = QUuid::createUuid();
    const QUuid id = PageOperations::create(store, PageKind::page);
    store.change<Page>(id, [&](Page &page) {
        page.title = title;
        page.icon = u"🧭"_s;
        page.content = blocks;
    });
    return id;
}
} // namespace

QUuid SamplePages::everyBlock(WorkspaceStore &store)
{
    using enum BlockType;
    return addPage(
        store, u"Field notes from the coast"_s,
        {{.text = longText},
         {.type = heading1, .text = u"What we saw"_s},
         {.text = u"A short line, then the lists."_s},
         {.type = bulleted, .text = u"Low tide at nine, by https://tides.example/today"_s},
         {.type = bulleted, .text = longText},
         {.type = numbered, .text = u"Pack the boat"_s},
         {.type = numbered, .text = u"Check the weather twice"_s},
         {.type = heading2, .text = u"Before we leave"_s},
         {.type = checklist, .text = u"Charge the torch"_s, .checked = true},
         {.type = checklist, .text = u"Call the harbour office"_s},
         {.type = quote, .text = u"The sea, once it casts its spell, holds one in its net of wonder."_s},
         {.type = callout, .text = u"The office closes at four on Fridays."_s},
         {.type = callout, .text = u"Bring a second pair of gloves."_s, .tone = CalloutTone::tip},
         {.type = callout, .text = longText, .tone = CalloutTone::warning},
         {.type = callout, .text = u"Never leave alone."_s, .tone = CalloutTone::danger},
         {.type = divider},
         {.type = heading3, .text = u"Right to left, and more"_s},
         {.text = u"مرحبا بكم في الميناء القديم"_s},
         {.text = u"Family 👩‍👩‍👧‍👦, flags 🇳🇴 and e\u0301 combined"_s},
         {.type = code,
          .text =
              u"def tide(hour):\n    # rough, but good enough\n    return 2.1 if hour % 12 < 6 else 0.4\n\nprint(tide(9))"_s,
          .language = u"python"_s},
         {}});
}

QUuid SamplePages::manyBlocks(WorkspaceStore &store)
{
    QList<Block> blocks;
    for (int i = 0; i < 2000; ++i)
        blocks.append({.type = i % 40 == 0 ? BlockType::heading2 : BlockType(i % 7 == 0 ? i % 11 : 0),
                       .text = i % 5 == 0 ? longText : u"Line %1 of a long log"_s.arg(i)});
    return addPage(store, u"Ship's log"_s, blocks);
}

QUuid SamplePages::workshop(WorkspaceStore &store)
{
    using enum BlockType;
    return addPage(store, u"Workshop"_s,
                   {{.text = u"/"_s},
                    {.type = code, .text = u"[1, 2, 3]"_s, .language = u"json"_s},
                    {.type = code, .text = u"raise ValueError('no wind')"_s, .language = u"python"_s},
                    {.type = code, .text = u"sleep 20"_s, .language = u"shell"_s},
                    {.text = u"Something above the last line"_s},
                    {.text = u"/"_s}});
}
