#pragma once

#include "Features/Decks/ShownSlide.h"

#include <QColor>

/// A deck in the rail.
struct DeckRow {
    Q_GADGET
    Q_PROPERTY(QUuid deckID MEMBER id FINAL)
    Q_PROPERTY(QString title MEMBER title FINAL)
    Q_PROPERTY(QString detail MEMBER detail FINAL)
    Q_PROPERTY(ShownSlide cover MEMBER cover FINAL)

public:
    QUuid id;
    QString title;
    /// How many slides it has and its theme.
    QString detail;
    /// The first slide; an empty one of the theme if there is none.
    ShownSlide cover;

    bool operator==(const DeckRow &) const = default;

    static DeckRow of(const Deck &deck);
};

/// A slide in the filmstrip.
struct SlideRow {
    Q_GADGET
    Q_PROPERTY(QUuid slideID MEMBER id FINAL)
    Q_PROPERTY(int number MEMBER number FINAL)
    Q_PROPERTY(QString name MEMBER name FINAL)
    Q_PROPERTY(ShownSlide shown MEMBER shown FINAL)

public:
    QUuid id;
    int number = 0;
    /// For assistive technology: its number and what it says first.
    QString name;
    ShownSlide shown;

    bool operator==(const SlideRow &) const = default;

    static SlideRow of(const Deck &deck, int index);
};

/// A text field of the selected slide, as the inspector shows it.
struct SlideFieldRow {
    Q_GADGET
    Q_PROPERTY(QString field MEMBER field FINAL)
    Q_PROPERTY(QString label MEMBER label FINAL)
    Q_PROPERTY(QString placeholder MEMBER placeholder FINAL)
    Q_PROPERTY(QString content MEMBER content FINAL)
    Q_PROPERTY(QString hint MEMBER hint FINAL)
    Q_PROPERTY(bool isMultiLine MEMBER isMultiLine FINAL)

public:
    /// The raw text of the `SlideField`, or "notes".
    QString field;
    QString label;
    QString placeholder;
    QString content;
    QString hint;
    bool isMultiLine = false;

    const QString &id() const { return field; }
    bool operator==(const SlideFieldRow &) const = default;

    /// Those that slides of this kind show.
    static QList<SlideFieldRow> of(const Slide &slide);
};

/// A theme in a menu.
struct SlideThemeChoice {
    Q_GADGET
    Q_PROPERTY(QString id MEMBER id FINAL)
    Q_PROPERTY(QString name MEMBER name FINAL)
    Q_PROPERTY(QColor background MEMBER background FINAL)
    Q_PROPERTY(QColor ink MEMBER ink FINAL)
    Q_PROPERTY(QColor accent MEMBER accent FINAL)

public:
    QString id;
    QString name;
    QColor background;
    QColor ink;
    QColor accent;

    static QList<SlideThemeChoice> catalog();
};
