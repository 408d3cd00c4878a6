#pragma once

#include "Foundation/Clock.h"
#include "Store/BookLibrary.h"
#include "Store/RecordChange.h"
#include "Store/RecordList.h"
#include "Store/Snapshot.h"
#include "Support/ProjectTemplates.h"

#include <QObject>
#include <QTimer>

#include <functional>
#include <tuple>

/// The one object that owns the whole workspace. It reads its file once when it is created and writes it back
/// whole, half a second after the last change.
///
/// The operations request that save themselves. `append`, `replace`, `remove` and `setSettings` do not: who
/// calls them directly calls `scheduleSave` afterwards. An operation given an unknown id does nothing.
class WorkspaceStore : public QObject
{
    Q_OBJECT

public:
    struct Options {
        /// The workspace file; its folder has to exist by the time of the first save.
        QString filePath;
        /// Lives longer than the store.
        const Clock *clock = nullptr;
        std::chrono::milliseconds saveDelay{500};
        std::function<QUuid()> makeId = &QUuid::createUuid;
    };

    /// Reads the file. A missing or unreadable one, or one that is no JSON, gives an empty workspace.
    explicit WorkspaceStore(Options options, QObject *parent = nullptr);

    /// "Orvel/workspace.json" in the person's data folder, or in the temporary folder if there is none. The
    /// folder is made.
    static QString defaultFilePath();

    const QString &filePath() const { return m_options.filePath; }
    /// The texts of the downloaded books, in "Books" beside the workspace file.
    BookLibrary bookLibrary() const;
    const Clock &clock() const { return *m_options.clock; }

    const AppSettings &settings() const { return m_settings; }
    void setSettings(const AppSettings &settings);
    /// Changes a copy of the settings and requests a save.
    void changeSettings(const std::function<void(AppSettings &)> &edit);

    template <typename Record>
    const RecordList<Record> &list() const
    {
        return std::get<RecordList<Record>>(m_lists);
    }
    const RecordList<Folder> &folders() const { return list<Folder>(); }
    const RecordList<Page> &pages() const { return list<Page>(); }
    const RecordList<TaskItem> &tasks() const { return list<TaskItem>(); }
    const RecordList<CalendarEvent> &events() const { return list<CalendarEvent>(); }
    const RecordList<Project> &projects() const { return list<Project>(); }
    const RecordList<Activity> &activities() const { return list<Activity>(); }
    const RecordList<DatabaseTable> &databases() const { return list<DatabaseTable>(); }
    const RecordList<DBRow> &rows() const { return list<DBRow>(); }
    const RecordList<Habit> &habits() const { return list<Habit>(); }
    const RecordList<CodeDocument> &codeDocuments() const { return list<CodeDocument>(); }
    const RecordList<Deck> &decks() const { return list<Deck>(); }
    const RecordList<Book> &books() const { return list<Book>(); }

    /// The whole workspace as it stands.
    Snapshot snapshot() const;

    template <typename Record>
    void append(const Record &record);
    /// Puts the record in the place of the one with its id. An equal record changes nothing and tells nobody.
    template <typename Record>
    void replace(const Record &record);
    /// Removes the records with these ids.
    template <typename Record>
    void remove(const QList<QUuid> &ids);

    /// Operations on any kind of record: add one, change a copy of one and put it back, delete one.
    template <typename Record>
    void add(const Record &record)
    {
        append(record);
        scheduleSave();
    }
    template <typename Record, typename Edit>
    void change(const QUuid &id, Edit edit)
    {
        const Record *const found = list<Record>().first(id);
        if (!found)
            return;
        Record record = *found;
        edit(record);
        replace(record);
        scheduleSave();
    }
    template <typename Record>
    void erase(const QUuid &id)
    {
        if (!list<Record>().first(id))
            return;
        remove<Record>({id});
        scheduleSave();
    }

    /// Saves half a second after the last call.
    void scheduleSave();
    /// Saves at once. A failure is printed as one line; the next save tries again.
    void saveNow();
    /// Erases the workspace, the texts of the books and all settings, and saves.
    void resetEverything(bool keepOnboarding);

