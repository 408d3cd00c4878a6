#include "Features/Projects/ProjectDetailViewModel.h"
#include "Harness/ShownRows.h"
#include "Harness/TestWorkspace.h"
#include "Session/TaskActions.h"
#include "Store/ProjectOperations.h"

#include <QAbstractItemModelTester>
#include <QtTest>

using namespace ShownRows;

class ProjectDetailViewModelTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void writesWhatIsTyped();
    void typingIsUndoneWhereItWas();
    void theDueDateIsSwitched();
    void tasksStandByTitle();
    void typingATitleMovesNothing();
    void milestonesComeAndGo();
    void activitiesAreListedAFewAtATime();
    void followsAnotherProject();

private:
    const Project &project() { return *m_workspace.store().projects().first(m_id); }
    QUuid task(int row) { return role(m_model->tasks(), row, "taskID").toUuid(); }

    TestWorkspace m_workspace;
    OrvelSession m_session{&m_workspace.store(), &m_workspace.ui()};
    TaskActions m_actions{&m_session};
    std::unique_ptr<ProjectDetailViewModel> m_model;
    std::unique_ptr<QAbstractItemModelTester> m_tester;
    QUuid m_id;
};

void ProjectDetailViewModelTest::init()
{
    m_workspace.reset();
    m_id = *ProjectOperations::createBlank(m_workspace.store(), QStringLiteral("Garden"));
    m_workspace.ui().selectProject(m_id);
    m_model = std::make_unique<ProjectDetailViewModel>();
    m_model->setProjectID(m_id);
    m_model->setSession(&m_session);
    m_tester = std::make_unique<QAbstractItemModelTester>(m_model->tasks());
}

void ProjectDetailViewModelTest::cleanup()
{
    m_tester.reset();
    m_model.reset();
}

void ProjectDetailViewModelTest::writesWhatIsTyped()
{
    m_workspace.clock().advance(std::chrono::seconds(5));
    m_model->setName(QStringLiteral("Two\nlines"));
    m_model->setDetails(QStringLiteral("One\r\nTwo"));
    finishTurn();
    QCOMPARE(project().name, QStringLiteral("Two lines"));
    QCOMPARE(project().details, QStringLiteral("One\nTwo"));
    QCOMPARE(project().updatedDate, m_workspace.clock().now());
    QCOMPARE(m_model->details(), QStringLiteral("One\nTwo"));
    QCOMPARE(m_model->activities()->rowCount(), 1);
}

void ProjectDetailViewModelTest::typingIsUndoneWhereItWas()
{
    const QSignalSpy revealed(m_model.get(), &ProjectDetailViewModel::fieldRevealed);
    QString text;
    for (const QChar letter : QStringLiteral("shed")) {
        text += letter;
        m_model->setDetails(text);
        finishTurn();
    }
    m_session.undo()->undo();
    finishTurn();
    QCOMPARE(m_model->details(), QString());
    QCOMPARE(revealed.count(), 1);
    QCOMPARE(revealed.first().first().toString(), QStringLiteral("details"));
}

void ProjectDetailViewModelTest::theDueDateIsSwitched()
{
    m_model->setDueEnabled(true);
    finishTurn();
    QCOMPARE(m_model->due(), toDateTime(m_workspace.clock().now(), QTimeZone::utc()).addDays(14));
    const QDateTime other(QDate(2026, 5, 1), QTime(12, 0), QTimeZone::utc());
    m_model->setDue(other);
    m_model->setDueEnabled(true);
    finishTurn();
    QCOMPARE(m_model->due(), other);
    m_model->setDueEnabled(false);
    finishTurn();
    QVERIFY(!m_model->dueEnabled());
    QVERIFY(!project().dueDate);
}

void ProjectDetailViewModelTest::tasksStandByTitle()
{
    for (const char *title : {"b", "C", "a", "d"})
        QVERIFY(m_model->addTask(QString::fromLatin1(title)));
    QVERIFY(!m_model->addTask(QStringLiteral(" \n ")));
    m_workspace.addTask(QStringLiteral("elsewhere"));
    finishTurn();
    QCOMPARE(texts(m_model->tasks(), "title"), QStringLiteral("C|a|b|d"));
    QCOMPARE(m_model->openText(), QStringLiteral("4 open"));

    m_actions.cycleStatus(task(3));
    m_actions.toggleDone(task(3));
    finishTurn();
    m_actions.toggleDone(task(1));
    finishTurn();
    QCOMPARE(texts(m_model->tasks(), "title"), QStringLiteral("C|b|"));
    QCOMPARE(texts(m_model->tasks(), "kind"), QStringLiteral("task|task|completedHeader"));
    QCOMPARE(texts(m_model->tasks(), "isLast"), QStringLiteral("false|true|false"));
    m_model->setShowDoneTasks(true);
    finishTurn();
    QCOMPARE(texts(m_model->tasks(), "title"), QStringLiteral("C|b||a|d"));
    QCOMPARE(m_model->tasksText(), QStringLiteral("2/4 tasks"));
    QCOMPARE(m_model->percentText(), QStringLiteral("50% complete"));
    QCOMPARE(m_model->progress(), 0.5);
    QCOMPARE(m_model->activities()->rowCount(), 1);

    m_actions.toggleDone(task(4));
    finishTurn();
    QCOMPARE(texts(m_model->tasks(), "title"), QStringLiteral("C|b|d||a"));
}

