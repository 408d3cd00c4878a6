#pragma once

#include "Picture.h"

/// The pictures of one family of screens each; `allPictures` is what the program draws.
QList<Picture> codePictures();
QList<Picture> databasePictures();
QList<Picture> deckPictures();
QList<Picture> galleryPictures();
QList<Picture> modulePictures();
QList<Picture> notesPictures();
QList<Picture> onboardingPictures();
QList<Picture> pagePictures();
QList<Picture> palettePictures();
QList<Picture> planningPictures();
QList<Picture> practicePictures();
QList<Picture> shellPictures();
QList<Picture> tasksPictures();
QList<Picture> transferPictures();

inline QList<Picture> allPictures()
{
    return codePictures() + databasePictures() + deckPictures() + galleryPictures() + modulePictures() +
           notesPictures() + onboardingPictures() + pagePictures() + palettePictures() + planningPictures() +
           practicePictures() + shellPictures() + tasksPictures() + transferPictures();
}
