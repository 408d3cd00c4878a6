#pragma once

#include "Foundation/LowerCase.h"
#include "Foundation/TextSignature.h"
#include "Models/Book.h"
#include "Models/CalendarEvent.h"
#include "Models/CodeDocument.h"
#include "Models/DatabaseTable.h"
#include "Models/Deck.h"
#include "Models/Habit.h"
#include "Models/Page.h"
#include "Models/Project.h"
#include "Models/TaskItem.h"

#include <tuple>

/// What a search looks into, for each kind of record.
inline auto searchedParts(const Page &page)
{
    return std::tie(page.title, page.content);
}
inline auto searchedParts(const TaskItem &task)
{
    return std::tie(task.title);
}
inline auto searchedParts(const Project &project)
{
    return std::tie(project.name, project.details);
}
inline auto searchedParts(const DatabaseTable &table)
{
    return std::tie(table.name);
}
inline auto searchedParts(const CalendarEvent &event)
{
    return std::tie(event.title);
}
inline auto searchedParts(const Habit &habit)
{
    return std::tie(habit.name);
}
inline auto searchedParts(const CodeDocument &document)
{
    return std::tie(document.title, document.source);
}
inline auto searchedParts(const Book &book)
{
    return std::tie(book.title, book.author);
}
inline auto searchedParts(const Deck &deck)
{
    return std::tie(deck.title, deck.summary, deck.slides);
}

/// Looks into the texts of records, case aside. Ask one for many records: it keeps the memory in which each
/// text is made ready.
class SearchedTexts
{
public:
    /// Whether a text of the record holds the query, which is in lower case and without blanks at its ends.
    template <typename Record>
    bool hold(const Record &record, const QString &query)
    {
        return any(record, [&query](QStringView lower) { return lower.contains(query); });
    }

    /// Holds until the next call.
    template <typename Record>
    const TextSignature &signature(const Record &record)
    {
        m_signature.clear();
        any(record, [this](QStringView lower) {
            m_signature.add(lower);
            return false;
        });
        return m_signature;
    }

private:
    template <typename Record, typename Take>
    bool any(const Record &record, Take take)
    {
        return std::apply([&](const auto &...part) { return (anyOf(part, take) || ...); },
                          searchedParts(record));
    }
    template <typename Take>
    bool anyOf(const QString &text, Take take)
    {
        m_lower.resize(0);
        LowerCase::append(m_lower, text);
        return take(m_lower);
    }
    /// As the preview has them, but for the blanks around it, which no query can tell.
    template <typename Take>
    bool anyOf(const QList<Block> &blocks, Take take)
    {
        m_lower.resize(0);
        for (const Block &block : blocks) {
            LowerCase::append(m_lower, block.text);
            m_lower += u' ';
        }
        return take(m_lower);
    }
    template <typename Take>
    bool anyOf(const QList<Slide> &slides, Take take)
    {
        for (const Slide &slide : slides) {
            m_lower.resize(0);
            for (const QString &text : {slide.title, slide.subtitle, slide.body}) {
                LowerCase::append(m_lower, text);
                m_lower += u' ';
            }
            if (take(m_lower))
                return true;
        }
        return false;
    }

    QString m_lower;
    TextSignature m_signature;
};
