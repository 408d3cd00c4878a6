#pragma once

#include "Features/Pages/SpellChecker.h"
#include "Session/OrvelSession.h"

#include <QLocale>

/// `Spelling` in QML: the one spell checker, which is made when a page first asks for it.
struct SpellingType {
    Q_GADGET
    QML_FOREIGN(SpellChecker)
    QML_NAMED_ELEMENT(Spelling)
    QML_SINGLETON

public:
    static SpellChecker *create(QQmlEngine *engine, QJSEngine *scripts)
    {
        return new SpellChecker(OrvelSession::create(engine, scripts)->preferences(),
                                InstalledDictionaries::folders(), QLocale::system().name());
    }
};
