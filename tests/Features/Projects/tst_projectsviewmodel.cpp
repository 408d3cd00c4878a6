#include "Features/Projects/ProjectsViewModel.h"
#include "Harness/ShownRows.h"
#include "Harness/TestWorkspace.h"
#include "Session/ProjectActions.h"
#include "Store/ProjectOperations.h"

#include <QtTest>

using namespace ShownRows;

class ProjectsViewModelTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { m_model.reset(); }

    void cardsTellHowFarTheyAre();
    void cardsTellWhenTheyAreDue();
    void starredProjectsAreTemplates();
    void createsFromBuiltInTemplates();
    void createsBlankProjects();
    void copiesTemplatesWithoutTheirTasks();
    void logsEveryChoiceOfAStatus();
    void aDeleteIsUndoneByOneStep();

private:
    QUuid add(const QString &name) { return *ProjectOperations::createBlank(m_workspace.store(), name); }
    const Project &project(const QUuid &id) { return *m_workspace.store().projects().first(id); }
    QString activities(const QUuid &id)
    {
        QStringList texts;
        for (const Activity *const activity : ProjectOperations::activities(m_workspace.store(), id))
            texts.append(activity->kind + u' ' + activity->text);
        return texts.join(u'|');
    }

    TestWorkspace m_workspace;
    OrvelSession m_session{&m_workspace.store(), &m_workspace.ui()};
    ProjectActions m_actions{&m_session};
    std::unique_ptr<ProjectsViewModel> m_model;
};

void ProjectsViewModelTest::init()
{
    m_workspace.reset();
    m_model = std::make_unique<ProjectsViewModel>();
    m_model->setSession(&m_session);
}

void ProjectsViewModelTest::cardsTellHowFarTheyAre()
{
    WorkspaceStore &store = m_workspace.store();
    QVERIFY(m_model->isEmpty());
    add(QStringLiteral("None"));
    for (const int done : {1, 2}) {
        const QUuid id = add(QString::number(done));
        for (int i = 0; i < 3; ++i)
            ProjectOperations::addTask(store, id, QString::number(i));
        const auto tasks = TaskOperations::ofProject(store, id);
        QList<QUuid> ids;
        for (const TaskItem *const task : tasks)
            ids.append(task->id);
        for (int i = 0; i < done; ++i)
            TaskOperations::toggleDone(store, ids.at(i));
    }
    ProjectOperations::addMilestone(store, store.projects().all().first().id, QStringLiteral("Step"));
    finishTurn();
    QVERIFY(!m_model->isEmpty());
    QCOMPARE(texts(m_model->live(), "tasksText"), QStringLiteral("0/0 tasks|1/3 tasks|2/3 tasks"));
    QCOMPARE(texts(m_model->live(), "percentText"), QStringLiteral("0% complete|33% complete|67% complete"));
    for (const Project &each : store.projects())
        QCOMPARE(ProjectOperations::progress(store, each.id),
                 ProjectOperations::progress(store).value(each.id));
}

void ProjectsViewModelTest::cardsTellWhenTheyAreDue()
{
    const QUuid id = add(QStringLiteral("One"));
    ProjectOperations::setDue(m_workspace.store(), id, m_workspace.clock().now() + std::chrono::hours(15));
    finishTurn();
    QCOMPARE(texts(m_model->live(), "dueText"), QStringLiteral("due Mar 14"));
    m_workspace.clock().setTimeZone(QTimeZone("America/New_York"));
    finishTurn();
    QCOMPARE(texts(m_model->live(), "dueText"), QStringLiteral("due Mar 13"));
    m_workspace.clock().setTimeZone(QTimeZone::utc());
}

void ProjectsViewModelTest::starredProjectsAreTemplates()
{
    const QUuid first = add(QStringLiteral("First"));
    add(QStringLiteral("Second"));
    m_actions.toggleTemplate(first);
    finishTurn();
    QCOMPARE(texts(m_model->live(), "name"), QStringLiteral("Second"));
    QCOMPARE(texts(m_model->templates(), "name"), QStringLiteral("First"));
    m_session.undo()->undo();
    finishTurn();
    QCOMPARE(texts(m_model->live(), "name"), QStringLiteral("First|Second"));
}

