#include "Features/Decks/DecksViewModel.h"

#include "Store/DeckOperations.h"

#include <algorithm>

DecksViewModel::DecksViewModel(QObject *parent) : ViewModel(parent)
{
    follow<Deck>();
}

void DecksViewModel::start()
{
    connect(&ui(), &UIState::deckIDChanged, this, [this] {
        // One that the query hides would be open without a row.
        const Deck *const wanted = find(ui().deckID());
        if (wanted && !m_query.trimmed().isEmpty() && !wanted->matches(m_query.trimmed()))
            setQuery({});
        requestRefresh();
    });
}

void DecksViewModel::setQuery(const QString &query)
{
    if (std::exchange(m_query, query) == query)
        return;
    emit queryChanged();
    requestRefresh();
}

void DecksViewModel::newDeck(const QString &themeID)
{
    const auto theme = std::ranges::find(SlideTheme::catalog(), themeID, &SlideTheme::id);
    setQuery({});
    select(DeckOperations::create(store(),
                                  theme == SlideTheme::catalog().end() ? SlideTheme::inkTheme() : *theme));
}

void DecksViewModel::select(const QUuid &id)
{
    ui().setDeckID(id);
    flush();
}

void DecksViewModel::selectBy(int rows)
{
    const int last = int(m_rows.rows().size()) - 1;
    if (last >= 0)
        select(m_rows.rows().at(m_selectedRow < 0 ? 0 : qBound(0, m_selectedRow + rows, last)).id);
}

void DecksViewModel::duplicate(const QUuid &id)
{
    if (const auto copy = DeckOperations::duplicate(store(), id))
        select(copy->id);
}

void DecksViewModel::remove(const QUuid &id)
{
    DeckOperations::remove(store(), id);
}

QString DecksViewModel::titleOf(const QUuid &id) const
{
    const Deck *const deck = find(id);
    return deck ? DeckRow::of(*deck).title : QString();
}

void DecksViewModel::present(const QUuid &id)
{
    if (find(id))
        ui().setPresentingDeckID(id);
}

void DecksViewModel::refresh(const ChangeSet &)
{
    m_rows.setRows(matchingRows());
    chooseDeck();
    const bool isEmpty = store().list<Deck>().all().isEmpty();
    if (std::exchange(m_isEmpty, isEmpty) != isEmpty)
        emit isEmptyChanged();
    const auto &rows = m_rows.rows();
    const auto found = std::ranges::find(rows, m_deckID, &DeckRow::id);
    const int row = found == rows.end() ? -1 : int(found - rows.begin());
    if (std::exchange(m_selectedRow, row) != row)
        emit selectedRowChanged();
}

QList<DeckRow> DecksViewModel::matchingRows() const
{
    const QString query = m_query.trimmed();
    std::vector<const Deck *> decks;
    for (const Deck &deck : store().list<Deck>().all())
        if (query.isEmpty() || deck.matches(query))
            decks.push_back(&deck);
    std::ranges::stable_sort(decks, std::ranges::greater(), &Deck::updatedDate);
    QList<DeckRow> rows;
    for (const Deck *const deck : decks)
        rows.append(DeckRow::of(*deck));
    return rows;
}

void DecksViewModel::chooseDeck()
{
    QUuid next = find(ui().deckID()) ? ui().deckID() : m_deckID;
    if (!find(next))
        next = m_rows.rows().isEmpty() ? QUuid() : m_rows.rows().first().id;
    if (std::exchange(m_deckID, next) != next)
        emit selectionChanged();
    // The screen opens again where it was left.
    ui().setDeckID(m_deckID);
}

bool DecksViewModel::reveal(const UndoPlace &place)
{
    if (find(place.record))
        select(place.record);
    if (place.textRecord.isNull())
        return find(place.record);
    for (const Deck &deck : store().list<Deck>().all()) {
        if (std::ranges::none_of(deck.slides,
                                 [&](const Slide &slide) { return slide.id == place.textRecord; }))
            continue;
        select(deck.id);
        emit slideRevealed(place.textRecord, place.textField, place.caret);
        return true;
    }
    return find(place.textRecord);
}
