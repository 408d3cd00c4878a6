#include "Features/Notes/NotesViewModel.h"

#include "Session/PageActions.h"

namespace
{
// Ahead of a search, a small part of the time goes into learning about the notes.
constexpr std::chrono::milliseconds prepareInterval(20);
constexpr std::chrono::milliseconds prepareBudget(4);
} // namespace

NotesViewModel::NotesViewModel(QObject *parent) : ViewModel(parent)
{
    follow<Page>();
    followDays();
    m_prepareTimer.setInterval(prepareInterval);
    connect(&m_prepareTimer, &QTimer::timeout, this, &NotesViewModel::prepareSearch);
}

void NotesViewModel::start()
{
    m_search.emplace(store());
}

void NotesViewModel::setQuery(const QString &query)
{
    if (m_query == query)
        return;
    m_query = query;
    emit queryChanged();
    requestRefresh();
}

QString NotesViewModel::emptyTitle() const
{
    return m_isSearch ? tr("No matches") : tr("No notes yet");
}

QString NotesViewModel::emptyAction() const
{
    return m_isSearch ? QString() : tr("New note");
}

void NotesViewModel::newNote()
{
    PageActions::create(store(), ui(), PageKind::note);
}

void NotesViewModel::openNote(const QUuid &noteID)
{
    ui().selectPage(noteID);
}

void NotesViewModel::deleteNote(const QUuid &noteID)
{
    PageActions::erase(store(), ui(), noteID, Destination::Kind::notes);
}

void NotesViewModel::refresh(const ChangeSet &)
{
    const QDate today = clock().today();
    const QTimeZone zone = clock().timeZone();
    QList<NoteRow> rows;
    for (const Page *note : m_search->filtered(m_query))
        rows.append(NoteRow::of(*note, today, zone));
    m_rows.setRows(std::move(rows));
    m_isSearch = !m_query.trimmed().isEmpty();
    emit shownChanged();
    m_prepareTimer.start();
}

bool NotesViewModel::reveal(const UndoPlace &place)
{
    const auto row = std::ranges::find(m_rows.rows(), place.record, &NoteRow::id);
    if (row == m_rows.rows().end())
        return false;
    emit revealed(int(row - m_rows.rows().begin()));
    return true;
}

void NotesViewModel::prepareSearch()
{
    if (!isActive() || m_search->prepare(prepareBudget))
        m_prepareTimer.stop();
}
