#include "Features/Pages/PageMenuViewModel.h"
#include "Features/Shell/SidebarViewModel.h"
#include "Harness/TestWorkspace.h"
#include "Store/PageOperations.h"
#include "Store/TaskOperations.h"

#include <QAbstractItemModel>
#include <QAbstractItemModelTester>
#include <QCoreApplication>
#include <QSignalSpy>
#include <QTest>
#include <QUuid>

class SidebarViewModelTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void laysOutTheWholeColumn();
    void showsAGroupOnlyWithItsModules();
    void foldsSectionsAndFolders();
    void walksWithTheKeyboard();
    void currentRowStaysWithWhatItStandsFor();
    void showsWhatChangesOnAPage();
    void typingElsewhereChangesNoRow();
    void countsOpenTasks();
    void makesFoldersFromTrimmedNames();
    void renamesFolders();
    void deletesPagesAndFolders();
    void offersWhatCanBeDoneWithAPage();
    void followsNothingWhileHidden();

private:
    QStringList shown();
    int rowOf(const QString &title);
    void fold(const QString &title);

    std::unique_ptr<TestWorkspace> m_workspace;
    std::unique_ptr<OrvelSession> m_session;
    std::unique_ptr<SidebarViewModel> m_sidebar;
};

void SidebarViewModelTest::init()
{
    m_sidebar.reset();
    m_session.reset();
    m_workspace = std::make_unique<TestWorkspace>();
    m_workspace->reset();
    for (const EnumCase<OrvelModule> &module : enumCases<OrvelModule>())
        if (module.value != OrvelModule::dashboard && module.value != OrvelModule::tasks)
            m_workspace->hideModule(enumRawText(module.value));
    m_sidebar = std::make_unique<SidebarViewModel>();
    m_session = std::make_unique<OrvelSession>(&m_workspace->store(), &m_workspace->ui());
    m_sidebar->setSession(m_session.get());
    new QAbstractItemModelTester(m_sidebar->rows(), QAbstractItemModelTester::FailureReportingMode::QtTest,
                                 m_sidebar.get());
}

/// The rows below the quick actions, each with what it would show.
QStringList SidebarViewModelTest::shown()
{
    QCoreApplication::processEvents();
    QStringList all;
    for (const SidebarRow &row : m_sidebar->rowList().sliced(2)) {
        QString text = QString(row.depth * 2, u' ') + row.title;
        if (!row.detail.isEmpty())
            text += u'|' + row.detail;
        if (row.isCollapsed)
            text += QStringLiteral(" +");
        if (row.isEditing)
            text += QStringLiteral(" ...");
        all.append(text);
    }
    return all;
}

int SidebarViewModelTest::rowOf(const QString &title)
{
    QCoreApplication::processEvents();
    const auto &rows = m_sidebar->rowList();
    return int(std::ranges::find(rows, title, &SidebarRow::title) - rows.begin());
}

void SidebarViewModelTest::fold(const QString &title)
{
    m_sidebar->activate(rowOf(title));
}

void SidebarViewModelTest::laysOutTheWholeColumn()
{
    const QStringList empty{
        "Dashboard", "Workspaces", "Tasks", "Pages", "No pages yet. Create your first one.", "New folder"};
    QCOMPARE(shown(), empty);
    QCOMPARE(m_sidebar->rowList().at(0).detail, QStringLiteral("Ctrl K"));

    const QString later = m_workspace->addFolder(QStringLiteral("Travel"));
    m_workspace->addPage(QStringLiteral("Loose"));
    m_workspace->addPage(QStringLiteral("Pinned"), true, later);
    m_workspace->store().change<Page>(PageOperations::create(m_workspace->store(), PageKind::note),
                                      [](Page &note) {
                                          note.title = QStringLiteral("Note");
                                          note.isFavorite = true;
                                          note.sortOrder = 0;
                                      });
    m_workspace->addPage(QStringLiteral("Lost"), false, QUuid::createUuid().toString());
    const QStringList full{"Dashboard", "Workspaces", "Tasks",  "Favorites", "Note",      "Pinned",
                           "Pages",     "Loose",      "Travel", "  Pinned",  "New folder"};
    QCOMPARE(shown(), full);
}

