#pragma once

#include "Store/WorkspaceStore.h"

#include <QTimer>

#include <optional>

/// Adds very many records in one undo step, some of them in each turn of the event loop, so that the window
/// does not freeze.
class RecordsAdder : public QObject
{
    Q_OBJECT

public:
    explicit RecordsAdder(QObject *parent = nullptr);
    /// Takes back what is not finished, and saves that.
    ~RecordsAdder() override;

    /// Ends with `finished`, unless the database or the first records are undone or removed meanwhile.
    /// @param store lives longer than this
    /// @param table a new database that the records belong to; nothing if it is there already
    /// @param records get their ids here
    void start(WorkspaceStore &store, const std::optional<DatabaseTable> &table, QList<DBRow> records);
    /// Takes back what has been added so far.
    void cancel();
    bool isBusy() const { return m_store; }
    /// From 0 to 1.
    double progress() const;

signals:
    void advanced();
    void finished();

private:
    /// Whether what the next records belong to has been undone or removed.
    bool isGone() const;
    void addSome();
    void end();

    WorkspaceStore *m_store = nullptr;
    /// The new database; null if there is none.
    QUuid m_table;
    QList<DBRow> m_records;
    qsizetype m_added = 0;
    QTimer m_nextTurn;
};
