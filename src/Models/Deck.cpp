#include "Models/Deck.h"

#include <algorithm>

bool Deck::matches(const QString &query) const
{
    const QString wanted = query.toLower();
    if (title.toLower().contains(wanted) || summary.toLower().contains(wanted))
        return true;
    return std::ranges::any_of(slides, [&wanted](const Slide &slide) {
        const QStringList texts{slide.title, slide.subtitle, slide.body};
        return texts.join(u' ').trimmed().toLower().contains(wanted);
    });
}

Deck Deck::fresh(Timestamp now, const QUuid &id)
{
    Deck deck;
    deck.id = id;
    deck.sortOrder = secondsSince1970(now);
    deck.createdDate = now;
    deck.updatedDate = now;
    return deck;
}

Deck Deck::starter(const QString &title, const SlideTheme &theme, const QString &author, Timestamp now,
                   const std::function<QUuid()> &makeId)
{
    Deck deck = fresh(now, makeId());
    deck.title = title;
    deck.theme = theme;
    deck.author = author;

    Slide opening = Slide::fresh(makeId());
    opening.title = title;

    Slide section = Slide::fresh(makeId());
    section.kind = SlideKind::section;
    section.kicker = QStringLiteral("01");
    section.title = QStringLiteral("Overview");
    section.subtitle = QStringLiteral("What this deck covers");

    Slide bullets = Slide::fresh(makeId());
    bullets.kind = SlideKind::bullets;
    bullets.title = QStringLiteral("Three things to remember");
    bullets.body = QStringLiteral("Keep it short\nShow, don't tell\nEnd with a clear ask");

    Slide closing = Slide::fresh(makeId());
    closing.kind = SlideKind::closing;
    closing.title = QStringLiteral("Thank you");
    closing.subtitle = QStringLiteral("Questions?");

    deck.slides = {opening, section, bullets, closing};
    return deck;
}
