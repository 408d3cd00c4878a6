#include "Harness/ManualClock.h"
#include "Store/EventOperations.h"
#include "Store/HabitOperations.h"
#include "Store/PageOperations.h"
#include "Store/ProjectOperations.h"
#include "Store/TaskOperations.h"
#include "Store/WorkspaceStore.h"

#include <QtTest>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

/// The lists that screens ask the store for: what is in them and in which order.
class StoreQuestionsTest : public QObject
{
    Q_OBJECT

private:
    ManualClock m_clock;

    std::unique_ptr<WorkspaceStore> open()
    {
        return std::make_unique<WorkspaceStore>(
            WorkspaceStore::Options{u"/nowhere/workspace.json"_s, &m_clock, 1h});
    }

    template <typename Record>
    static QString names(const QList<const Record *> &found)
    {
        QStringList names;
        for (const Record *record : found)
            if constexpr (requires { record->title; })
                names.append(record->title);
            else if constexpr (requires { record->name; })
                names.append(record->name);
            else
                names.append(record->text);
        return names.join(u' ');
    }

private slots:
    void pages()
    {
        const auto store = open();
        const Folder folder = FolderOperations::create(*store, u"Second"_s, u"f"_s);
        Folder earlier = folder;
        earlier.id = QUuid::createUuid();
        earlier.name = u"First"_s;
        earlier.sortOrder -= 1;
        store->add(earlier);
        QCOMPARE(names(FolderOperations::ordered(*store)), u"First Second"_s);

        struct Row {
            const char16_t *title;
            PageKind kind;
            bool isFavorite;
            bool isInFolder;
            double sortOrder;
            int minute;
        };
        for (const Row &row :
             {Row{u"a", PageKind::page, true, false, 3, 1}, Row{u"b", PageKind::page, false, true, 2, 5},
              Row{u"c", PageKind::note, true, false, 1, 3}, Row{u"d", PageKind::page, false, false, 3, 1},
              Row{u"e", PageKind::note, false, true, 0, 9}}) {
            Page page{.id = QUuid::createUuid(), .title = QString::fromUtf16(row.title), .kind = row.kind};
            page.isFavorite = row.isFavorite;
            page.sortOrder = row.sortOrder;
            page.updatedDate = m_clock.now() + std::chrono::minutes(row.minute);
            if (row.isInFolder)
                page.folderID = folder.id;
            store->add(page);
        }
        QCOMPARE(names(PageOperations::notes(*store)), u"e c"_s);
        QCOMPARE(names(PageOperations::pinned(*store)), u"c a"_s);
        QCOMPARE(names(PageOperations::loose(*store)), u"a d"_s);
        QCOMPARE(names(PageOperations::inFolder(*store, folder.id)), u"b"_s);
    }

    void tasksAndActivities()
    {
        const auto store = open();
        const QUuid project = QUuid::createUuid();
        store->add(Project{.id = project});
        for (const auto &[title, status] :
             {std::pair(u"a"_s, TaskStatus::done), std::pair(u"b"_s, TaskStatus::todo),
              std::pair(u"c"_s, TaskStatus::inProgress), std::pair(u"d"_s, TaskStatus::done)}) {
            TaskItem task{.id = QUuid::createUuid(), .title = title, .status = status};
            if (title != u"c")
                task.projectID = project;
            store->add(task);
        }
        QCOMPARE(names(TaskOperations::ofProject(*store, project)), u"a b d"_s);

        for (const auto &text : {u"one"_s, u"two"_s, u"three"_s}) {
            ProjectOperations::logActivity(*store, project, text, u"note"_s);
            m_clock.advance(1s);
        }
        QCOMPARE(names(ProjectOperations::activities(*store, project)), u"three two one"_s);
    }

    void eventsOfALocalDay()
    {
        m_clock.setTimeZone(QTimeZone("America/New_York"));
        const auto store = open();
        const QDate day(2026, 3, 8);
        const auto at = [&](int hour, QTimeZone zone) {
            return toTimestamp(QDateTime(day, QTime(hour, 0), zone));
        };
        const auto addEvent = [&](const QString &title, Timestamp date, std::optional<qint64> minutes) {
            store->add(CalendarEvent{
                .id = QUuid::createUuid(), .title = title, .date = date, .timeMinutes = minutes});
        };
        addEvent(u"late"_s, at(23, m_clock.timeZone()), 1380);
        addEvent(u"early"_s, at(0, m_clock.timeZone()), 0);
        addEvent(u"whole"_s, at(12, m_clock.timeZone()), {});
        addEvent(u"eve"_s, at(3, QTimeZone::utc()), {});
        addEvent(u"day"_s, at(5, m_clock.timeZone()), {});
        QCOMPARE(names(EventOperations::onDay(*store, day)), u"whole day early late"_s);
        QCOMPARE(names(EventOperations::onDay(*store, day.addDays(-1))), u"eve"_s);
    }

    void habitsDone()
    {
        const auto store = open();
        m_clock.setTimeZone(QTimeZone::utc());
        for (int i = 0; i < 3; ++i)
            store->add(Habit{.id = QUuid::createUuid()});
        HabitOperations::toggle(*store, store->list<Habit>().all().at(0).id, m_clock.now());
        HabitOperations::toggle(*store, store->list<Habit>().all().at(2).id, m_clock.now() - 24h);
        QCOMPARE(HabitOperations::doneToday(*store), 1);
    }
};

QTEST_GUILESS_MAIN(StoreQuestionsTest)
#include "tst_storequestions.moc"
