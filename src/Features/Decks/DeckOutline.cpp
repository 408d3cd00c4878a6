#include "Features/Decks/DeckOutline.h"

#include "Features/Decks/DeckLayout.h"
#include "Foundation/Graphemes.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace
{
QStringList filledLines(QStringList lines)
{
    lines.removeIf(DeckLayout::isBlankLine);
    return lines;
}

QString joinedFilled(QStringList texts)
{
    texts.removeAll(QString());
    return texts.join(u" — "_s);
}

QString onOneLine(QString text)
{
    return text.replace(u'\n', u' ');
}

QString textBullets(const QStringList &lines)
{
    QString text;
    for (const QString &line : filledLines(lines))
        text += u"  • "_s + line + u'\n';
    return text;
}

QString slideText(const Slide &slide)
{
    switch (slide.kind) {
    case SlideKind::title:
    case SlideKind::section:
    case SlideKind::statement:
    case SlideKind::closing:
        return joinedFilled({slide.kicker, slide.title, slide.subtitle}) + u'\n';
    case SlideKind::bullets:
    case SlideKind::stats:
        return joinedFilled({slide.kicker, slide.title}) + u'\n' + textBullets(slide.bodyLines());
    case SlideKind::twoColumn:
        return joinedFilled({slide.kicker, slide.title}) + u'\n' + textBullets(slide.bodyLines()) +
               textBullets(slide.bodyBLines());
    case SlideKind::quote:
        return u'"' + slide.body + u"\"\n"_s +
               (slide.subtitle.isEmpty() ? QString() : u"    — "_s + slide.subtitle + u'\n');
    }
    return {};
}

QString markdownHeading(const Slide &slide)
{
    return slide.title.isEmpty() ? QString() : u"## "_s + slide.title + u'\n';
}

QString markdownTable(const QStringList &left, const QStringList &right)
{
    QString text = u"\n| Column A | Column B |\n| --- | --- |\n"_s;
    for (qsizetype i = 0; i < std::max(left.size(), right.size()); ++i)
        text += u"| "_s + left.value(i) + u" | "_s + right.value(i) + u" |\n"_s;
    return text;
}

QString markdownStats(const QStringList &lines)
{
    QString text;
    for (const QString &line : filledLines(lines)) {
        const DeckLayout::Stat stat = DeckLayout::stat(line);
        text += u"- **"_s + stat.value + u"**"_s +
                (stat.label.isEmpty() ? QString() : u" — "_s + stat.label) + u'\n';
    }
    return text;
}

QString slideMarkdown(const Slide &slide)
{
    QString text;
    switch (slide.kind) {
    case SlideKind::title:
    case SlideKind::section:
    case SlideKind::statement:
    case SlideKind::closing:
        if (!slide.title.isEmpty())
            text += u"# "_s + slide.title + u'\n';
        if (!slide.subtitle.isEmpty())
            text += u'\n' + slide.subtitle + u'\n';
        return text;
    case SlideKind::bullets:
        text = markdownHeading(slide);
        for (const QString &line : filledLines(slide.bodyLines()))
            text += u"- "_s + line + u'\n';
        return text;
    case SlideKind::quote:
        return u"> "_s + slide.body + u'\n' +
               (slide.subtitle.isEmpty() ? QString() : u">\n> — "_s + slide.subtitle + u'\n');
    case SlideKind::twoColumn:
        return markdownHeading(slide) +
               markdownTable(filledLines(slide.bodyLines()), filledLines(slide.bodyBLines()));
    case SlideKind::stats:
        return markdownHeading(slide) + markdownStats(slide.bodyLines());
    }
    return text;
}
} // namespace

QString DeckOutline::plainText(const Deck &deck)
{
    QString text =
        deck.title + u'\n' + QString(std::max<qsizetype>(Graphemes::count(deck.title), 3), u'=') + u'\n';
    if (!deck.summary.isEmpty())
        text += u'\n' + deck.summary + u'\n';
    if (!deck.author.isEmpty())
        text += u"By "_s + deck.author + u'\n';
    for (qsizetype i = 0; i < deck.slides.size(); ++i) {
        const Slide &slide = deck.slides[i];
        text += u"\n[%1] "_s.arg(i + 1) + slideText(slide);
        if (!slide.notes.trimmed().isEmpty())
            text += u"  Notes: "_s + onOneLine(slide.notes) + u'\n';
    }
    return text;
}

QString DeckOutline::markdown(const Deck &deck)
{
    QString text = u"# "_s + deck.title + u'\n';
    if (!deck.summary.isEmpty())
        text += u'\n' + deck.summary + u'\n';
    if (!deck.author.isEmpty())
        text += u"\n> "_s + deck.author + u'\n';
    text += u"\n---\n"_s;
    for (const Slide &slide : deck.slides) {
        text += u'\n';
        if (!slide.kicker.isEmpty())
            text += u"**"_s + slide.kicker + u"**\n\n"_s;
        text += slideMarkdown(slide);
        if (!slide.notes.trimmed().isEmpty())
            text += u"\n<!-- notes: "_s + onOneLine(slide.notes) + u" -->\n"_s;
        text += u"\n---\n"_s;
    }
    return text;
}
