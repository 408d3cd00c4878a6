#include "Store/DeckOperations.h"

#include <algorithm>

namespace
{
/// Lets the edit change the deck, and dates the change if there was one.
template <typename Edit>
void changeDeck(WorkspaceStore &store, const QUuid &deckID, Edit edit)
{
    store.change<Deck>(deckID, [&](Deck &deck) {
        const Deck before = deck;
        edit(deck);
        if (deck != before)
            deck.updatedDate = store.now();
    });
}

qsizetype indexOf(const Deck &deck, const QUuid &slideID)
{
    const auto found = std::ranges::find(deck.slides, slideID, &Slide::id);
    return found == deck.slides.end() ? -1 : found - deck.slides.begin();
}

/// The same for a slide of the deck; the edit gets its place.
template <typename Edit>
void changeSlides(WorkspaceStore &store, const QUuid &deckID, const QUuid &slideID, Edit edit)
{
    changeDeck(store, deckID, [&](Deck &deck) {
        if (const qsizetype index = indexOf(deck, slideID); index >= 0)
            edit(deck.slides, index);
    });
}

void setDeckText(WorkspaceStore &store, const QUuid &deckID, QString Deck::*field, const QString &name,
                 const QString &text, qsizetype caret)
{
    const Deck *const deck = store.list<Deck>().first(deckID);
    if (!deck)
        return;
    const Action action(store, Typing{{deckID, name}, deck->*field, text, caret});
    changeDeck(store, deckID, [&](Deck &changed) { changed.*field = text; });
}
} // namespace

QUuid DeckOperations::create(WorkspaceStore &store, const SlideTheme &theme)
{
    const Action action(store, ActionText::tr("New Deck"));
    const Deck deck = Deck::starter(QStringLiteral("Untitled"), theme, QString(), store.now(),
                                    [&store] { return store.makeId(); });
    store.add(deck);
    return deck.id;
}

std::optional<Deck> DeckOperations::duplicate(WorkspaceStore &store, const QUuid &deckID)
{
    const Deck *const original = store.list<Deck>().first(deckID);
    if (!original)
        return std::nullopt;
    const Action action(store, ActionText::tr("Duplicate Deck"));
    Deck copy = *original;
    copy.id = store.makeId();
    copy.title += QStringLiteral(" copy");
    for (Slide &slide : copy.slides)
        slide.id = store.makeId();
    copy.createdDate = copy.updatedDate = store.now();
    copy.sortOrder = secondsSince1970(copy.createdDate);
    store.add(copy);
    return copy;
}

void DeckOperations::remove(WorkspaceStore &store, const QUuid &deckID)
{
    const Action action(store, ActionText::tr("Delete Deck"));
    action.setMessage(ActionText::tr("Deck deleted"));
    store.erase<Deck>(deckID);
}

void DeckOperations::rename(WorkspaceStore &store, const QUuid &deckID, const QString &title)
{
    const Action action(store, ActionText::tr("Rename Deck"));
    changeDeck(store, deckID, [&](Deck &deck) { deck.title = title; });
}

void DeckOperations::setTheme(WorkspaceStore &store, const QUuid &deckID, const SlideTheme &theme)
{
    const Action action(store, ActionText::tr("Change Theme"));
    changeDeck(store, deckID, [&](Deck &deck) { deck.theme = theme; });
}

void DeckOperations::setShowNumbers(WorkspaceStore &store, const QUuid &deckID, bool showNumbers)
{
    const Action action(store, showNumbers ? ActionText::tr("Show Page Numbers")
                                           : ActionText::tr("Hide Page Numbers"));
    changeDeck(store, deckID, [&](Deck &deck) { deck.showNumbers = showNumbers; });
}

void DeckOperations::setTitle(WorkspaceStore &store, const QUuid &deckID, const QString &title,
                              qsizetype caret)
{
    setDeckText(store, deckID, &Deck::title, QStringLiteral("title"), title, caret);
}

void DeckOperations::setSummary(WorkspaceStore &store, const QUuid &deckID, const QString &summary,
                                qsizetype caret)
{
    setDeckText(store, deckID, &Deck::summary, QStringLiteral("summary"), summary, caret);
}

void DeckOperations::setAuthor(WorkspaceStore &store, const QUuid &deckID, const QString &author,
                               qsizetype caret)
{
    setDeckText(store, deckID, &Deck::author, QStringLiteral("author"), author, caret);
}

QUuid DeckOperations::addSlide(WorkspaceStore &store, const QUuid &deckID, SlideKind kind)
{
    if (!store.list<Deck>().first(deckID))
        return {};
    const Action action(store, ActionText::tr("New Slide"));
    Slide slide = Slide::fresh(store.makeId());
    slide.kind = kind;
    changeDeck(store, deckID, [&](Deck &deck) {
        if (kind == SlideKind::section)
            slide.kicker = QStringLiteral("%1").arg(deck.slides.size() + 1, 2, 10, QLatin1Char('0'));
        deck.slides.append(slide);
    });
    return slide.id;
}

QUuid DeckOperations::duplicateSlide(WorkspaceStore &store, const QUuid &deckID, const QUuid &slideID)
{
    const Action action(store, ActionText::tr("Duplicate Slide"));
    QUuid copyID;
    changeSlides(store, deckID, slideID, [&](QList<Slide> &slides, qsizetype index) {
        Slide copy = slides[index];
        copy.id = copyID = store.makeId();
        slides.insert(index + 1, copy);
    });
    return copyID;
}

void DeckOperations::moveSlide(WorkspaceStore &store, const QUuid &deckID, const QUuid &slideID,
                               qsizetype offset)
{
    const Action action(store, ActionText::tr("Move Slide"));
    changeSlides(store, deckID, slideID, [&](QList<Slide> &slides, qsizetype index) {
        if (index + offset >= 0 && index + offset < slides.size())
            slides.move(index, index + offset);
    });
}

void DeckOperations::removeSlide(WorkspaceStore &store, const QUuid &deckID, const QUuid &slideID)
{
    const Action action(store, ActionText::tr("Delete Slide"));
    action.setMessage(ActionText::tr("Slide deleted"));
    changeSlides(store, deckID, slideID,
                 [](QList<Slide> &slides, qsizetype index) { slides.removeAt(index); });
}

void DeckOperations::setKind(WorkspaceStore &store, const QUuid &deckID, const QUuid &slideID, SlideKind kind)
{
    const Action action(store, ActionText::tr("Change Slide Layout"));
    changeSlides(store, deckID, slideID,
                 [kind](QList<Slide> &slides, qsizetype index) { slides[index].kind = kind; });
}

void DeckOperations::setText(WorkspaceStore &store, const QUuid &deckID, const QUuid &slideID,
                             QString Slide::*field, const QString &name, const QString &text, qsizetype caret)
{
    const Deck *const deck = store.list<Deck>().first(deckID);
    const qsizetype index = deck ? indexOf(*deck, slideID) : -1;
    if (index < 0)
        return;
    const Action action(store, Typing{{slideID, name}, deck->slides[index].*field, text, caret});
    changeSlides(store, deckID, slideID,
                 [&](QList<Slide> &slides, qsizetype place) { slides[place].*field = text; });
}