    QUuid newPage(PageKind kind);
    void renamePage(const QUuid &pageID, const QString &title);
    void setPageIcon(const QUuid &pageID, const QString &icon);
    /// Makes a note of a page and a page of a note.
    void convertPage(const QUuid &pageID);
    void toggleFavorite(const QUuid &pageID);
    void duplicatePage(const QUuid &pageID);
    /// @param folderID nothing makes the page loose
    void movePage(const QUuid &pageID, std::optional<QUuid> folderID);
    Folder newFolder(const QString &name, const QString &icon);
    void renameFolder(const QUuid &folderID, const QString &name);
    /// The pages of the folder stay, as loose pages.
    void deleteFolder(const QUuid &folderID);

    QUuid newTask(const QString &title, TaskPriority priority, std::optional<Timestamp> dueDate);
    void renameTask(const QUuid &taskID, const QString &title);
    void toggleTaskDone(const QUuid &taskID);
    void cycleTaskStatus(const QUuid &taskID);
    void setTaskStatus(const QUuid &taskID, TaskStatus status);
    void cycleTaskPriority(const QUuid &taskID);
    void setTaskPriority(const QUuid &taskID, TaskPriority priority);
    /// @param dueDate nothing takes the due date away
    void setTaskDue(const QUuid &taskID, std::optional<Timestamp> dueDate);

    /// The project with the template's milestones and tasks; returns its id.
    QUuid makeProject(const ProjectTemplate &from);
    /// A project with nothing but its name; nothing for a blank one. Returns its id.
    std::optional<QUuid> makeBlankProject(const QString &name);
    /// A copy of a project kept as a template, with its milestones open again and without its tasks.
    std::optional<QUuid> makeProjectFrom(const QUuid &templateProjectID);
    /// Logs the status even if it stays the same.
    void setProjectStatus(const QUuid &projectID, ProjectStatus status);
    /// Titles are trimmed; blank ones are ignored.
    void addMilestone(const QUuid &projectID, const QString &title);
    void toggleMilestone(const QUuid &projectID, const QUuid &milestoneID);
    void removeMilestone(const QUuid &projectID, const QUuid &milestoneID);
    void addProjectTask(const QUuid &projectID, const QString &title);
    void logActivity(const QUuid &projectID, const QString &text, const QString &kind);
    /// The tasks of the project stay; its activities go.
    void deleteProject(const QUuid &projectID);

    /// Marks or unmarks the day of this moment.
    void toggleHabit(const QUuid &habitID, Timestamp moment);

    /// A book with the same catalogue number is replaced and its id kept. Returns the stored book.
    Book addBook(const Book &book);
    /// Its text goes with it.
    void removeBook(const QUuid &bookID);

    DatabaseTable newDatabase(const DatabaseTable &table);
    /// Its rows go with it.
    void deleteDatabase(const QUuid &tableID);
    /// The row, or nothing for an unknown table.
    std::optional<DBRow> addRow(const QUuid &tableID, const QMap<QString, QString> &values);
    void duplicateRow(const QUuid &rowID);
    void setValue(const QString &value, const QUuid &propertyID, const QUuid &rowID);

    /// The copy, or nothing for an unknown id.
    std::optional<Deck> duplicateDeck(const QUuid &deckID);

    /// Records found by a question. The pointers hold until the store changes.
    template <typename Record>
    using Found = QList<const Record *>;

    Found<Page> notes() const;
    Found<Page> recentPages() const;
    Found<Page> pinnedPages() const;
    Found<Page> loosePages() const;
    Found<Page> pagesIn(const QUuid &folderID) const;
    Found<Folder> orderedFolders() const;
    Found<TaskItem> openTasks() const;
    Found<TaskItem> doneTasks() const;
    Found<TaskItem> tasksIn(const QUuid &projectID) const;
    /// The events of the calendar day, those without a time first.
    Found<CalendarEvent> eventsOn(QDate day) const;
    Found<Activity> activitiesFor(const QUuid &projectID) const;
    Found<DBRow> rowsIn(const QUuid &tableID) const;
    qsizetype habitsDoneToday() const;
    /// The longest streak that any habit has today.
    qsizetype bestHabitStreak() const;

signals:
    void settingsChanged();
    void foldersChanged(const RecordChange &change);
    void pagesChanged(const RecordChange &change);
    void tasksChanged(const RecordChange &change);
    void eventsChanged(const RecordChange &change);
    void projectsChanged(const RecordChange &change);
    void activitiesChanged(const RecordChange &change);
    void databasesChanged(const RecordChange &change);
    void rowsChanged(const RecordChange &change);
    void habitsChanged(const RecordChange &change);
    void codeDocumentsChanged(const RecordChange &change);
    void decksChanged(const RecordChange &change);
    void booksChanged(const RecordChange &change);

private:
    /// The one place that every change of a record passes, with the record as it was and as it is; null
    /// stands for a record that was not or is no more.
    template <typename Record>
    void recordChanged(const Record *before, const Record *after);
    template <typename Record>
    void announce(const RecordChange &change);

