#include "Harness/ManualClock.h"
#include "Store/SnapshotCodec.h"
#include "Store/StarterContent.h"
#include "Store/TaskOperations.h"

#include <QTemporaryDir>
#include <QtTest>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

class StarterContentTest : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_folder;
    ManualClock m_clock;

    std::unique_ptr<WorkspaceStore> open()
    {
        QFile::remove(m_folder.filePath(u"w.json"_s));
        return std::make_unique<WorkspaceStore>(
            WorkspaceStore::Options{m_folder.filePath(u"w.json"_s), &m_clock, 1h});
    }
    static StarterContent::Choices choices(bool samples)
    {
        StarterContent::Choices choices{
            .userName = u" Zoë\n"_s, .workspaceName = u"  "_s, .workspaceIcon = u"🌱"_s};
        choices.appearance = AppearanceMode::dark;
        for (const auto &entry : enumCases<OrvelModule>())
            if (entry.value != OrvelModule::habits && entry.value != OrvelModule::relax)
                choices.modules.append(entry.value);
        choices.includeSamples = samples;
        return choices;
    }
    /// How many records of each kind the workspace holds, in the order of the file.
    static QList<qsizetype> counts(const Snapshot &snapshot)
    {
        return {snapshot.list<Folder>().size(),        snapshot.list<Page>().size(),
                snapshot.list<TaskItem>().size(),      snapshot.list<CalendarEvent>().size(),
                snapshot.list<Project>().size(),       snapshot.list<Activity>().size(),
                snapshot.list<DatabaseTable>().size(), snapshot.list<DBRow>().size(),
                snapshot.list<Habit>().size(),         snapshot.list<CodeDocument>().size(),
                snapshot.list<Deck>().size(),          snapshot.list<Book>().size()};
    }

private slots:
    void onboardingTakesTheChoicesOver()
    {
        const auto store = open();
        StarterContent::completeOnboarding(*store, choices(false));
        AppSettings expected;
        expected.userName = u"Zoë"_s;
        expected.workspaceIcon = u"🌱"_s;
        expected.appearance = AppearanceMode::dark;
        expected.hiddenModules = {u"habits"_s, u"relax"_s};
        expected.hasCompletedOnboarding = true;
        QCOMPARE(store->settings(), expected);
        QCOMPARE(counts(store->snapshot()), (QList<qsizetype>{0, 1, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0}));
        const Page &welcome = store->pages().all().first();
        QCOMPARE(welcome.title, u"Welcome to Zoë's Workspace"_s);
        QVERIFY(welcome.isFavorite);
        QCOMPARE(welcome.content.size(), 10);
        QVERIFY(!StarterContent::hasExampleContent(*store));

        QFile file(store->filePath());
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(SnapshotCodec::decode(file.readAll(), m_clock.now(), &QUuid::createUuid)->settings,
                 expected);
    }

    void samplesFollowTheModules()
    {
        const auto store = open();
        StarterContent::completeOnboarding(*store, choices(true));
        QCOMPARE(counts(store->snapshot()), (QList<qsizetype>{1, 4, 8, 3, 1, 1, 1, 3, 0, 1, 1, 0}));
        const auto whole = open();
        StarterContent::seed(*whole, {OrvelModule::habits}, true);
        QCOMPARE(counts(whole->snapshot()), (QList<qsizetype>{1, 3, 0, 0, 0, 0, 0, 0, 3, 0, 0, 0}));
        QCOMPARE(whole->pages().all().first().title, u"Welcome to Orvel"_s);
        QCOMPARE(whole->list<Habit>().all().first().completions,
                 (std::set<QString>{u"2026-03-12"_s, u"2026-03-11"_s, u"2026-03-10"_s, u"2026-03-08"_s,
                                    u"2026-03-07"_s}));
    }

    void examplesAreKnownAndRemoved()
    {
        const auto store = open();
        StarterContent::Choices all = choices(true);
        all.modules.append(OrvelModule::habits);
        StarterContent::completeOnboarding(*store, all);
        const QUuid own = TaskOperations::create(*store, u"My own"_s, TaskPriority::low, {});
        QVERIFY(StarterContent::hasExampleContent(*store));
        StarterContent::removeExampleContent(*store);
        QVERIFY(!StarterContent::hasExampleContent(*store));
        QCOMPARE(counts(store->snapshot()), (QList<qsizetype>{0, 1, 1, 0, 0, 0, 1, 3, 0, 0, 0, 0}));
        QCOMPARE(store->tasks().all().first().id, own);

        TaskOperations::create(*store, u"Plan the week"_s, TaskPriority::low, {});
        QVERIFY2(StarterContent::hasExampleContent(*store), "titles alone decide");
    }
};

QTEST_GUILESS_MAIN(StarterContentTest)
#include "tst_startercontent.moc"
