#include "Features/Pages/SpellingMarks.h"

#include "Features/Pages/SpellingWords.h"

#include <QTextDocument>

#include <algorithm>

SpellingMarks::SpellingMarks(QQuickItem *parent) : OVTextMarks(parent), m_show([this] { showMarks(); })
{
    setVisible(false);
    setShape(Shape::Underline);
    connect(this, &OVTextMarks::documentChanged, this, &SpellingMarks::followDocument);
}

void SpellingMarks::setChecker(SpellChecker *checker)
{
    if (m_checker == checker)
        return;
    if (m_checker)
        m_checker->disconnect(this);
    m_checker = checker;
    if (checker) {
        connect(checker, &SpellChecker::verdictsChanged, this, [this] { m_show.request(); });
        connect(checker, &SpellChecker::answered, this, [this] {
            if (m_waits)
                m_show.request();
        });
    }
    emit checkerChanged();
    m_show.request();
}

void SpellingMarks::setCaret(int caret)
{
    if (m_caret == caret)
        return;
    m_caret = caret;
    emit caretChanged();
    if (m_typedAt < 0 || m_typedAt == caret)
        return;
    m_typedAt = -1;
    m_show.request();
}

void SpellingMarks::followDocument()
{
    m_text.clear();
    m_typedAt = -1;
    if (!document())
        return;
    connect(document()->textDocument(), &QTextDocument::contentsChange, this,
            [this](int position, int, int added) { textChanged(position, added); });
    m_show.request();
}

void SpellingMarks::textChanged(int position, int added)
{
    // Other looks of the same text count as a change as well.
    QString text = document()->textDocument()->toPlainText();
    if (text == m_text)
        return;
    m_text = std::move(text);
    m_typedAt = m_caret < 0 ? -1 : position + added;
    m_show.request();
}

void SpellingMarks::showMarks()
{
    m_waits = false;
    TextMarkList list;
    if (document() && m_checker && m_checker->isActive()) {
        m_text = document()->textDocument()->toPlainText();
        for (const SpellingWords::Word &word : SpellingWords::in(m_text)) {
            const auto verdict = m_checker->verdict(m_text.sliced(word.begin, word.end - word.begin));
            const bool isBeingWritten = m_typedAt > word.begin && m_typedAt <= word.end;
            m_waits = m_waits || verdict == SpellChecker::Verdict::unknown;
            if (verdict == SpellChecker::Verdict::wrong && !isBeingWritten)
                list.marks.append({word.begin, word.end - word.begin, false});
        }
    }
    setVisible(!list.marks.isEmpty());
    setMarks(list);
}

const TextMark *SpellingMarks::markAt(int position) const
{
    const auto mark = std::ranges::find_if(marks().marks, [&](const TextMark &each) {
        return position >= each.start && position <= each.start + each.length;
    });
    return mark == marks().marks.end() ? nullptr : &*mark;
}

int SpellingMarks::wordBegin(int position) const
{
    const TextMark *const mark = markAt(position);
    return mark ? mark->start : -1;
}

int SpellingMarks::wordEnd(int position) const
{
    const TextMark *const mark = markAt(position);
    return mark ? mark->start + mark->length : -1;
}

QString SpellingMarks::wordAt(int position) const
{
    const TextMark *const mark = markAt(position);
    return mark ? m_text.mid(mark->start, mark->length) : QString();
}

QString SpellingMarks::ownWordAt(int position) const
{
    if (!m_checker || !m_checker->isActive())
        return {};
    for (const SpellingWords::Word &word : SpellingWords::in(m_text)) {
        const QString text = m_text.sliced(word.begin, word.end - word.begin);
        if (position >= word.begin && position <= word.end && m_checker->isOwn(text))
            return text;
    }
    return {};
}
