#include "Features/Today/TodayViewModel.h"
#include "Harness/ShownRows.h"
#include "Harness/TestWorkspace.h"
#include "Store/ProjectOperations.h"

#include <QtTest>

using namespace ShownRows;

class TodayViewModelTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { m_model.reset(); }

    void summaryCounts_data();
    void summaryCounts();
    void scheduleMergesEventsAndTasks();
    void aDoneTaskStaysInTheDay();
    void theDayFollowsTheClock();
    void activeProjectsAreTheFirstFour();
    void recentPagesAreTheLastFive();
    void savesNotes_data();
    void savesNotes();

private:
    void addTask(const QString &title, const char *status = "todo", double dueInHours = 1)
    {
        m_workspace.addTask(title, QString::fromLatin1(status), QStringLiteral("medium"), dueInHours);
    }
    void addEvent(const QString &title, std::optional<qint64> minutes, EventKind kind)
    {
        CalendarEvent event{.id = QUuid::createUuid(), .title = title, .timeMinutes = minutes, .kind = kind};
        event.date = m_workspace.clock().now();
        m_workspace.store().add(event);
    }

    TestWorkspace m_workspace;
    OrvelSession m_session{&m_workspace.store(), &m_workspace.ui()};
    std::unique_ptr<TodayViewModel> m_model;
};

void TodayViewModelTest::init()
{
    m_workspace.reset();
    m_model = std::make_unique<TodayViewModel>();
    m_model->setSession(&m_session);
}

void TodayViewModelTest::summaryCounts_data()
{
    QTest::addColumn<int>("tasks");
    QTest::addColumn<int>("events");
    QTest::addColumn<QString>("summary");
    QTest::newRow("none") << 0 << 0 << "0 tasks · 0 events today";
    QTest::newRow("one each") << 1 << 1 << "1 task · 1 event today";
    QTest::newRow("more") << 0 << 2 << "0 tasks · 2 events today";
    QTest::newRow("mixed") << 3 << 1 << "3 tasks · 1 event today";
}

void TodayViewModelTest::summaryCounts()
{
    QFETCH(int, tasks);
    QFETCH(int, events);
    QFETCH(QString, summary);
    for (int i = 0; i < tasks; ++i)
        addTask(QString::number(i));
    for (int i = 0; i < events; ++i)
        addEvent(QString::number(i), i, EventKind::event);
    finishTurn();
    QCOMPARE(m_model->summary(), summary);
}

void TodayViewModelTest::scheduleMergesEventsAndTasks()
{
    addTask(QStringLiteral("Done"), "done");
    addTask(QStringLiteral("Open"), "inProgress", -2);
    addTask(QStringLiteral("Overdue"), "todo", -30);
    addEvent(QStringLiteral("Lunch"), 12 * 60 + 5, EventKind::event);
    addEvent(QStringLiteral("Rent"), std::nullopt, EventKind::deadline);
    addEvent(QStringLiteral("Pills"), 7, EventKind::reminder);
    finishTurn();
    QCOMPARE(texts(m_model->schedule(), "title"), QStringLiteral("Rent|Pills|Lunch|Open|Done"));
    QCOMPARE(texts(m_model->schedule(), "timeText"), QStringLiteral("All-day|00:07|12:05|All-day|All-day"));
    QCOMPARE(texts(m_model->schedule(), "kindText"), QStringLiteral("deadline|reminder|event|Task|Task"));
    QCOMPARE(texts(m_model->schedule(), "isDone"), QStringLiteral("false|false|false|false|true"));
    QCOMPARE(texts(m_model->dueTasks(), "title"), QStringLiteral("Open"));
}

void TodayViewModelTest::aDoneTaskStaysInTheDay()
{
    addTask(QStringLiteral("One"));
    addTask(QStringLiteral("Two"));
    m_workspace.addTask(QStringLiteral("Undated"));
    finishTurn();
    QCOMPARE(m_model->progressText(), QStringLiteral("0 of 3 tasks complete"));
    TaskOperations::toggleDone(m_workspace.store(), m_workspace.store().tasks().all().first().id);
    finishTurn();
    QCOMPARE(m_model->summary(), QStringLiteral("2 tasks · 0 events today"));
    QCOMPARE(texts(m_model->dueTasks(), "title"), QStringLiteral("Two"));
    QCOMPARE(m_model->progressText(), QStringLiteral("1 of 3 tasks complete"));
    QCOMPARE(m_model->percentText(), QStringLiteral("33%"));
}

