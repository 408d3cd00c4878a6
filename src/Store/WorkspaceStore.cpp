#include "Store/WorkspaceStore.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

WorkspaceStore::WorkspaceStore(Options options, QObject *parent)
    : QObject(parent),
      m_options(std::move(options)),
      m_file(fileOptions(m_options)),
      m_history(m_options.undoLimits),
      m_groups(*m_options.clock),
      m_saves(&m_file, [this] { return snapshot(); },
              {.quiet = m_options.saveDelay,
               .longest = std::max(m_options.saveDelay, SaveScheduler::Delays().longest)})
{
    connect(m_options.clock, &Clock::dayChanged, this, [this] { m_groups.eventsByDay.forget(); });
    WorkspaceFile::Loaded loaded = m_file.load();
    adopt(std::move(loaded.snapshot));
    m_saves.setNotice(loaded.notice);
}

WorkspaceFile::Options WorkspaceStore::fileOptions(const Options &options)
{
    const QString beside = QFileInfo(options.filePath).dir().filePath(QStringLiteral("rescued"));
    return {.path = options.filePath,
            .rescueFolder = options.rescueFolder.isEmpty() ? beside : options.rescueFolder,
            .now = [clock = options.clock] { return clock->now(); },
            .makeId = options.makeId,
            .checkLock = options.checkLock};
}

WorkspaceStore::~WorkspaceStore()
{
    m_history.clear();
}

QString WorkspaceStore::defaultFilePath()
{
    QString place = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
    if (place.isEmpty() || !QDir().mkpath(place))
        place = QDir::tempPath();
    const QString folder = place + QStringLiteral("/Orvel");
    // If this fails, so does the first save, and that says why.
    QDir().mkpath(folder);
    return folder + QStringLiteral("/workspace.json");
}

QString WorkspaceStore::defaultRescueFolder()
{
    QString place = qEnvironmentVariable("XDG_STATE_HOME");
    if (!QDir::isAbsolutePath(place))
        place = QDir::homePath() + QStringLiteral("/.local/state");
    return place + QStringLiteral("/Orvel/rescued");
}

BookLibrary WorkspaceStore::bookLibrary() const
{
    return BookLibrary(QFileInfo(m_options.filePath).dir().filePath(QStringLiteral("Books")));
}

void WorkspaceStore::adopt(Snapshot snapshot)
{
    m_settings = std::move(snapshot.settings);
    RecordKinds::forEach([&]<typename Record>() {
        std::get<RecordList<Record>>(m_lists) = RecordList<Record>(std::move(snapshot.list<Record>()));
    });
}

Snapshot WorkspaceStore::snapshot() const
{
    Snapshot snapshot;
    snapshot.settings = m_settings;
    RecordKinds::forEach([&]<typename Record>() { snapshot.list<Record>() = list<Record>().all(); });
    return snapshot;
}

void WorkspaceStore::changeSettings(const std::function<void(AppSettings &)> &edit)
{
    AppSettings settings = m_settings;
    edit(settings);
    if (settings == m_settings)
        return;
    const Action action(*this, QString());
    m_settings = settings;
    m_action.changes.settings = true;
}

bool WorkspaceStore::begin(const std::function<void(UndoStep &)> &describe)
{
    const bool isOutermost = m_action.depth++ == 0;
    if (isOutermost)
        m_action.step.place = m_place();
    if (isOutermost || (m_action.step.name.isEmpty() && !m_action.step.isBackground))
        describe(m_action.step);
    return isOutermost;
}

void WorkspaceStore::end()
{
    if (--m_action.depth > 0)
        return;
    OpenAction ended = std::exchange(m_action, {});
    if (ended.changes.isEmpty() && ended.step.isEmpty())
        return;
    ended.changes.message = ended.step.message;
    if (!ended.step.isEmpty())
        m_history.add(std::move(ended.step), m_lists);
    announce(ended.changes);
}

void WorkspaceStore::announce(const ChangeSet &changes)
{
    m_saves.schedule();
    emit changed(changes);
}

const UndoStep *WorkspaceStore::undo()
{
    if (m_action.depth > 0)
        return nullptr;
    ChangeSet changes;
    const UndoStep *const step = m_history.undo(m_lists, m_place(), changes);
    if (!step)
        return nullptr;
    m_groups.follow(m_lists, changes);
    announce(changes);
    return step;
}

const UndoStep *WorkspaceStore::redo()
{
    if (m_action.depth > 0)
        return nullptr;
    ChangeSet changes;
    const UndoStep *const step = m_history.redo(m_lists, changes);
    if (!step)
        return nullptr;
    m_groups.follow(m_lists, changes);
    announce(changes);
    return step;
}

void WorkspaceStore::resetEverything(bool keepOnboarding)
{
    Snapshot empty;
    empty.settings.hasCompletedOnboarding = keepOnboarding && m_settings.hasCompletedOnboarding;
    m_history.clear();
    adopt(std::move(empty));
    bookLibrary().deleteAll();
    m_groups.follow(m_lists, ChangeSet::reloaded());
    announce(ChangeSet::reloaded());
    saveNow();
}