void SidebarViewModelTest::showsAGroupOnlyWithItsModules()
{
    m_workspace->hideModule(QStringLiteral("tasks"));
    QVERIFY(!shown().contains(QStringLiteral("Workspaces")));
    m_workspace->hideModule(QStringLiteral("dashboard"));
    QCOMPARE(shown().first(), QStringLiteral("Pages"));
}

void SidebarViewModelTest::foldsSectionsAndFolders()
{
    const QString folder = m_workspace->addFolder(QStringLiteral("Travel"));
    m_workspace->addPage(QStringLiteral("Loose"), true);
    m_workspace->addPage(QStringLiteral("Inside"), false, folder);
    for (const char *title : {"Favorites", "Pages", "Travel"})
        fold(QString::fromLatin1(title));
    QCOMPARE(shown().sliced(3), (QStringList{"Favorites +", "Pages +", "Travel +", "New folder"}));
    fold(QStringLiteral("Travel"));
    QVERIFY(shown().contains(QStringLiteral("  Inside")));
}

void SidebarViewModelTest::walksWithTheKeyboard()
{
    const QString folder = m_workspace->addFolder(QStringLiteral("Travel"));
    m_workspace->addPage(QStringLiteral("Inside"), false, folder);
    QVERIFY(!m_sidebar->isStop(rowOf(QStringLiteral("Workspaces"))));
    QVERIFY(m_sidebar->isStop(rowOf(QStringLiteral("Pages"))));
    QVERIFY(!m_sidebar->isStop(-1));

    const int tasks = rowOf(QStringLiteral("Tasks"));
    const int travel = rowOf(QStringLiteral("Travel"));
    QCOMPARE(m_sidebar->moveIn(travel), travel + 1);
    QCOMPARE(m_sidebar->moveOut(travel + 1), travel);
    QCOMPARE(m_sidebar->moveOut(travel), travel);
    QVERIFY(shown().contains(QStringLiteral("Travel +")));
    QCOMPARE(m_sidebar->moveIn(travel), travel);
    QVERIFY(shown().contains(QStringLiteral("Travel")));
    QCOMPARE(m_sidebar->moveOut(tasks), tasks);
    QCOMPARE(m_sidebar->moveIn(rowOf(QStringLiteral("Pages"))), rowOf(QStringLiteral("Pages")));
}

void SidebarViewModelTest::currentRowStaysWithWhatItStandsFor()
{
    const auto current = [this] {
        QCoreApplication::processEvents();
        return m_sidebar->rowList().at(m_sidebar->currentRow()).title;
    };
    QCOMPARE(current(), QStringLiteral("Dashboard"));
    const QString folder = m_workspace->addFolder(QStringLiteral("Travel"));
    const QUuid plan(m_workspace->addPage(QStringLiteral("Plan")));
    m_workspace->ui().selectPage(plan);
    QCOMPARE(current(), QStringLiteral("Plan"));
    m_workspace->addPage(QStringLiteral("Before"), true);
    QCOMPARE(current(), QStringLiteral("Plan"));

    // A page that goes out of sight leaves the keyboard on its folder; one that is selected opens it.
    fold(QStringLiteral("Travel"));
    PageOperations::move(m_workspace->store(), plan, QUuid(folder));
    QCOMPARE(current(), QStringLiteral("Travel"));
    m_workspace->ui().select(QStringLiteral("tasks"));
    QCOMPARE(current(), QStringLiteral("Tasks"));
    m_workspace->ui().selectPage(plan);
    QCOMPARE(current(), QStringLiteral("Plan"));

    m_sidebar->remove(m_sidebar->currentRow());
    QCOMPARE(current(), QStringLiteral("New folder"));
    m_sidebar->setCurrentRow(rowOf(QStringLiteral("Travel")));
    m_sidebar->remove(m_sidebar->currentRow());
    QCOMPARE(current(), QStringLiteral("New folder"));
}

