#include "App/OrvelScreens.h"
#include "DesignSystem/OVTheme.h"
#include "Features/Shell/DetailViewModel.h"
#include "Features/Shell/NavigationViewModel.h"
#include "Features/Shell/OverflowMenuViewModel.h"
#include "Harness/TestWorkspace.h"

#include <QCoreApplication>
#include <QFile>
#include <QSignalSpy>
#include <QTest>
#include <QUuid>

/// What stands around the detail pane, and what it shows.
class ShellViewModelsTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void givesTabsToTheFirstModules_data();
    void givesTabsToTheFirstModules();
    void opensNewPagesAndNotes();
    void overflowListsModulesFavouritesAndPages();
    void overflowOpensPlacesOnly();
    void routesToScreens();
    void tellsWhatIsMissing();
    void themeRebuildsAllButTheSettings();
    void everyScreenOfTheTableExists();

private:
    void show(int modules);

    std::unique_ptr<TestWorkspace> m_workspace;
    std::unique_ptr<OrvelSession> m_session;
    OrvelScreens m_screens;
};

void ShellViewModelsTest::init()
{
    m_session.reset();
    m_workspace = std::make_unique<TestWorkspace>();
    m_workspace->reset();
    m_session = std::make_unique<OrvelSession>(&m_workspace->store(), &m_workspace->ui());
}

/// Hides all modules but the first ones.
void ShellViewModelsTest::show(int modules)
{
    m_workspace->store().changeSettings([modules](AppSettings &settings) {
        for (const EnumCase<OrvelModule> &module : enumCases<OrvelModule>())
            settings.setModule(module.value, int(module.value) < modules);
    });
    QCoreApplication::processEvents();
}

void ShellViewModelsTest::givesTabsToTheFirstModules_data()
{
    QTest::addColumn<int>("modules");
    QTest::addColumn<int>("inlineTabs");
    QTest::addColumn<QStringList>("overflow");
    QTest::newRow("none") << 0 << 0 << QStringList();
    QTest::newRow("three") << 3 << 3 << QStringList();
    QTest::newRow("four") << 4 << 4 << QStringList();
    QTest::newRow("five") << 5 << 4 << QStringList{"Calendar"};
    QTest::newRow("six") << 6 << 4 << QStringList{"Calendar", "Projects"};
}

void ShellViewModelsTest::givesTabsToTheFirstModules()
{
    QFETCH(int, modules);
    QFETCH(int, inlineTabs);
    QFETCH(QStringList, overflow);
    m_workspace->addPage(QStringLiteral("Plan"));
    NavigationViewModel navigation;
    navigation.setSession(m_session.get());
    OverflowMenuViewModel menu;
    menu.setSession(m_session.get());
    menu.setListsModules(true);
    show(modules);
    QCOMPARE(navigation.tabList().size(), modules);
    QCOMPARE(navigation.inlineTabList(), navigation.tabList().first(inlineTabs));
    QStringList listed;
    for (const SidebarRow &row : menu.rowList())
        listed.append(row.title);
    QCOMPARE(listed, overflow + QStringList({"Pages", "Plan"}));

    m_workspace->ui().select(QStringLiteral("calendar"));
    QCOMPARE(navigation.chosenTab(), modules > 4 ? 4 : -1);
    QCOMPARE(navigation.isMoreChosen(), modules > 4);
    m_workspace->ui().select(QStringLiteral("dashboard"));
    QCOMPARE(navigation.chosenTab(), modules > 0 ? 0 : -1);
    QVERIFY(!navigation.isMoreChosen());
    m_workspace->ui().select(QStringLiteral("settings"));
    QVERIFY(!navigation.isMoreChosen());
}

void ShellViewModelsTest::opensNewPagesAndNotes()
{
    NavigationViewModel navigation;
    navigation.setSession(m_session.get());
    navigation.newNote();
    QCOMPARE(m_workspace->store().pages().all().first().kind, PageKind::note);
    navigation.newPage();
    const Page page = m_workspace->store().pages().all().last();
    QCOMPARE(page.kind, PageKind::page);
    QCOMPARE(navigation.selection(), Destination::page(page.id).text());
}

void ShellViewModelsTest::overflowListsModulesFavouritesAndPages()
{
    OverflowMenuViewModel menu;
    menu.setSession(m_session.get());
    QCOMPARE(menu.rowList().size(), 1);
    m_workspace->addPage(QStringLiteral("Plan"), true);
    m_workspace->addPage(QStringLiteral("Inside"), false, m_workspace->addFolder(QStringLiteral("Travel")));
    QCoreApplication::processEvents();
    QStringList listed;
    for (const SidebarRow &row : menu.rowList())
        listed.append(row.title);
    QCOMPARE(listed, QStringList({"Favourites", "Plan", "Pages", "Plan"}));
}

