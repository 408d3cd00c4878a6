#include "Features/Databases/RecordsAdder.h"

#include "Store/DatabaseOperations.h"

#include <utility>

namespace
{
/// Some milliseconds of work.
constexpr qsizetype pieceSize = 5000;
} // namespace

RecordsAdder::RecordsAdder(QObject *parent) : QObject(parent)
{
    m_nextTurn.setSingleShot(true);
    m_nextTurn.setInterval(0);
    connect(&m_nextTurn, &QTimer::timeout, this, [this] { m_added < m_records.size() ? addSome() : end(); });
}

RecordsAdder::~RecordsAdder()
{
    WorkspaceStore *const store = m_store;
    cancel();
    // The program may be ending, and have saved what was added so far.
    if (store)
        store->saveNow();
}

double RecordsAdder::progress() const
{
    return m_records.isEmpty() ? 1 : double(m_added) / double(m_records.size());
}

void RecordsAdder::start(WorkspaceStore &store, const std::optional<DatabaseTable> &table,
                         QList<DBRow> records)
{
    cancel();
    m_store = &store;
    m_table = table ? table->id : QUuid();
    m_records = std::move(records);
    m_added = 0;
    const Action action(store, ActionText::tr("Import"));
    if (table)
        DatabaseOperations::create(store, *table);
    addSome();
}

bool RecordsAdder::isGone() const
{
    const DBRow &first = m_records.first();
    return !m_store->list<DatabaseTable>().contains(first.tableID) ||
           (m_added > 0 && !m_store->list<DBRow>().contains(first.id));
}

void RecordsAdder::addSome()
{
    if (!m_records.isEmpty() && isGone()) {
        m_store = nullptr;
        m_records.clear();
        emit advanced();
        return;
    }
    const qsizetype end = std::min(m_added + pieceSize, m_records.size());
    {
        // All but the first are undone along with it.
        const Action action = Action::background(*m_store);
        for (; m_added < end; ++m_added) {
            DBRow &record = m_records[m_added];
            record.id = m_store->makeId();
            m_store->add(record);
        }
    }
    emit advanced();
    m_nextTurn.start();
}

void RecordsAdder::end()
{
    if (!std::exchange(m_store, nullptr))
        return;
    m_records.clear();
    emit finished();
}

void RecordsAdder::cancel()
{
    m_nextTurn.stop();
    WorkspaceStore *const store = std::exchange(m_store, nullptr);
    if (!store)
        return;
    const QUuid first = m_table.isNull() && m_added > 0 ? m_records.first().id : m_table;
    const UndoStep *const step = store->history().undoStep();
    if (!first.isNull() && step && step->record == first) {
        store->undo();
    } else {
        // Something else was done in the meantime.
        QSet<QUuid> ids;
        for (qsizetype i = 0; i < m_added; ++i)
            ids.insert(m_records.at(i).id);
        const Action action = Action::background(*store);
        store->erase<DBRow>(ids);
        store->erase<DatabaseTable>(m_table);
    }
    m_records.clear();
}