void TodayViewModelTest::theDayFollowsTheClock()
{
    addTask(QStringLiteral("Tomorrow"), "todo", 24);
    m_workspace.store().changeSettings(
        [](AppSettings &settings) { settings.userName = QStringLiteral("Mira"); });
    finishTurn();
    QCOMPARE(m_model->greeting(), QStringLiteral("Good morning, Mira"));
    m_workspace.advanceHours(3);
    QCOMPARE(m_model->greeting(), QStringLiteral("Good afternoon, Mira"));
    QCOMPARE(texts(m_model->dueTasks(), "title"), QString());
    m_workspace.advanceHours(12);
    finishTurn();
    QCOMPARE(texts(m_model->dueTasks(), "title"), QStringLiteral("Tomorrow"));

    m_workspace.clock().setTimeZone(QTimeZone("Pacific/Kiritimati"));
    finishTurn();
    QCOMPARE(m_model->greeting(), QStringLiteral("Good afternoon, Mira"));
    m_workspace.clock().setTimeZone(QTimeZone("America/New_York"));
    finishTurn();
    QCOMPARE(texts(m_model->dueTasks(), "title"), QString());
    m_workspace.clock().setTimeZone(QTimeZone::utc());
}

void TodayViewModelTest::activeProjectsAreTheFirstFour()
{
    WorkspaceStore &store = m_workspace.store();
    for (const char *name : {"a", "template", "b", "completed", "c", "d", "e"}) {
        const QUuid id = *ProjectOperations::createBlank(store, QString::fromLatin1(name));
        if (name == std::string_view("template"))
            ProjectOperations::toggleTemplate(store, id);
        if (name == std::string_view("completed"))
            ProjectOperations::setStatus(store, id, ProjectStatus::completed);
        if (name == std::string_view("b"))
            for (int i = 0; i < 3; ++i)
                ProjectOperations::addTask(store, id, QString::number(i));
    }
    TaskOperations::toggleDone(store, store.tasks().all().first().id);
    finishTurn();
    QCOMPARE(texts(m_model->projects(), "name"), QStringLiteral("a|b|c|d"));
    QCOMPARE(texts(m_model->projects(), "percentText"),
             QStringLiteral("0% complete|33% complete|0% complete|0% complete"));
    ProjectOperations::remove(store, store.projects().all().first().id);
    finishTurn();
    QCOMPARE(texts(m_model->projects(), "name"), QStringLiteral("b|c|d|e"));
}

void TodayViewModelTest::recentPagesAreTheLastFive()
{
    m_workspace.addNote(QStringLiteral("Note"));
    for (int i = 0; i < 6; ++i) {
        m_workspace.clock().advance(std::chrono::seconds(1));
        m_workspace.addPage(i == 3 ? QString() : QString::number(i));
    }
    finishTurn();
    QCOMPARE(texts(m_model->recentPages(), "title"), QStringLiteral("5|4|Untitled|2|1"));
}

void TodayViewModelTest::savesNotes_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("text");
    QTest::newRow("one line") << " Milk " << "Milk" << "Milk";
    QTest::newRow("lines") << "\n\nMilk\nand bread\n" << "Milk" << "Milk\nand bread";
    QTest::newRow("pasted lines") << "Milk\r\nbread" << "Milk" << "Milk\nbread";
    QTest::newRow("long") << QString(70, u'x') << QString(60, u'x') << QString(70, u'x');
    QTest::newRow("emoji are not cut") << QStringLiteral("👩‍👩‍👧").repeated(61)
                                       << QStringLiteral("👩‍👩‍👧").repeated(60)
                                       << QStringLiteral("👩‍👩‍👧").repeated(61);
    QTest::newRow("blank") << " \n " << QString() << QString();
}

void TodayViewModelTest::savesNotes()
{
    QFETCH(QString, typed);
    QFETCH(QString, title);
    QFETCH(QString, text);
    m_model->setQuickNote(typed);
    QCOMPARE(m_model->canSaveNote(), !title.isEmpty());
    m_model->saveNote();
    const auto &pages = m_workspace.store().pages().all();
    if (title.isEmpty()) {
        QVERIFY(pages.isEmpty());
        QCOMPARE(m_model->quickNote(), typed);
        return;
    }
    QCOMPARE(pages.size(), 1);
    QCOMPARE(pages.first().kind, PageKind::note);
    QCOMPARE(pages.first().title, title);
    QCOMPARE(pages.first().content.size(), 1);
    QCOMPARE(pages.first().content.first().text, text);
    QCOMPARE(m_model->quickNote(), QString());
    QCOMPARE(m_workspace.ui().selection(), Destination());
    m_session.undo()->undo();
    QVERIFY(m_workspace.store().pages().all().isEmpty());
}

QTEST_MAIN(TodayViewModelTest)
#include "tst_todayviewmodel.moc"