void ShellViewModelsTest::overflowOpensPlacesOnly()
{
    const QUuid page(m_workspace->addPage(QStringLiteral("Plan"), true));
    OverflowMenuViewModel menu;
    menu.setSession(m_session.get());
    QVERIFY(!menu.activate(0));
    QCOMPARE(m_workspace->ui().selection(), Destination());
    QVERIFY(menu.isPlace(1) && !menu.isPlace(2) && menu.isPlace(3) && !menu.isPlace(4));
    QVERIFY(menu.activate(1));
    QCOMPARE(m_workspace->ui().selection(), Destination::page(page));
}

void ShellViewModelsTest::routesToScreens()
{
    DetailViewModel detail;
    detail.setProperty("screens", QVariant::fromValue<ScreenTable *>(&m_screens));
    detail.setSession(m_session.get());
    QCoreApplication::processEvents();
    // A hidden module is shown all the same.
    show(0);
    m_workspace->ui().select(QStringLiteral("relax"));
    QCoreApplication::processEvents();
    QCOMPARE(detail.source(), DetailViewModel::url("Orvel/Relax/RelaxView.qml"));
    m_workspace->ui().select(QStringLiteral("tasks"));
    QCoreApplication::processEvents();
    QCOMPARE(detail.source(), DetailViewModel::url("Orvel/Tasks/TasksView.qml"));
    QVERIFY(detail.properties().isEmpty());
}

void ShellViewModelsTest::tellsWhatIsMissing()
{
    DetailViewModel detail;
    detail.setProperty("screens", QVariant::fromValue<ScreenTable *>(&m_screens));
    detail.setSession(m_session.get());
    const auto shown = [&detail](const char *property) {
        QCoreApplication::processEvents();
        return detail.properties().value(QString::fromLatin1(property)).toString();
    };
    const QUuid page(m_workspace->addPage(QStringLiteral("Plan")));
    m_workspace->ui().selectPage(page);
    QCOMPARE(shown("pageID"), page.toString());
    QCOMPARE(detail.source(), DetailViewModel::url("Orvel/Pages/PageEditorView.qml"));
    m_workspace->store().erase<Page>(page);
    QCOMPARE(shown("symbol"), QStringLiteral("doc.questionmark"));
    QCOMPARE(shown("title"), QStringLiteral("Page not found"));
    QCOMPARE(shown("message"), QStringLiteral("It may have been deleted."));
    QCOMPARE(shown("actionTitle"), QStringLiteral("Back to dashboard"));
    QCOMPARE(shown("destination"), QStringLiteral("dashboard"));
    m_workspace->ui().selectProject(QUuid::createUuid());
    QCOMPARE(shown("symbol"), QStringLiteral("target"));
    QCOMPARE(shown("title"), QStringLiteral("Project not found"));
    QCOMPARE(shown("actionTitle"), QStringLiteral("Back to projects"));
    QCOMPARE(shown("destination"), QStringLiteral("projects"));
}

void ShellViewModelsTest::themeRebuildsAllButTheSettings()
{
    DetailViewModel detail;
    detail.setProperty("screens", QVariant::fromValue<ScreenTable *>(&m_screens));
    detail.setSession(m_session.get());
    QSignalSpy rebuilt(&detail, &DetailViewModel::screenChanged);
    m_workspace->ui().select(QStringLiteral("tasks"));
    QCoreApplication::processEvents();
    QCOMPARE(rebuilt.count(), 1);
    const QString before = detail.identity();
    auto changeTheme = [settings = AppSettings()]() mutable {
        settings.reducedMotion = !settings.reducedMotion;
        OVTheme::apply(settings);
    };
    changeTheme();
    QCoreApplication::processEvents();
    QCOMPARE(rebuilt.count(), 2);
    QVERIFY(detail.identity() != before);
    m_workspace->ui().select(QStringLiteral("settings"));
    QCoreApplication::processEvents();
    QCOMPARE(detail.identity(), QStringLiteral("settings"));
    QCOMPARE(rebuilt.count(), 3);
    changeTheme();
    QCoreApplication::processEvents();
    QCOMPARE(rebuilt.count(), 3);
    m_workspace->ui().select(QStringLiteral("tasks"));
    QCoreApplication::processEvents();
    QCOMPARE(rebuilt.count(), 4);
}

void ShellViewModelsTest::everyScreenOfTheTableExists()
{
    QSet<Destination::Kind> kinds;
    for (const PlaceScreen &screen : m_screens.screens) {
        QVERIFY(!kinds.contains(screen.kind));
        kinds.insert(screen.kind);
        QVERIFY2(QFile::exists(QStringLiteral(":") + DetailViewModel::url(screen.file).path()), screen.file);
    }
    QCOMPARE(kinds.size(), enumCases<Destination::Kind>().size());
}

QTEST_MAIN(ShellViewModelsTest)
#include "tst_shellviewmodels.moc"
