#pragma once

#include "Foundation/Timestamp.h"
#include "Models/Slide.h"
#include "Models/SlideTheme.h"

#include <functional>

/// A presentation.
struct Deck {
    QUuid id;
    /// Also the left text of the footer.
    QString title = QStringLiteral("Untitled");
    QString summary;
    /// Author line of the document properties.
    QString author;
    SlideTheme theme = SlideTheme::inkTheme();
    QList<Slide> slides;
    /// Page numbers in the footer.
    bool showNumbers = true;
    bool isFavorite = false;
    double sortOrder = 0;
    Timestamp createdDate;
    Timestamp updatedDate;

    bool operator==(const Deck &) const = default;

    /// Whether the title, the summary or the title, subtitle and body of a slide hold the query, case aside.
    bool matches(const QString &query) const;

    /// An empty deck with this id, made at this moment.
    static Deck fresh(Timestamp now, const QUuid &id);
    /// A deck of four slides to begin with.
    static Deck starter(const QString &title, const SlideTheme &theme, const QString &author, Timestamp now,
                        const std::function<QUuid()> &makeId);

    static constexpr bool isTolerant = true;
    static constexpr bool acceptsAnything = true;
    static constexpr auto fields()
    {
        return std::tuple{Field{"id", &Deck::id},
                          Field{"title", &Deck::title},
                          Field{"summary", &Deck::summary},
                          Field{"author", &Deck::author},
                          Field{"theme", &Deck::theme},
                          Field{"slides", &Deck::slides},
                          Field{"showNumbers", &Deck::showNumbers},
                          Field{"isFavorite", &Deck::isFavorite},
                          Field{"sortOrder", &Deck::sortOrder},
                          Field{"createdDate", &Deck::createdDate},
                          Field{"updatedDate", &Deck::updatedDate}};
    }
};
