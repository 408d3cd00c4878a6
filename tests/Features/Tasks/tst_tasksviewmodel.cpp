#include "Features/Tasks/TasksViewModel.h"
#include "Harness/TestWorkspace.h"
#include "Session/TaskActions.h"

#include <QAbstractItemModelTester>
#include <QtTest>

namespace
{
using enum TaskFilter;

void finishTurn()
{
    QCoreApplication::sendPostedEvents();
}
} // namespace

class TasksViewModelTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void addsTheTaskOfTheForm_data();
    void addsTheTaskOfTheForm();
    void blankTitlesAddNothing();
    void laysOutRows_data();
    void laysOutRows();
    void rowsTellHowTheyLook_data();
    void rowsTellHowTheyLook();
    void completedTasksFold();
    void runsOfTasksHaveEnds();
    void writesWhatTheRowDoes();
    void titlesStayOnOneLine();
    void labelsFollowTheClock();
    void upcomingTasksLeaveWhenTheirMomentComes();
    void aKeyTypedChangesOneRow();
    void standsStillWhileHidden();
    void manyChangesMakeOneLayout();

private:
    /// The rows as "title title |2 title", the header being a bar and its count.
    QString rows() const
    {
        QStringList texts;
        for (int row = 0; row < m_model->rows()->rowCount(); ++row)
            texts.append(role(row, "kind") == QStringLiteral("task") ? role(row, "title").toString()
                                                                     : u'|' + role(row, "count").toString());
        return texts.join(u' ');
    }
    QVariant role(int row, const QByteArray &name) const
    {
        const QAbstractItemModel *const model = m_model->rows();
        return model->index(row, 0).data(model->roleNames().key(name));
    }
    Choice choice(const QByteArray &name) const { return role(0, name).value<Choice>(); }
    QUuid id(int row) const { return role(row, "taskID").toUuid(); }
    void add(const QString &title, const char *status = "todo", double dueInHours = qQNaN())
    {
        m_workspace.addTask(title, QString::fromLatin1(status), QStringLiteral("medium"), dueInHours);
        finishTurn();
    }
    void show(TaskFilter filter)
    {
        m_model->setFilter(enumRawText(filter));
        finishTurn();
    }

    TestWorkspace m_workspace;
    OrvelSession m_session{&m_workspace.store(), &m_workspace.ui()};
    TaskActions m_actions{&m_session};
    std::unique_ptr<TasksViewModel> m_model;
    std::unique_ptr<QAbstractItemModelTester> m_tester;
};

void TasksViewModelTest::init()
{
    m_workspace.reset();
    m_model = std::make_unique<TasksViewModel>();
    m_model->setSession(&m_session);
    m_tester = std::make_unique<QAbstractItemModelTester>(m_model->rows());
}

void TasksViewModelTest::cleanup()
{
    m_tester.reset();
    m_model.reset();
}

void TasksViewModelTest::addsTheTaskOfTheForm_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<bool>("dueEnabled");
    QTest::addColumn<int>("priority");
    QTest::addColumn<QString>("title");
    QTest::newRow("as it stands") << "Write" << false << 1 << "Write";
    QTest::newRow("trimmed, inner blanks kept") << " \tTwo  words \n" << false << 0 << "Two  words";
    QTest::newRow("due") << "Pay" << true << 2 << "Pay";
    QTest::newRow("pasted over two lines") << "One\nTwo" << false << 1 << "One Two";
}

void TasksViewModelTest::addsTheTaskOfTheForm()
{
    QFETCH(QString, typed);
    QFETCH(bool, dueEnabled);
    QFETCH(int, priority);
    QFETCH(QString, title);
    const QDateTime due = m_model->property("due").toDateTime().addDays(3);
    m_model->setTitle(typed);
    m_model->setProperty("dueEnabled", dueEnabled);
    m_model->setProperty("due", due);
    m_model->setPriority(enumRawText(TaskPriority(priority)));
    m_model->addTask();

    QCOMPARE(m_workspace.store().tasks().size(), 1);
    const TaskItem task = m_workspace.store().tasks().all().first();
    QCOMPARE(task.title, title);
    QCOMPARE(task.status, TaskStatus::todo);
    QCOMPARE(int(task.priority), priority);
    QCOMPARE(task.dueDate, dueEnabled ? std::optional(toTimestamp(due)) : std::nullopt);
    QCOMPARE(task.createdDate, m_workspace.clock().now());

    QCOMPARE(m_model->title(), QString());
    QCOMPARE(m_model->canAdd(), false);
    QCOMPARE(m_model->property("dueEnabled").toBool(), false);
    QCOMPARE(m_model->priority(), u"medium");
    QCOMPARE(m_model->property("due").toDateTime(), due);
}

