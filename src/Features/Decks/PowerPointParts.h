#pragma once

#include "Models/Deck.h"

/// The parts of a presentation package, each as the whole text of its XML.
namespace PowerPointParts
{
QString contentTypes(qsizetype slideCount);
QString packageRelationships();
QString coreProperties(const Deck &deck);
QString appProperties(qsizetype slideCount);
QString presentation(qsizetype slideCount);
QString presentationRelationships(qsizetype slideCount);
/// @param index counted from zero
QString slide(const Deck &deck, int index);
QString slideRelationships();
QString master(const SlideTheme &theme);
QString masterRelationships();
QString layout();
QString layoutRelationships();
QString theme(const SlideTheme &theme);
} // namespace PowerPointParts