void SidebarViewModelTest::showsWhatChangesOnAPage()
{
    const QUuid page(m_workspace->addPage(QStringLiteral("Plan"), true));
    QCOMPARE(shown().count(QStringLiteral("Plan")), 2);
    m_workspace->store().change<Page>(page, [](Page &changed) { changed.title = QStringLiteral("Plans"); });
    QCOMPARE(shown().count(QStringLiteral("Plans")), 2);
    m_workspace->store().change<Page>(page, [](Page &changed) { changed.title.clear(); });
    QCOMPARE(shown().count(QStringLiteral("Untitled")), 2);
    m_workspace->store().change<Page>(page, [](Page &changed) {
        changed.title = QStringLiteral("Plan");
        changed.icon = QStringLiteral("🌱");
        changed.isFavorite = false;
    });
    QCOMPARE(shown().count(QStringLiteral("Plan")), 1);
    QCOMPARE(m_sidebar->rowList().at(rowOf(QStringLiteral("Plan"))).emoji, QStringLiteral("🌱"));
}

void SidebarViewModelTest::typingElsewhereChangesNoRow()
{
    const QUuid page(m_workspace->addPage(QStringLiteral("Plan"), true));
    const QUuid task(m_workspace->addTask(QStringLiteral("Write")));
    shown();
    QSignalSpy changed(m_sidebar->rows(), &QAbstractItemModel::dataChanged);
    QSignalSpy laidOut(m_sidebar->rows(), &QAbstractItemModel::rowsInserted);
    m_workspace->advanceHours(1);
    m_workspace->store().change<Page>(page, [](Page &typed) {
        typed.content[0].text = QStringLiteral("One more word");
        typed.updatedDate += std::chrono::seconds(1);
    });
    TaskOperations::rename(m_workspace->store(), task, QStringLiteral("Write it"));
    shown();
    QVERIFY(changed.isEmpty() && laidOut.isEmpty());
}

void SidebarViewModelTest::countsOpenTasks()
{
    const QUuid task(m_workspace->addTask(QStringLiteral("Write")));
    m_workspace->addTask(QStringLiteral("Read"), QStringLiteral("inProgress"));
    m_workspace->addTask(QStringLiteral("Rest"), QStringLiteral("done"));
    QVERIFY(shown().contains(QStringLiteral("Tasks|2")));
    TaskOperations::toggleDone(m_workspace->store(), task);
    QVERIFY(shown().contains(QStringLiteral("Tasks|1")));
}

void SidebarViewModelTest::makesFoldersFromTrimmedNames()
{
    const auto name = [this](const QString &text) {
        m_sidebar->activate(rowOf(QStringLiteral("New folder")));
        QVERIFY(m_sidebar->isNaming());
        QCOMPARE(shown().last(), QStringLiteral("New folder ..."));
        m_sidebar->setProperty("nameText", text);
        m_sidebar->commitName();
        QVERIFY(!m_sidebar->isNaming());
        QCOMPARE(shown().last(), QStringLiteral("New folder"));
    };
    name(QStringLiteral("  \n"));
    QVERIFY(m_workspace->store().folders().isEmpty());
    name(QStringLiteral(" Travel "));
    QCOMPARE(m_workspace->store().folders().all().first().name, QStringLiteral("Travel"));
    QCOMPARE(m_workspace->store().folders().all().first().icon, QStringLiteral("📁"));
    QCOMPARE(m_sidebar->currentRow(), rowOf(QStringLiteral("Travel")));
    // The field may commit once more while it goes.
    m_sidebar->commitName();
    QCOMPARE(m_workspace->store().folders().size(), 1);
}