void TasksViewModelTest::blankTitlesAddNothing()
{
    m_model->setTitle(QStringLiteral(" \n "));
    m_model->setProperty("dueEnabled", true);
    m_model->addTask();
    QVERIFY(m_workspace.store().tasks().isEmpty());
    QCOMPARE(m_model->title(), QStringLiteral(" \n "));
    QVERIFY(m_model->property("dueEnabled").toBool());
}

void TasksViewModelTest::laysOutRows_data()
{
    QTest::addColumn<int>("filter");
    QTest::addColumn<bool>("showDone");
    QTest::addColumn<QString>("rows");
    QTest::addColumn<QString>("count");
    QTest::newRow("all") << int(all) << false << "late now soon plain done gone" << "6 open";
    QTest::newRow("all ignores folding") << int(all) << true << "late now soon plain done gone" << "6 open";
    QTest::newRow("open") << int(open) << false << "late now soon plain |2" << "4 open";
    QTest::newRow("open unfolded") << int(open) << true << "late now soon plain |2 done gone" << "4 open";
    QTest::newRow("today") << int(today) << false << "now |2" << "1 open";
    QTest::newRow("upcoming") << int(upcoming) << true << "soon |2 done gone" << "1 open";
}

void TasksViewModelTest::laysOutRows()
{
    add(QStringLiteral("done"), "done");
    add(QStringLiteral("late"), "todo", -48);
    add(QStringLiteral("now"), "inProgress", -1);
    add(QStringLiteral("gone"), "done", 1);
    add(QStringLiteral("soon"), "todo", 48);
    add(QStringLiteral("plain"));
    QFETCH(int, filter);
    QFETCH(bool, showDone);
    m_model->setShowDone(showDone);
    show(TaskFilter(filter));
    QTEST(rows(), "rows");
    QTEST(m_model->countText(), "count");
    QCOMPARE(m_model->isEmpty(), false);
}

void TasksViewModelTest::rowsTellHowTheyLook_data()
{
    QTest::addColumn<QString>("status");
    QTest::addColumn<QString>("priority");
    QTest::addColumn<double>("dueInHours");
    QTest::addColumn<QString>("look");
    QTest::newRow("undated") << "todo" << "low" << qQNaN() << "To do circle 0/low 0/";
    QTest::newRow("an hour ago today")
        << "inProgress" << "medium" << -1.0 << "In progress circle.dotted 2/medium 2/Today";
    QTest::newRow("overdue") << "todo" << "high" << -24.0 << "To do circle 0/high 4/Mar 12 overdue";
    QTest::newRow("done is never overdue")
        << "done" << "high" << -24.0 << "Done checkmark.circle.fill 3/high 4/Mar 12";
    QTest::newRow("next week") << "todo" << "low" << 24.0 * 7 << "To do circle 0/low 0/Mar 20";
}

void TasksViewModelTest::rowsTellHowTheyLook()
{
    QFETCH(QString, status);
    QFETCH(QString, priority);
    QFETCH(double, dueInHours);
    m_workspace.addTask(QStringLiteral("Task"), status, priority, dueInHours);
    finishTurn();
    const QString look = QStringLiteral("%1 %2 %3/%4 %5/%6%7")
                             .arg(choice("status").label, choice("status").symbol,
                                  QString::number(choice("status").tone), choice("priority").raw,
                                  QString::number(choice("priority").tone), role(0, "dueText").toString(),
                                  role(0, "isOverdue").toBool() ? QStringLiteral(" overdue") : QString());
    QTEST(look, "look");
    QCOMPARE(role(0, "due").toDateTime().isValid(), !qIsNaN(dueInHours));
}

void TasksViewModelTest::completedTasksFold()
{
    show(open);
    QVERIFY(m_model->isEmpty());
    add(QStringLiteral("a"));
    add(QStringLiteral("b"));
    QCOMPARE(rows(), QStringLiteral("a b"));

    m_actions.setStatus(id(0), QStringLiteral("done"));
    finishTurn();
    QCOMPARE(rows(), QStringLiteral("b |1"));
    m_model->setShowDone(true);
    finishTurn();
    QCOMPARE(rows(), QStringLiteral("b |1 a"));

    m_actions.remove(id(2));
    finishTurn();
    QCOMPARE(rows(), QStringLiteral("b"));
    m_actions.remove(id(0));
    finishTurn();
    QVERIFY(m_model->isEmpty());
}

void TasksViewModelTest::runsOfTasksHaveEnds()
{
    add(QStringLiteral("a"));
    add(QStringLiteral("b"));
    add(QStringLiteral("c"), "done");
    const auto ends = [this] {
        QString text;
        for (int row = 0; row < m_model->rows()->rowCount(); ++row)
            text += QStringLiteral("%1%2 ")
                        .arg(int(role(row, "isFirst").toBool()))
                        .arg(int(role(row, "isLast").toBool()));
        return text.trimmed();
    };
    QCOMPARE(ends(), QStringLiteral("10 00 01"));
    m_model->setShowDone(true);
    show(open);
    QCOMPARE(ends(), QStringLiteral("10 01 00 11"));
    m_actions.rename(id(0), QStringLiteral("A"));
    finishTurn();
    QCOMPARE(ends(), QStringLiteral("10 01 00 11"));
}

