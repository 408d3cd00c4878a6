#include "SampleDecks.h"

#include "Store/WorkspaceStore.h"

namespace
{
Slide slide(SlideKind kind)
{
    Slide slide = Slide::fresh(QUuid::createUuid());
    slide.kind = kind;
    slide.kicker = kind == SlideKind::section ? QStringLiteral("02") : QStringLiteral("Spring review");
    slide.title = QStringLiteral("What we learned about steady work");
    slide.subtitle = QStringLiteral("Three months of smaller steps, told in eight slides");
    slide.body = QStringLiteral("Fewer meetings, longer mornings\nOne owner for each decision\n"
                                "Tea ☕ before the first message");
    slide.bodyB = QStringLiteral("Notes that others can read\nNo work in progress overnight");
    slide.notes =
        QStringLiteral("Pause here. Ask who has tried it, and wait for two answers before going on.");
    if (kind == SlideKind::quote)
        slide.body = QStringLiteral("The best way to go faster is to stop starting things.");
    if (kind == SlideKind::stats)
        slide.body = QStringLiteral("72 % | of plans kept\n1.4 s | median load\n98 | lighthouse score");
    return slide;
}

QList<Slide> everyKindOfSlide()
{
    QList<Slide> slides;
    for (const auto &kind : enumCases<SlideKind>())
        slides.append(slide(kind.value));
    return slides;
}

QUuid add(WorkspaceStore &store, const QString &title, const SlideTheme &theme, const QList<Slide> &slides)
{
    Deck deck = Deck::fresh(Timestamp(), QUuid::createUuid());
    deck.title = title;
    deck.theme = theme;
    deck.slides = slides;
    store.add(deck);
    return deck.id;
}
} // namespace

QUuid SampleDecks::everyKind(WorkspaceStore &store, const SlideTheme &theme)
{
    return add(store, QStringLiteral("Spring review"), theme, everyKindOfSlide());
}

QUuid SampleDecks::crowded(WorkspaceStore &store)
{
    const QString sentence = QStringLiteral("A calm place needs more words than a line has room for. ");
    QList<Slide> slides = everyKindOfSlide();
    for (Slide &slide : slides) {
        slide.title = sentence.repeated(3).trimmed();
        slide.subtitle = sentence.repeated(4).trimmed();
        if (slide.kind == SlideKind::stats)
            slide.body = QStringLiteral("1,234,567.89 EUR | %1\n72 %1| Label\n98 | x").arg(sentence);
        else
            slide.body = slide.bodyB = (sentence.trimmed() + u'\n').repeated(9).trimmed();
    }
    return add(store, sentence.repeated(3).trimmed(), SlideTheme::catalog().at(3), slides);
}

QUuid SampleDecks::many(WorkspaceStore &store, int count)
{
    QList<Slide> slides;
    while (slides.size() < count)
        slides.append(slide(enumCases<SlideKind>()[std::size_t(slides.size()) % 8].value));
    return add(store, QStringLiteral("A whole year"), SlideTheme::catalog().at(7), slides);
}

QUuid SampleDecks::bare(WorkspaceStore &store)
{
    return add(store, QStringLiteral("Untitled"), SlideTheme::inkTheme(), {});
}
