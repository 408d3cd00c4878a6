#pragma once

#include "Store/WorkspaceStore.h"

/// The records of a new workspace, added group by group.
class StarterRecords
{
public:
    explicit StarterRecords(WorkspaceStore &store);

    void addWelcomePage();
    /// The example pages that come whatever modules were picked.
    void addPages();
    void addInbox();
    void addTasks();
    void addProject();
    void addDatabase();
    void addEvents();
    void addHabits();
    void addCode();
    void addDeck();

private:
    struct Line {
        BlockType type;
        QString text;
    };
    Page page(PageKind kind, const QString &title, const QString &icon, const QList<Line> &lines) const;
    /// The first moment of the day that lies so many days from today.
    Timestamp day(int offset) const;

    WorkspaceStore &m_store;
    Timestamp m_now;
};
