#include "Store/WorkspaceStore.h"

#include "Foundation/AtomicFile.h"
#include "Store/SnapshotCodec.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

#include <cstdio>

WorkspaceStore::WorkspaceStore(Options options, QObject *parent)
    : QObject(parent), m_options(std::move(options))
{
    m_saveTimer.setSingleShot(true);
    m_saveTimer.setInterval(m_options.saveDelay);
    // The promise is half a second after the last change; a coarse timer would stretch it.
    m_saveTimer.setTimerType(Qt::PreciseTimer);
    connect(&m_saveTimer, &QTimer::timeout, this, &WorkspaceStore::saveNow);
    AtomicFile::sweepLeftovers(m_options.filePath);
    adopt(SnapshotCodec::decodeFile(m_options.filePath, now(), m_options.makeId).value_or(Snapshot()));
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

BookLibrary WorkspaceStore::bookLibrary() const
{
    return BookLibrary(QFileInfo(m_options.filePath).dir().filePath(QStringLiteral("Books")));
}

void WorkspaceStore::adopt(Snapshot snapshot)
{
    m_settings = std::move(snapshot.settings);
    m_lists = {RecordList(std::move(snapshot.folders)),   RecordList(std::move(snapshot.pages)),
               RecordList(std::move(snapshot.tasks)),     RecordList(std::move(snapshot.events)),
               RecordList(std::move(snapshot.projects)),  RecordList(std::move(snapshot.activities)),
               RecordList(std::move(snapshot.databases)), RecordList(std::move(snapshot.rows)),
               RecordList(std::move(snapshot.habits)),    RecordList(std::move(snapshot.codeDocuments)),
               RecordList(std::move(snapshot.decks)),     RecordList(std::move(snapshot.books))};
}

Snapshot WorkspaceStore::snapshot() const
{
    return {m_settings,     folders().all(),  pages().all(),         tasks().all(),
            events().all(), projects().all(), activities().all(),    databases().all(),
            rows().all(),   habits().all(),   codeDocuments().all(), decks().all(),
            books().all()};
}

void WorkspaceStore::setSettings(const AppSettings &settings)
{
    if (m_settings == settings)
        return;
    m_settings = settings;
    emit settingsChanged();
}

void WorkspaceStore::changeSettings(const std::function<void(AppSettings &)> &edit)
{
    AppSettings settings = m_settings;
    edit(settings);
    setSettings(settings);
    scheduleSave();
}

void WorkspaceStore::scheduleSave()
{
    m_saveTimer.start();
}

void WorkspaceStore::saveNow()
{
    m_saveTimer.stop();
    const auto written = AtomicFile::write(m_options.filePath, SnapshotCodec::encode(snapshot()));
    if (written)
        return;
    std::printf("[Orvel] Failed to save workspace snapshot: %s\n", qUtf8Printable(written.error()));
    std::fflush(stdout);
}

void WorkspaceStore::resetEverything(bool keepOnboarding)
{
    Snapshot empty;
    empty.settings.hasCompletedOnboarding = keepOnboarding && m_settings.hasCompletedOnboarding;
    adopt(std::move(empty));
    bookLibrary().deleteAll();
    std::apply([this]<typename... Record>(const RecordList<Record> &...) { (announce<Record>({}), ...); },
               m_lists);
    emit settingsChanged();
    saveNow();
}
