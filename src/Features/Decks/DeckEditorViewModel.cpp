#include "Features/Decks/DeckEditorViewModel.h"

#include "Features/Decks/SlideFields.h"
#include "Foundation/LineText.h"
#include "Store/DeckOperations.h"

#include <algorithm>

namespace
{
const QString notesField = QStringLiteral("notes");

Deck noDeck()
{
    Deck deck;
    deck.title.clear();
    return deck;
}

/// The member behind the raw text of a field; null for an unknown one.
QString Slide::*memberOf(const QString &field)
{
    if (field == notesField)
        return &Slide::notes;
    const auto known = enumFromRaw<SlideField>(field);
    return known ? SlideFields::member(*known) : nullptr;
}

/// A text as its field takes it.
QString fieldText(const QString &field, const QString &text)
{
    const auto known = enumFromRaw<SlideField>(field);
    return known && !SlideFields::isMultiLine(*known) ? LineText::singleLine(text)
                                                      : LineText::withLineFeeds(text);
}
} // namespace

DeckEditorViewModel::DeckEditorViewModel(QObject *parent) : ViewModel(parent), m_deck(noDeck())
{
    follow<Deck>();
}

QList<Choice> DeckEditorViewModel::kinds()
{
    return Choice::all<SlideKind>();
}

void DeckEditorViewModel::setDeckID(const QUuid &id)
{
    if (std::exchange(m_deckID, id) == id)
        return;
    // Another deck begins with its first slide.
    m_slideID = QUuid();
    m_selectedIndex = -1;
    emit deckIDChanged();
    if (session()) {
        requestRefresh();
        flush();
    }
}

void DeckEditorViewModel::selectSlide(const QUuid &id)
{
    m_slideID = id;
    requestRefresh();
    flush();
}

void DeckEditorViewModel::selectAt(int index)
{
    if (!m_deck.slides.isEmpty())
        selectSlide(m_deck.slides.at(std::clamp(index, 0, slideCount() - 1)).id);
}

void DeckEditorViewModel::refresh(const ChangeSet &)
{
    const Deck *const deck = stored();
    const Deck next = deck ? *deck : noDeck();
    const bool isOther = next != m_deck;
    selectAdded(next);
    m_deck = next;
    if (isOther) {
        QList<SlideRow> rows;
        rows.reserve(m_deck.slides.size());
        for (int i = 0; i < m_deck.slides.size(); ++i)
            rows.append(SlideRow::of(m_deck, i));
        m_slides.setRows(std::move(rows));
        emit deckChanged();
    }
    showSlide();
}

void DeckEditorViewModel::selectAdded(const Deck &next)
{
    if (next.id != m_deck.id || next.slides.size() <= m_deck.slides.size())
        return;
    const auto added = std::ranges::mismatch(next.slides, m_deck.slides, {}, &Slide::id, &Slide::id).in1;
    m_slideID = added->id;
}

void DeckEditorViewModel::showSlide()
{
    const auto found = std::ranges::find(m_deck.slides, m_slideID, &Slide::id);
    int index = int(found - m_deck.slides.begin());
    // What came after a removed slide stands in its place now.
    if (found == m_deck.slides.end())
        index = std::min(std::max(m_selectedIndex, 0), slideCount() - 1);
    ShownSlide next;
    if (index >= 0)
        next = ShownSlide::of(m_deck, index);
    m_slideID = next.slide.id;
    const bool isMoved = std::exchange(m_selectedIndex, index) != index;
    if (std::exchange(m_shown, next) != next || isMoved) {
        m_fields.setRows(index < 0 ? QList<SlideFieldRow>() : SlideFieldRow::of(m_shown.slide));
        emit slideChanged();
    }
    if (isMoved)
        emit selectedIndexChanged();
}

void DeckEditorViewModel::rename(const QUuid &id, const QString &title)
{
    if (!title.trimmed().isEmpty())
        DeckOperations::rename(store(), id, title.trimmed());
    // The field shows at once what became of its text.
    flush();
}

QString DeckEditorViewModel::setTitle(const QString &title, int caret)
{
    DeckOperations::setTitle(store(), m_deckID, LineText::singleLine(title), caret);
    return LineText::singleLine(title);
}

QString DeckEditorViewModel::setSummary(const QString &summary, int caret)
{
    DeckOperations::setSummary(store(), m_deckID, LineText::singleLine(summary), caret);
    return LineText::singleLine(summary);
}

QString DeckEditorViewModel::setAuthor(const QString &author, int caret)
{
    DeckOperations::setAuthor(store(), m_deckID, LineText::singleLine(author), caret);
    return LineText::singleLine(author);
}

void DeckEditorViewModel::setShowNumbers(bool showNumbers)
{
    DeckOperations::setShowNumbers(store(), m_deckID, showNumbers);
}

void DeckEditorViewModel::setTheme(const QString &themeID)
{
    const auto theme = std::ranges::find(SlideTheme::catalog(), themeID, &SlideTheme::id);
    if (theme != SlideTheme::catalog().end())
        DeckOperations::setTheme(store(), m_deckID, *theme);
}

void DeckEditorViewModel::addSlide(const QString &kind)
{
    if (const auto known = enumFromRaw<SlideKind>(kind))
        selectSlide(DeckOperations::addSlide(store(), m_deckID, *known));
}

void DeckEditorViewModel::duplicateSlide()
{
    if (const QUuid copy = DeckOperations::duplicateSlide(store(), m_deckID, m_slideID); !copy.isNull())
        selectSlide(copy);
}

void DeckEditorViewModel::moveSlide(int offset)
{
    DeckOperations::moveSlide(store(), m_deckID, m_slideID, offset);
    flush();
}

void DeckEditorViewModel::deleteSlide()
{
    DeckOperations::removeSlide(store(), m_deckID, m_slideID);
    flush();
}

void DeckEditorViewModel::setKind(const QString &kind)
{
    if (const auto known = enumFromRaw<SlideKind>(kind))
        DeckOperations::setKind(store(), m_deckID, m_slideID, *known);
}

QString DeckEditorViewModel::setText(const QString &field, const QString &text, int caret)
{
    QString Slide::*const member = memberOf(field);
    if (!member)
        return text;
    const QString content = fieldText(field, text);
    DeckOperations::setText(store(), m_deckID, m_slideID, member, field, content, caret);
    return content;
}

QString DeckEditorViewModel::text(const QString &field) const
{
    // What is shown may lag behind what has just been typed.
    QString Slide::*const member = memberOf(field);
    const Deck *const deck = stored();
    if (!member || !deck)
        return {};
    const auto slide = std::ranges::find(deck->slides, m_slideID, &Slide::id);
    return slide == deck->slides.end() ? QString() : (*slide).*member;
}
