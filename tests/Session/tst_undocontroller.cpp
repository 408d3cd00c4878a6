#include "Harness/TestWorkspace.h"
#include "Session/PageActions.h"
#include "Session/ViewModel.h"

#include <QSignalSpy>
#include <QtTest>

using namespace Qt::StringLiterals;

namespace
{
/// A screen of tasks that writes down what it is told.
class Screen : public ViewModel
{
public:
    explicit Screen(Destination place) : m_place(place) { follow<TaskItem>(); }

    QList<ChangeSet> refreshes;
    QList<QUuid> shown;

protected:
    void refresh(const ChangeSet &changes) override { refreshes.append(changes); }
    bool reveal(const UndoPlace &place) override
    {
        if (place.destination != m_place)
            return false;
        shown.append(place.record);
        return true;
    }

private:
    Destination m_place;
};
} // namespace

class UndoControllerTest : public QObject
{
    Q_OBJECT

private:
    TestWorkspace m_workspace;
    OrvelSession m_session{&m_workspace.store(), &m_workspace.ui()};
    WorkspaceStore &m_store = m_workspace.store();
    UIState &m_ui = m_workspace.ui();
    UndoController &m_undo = *m_session.undo();
    const Destination m_tasks = Destination::to(Destination::Kind::tasks);

private slots:
    void init() { m_workspace.reset(); }

    void goesBackToWhereItHappened()
    {
        m_ui.setSelection(m_tasks);
        const QUuid task = TaskOperations::create(m_store, u"Sail"_s);
        TaskOperations::remove(m_store, task);
        QCOMPARE(m_undo.message(), u"Task deleted"_s);
        QVERIFY(m_undo.messageOffersUndo());
        QCOMPARE(m_undo.undoText(), u"Undo Delete Task"_s);

        m_ui.setSelection(Destination::to(Destination::Kind::notes));
        Screen notes(Destination::to(Destination::Kind::notes));
        notes.setSession(&m_session);
        m_undo.undo();
        QCOMPARE(m_ui.selection(), m_tasks);
        QCOMPARE(m_undo.message(), u"Undone: Delete Task"_s);
        QVERIFY(!m_undo.messageOffersUndo());
        // The screen comes to be only now, as the window goes to the place.
        Screen screen(m_tasks);
        screen.setSession(&m_session);
        QCoreApplication::sendPostedEvents();
        QCOMPARE(screen.shown, QList{task});
        QVERIFY(notes.shown.isEmpty());

        m_undo.redo();
        QCOMPARE(m_ui.selection(), Destination::to(Destination::Kind::notes));
        QVERIFY(!m_store.tasks().contains(task));
        m_undo.undo();
        m_undo.undo();
        QVERIFY(m_store.tasks().isEmpty());
        QVERIFY(!m_undo.canUndo() && m_undo.canRedo());
        QCOMPARE(m_undo.undoText(), u"Undo"_s);
    }

    void saysNothingOfWhatIsInSight()
    {
        m_ui.setSelection(m_tasks);
        TaskOperations::remove(m_store, TaskOperations::create(m_store, u"Sail"_s));
        m_undo.undo();
        QCOMPARE(m_undo.message(), QString());
        TaskOperations::remove(m_store, m_store.tasks().at(0).id);
        QVERIFY(!m_undo.message().isEmpty());
        TaskOperations::create(m_store, u"Row"_s);
        QCOMPARE(m_undo.message(), QString());
    }

    void openPagesComeBackOpen()
    {
        PageActions::create(m_store, m_ui, PageKind::page);
        const QUuid page = m_store.pages().at(0).id;
        QCOMPARE(m_ui.selection(), Destination::page(page));
        PageActions::erase(m_store, m_ui, page);
        QCOMPARE(m_ui.selection(), Destination());
        m_undo.undo();
        QCOMPARE(m_ui.selection(), Destination::page(page));
        m_undo.undo();
        QCOMPARE(m_ui.selection(), Destination());
        QVERIFY(m_store.pages().isEmpty());
    }

    void givesTheCaretOfTyping()
    {
        const QUuid task = TaskOperations::create(m_store, u"Sail"_s);
        TaskOperations::rename(m_store, task, u"Sail b"_s);
        TaskOperations::rename(m_store, task, u"Sail bo"_s);
        m_undo.undo();
        QCOMPARE(m_undo.restored()->textRecord, task);
        QCOMPARE(m_undo.restored()->textField, u"title"_s);
        QCOMPARE(m_undo.restored()->caret, 4);
        m_undo.redo();
        QCOMPARE(m_undo.restored()->caret, 7);
        TaskOperations::cycleStatus(m_store, task);
        QVERIFY(!m_undo.restored());
    }

    void refreshesOnceATurnAndOnlyWhileShown()
    {
        Screen screen(m_tasks);
        screen.setSession(&m_session);
        QCOMPARE(screen.refreshes.size(), 1);
        QVERIFY(screen.refreshes.last().of<TaskItem>().isReloaded);

        const QUuid one = TaskOperations::create(m_store, u"One"_s);
        const QUuid two = TaskOperations::create(m_store, u"Two"_s);
        TaskOperations::remove(m_store, one);
        PageOperations::create(m_store, PageKind::page);
        QCoreApplication::sendPostedEvents();
        QCOMPARE(screen.refreshes.size(), 2);
        QCOMPARE(screen.refreshes.last().of<TaskItem>().inserted, QSet{two});

        screen.setActive(false);
        TaskOperations::cycleStatus(m_store, two);
        QCoreApplication::sendPostedEvents();
        QCOMPARE(screen.refreshes.size(), 2);
        screen.setActive(true);
        QCOMPARE(screen.refreshes.size(), 3);
        QCOMPARE(screen.refreshes.last().of<TaskItem>().replaced, QSet{two});
    }
};

QTEST_GUILESS_MAIN(UndoControllerTest)
#include "tst_undocontroller.moc"
