#include "Store/WorkspaceSearch.h"

#include "Foundation/Graphemes.h"
#include "Support/HabitDays.h"
#include "Support/OVDate.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace
{
QString resultId(const char *prefix, const QUuid &id)
{
    return QString::fromLatin1(prefix) + u'-' + id.toString(QUuid::WithoutBraces).toUpper();
}

QString titleOrUntitled(const QString &title)
{
    const QString trimmed = title.trimmed();
    return trimmed.isEmpty() ? QCoreApplication::translate("WorkspaceSearch", "Untitled") : trimmed;
}

/// A running search: what is looked for and what has been found.
class Search
{
public:
    Search(const WorkspaceStore &store, const QString &folded)
        : m_store(store), m_query(folded), m_signatureQuery(folded)
    {
    }

    QList<SearchResult> take() { return std::move(m_results); }

    template <typename Record>
    void add(SearchSignatures<Record> &signatures)
    {
        if (m_results.size() >= WorkspaceSearch::mostResults)
            return;
        const RecordList<Record> &list = m_store.list<Record>();
        signatures.follow(list);
        QList<const Record *> found;
        signatures.forEachCandidate(list, m_signatureQuery, [&](const Record &record) {
            if (m_texts.hold(record, m_query))
                found.append(&record);
            return m_results.size() + found.size() < WorkspaceSearch::mostResults;
        });
        if constexpr (std::is_same_v<Record, DatabaseTable>)
            countRows(found);
        for (const Record *const record : std::as_const(found))
            m_results.append(result(*record));
    }

private:
    /// In one walk, as there may be very many rows.
    void countRows(const QList<const DatabaseTable *> &tables)
    {
        for (const DatabaseTable *const table : tables)
            if (table->details.isEmpty())
                m_rowCounts.insert(table->id, 0);
        if (m_rowCounts.isEmpty())
            return;
        for (const DBRow &row : m_store.list<DBRow>())
            if (const auto count = m_rowCounts.find(row.tableID); count != m_rowCounts.end())
                ++*count;
    }

    static SearchResult result(const Page &page)
    {
        static constexpr qsizetype previewLength = 90;
        const SearchResultKind kind =
            page.kind == PageKind::note ? SearchResultKind::note : SearchResultKind::page;
        const QString preview = Graphemes::left(page.previewText(), previewLength);
        return {resultId("page", page.id),
                kind,
                titleOrUntitled(page.title),
                preview.isEmpty() ? enumRawText(kind) : preview,
                page.icon,
                Destination::page(page.id)};
    }

    static SearchResult result(const TaskItem &task)
    {
        const QString done = task.status == TaskStatus::done ? u" · done"_s : QString();
        return {resultId("task", task.id),
                SearchResultKind::task,
                task.title,
                enumLabel(task.status) + done,
                {},
                Destination::to(Destination::Kind::tasks)};
    }

    static SearchResult result(const Project &project)
    {
        return {resultId("project", project.id),
                SearchResultKind::project,
                project.name,
                enumLabel(project.status),
                project.icon,
                Destination::project(project.id)};
    }

    SearchResult result(const DatabaseTable &table) const
    {
        const QString count = QString::number(m_rowCounts.value(table.id)) + u" records"_s;
        return {resultId("db", table.id),
                SearchResultKind::database,
                table.name,
                table.details.isEmpty() ? count : table.details,
                table.icon,
                Destination::to(Destination::Kind::databases)};
    }

    SearchResult result(const CalendarEvent &event) const
    {
        return {resultId("event", event.id),
                SearchResultKind::event,
                event.title,
                OVDate::mediumYear(OVDate::day(event.date, m_store.clock().timeZone())),
                {},
                Destination::to(Destination::Kind::calendar)};
    }

    SearchResult result(const Habit &habit) const
    {
        const QDate today = m_store.clock().today();
        const QString subtitle =
            QCoreApplication::translate("WorkspaceSearch", "%1 day streak · %2/%3 this week")
                .arg(HabitDays::currentStreak(habit, today))
                .arg(HabitDays::weeklyCount(habit, today))
                .arg(habit.targetPerWeek);
        return {resultId("habit", habit.id),
                SearchResultKind::habit,
                habit.name,
                subtitle,
                habit.emoji,
                Destination::to(Destination::Kind::habits)};
    }

    static SearchResult result(const CodeDocument &document)
    {
        return {resultId("code", document.id),
                SearchResultKind::code,
                titleOrUntitled(document.title),
                enumLabel(document.language),
                {},
                Destination::codeDocument(document.id)};
    }

    static SearchResult result(const Book &book)
    {
        return {resultId("book", book.id),
                SearchResultKind::book,
                book.title,
                book.author,
                {},
                Destination::to(Destination::Kind::reader)};
    }

    static SearchResult result(const Deck &deck)
    {
        return {resultId("deck", deck.id),
                SearchResultKind::deck,
                titleOrUntitled(deck.title),
                u"%1 slides · "_s.arg(deck.slides.size()) + deck.theme.name,
                {},
                Destination::deck(deck.id)};
    }

    const WorkspaceStore &m_store;
    QString m_query;
    SignatureQuery m_signatureQuery;
    SearchedTexts m_texts;
    QHash<QUuid, qsizetype> m_rowCounts;
    QList<SearchResult> m_results;
};
} // namespace

WorkspaceSearch::WorkspaceSearch(const WorkspaceStore &store) : m_store(store)
{
    QObject::connect(&store, &WorkspaceStore::changed, &m_listener, [this](const ChangeSet &changes) {
        forEachKind([&]<typename Record>(SearchSignatures<Record> &signatures) {
            if (changes.touches<Record>())
                signatures.listChanged();
        });
    });
}

QList<SearchResult> WorkspaceSearch::search(const QString &query)
{
    const QString folded = query.trimmed().toLower();
    if (folded.isEmpty())
        return {};
    Search search(m_store, folded);
    forEachKind([&](auto &signatures) { search.add(signatures); });
    return search.take();
}

bool WorkspaceSearch::prepare(std::chrono::milliseconds budget)
{
    // A coarse timer may be late by more than a slice takes.
    const QDeadlineTimer deadline(budget, Qt::PreciseTimer);
    bool isDone = true;
    forEachKind([&]<typename Record>(SearchSignatures<Record> &signatures) {
        if (!isDone)
            return;
        signatures.follow(m_store.list<Record>());
        isDone = signatures.makeUntil(m_store.list<Record>(), deadline);
    });
    return isDone;
}
