#include "Features/Notes/NotesViewModel.h"

#include "Session/PageActions.h"
#include "Store/PageOperations.h"
#include "Store/Questions.h"

NotesViewModel::NotesViewModel(QObject *parent) : ViewModel(parent)
{
    follow<Page>();
    followDays();
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
    const QList<const Page *> notes = matchingNotes();
    QList<NoteRow> rows;
    rows.reserve(notes.size());
    for (const Page *note : notes)
        rows.append(NoteRow::of(*note, today, zone));
    m_rows.setRows(std::move(rows));
    m_isSearch = !m_query.trimmed().isEmpty();
    emit shownChanged();
}

QList<const Page *> NotesViewModel::matchingNotes() const
{
    if (m_query.trimmed().isEmpty())
        return PageOperations::notes(store());
    auto notes = session()->search()->matching<Page>(m_query);
    notes.removeIf([](const Page *page) { return page->kind != PageKind::note; });
    return Questions::newestFirst(std::move(notes), &Page::updatedDate);
}

bool NotesViewModel::reveal(const UndoPlace &place)
{
    const auto row = std::ranges::find(m_rows.rows(), place.record, &NoteRow::id);
    if (row == m_rows.rows().end())
        return false;
    emit revealed(int(row - m_rows.rows().begin()));
    return true;
}