void TasksViewModelTest::writesWhatTheRowDoes()
{
    add(QStringLiteral("a"));
    const QUuid task = id(0);
    const auto stored = [&] { return *m_workspace.store().tasks().first(task); };
    m_actions.cycleStatus(task);
    QCOMPARE(stored().status, TaskStatus::inProgress);
    m_actions.setStatus(task, QStringLiteral("done"));
    QCOMPARE(stored().completedDate, m_workspace.clock().now());
    m_actions.setStatus(task, QStringLiteral("todo"));
    QVERIFY(!stored().completedDate);
    m_actions.setStatus(task, QStringLiteral("lost"));
    QCOMPARE(stored().status, TaskStatus::todo);
    m_actions.cyclePriority(task);
    QCOMPARE(stored().priority, TaskPriority::high);
    m_actions.setPriority(task, QStringLiteral("low"));
    QCOMPARE(stored().priority, TaskPriority::low);
    const QDateTime due(QDate(2026, 4, 1), QTime(8, 0), Qt::UTC);
    m_actions.setDue(task, due);
    QCOMPARE(stored().dueDate, toTimestamp(due));
    m_actions.clearDue(task);
    QVERIFY(!stored().dueDate);
}

void TasksViewModelTest::titlesStayOnOneLine()
{
    add(QStringLiteral("a"));
    m_workspace.clock().advance(std::chrono::minutes(5));
    m_actions.rename(id(0), QStringLiteral(" One\r\nTwo "));
    const TaskItem task = m_workspace.store().tasks().all().first();
    QCOMPARE(task.title, QStringLiteral(" One  Two "));
    QCOMPARE(task.updatedDate, m_workspace.clock().now());
}

void TasksViewModelTest::labelsFollowTheClock()
{
    add(QStringLiteral("a"), "todo", 1);
    QCOMPARE(role(0, "dueText").toString(), QStringLiteral("Today"));
    m_workspace.advanceHours(24);
    finishTurn();
    QCOMPARE(role(0, "dueText").toString(), QStringLiteral("Mar 13"));
    QVERIFY(role(0, "isOverdue").toBool());
    m_workspace.clock().setTimeZone(QTimeZone(QByteArrayLiteral("Pacific/Kiritimati")));
    finishTurn();
    QCOMPARE(role(0, "dueText").toString(), QStringLiteral("Today"));
    m_workspace.clock().setTimeZone(QTimeZone::utc());
}

void TasksViewModelTest::upcomingTasksLeaveWhenTheirMomentComes()
{
    add(QStringLiteral("soon"), "todo", 1);
    add(QStringLiteral("later"), "todo", 3);
    show(upcoming);
    QCOMPARE(rows(), QStringLiteral("soon later"));
    m_workspace.advanceHours(1);
    finishTurn();
    QCOMPARE(rows(), QStringLiteral("later"));
}

void TasksViewModelTest::aKeyTypedChangesOneRow()
{
    add(QStringLiteral("a"));
    add(QStringLiteral("b"));
    QSignalSpy changed(m_model->rows(), &QAbstractItemModel::dataChanged);
    QSignalSpy filtered(m_model.get(), &TasksViewModel::filteredChanged);
    m_actions.rename(id(1), QStringLiteral("bb"));
    finishTurn();
    QCOMPARE(changed.count(), 1);
    QCOMPARE(changed.first().at(0).toModelIndex().row(), 1);
    const int title = m_model->rows()->roleNames().key(QByteArrayLiteral("title"));
    QCOMPARE(changed.first().at(2).value<QList<int>>(), QList<int>{title});
    QCOMPARE(rows(), QStringLiteral("a bb"));
    QCOMPARE(filtered.count(), 0);
}

void TasksViewModelTest::standsStillWhileHidden()
{
    m_model->setActive(false);
    add(QStringLiteral("a"));
    QCOMPARE(rows(), QString());
    m_model->setActive(true);
    QCOMPARE(rows(), QStringLiteral("a"));
    QVERIFY(!m_model->isEmpty());
}

void TasksViewModelTest::manyChangesMakeOneLayout()
{
    QSignalSpy inserted(m_model->rows(), &QAbstractItemModel::rowsInserted);
    m_workspace.addTask(QStringLiteral("a"));
    m_workspace.addTask(QStringLiteral("b"));
    m_model->setFilter(enumRawText(open));
    finishTurn();
    QCOMPARE(inserted.count(), 1);
    QCOMPARE(rows(), QStringLiteral("a b"));
}

QTEST_GUILESS_MAIN(TasksViewModelTest)
#include "tst_tasksviewmodel.moc"
