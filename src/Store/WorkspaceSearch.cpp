#include "Store/WorkspaceSearch.h"

#include "Foundation/Graphemes.h"
#include "Store/DatabaseOperations.h"
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
    return trimmed.isEmpty() ? u"Untitled"_s : trimmed;
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
    void addSigned(const RecordList<Record> &list, SearchSignatures<Record> &signatures)
    {
        signatures.follow(list);
        for (qsizetype i = 0; i < list.size() && !isFull(); ++i) {
            signatures.prefetch(i + 16, m_signatureQuery);
            if (signatures.signature(list, i).mayHold(m_signatureQuery) &&
                m_texts.hold(list.all()[i], m_query))
                m_results.append(result(list.all()[i]));
        }
    }

    template <typename Record, typename Texts>
    void add(const RecordList<Record> &list, Texts texts)
    {
        for (const Record &record : list) {
            if (isFull())
                return;
            if (isIn(texts(record)))
                m_results.append(result(record));
        }
    }

    void addDecks()
    {
        for (const Deck &deck : m_store.list<Deck>())
            if (!isFull() && deck.matches(m_query))
                m_results.append(result(deck));
    }

private:
    bool isFull() const { return m_results.size() >= WorkspaceSearch::mostResults; }

    bool isIn(const QStringList &texts) const
    {
        return std::ranges::any_of(texts,
                                   [this](const QString &text) { return text.toLower().contains(m_query); });
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
        const QString count =
            QString::number(DatabaseOperations::rows(m_store, table.id).size()) + u" records"_s;
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
            u"%1 day streak · %2/%3 this week"_s.arg(HabitDays::currentStreak(habit, today))
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
    QList<SearchResult> m_results;
};
} // namespace

WorkspaceSearch::WorkspaceSearch(const WorkspaceStore &store) : m_store(store)
{
    QObject::connect(&store, &WorkspaceStore::changed, &m_listener, [this](const ChangeSet &changes) {
        if (changes.touches<Page>())
            m_pages.listChanged();
        if (changes.touches<CodeDocument>())
            m_codeDocuments.listChanged();
    });
}

QList<SearchResult> WorkspaceSearch::search(const QString &query)
{
    const QString folded = query.trimmed().toLower();
    if (folded.isEmpty())
        return {};
    Search search(m_store, folded);
    search.addSigned(m_store.pages(), m_pages);
    search.add(m_store.tasks(), [](const TaskItem &task) { return QStringList{task.title}; });
    search.add(m_store.projects(),
               [](const Project &project) { return QStringList{project.name, project.details}; });
    search.add(m_store.list<DatabaseTable>(),
               [](const DatabaseTable &table) { return QStringList{table.name}; });
    search.add(m_store.list<CalendarEvent>(),
               [](const CalendarEvent &event) { return QStringList{event.title}; });
    search.add(m_store.list<Habit>(), [](const Habit &habit) { return QStringList{habit.name}; });
    search.addSigned(m_store.codeDocuments(), m_codeDocuments);
    search.add(m_store.list<Book>(), [](const Book &book) { return QStringList{book.title, book.author}; });
    search.addDecks();
    return search.take();
}

bool WorkspaceSearch::prepare(std::chrono::milliseconds budget)
{
    // A coarse timer may be late by more than a slice takes.
    const QDeadlineTimer deadline(budget, Qt::PreciseTimer);
    m_pages.follow(m_store.pages());
    m_codeDocuments.follow(m_store.codeDocuments());
    return m_pages.makeUntil(m_store.pages(), deadline) &&
           m_codeDocuments.makeUntil(m_store.codeDocuments(), deadline);
}
