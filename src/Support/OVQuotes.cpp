#include "Support/OVQuotes.h"

#include "Support/OVDate.h"

#include <QRandomGenerator>

#include <algorithm>

const QList<Quote> &OVQuotes::all()
{
    const auto quote = [](const char *id, const char *author, const char *text) {
        return Quote{QString::fromLatin1(id), QString::fromUtf8(text), QString::fromUtf8(author)};
    };
    // clang-format off
    static const QList<Quote> quotes{
        quote("aurelius-dye", "Marcus Aurelius", "Such as are thy habitual thoughts, such also will be the character of thy mind; for the soul is dyed by the thoughts."),
        quote("aurelius-fountain", "Marcus Aurelius", "Look within. Within is the fountain of good, and it will ever bubble up, if thou wilt ever dig."),
        quote("seneca-ours", "Seneca", "Nothing is ours, except time."),
        quote("seneca-waste", "Seneca", "It is not that we have a short space of time, but that we waste much of it."),
        quote("epictetus-notions", "Epictetus", "Men are disturbed, not by things, but by the principles and notions which they form concerning things."),
        quote("thoreau-detail", "Henry David Thoreau", "Our life is frittered away by detail. Simplify, simplify."),
        quote("thoreau-castles", "Henry David Thoreau", "If you have built castles in the air, your work need not be lost; that is where they should be. Now put the foundations under them."),
        quote("thoreau-cost", "Henry David Thoreau", "The cost of a thing is the amount of what I will call life which is required to be exchanged for it, immediately or in the long run."),
        quote("emerson-peace", "Ralph Waldo Emerson", "Nothing can bring you peace but yourself."),
        quote("emerson-enthusiasm", "Ralph Waldo Emerson", "Nothing great was ever achieved without enthusiasm."),
        quote("emerson-string", "Ralph Waldo Emerson", "Trust thyself: every heart vibrates to that iron string."),
        quote("franklin-squander", "Benjamin Franklin", "Dost thou love life? Then do not squander time, for that is the stuff life is made of."),
        quote("franklin-oaks", "Benjamin Franklin", "Little strokes fell great oaks."),
        quote("johnson-perseverance", "Samuel Johnson", "Great works are performed, not by strength, but by perseverance."),
        quote("johnson-effort", "Samuel Johnson", "What is written without effort is in general read without pleasure."),
        quote("bacon-reading", "Francis Bacon", "Reading maketh a full man; conference a ready man; and writing an exact man."),
        quote("bacon-doubts", "Francis Bacon", "If a man will begin with certainties, he shall end in doubts; but if he will be content to begin with doubts, he shall end in certainties."),
        quote("pascal-chamber", "Blaise Pascal", "I have discovered that all the unhappiness of men arises from one single fact, that they cannot stay quietly in their own chamber."),
        quote("pascal-shorter", "Blaise Pascal", "I have made this longer than usual, because I have not had time to make it shorter."),
        quote("montaigne-oneself", "Michel de Montaigne", "The greatest thing in the world is to know how to belong to oneself."),
        quote("laozi-step", "Lao Tzu", "The journey of a thousand li commenced with a single step."),
        quote("laozi-himself", "Lao Tzu", "He who knows other men is discerning; he who knows himself is intelligent."),
        quote("confucius-thought", "Confucius", "Learning without thought is labour lost; thought without learning is perilous."),
        quote("aristotle-swallow", "Aristotle", "One swallow does not make a summer, nor does one day."),
        quote("aristotle-doing", "Aristotle", "For the things we have to learn before we can do them, we learn by doing them."),
        quote("horace-begin", "Horace", "He who has begun has half done. Dare to be wise; begin."),
        quote("hippocrates-art", "Hippocrates", "Life is short, and the art long."),
        quote("ovid-field", "Ovid", "Take rest; a field that has rested gives a bountiful crop."),
        quote("shakespeare-doing", "William Shakespeare", "Things won are done; joy's soul lies in the doing."),
        quote("shakespeare-patience", "William Shakespeare", "How poor are they that have not patience! What wound did ever heal but by degrees?"),
        quote("spinoza-rare", "Baruch Spinoza", "All things excellent are as difficult as they are rare."),
        quote("pope-ease", "Alexander Pope", "True ease in writing comes from art, not chance, as those move easiest who have learned to dance."),
        quote("eliot-growing", "George Eliot", "The growing good of the world is partly dependent on unhistoric acts."),
        quote("austen-shade", "Jane Austen", "To sit in the shade on a fine day, and look upon verdure, is the most perfect refreshment."),
        quote("dickens-tomorrow", "Charles Dickens", "My advice is, never do to-morrow what you can do to-day. Procrastination is the thief of time."),
        quote("morris-houses", "William Morris", "Have nothing in your houses that you do not know to be useful, or believe to be beautiful."),
        quote("wordsworth-light", "William Wordsworth", "Come forth into the light of things, let Nature be your teacher."),
        quote("dickinson-nows", "Emily Dickinson", "Forever is composed of Nows."),
        quote("james-overlook", "William James", "The art of being wise is the art of knowing what to overlook."),
        quote("stevenson-travel", "Robert Louis Stevenson", "To travel hopefully is a better thing than to arrive, and the true success is to labour."),
    };
    // clang-format on
    return quotes;
}

qint64 OVQuotes::dayIndex(Timestamp now, const QTimeZone &zone)
{
    static constexpr Timestamp start{std::chrono::seconds(1'600'000'000)};
    return std::max<qint64>(OVDate::day(start, zone).daysTo(OVDate::day(now, zone)), 0);
}

const Quote &OVQuotes::ofTheDay(Timestamp now, const QTimeZone &zone)
{
    return all()[dayIndex(now, zone) % all().size()];
}

const Quote &OVQuotes::random(const std::optional<Quote> &excluded, QRandomGenerator &generator)
{
    const auto found = excluded ? std::ranges::find(all(), excluded->id, &Quote::id) : all().end();
    if (found == all().end())
        return all()[generator.bounded(int(all().size()))];
    // One place fewer, and all from the excluded one on move up.
    const qsizetype at = generator.bounded(int(all().size()) - 1);
    return all()[at < found - all().begin() ? at : at + 1];
}
