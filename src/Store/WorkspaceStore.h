#pragma once

#include "Foundation/Clock.h"
#include "Store/Action.h"
#include "Store/BookLibrary.h"
#include "Store/SaveScheduler.h"
#include "Store/WorkspaceGroups.h"

#include <QObject>

/// The one object that owns the whole workspace: one list for each kind of record, the settings, the undo
/// history, and the file they are saved in. What the product does with records are free functions beside it,
/// such as `TaskOperations`.
///
/// Every change happens within an `Action`; a change outside of one is an action by itself.
class WorkspaceStore : public QObject
{
    Q_OBJECT
    Q_PROPERTY(SaveScheduler *saves READ saves CONSTANT FINAL)

public:
    struct Options {
        QString filePath;
        /// Lives longer than the store.
        const Clock *clock = nullptr;
        /// From the last change to the save.
        std::chrono::milliseconds saveDelay = SaveScheduler::Delays().quiet;
        std::function<QUuid()> makeId = &QUuid::createUuid;
        UndoHistory::Limits undoLimits = {};
        /// See `WorkspaceFile`; empty stands for "rescued" beside the workspace file.
        QString rescueFolder = {};
        std::function<std::expected<void, QString>()> checkLock = {};
    };
    using Lists = UndoHistory::Lists;

    /// Reads the file. A missing or unreadable one, or one that is no JSON, gives an empty workspace.
    explicit WorkspaceStore(Options options, QObject *parent = nullptr);
    ~WorkspaceStore() override;

    /// "Orvel/workspace.json" in the user's data folder, or in the temporary folder if there is none. The
    /// folder is made.
    static QString defaultFilePath();
    /// "Orvel/rescued" in the user's folder for the state of programs.
    static QString defaultRescueFolder();

    const QString &filePath() const { return m_options.filePath; }
    SaveScheduler *saves() { return &m_saves; }
    /// The texts of the downloaded books, in "Books" beside the workspace file.
    BookLibrary bookLibrary() const;
    const Clock &clock() const { return *m_options.clock; }
    Timestamp now() const { return clock().now(); }
    QUuid makeId() const { return m_options.makeId(); }

    template <typename Record>
    const RecordList<Record> &list() const
    {
        return std::get<RecordList<Record>>(m_lists);
    }
    const RecordList<Folder> &folders() const { return list<Folder>(); }
    const RecordList<Page> &pages() const { return list<Page>(); }
    const RecordList<TaskItem> &tasks() const { return list<TaskItem>(); }
    const RecordList<Project> &projects() const { return list<Project>(); }
    const RecordList<CodeDocument> &codeDocuments() const { return list<CodeDocument>(); }
    /// The whole workspace as it is.
    Snapshot snapshot() const;

    template <typename Record>
    void add(const Record &record);
    /// Lets the edit change a copy of the record, which then takes its place. A record that stays equal
    /// changes nothing, and so does an unknown id.
    template <typename Record, typename Edit>
    void change(const QUuid &id, Edit edit);
    template <typename Record>
    void erase(const QSet<QUuid> &ids);
    template <typename Record>
    void erase(const QUuid &id)
    {
        erase<Record>(QSet{id});
    }

    /// The settings lie outside the undo history.
    const AppSettings &settings() const { return m_settings; }
    void changeSettings(const std::function<void(AppSettings &)> &edit);

    /// Takes the last step back; gives it, or null if there is none or an action is under way.
    const UndoStep *undo();
    /// Does the step again that was undone last.
    const UndoStep *redo();
    const UndoHistory &history() const { return m_history; }
    /// The next typing begins an undo step of its own, as when the caret goes elsewhere.
    void endTyping() { m_history.endTyping(); }
    /// Tells where the user is, which steps remember.
    void setPlaceSource(std::function<Destination()> place) { m_place = std::move(place); }

    /// Each change is saved soon by itself; see `SaveScheduler` for this and the following.
    void saveSoon() { m_saves.saveSoon(); }
    bool saveNow() { return m_saves.saveNow(); }
    [[nodiscard]] bool saveAtExit() { return m_saves.saveAtExit(); }
    /// Erases the workspace, the texts of the books, the undo history and all settings, and saves.
    void resetEverything(bool keepOnboarding);

    /// Records found by a key they share.
    WorkspaceGroups &groups() const { return m_groups; }

signals:
    /// An action has ended, a step was undone or done again, or everything is new.
    void changed(const ChangeSet &changes);

private:
    friend class Action;

    template <typename Record>
    RecordEdits<Record> &touch(const QUuid &id)
    {
        if (m_action.step.record.isNull())
            m_action.step.record = id;
        return std::get<RecordEdits<Record>>(m_action.step.edits);
    }

    struct OpenAction {
        int depth = 0;
        UndoStep step;
        ChangeSet changes;
    };

    /// Whether this is the outermost action.
    bool begin(const std::function<void(UndoStep &)> &describe);
    void end();
    void announce(const ChangeSet &changes);
    void adopt(Snapshot snapshot);

    static WorkspaceFile::Options fileOptions(const Options &options);

    Options m_options;
    WorkspaceFile m_file;
    AppSettings m_settings;
    Lists m_lists;
    UndoHistory m_history;
    OpenAction m_action;
    std::function<Destination()> m_place = [] { return Destination(); };
    mutable WorkspaceGroups m_groups;
    // Goes first, since it may still be writing.
    SaveScheduler m_saves;
};

#include "Store/WorkspaceEdits.h"
