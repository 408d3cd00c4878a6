#include "Support/UIState.h"

#include <utility>

template <typename T>
void UIState::set(T &member, const T &value, void (UIState::*changed)())
{
    if (member == value)
        return;
    member = value;
    emit(this->*changed)();
}

void UIState::setSelection(const Destination &selection)
{
    // The same place may meanwhile show another document or deck.
    if (selection.kind == Destination::Kind::codeDocument)
        setCodeDocumentID(selection.id);
    else if (selection.kind == Destination::Kind::deck)
        setDeckID(selection.id);
    m_soughtText.clear();
    set(m_selection, selection, &UIState::selectionChanged);
}

void UIState::showText(const Destination &place, const QString &text)
{
    setSelection(place);
    m_soughtText = text;
    emit textSought();
}

QString UIState::takeSoughtText()
{
    return std::exchange(m_soughtText, {});
}

void UIState::select(const QString &destination)
{
    setSelection(Destination::fromText(destination).value_or(m_selection));
}

void UIState::setSearchPresented(bool presented)
{
    set(m_isSearchPresented, presented, &UIState::isSearchPresentedChanged);
}

void UIState::setShortcutsPresented(bool presented)
{
    set(m_isShortcutsPresented, presented, &UIState::isShortcutsPresentedChanged);
}

void UIState::setSidebarVisible(bool visible)
{
    set(m_isSidebarVisible, visible, &UIState::isSidebarVisibleChanged);
}

void UIState::setRandomQuote(const std::optional<Quote> &quote)
{
    set(m_randomQuote, quote, &UIState::randomQuoteChanged);
}

void UIState::setCodeDocumentID(const QUuid &id)
{
    set(m_codeDocumentID, id, &UIState::codeDocumentIDChanged);
}

void UIState::setBookID(const QUuid &id)
{
    set(m_bookID, id, &UIState::bookIDChanged);
}

void UIState::setDeckID(const QUuid &id)
{
    set(m_deckID, id, &UIState::deckIDChanged);
}

void UIState::setPresentingDeckID(const QUuid &id)
{
    set(m_presentingDeckID, id, &UIState::presentingDeckIDChanged);
}