void SidebarViewModelTest::renamesFolders()
{
    m_workspace->addFolder(QStringLiteral("Travel"));
    const auto rename = [this](const QString &text) {
        m_sidebar->beginRename(rowOf(QStringLiteral("Travel")));
        QVERIFY(shown().contains(QStringLiteral("Travel ...")));
        QCOMPARE(m_sidebar->property("nameText"), QStringLiteral("Travel"));
        m_sidebar->setProperty("nameText", text);
        // The key that began it changes nothing of what was typed.
        m_sidebar->beginRename(rowOf(QStringLiteral("Travel")));
        QCOMPARE(m_sidebar->property("nameText"), text);
        m_sidebar->commitName();
    };
    rename(QStringLiteral("   "));
    rename(QStringLiteral(" Journeys "));
    m_sidebar->setProperty("nameText", QStringLiteral("Late"));
    m_sidebar->commitName();
    QVERIFY(shown().contains(QStringLiteral("Journeys")));
    m_sidebar->beginRename(rowOf(QStringLiteral("Tasks")));
    QVERIFY(!m_sidebar->isNaming());
}

void SidebarViewModelTest::deletesPagesAndFolders()
{
    const QString folder = m_workspace->addFolder(QStringLiteral("Travel"));
    const QUuid inside(m_workspace->addPage(QStringLiteral("Inside"), false, folder));
    const QUuid other(m_workspace->addPage(QStringLiteral("Other")));
    m_workspace->ui().selectPage(inside);
    m_sidebar->remove(rowOf(QStringLiteral("Other")));
    QCOMPARE(m_workspace->ui().selection(), Destination::page(inside));
    QVERIFY(!m_workspace->store().pages().first(other));

    m_sidebar->remove(rowOf(QStringLiteral("Travel")));
    QVERIFY(m_workspace->store().folders().isEmpty());
    QVERIFY(shown().contains(QStringLiteral("Inside")));

    // When the deletion is told, the window already shows another place.
    QObject::connect(&m_workspace->store(), &WorkspaceStore::changed, this,
                     [this] { QCOMPARE(m_workspace->ui().selection(), Destination()); });
    m_sidebar->remove(rowOf(QStringLiteral("Inside")));
    QVERIFY(m_workspace->store().pages().isEmpty());
    m_sidebar->remove(rowOf(QStringLiteral("Tasks")));
    m_sidebar->remove(-1);
}

void SidebarViewModelTest::offersWhatCanBeDoneWithAPage()
{
    WorkspaceStore &store = m_workspace->store();
    const QUuid folder(m_workspace->addFolder(QStringLiteral("Travel")));
    const QUuid page(m_workspace->addPage(QStringLiteral("Plan")));
    OrvelSession session(&store, &m_workspace->ui());
    PageMenuViewModel menu;
    menu.setSession(&session);
    menu.open(page);
    QCOMPARE(menu.favoriteTitle(), QStringLiteral("Add to favorites"));
    const QList<FolderChoice> loose{{{}, "No folder", true}, {folder, "Travel", false}};
    QCOMPARE(menu.folderList(), loose);
    menu.toggleFavorite();
    menu.moveTo(folder);
    menu.open(page);
    QCOMPARE(menu.favoriteTitle(), QStringLiteral("Remove from favorites"));
    QVERIFY(menu.folderList().at(1).isCurrent);
    menu.moveTo({});
    QCOMPARE(PageOperations::loose(store).size(), 1);
    menu.duplicate();
    QCOMPARE(store.pages().all().last().title, QStringLiteral("Plan copy"));
    m_workspace->ui().selectPage(page);
    menu.remove();
    QCOMPARE(m_workspace->ui().selection(), Destination());
    QVERIFY(!store.pages().first(page));
}

void SidebarViewModelTest::followsNothingWhileHidden()
{
    const QUuid page(m_workspace->addPage(QStringLiteral("Plan")));
    shown();
    m_sidebar->setActive(false);
    m_workspace->store().change<Page>(page, [](Page &changed) { changed.title = QStringLiteral("Plans"); });
    m_workspace->addTask(QStringLiteral("Write"));
    const QStringList before = shown();
    QVERIFY(before.contains(QStringLiteral("Plan")) && before.contains(QStringLiteral("Tasks")));
    m_sidebar->setActive(true);
    const QStringList after = shown();
    QVERIFY(after.contains(QStringLiteral("Plans")) && after.contains(QStringLiteral("Tasks|1")));
}

QTEST_MAIN(SidebarViewModelTest)
#include "tst_sidebarviewmodel.moc"
