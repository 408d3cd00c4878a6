#include "Features/Notes/NotesViewModel.h"

#include "Session/PageActions.h"

namespace
{
// Ahead of a search, a small part of the time goes into learning about the notes.
constexpr std::chrono::milliseconds prepareInterval(20);
constexpr std::chrono::milliseconds prepareBudget(4);
} // namespace

NotesViewModel::NotesViewModel(QObject *parent) : QObject(parent), m_refresh([this] { refresh(); })
{
    m_prepareTimer.setInterval(prepareInterval);
    connect(&m_prepareTimer, &QTimer::timeout, this, &NotesViewModel::prepareSearch);
}

void NotesViewModel::setStore(WorkspaceStore *store)
{
    if (m_store == store)
        return;
    m_store = store;
    m_search.emplace(*store);
    connect(store, &WorkspaceStore::changed, this, [this](const ChangeSet &changes) {
        if (changes.touches<Page>())
            m_refresh.request();
    });
    connect(&store->clock(), &Clock::dayChanged, &m_refresh, &CoalescedCall::request);
    emit storeChanged();
    refresh();
}

void NotesViewModel::setActive(bool active)
{
    if (m_active == active)
        return;
    m_active = active;
    emit activeChanged();
    refresh();
}

void NotesViewModel::setQuery(const QString &query)
{
    if (m_query == query)
        return;
    m_query = query;
    emit queryChanged();
    m_refresh.request();
}

QString NotesViewModel::emptyTitle() const
{
    return m_isSearch ? QStringLiteral("No matches") : QStringLiteral("No notes yet");
}

QString NotesViewModel::emptyAction() const
{
    return m_isSearch ? QString() : QStringLiteral("New note");
}

void NotesViewModel::newNote()
{
    PageActions::create(*m_store, *m_ui, PageKind::note);
}

void NotesViewModel::openNote(const QUuid &noteID)
{
    m_ui->selectPage(noteID);
}

void NotesViewModel::deleteNote(const QUuid &noteID)
{
    PageActions::erase(*m_store, *m_ui, noteID, Destination::Kind::notes);
}

void NotesViewModel::refresh()
{
    if (!m_active || !m_store)
        return;
    const QDate today = m_store->clock().today();
    const QTimeZone zone = m_store->clock().timeZone();
    QList<NoteRow> rows;
    for (const Page *note : m_search->filtered(m_query))
        rows.append(NoteRow::of(*note, today, zone));
    m_rows.setRows(std::move(rows));
    m_isSearch = !m_query.trimmed().isEmpty();
    emit shownChanged();
    m_prepareTimer.start();
}

void NotesViewModel::prepareSearch()
{
    if (!m_active || m_search->prepare(prepareBudget))
        m_prepareTimer.stop();
}