void ProjectDetailViewModelTest::typingATitleMovesNothing()
{
    for (const char *title : {"a", "b", "c"})
        m_model->addTask(QString::fromLatin1(title));
    finishTurn();
    m_actions.rename(task(0), QStringLiteral("z"));
    finishTurn();
    QCOMPARE(texts(m_model->tasks(), "title"), QStringLiteral("z|b|c"));
    m_actions.remove(task(1));
    finishTurn();
    QCOMPARE(texts(m_model->tasks(), "title"), QStringLiteral("c|z"));
}

void ProjectDetailViewModelTest::milestonesComeAndGo()
{
    QVERIFY(!m_model->addMilestone(QStringLiteral(" ")));
    QVERIFY(m_model->addMilestone(QStringLiteral(" Dug ")));
    m_workspace.clock().advance(std::chrono::seconds(1));
    QVERIFY(m_model->addMilestone(QStringLiteral("Sown")));
    finishTurn();
    QCOMPARE(texts(m_model->milestones(), "title"), QStringLiteral("Dug|Sown"));
    QCOMPARE(role(m_model->activities(), 0, "text").toString(), QStringLiteral("Added milestone “Sown”"));
    const QUuid first = role(m_model->milestones(), 0, "milestoneID").toUuid();
    m_model->toggleMilestone(first);
    finishTurn();
    QCOMPARE(texts(m_model->milestones(), "done"), QStringLiteral("true|false"));
    QCOMPARE(m_model->percentText(), QStringLiteral("0% complete"));
    m_model->removeMilestone(first);
    finishTurn();
    QCOMPARE(texts(m_model->milestones(), "title"), QStringLiteral("Sown"));
    m_session.undo()->undo();
    finishTurn();
    QCOMPARE(texts(m_model->milestones(), "done"), QStringLiteral("true|false"));
    QCOMPARE(m_model->activities()->rowCount(), 3);
}

void ProjectDetailViewModelTest::activitiesAreListedAFewAtATime()
{
    for (int i = 0; i < 60; ++i) {
        m_workspace.clock().advance(std::chrono::seconds(1));
        ProjectOperations::logActivity(m_workspace.store(), m_id, QString::number(i), QStringLiteral("note"));
    }
    finishTurn();
    QCOMPARE(role(m_model->activities(), 0, "text").toString(), QStringLiteral("59"));
    QCOMPARE(role(m_model->activities(), 0, "dateText").toString(), QStringLiteral("Today"));
    QCOMPARE(m_model->activities()->rowCount(), 10);
    QCOMPARE(m_model->moreActivitiesText(), QStringLiteral("51 more"));
    m_model->showMoreActivities();
    m_model->showMoreActivities();
    QCOMPARE(m_model->activities()->rowCount(), 61);
    QCOMPARE(m_model->moreActivitiesText(), QString());
    m_workspace.advanceHours(24);
    finishTurn();
    QCOMPARE(role(m_model->activities(), 0, "dateText").toString(), QStringLiteral("Yesterday"));
}

void ProjectDetailViewModelTest::followsAnotherProject()
{
    m_model->addTask(QStringLiteral("Dig"));
    const QUuid other = *ProjectOperations::createBlank(m_workspace.store(), QStringLiteral("Shed"));
    m_model->setProjectID(other);
    finishTurn();
    QCOMPARE(m_model->name(), QStringLiteral("Shed"));
    QCOMPARE(m_model->tasks()->rowCount(), 0);
    ProjectOperations::remove(m_workspace.store(), other);
    finishTurn();
    QCOMPARE(m_model->name(), QStringLiteral("Shed"));
}

QTEST_MAIN(ProjectDetailViewModelTest)
#include "tst_projectdetailviewmodel.moc"
