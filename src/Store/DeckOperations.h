#pragma once

#include "Store/WorkspaceStore.h"

/// What is done with decks and their slides. Every change but that of nothing sets the deck's date of change.
namespace DeckOperations
{
/// A deck of four slides to begin with; returns its id.
QUuid create(WorkspaceStore &store, const SlideTheme &theme);
/// The copy, or nothing for an unknown id.
std::optional<Deck> duplicate(WorkspaceStore &store, const QUuid &deckID);
void remove(WorkspaceStore &store, const QUuid &deckID);

void rename(WorkspaceStore &store, const QUuid &deckID, const QString &title);
void setTheme(WorkspaceStore &store, const QUuid &deckID, const SlideTheme &theme);
void setShowNumbers(WorkspaceStore &store, const QUuid &deckID, bool showNumbers);
/// These take what was typed over.
/// @param caret where the caret stands in the new text; -1 if that is not known
void setTitle(WorkspaceStore &store, const QUuid &deckID, const QString &title, qsizetype caret = -1);
void setSummary(WorkspaceStore &store, const QUuid &deckID, const QString &summary, qsizetype caret = -1);
void setAuthor(WorkspaceStore &store, const QUuid &deckID, const QString &author, qsizetype caret = -1);

/// An empty slide behind the last one; a section gets its number. Returns the slide's id, null for an unknown
/// deck.
QUuid addSlide(WorkspaceStore &store, const QUuid &deckID, SlideKind kind);
/// A copy right behind the slide. Returns its id, null for an unknown slide.
QUuid duplicateSlide(WorkspaceStore &store, const QUuid &deckID, const QUuid &slideID);
/// Moves the slide so many places on; past either end it does nothing.
void moveSlide(WorkspaceStore &store, const QUuid &deckID, const QUuid &slideID, qsizetype offset);
void removeSlide(WorkspaceStore &store, const QUuid &deckID, const QUuid &slideID);
/// Keeps all texts, also those that the new kind does not show.
void setKind(WorkspaceStore &store, const QUuid &deckID, const QUuid &slideID, SlideKind kind);
/// Takes what was typed over.
/// @param field which of the slide's texts
/// @param name that of the text, such as "title"
void setText(WorkspaceStore &store, const QUuid &deckID, const QUuid &slideID, QString Slide::*field,
             const QString &name, const QString &text, qsizetype caret = -1);
} // namespace DeckOperations