    Timestamp now() const { return m_options.clock->now(); }
    /// Changes a task, with `updatedDate` and `completedDate` kept in step.
    template <typename Edit>
    void changeTask(const QUuid &taskID, Edit edit);
    void adopt(Snapshot snapshot);
    QUuid addProject(Project project, const QString &activity);
    void changeMilestones(const QUuid &projectID, const std::function<void(QList<Milestone> &)> &edit);

    Options m_options;
    QTimer m_saveTimer;
    AppSettings m_settings;
    std::tuple<RecordList<Folder>, RecordList<Page>, RecordList<TaskItem>, RecordList<CalendarEvent>,
               RecordList<Project>, RecordList<Activity>, RecordList<DatabaseTable>, RecordList<DBRow>,
               RecordList<Habit>, RecordList<CodeDocument>, RecordList<Deck>, RecordList<Book>>
        m_lists;
};

template <typename Record>
void WorkspaceStore::append(const Record &record)
{
    std::get<RecordList<Record>>(m_lists).append(record);
    recordChanged<Record>(nullptr, &record);
}

template <typename Record>
void WorkspaceStore::replace(const Record &record)
{
    auto &list = std::get<RecordList<Record>>(m_lists);
    const Record *const found = list.first(record.id);
    if (!found || *found == record)
        return;
    const Record before = *found;
    list.replace(record);
    recordChanged(&before, &record);
}

template <typename Record>
void WorkspaceStore::remove(const QList<QUuid> &ids)
{
    auto &list = std::get<RecordList<Record>>(m_lists);
    QList<Record> removed;
    for (const QUuid &id : ids)
        if (const Record *const found = list.first(id))
            removed.append(*found);
    list.remove(QSet<QUuid>(ids.begin(), ids.end()));
    for (const Record &record : removed)
        recordChanged<Record>(&record, nullptr);
}

template <typename Record>
void WorkspaceStore::recordChanged(const Record *before, const Record *after)
{
    using Kind = RecordChange::Kind;
    if (!before)
        announce<Record>({Kind::inserted, after->id});
    else if (!after)
        announce<Record>({Kind::removed, before->id});
    else
        announce<Record>({Kind::replaced, after->id});
}

template <typename Record>
void WorkspaceStore::announce(const RecordChange &change)
{
    if constexpr (std::is_same_v<Record, Folder>)
        emit foldersChanged(change);
    else if constexpr (std::is_same_v<Record, Page>)
        emit pagesChanged(change);
    else if constexpr (std::is_same_v<Record, TaskItem>)
        emit tasksChanged(change);
    else if constexpr (std::is_same_v<Record, CalendarEvent>)
        emit eventsChanged(change);
    else if constexpr (std::is_same_v<Record, Project>)
        emit projectsChanged(change);
    else if constexpr (std::is_same_v<Record, Activity>)
        emit activitiesChanged(change);
    else if constexpr (std::is_same_v<Record, DatabaseTable>)
        emit databasesChanged(change);
    else if constexpr (std::is_same_v<Record, DBRow>)
        emit rowsChanged(change);
    else if constexpr (std::is_same_v<Record, Habit>)
        emit habitsChanged(change);
    else if constexpr (std::is_same_v<Record, CodeDocument>)
        emit codeDocumentsChanged(change);
    else if constexpr (std::is_same_v<Record, Deck>)
        emit decksChanged(change);
    else
        emit booksChanged(change);
}