void ProjectsViewModelTest::createsFromBuiltInTemplates()
{
    QCOMPARE(texts(m_model->builtInTemplates(), "name"),
             QStringLiteral("Product launch|Study plan|Trip planner|Personal goal"));
    m_model->create(QStringLiteral("nonsense"));
    QVERIFY(m_workspace.store().projects().all().isEmpty());
    m_model->create(QStringLiteral("trip"));
    const Project made = m_workspace.store().projects().all().first();
    QCOMPARE(m_workspace.ui().selection(), Destination::project(made.id));
    QCOMPARE(made.milestones.size(), 3);
    QCOMPARE(TaskOperations::ofProject(m_workspace.store(), made.id).size(), 5);
    QCOMPARE(activities(made.id), QStringLiteral("status Created from the Trip planner template"));
    m_session.undo()->undo();
    QVERIFY(m_workspace.store().projects().all().isEmpty());
    QVERIFY(m_workspace.store().tasks().all().isEmpty());
}

void ProjectsViewModelTest::createsBlankProjects()
{
    m_model->setBlankName(QStringLiteral("  "));
    QVERIFY(!m_model->canCreateBlank());
    QVERIFY(!m_model->createBlank());
    m_model->setBlankName(QStringLiteral(" Garden\nshed "));
    QVERIFY(m_model->createBlank());
    const Project made = m_workspace.store().projects().all().first();
    QCOMPARE(made.name, QStringLiteral("Garden shed"));
    QCOMPARE(m_model->blankName(), QString());
    QCOMPARE(m_workspace.ui().selection(), Destination::project(made.id));
}

void ProjectsViewModelTest::copiesTemplatesWithoutTheirTasks()
{
    WorkspaceStore &store = m_workspace.store();
    const QUuid id = add(QStringLiteral("Client"));
    ProjectOperations::addTask(store, id, QStringLiteral("Call"));
    ProjectOperations::addMilestone(store, id, QStringLiteral("Met"));
    ProjectOperations::toggleMilestone(store, id, project(id).milestones.first().id);
    ProjectOperations::setDue(store, id, store.now());
    m_actions.toggleTemplate(id);
    m_model->useTemplate(id);
    const Project copy = store.projects().all().last();
    QCOMPARE(copy.name, QStringLiteral("Client copy"));
    QVERIFY(!copy.isTemplate && !copy.dueDate);
    QCOMPARE(copy.milestones.size(), 1);
    QVERIFY(!copy.milestones.first().done);
    QVERIFY(copy.milestones.first().id != project(id).milestones.first().id);
    QVERIFY(TaskOperations::ofProject(store, copy.id).isEmpty());
    QCOMPARE(m_workspace.ui().selection(), Destination::project(copy.id));
}

void ProjectsViewModelTest::logsEveryChoiceOfAStatus()
{
    const QUuid id = add(QStringLiteral("One"));
    m_workspace.clock().advance(std::chrono::seconds(1));
    m_actions.setStatus(id, QStringLiteral("onHold"));
    m_workspace.clock().advance(std::chrono::seconds(1));
    m_actions.setStatus(id, QStringLiteral("onHold"));
    m_actions.setStatus(id, QStringLiteral("nonsense"));
    QCOMPARE(activities(id), QStringLiteral("status Status changed to On hold|status Status changed to On "
                                            "hold|status Project created"));
}

void ProjectsViewModelTest::aDeleteIsUndoneByOneStep()
{
    WorkspaceStore &store = m_workspace.store();
    add(QStringLiteral("Before"));
    const QUuid id = add(QStringLiteral("One"));
    add(QStringLiteral("After"));
    ProjectOperations::addTask(store, id, QStringLiteral("Call"));
    m_workspace.ui().selectProject(id);
    finishTurn();
    const Snapshot before = store.snapshot();
    QSignalSpy revealed(m_model.get(), &ProjectsViewModel::revealed);

    m_actions.remove(id);
    QCOMPARE(m_workspace.ui().selection(), Destination::to(Destination::Kind::projects));
    QCOMPARE(m_session.undo()->message(), QStringLiteral("Project deleted"));
    QVERIFY(!store.tasks().all().first().projectID);
    QCOMPARE(activities(id), QString());
    m_session.undo()->undo();
    QCOMPARE(store.snapshot(), before);
    QCOMPARE(m_workspace.ui().selection(), Destination::project(id));

    m_workspace.ui().select(QStringLiteral("projects"));
    m_actions.remove(id);
    m_session.undo()->undo();
    finishTurn();
    QCOMPARE(revealed.count(), 1);
    QCOMPARE(revealed.first().first().toInt(), 1);
}

QTEST_MAIN(ProjectsViewModelTest)
#include "tst_projectsviewmodel.moc"
