#include "Features/Palette/PaletteViewModel.h"
#include "Harness/TestWorkspace.h"
#include "Store/PageOperations.h"

#include <QAbstractItemModelTester>
#include <QTest>
#include <QUuid>

using namespace Qt::StringLiterals;

class PaletteViewModelTest : public QObject
{
    Q_OBJECT

private:
    TestWorkspace m_workspace;
    PreparedSearch m_search{m_workspace.store()};
    std::unique_ptr<PaletteViewModel> m_model;
    std::unique_ptr<QAbstractItemModelTester> m_tester;

    WorkspaceStore &store() { return m_workspace.store(); }
    UIState &ui() { return m_workspace.ui(); }

    /// The rows as "HEADER: title title HEADER: title".
    QString rows() const
    {
        QStringList texts;
        for (const PaletteRow &row : m_model->rowList()) {
            if (!row.header.isEmpty())
                texts.append(row.header + u':');
            texts.append(row.name);
        }
        return texts.join(u' ');
    }
    void ask(const QString &query)
    {
        ui().setSearchPresented(true);
        m_model->begin();
        m_model->setQuery(query);
    }
    void addProject(const QString &name, const QString &icon)
    {
        store().add(Project{.id = QUuid::createUuid(), .name = name, .icon = icon});
    }

private slots:
    void init()
    {
        m_workspace.reset();
        m_model = std::make_unique<PaletteViewModel>();
        m_model->setProperty("store", QVariant::fromValue(&store()));
        m_model->setProperty("search", QVariant::fromValue(&m_search));
        m_model->setUi(&ui());
        m_tester = std::make_unique<QAbstractItemModelTester>(m_model->rows());
        m_model->begin();
    }
    void cleanup()
    {
        m_tester.reset();
        m_model.reset();
    }

    void beginsWithVisibleModulesAndRecentPages()
    {
        QCOMPARE(rows(), u"QUICK LINKS: Dashboard Today Focus Tasks Calendar Projects"_s);
        QCOMPARE(m_model->rowList().first().keys, u"Ctrl 1"_s);

        for (int i = 0; i < 7; ++i) {
            m_workspace.addPage(i == 6 ? u"  "_s : u"P%1"_s.arg(i));
            m_workspace.clock().advance(std::chrono::minutes(1));
        }
        PageOperations::create(store(), PageKind::note);
        const QUuid oldest = store().pages().all().first().id;
        store().change<Page>(oldest, [this](Page &page) { page.updatedDate = m_workspace.clock().now(); });
        m_workspace.hideModule(u"dashboard"_s);
        m_workspace.hideModule(u"tasks"_s);
        m_model->begin();
        QCOMPARE(rows(), u"RECENT: P0 Untitled P5 P4 P3 "
                         "QUICK LINKS: Today Focus Calendar Projects Notes Databases"_s);
        QCOMPARE(m_model->groupCount(), 2);

        m_workspace.showModules({});
        m_model->begin();
        QCOMPARE(rows(), u"RECENT: P0 Untitled P5 P4 P3"_s);
        ask(u" \n "_s);
        QCOMPARE(rows(), u"RECENT: P0 Untitled P5 P4 P3"_s);
        QVERIFY(!m_model->isNothingFound());
    }

    void placesVisitedComeFirst()
    {
        OrvelSession session(&store(), &ui());
        m_model->setProperty("session", QVariant::fromValue(&session));
        const QUuid page(m_workspace.addPage(u"Harbour"_s));
        m_workspace.addPage(u"Quay"_s);
        const QUuid deck(m_workspace.addDeck(u"Pitch"_s, {}));
        for (const Destination &place :
             {Destination::page(page), Destination::to(Destination::Kind::tasks), Destination::deck(deck),
              Destination::to(Destination::Kind::settings)})
            ui().setSelection(place);
        m_model->begin();
        QVERIFY2(rows().startsWith(u"RECENT: Pitch Tasks Harbour Dashboard Quay QUICK LINKS: Today"_s),
                 qPrintable(rows()));
        m_model->openHighlighted();
        QCOMPARE(ui().selection(), Destination::deck(deck));
        m_workspace.deletePage(page.toString());
        m_model->begin();
        QVERIFY2(rows().startsWith(u"RECENT: Settings Tasks Dashboard Quay"_s), qPrintable(rows()));
    }

    void commandsAreOfferedBehindTheRecords()
    {
        struct Commands : CommandSource {
            QList<NamedCommand> namedCommands() override
            {
                return {{u"newPage"_s, u"New Page"_s, u"Ctrl N"_s}, {u"sidebar"_s, u"Toggle Sidebar"_s, {}}};
            }
            void runCommand(const QString &id) override { given.append(id); }
            QStringList given;
        } commands;
        OrvelSession session(&store(), &ui());
        session.setCommands(&commands);
        m_model->setProperty("session", QVariant::fromValue(&session));
        m_workspace.addPage(u"A new page"_s);
        ask(u"NEW P"_s);
        QCOMPARE(rows(), u"PAGE: A new page COMMANDS: New Page"_s);
        QCOMPARE(m_model->rowList().last().keys, u"Ctrl N"_s);
        m_model->open(1);
        QVERIFY(!ui().isSearchPresented());
        QTRY_COMPARE(commands.given, QStringList{u"newPage"_s});
    }

    void aRecordIsAskedToShowWhatWasLookedFor()
    {
        const QUuid page(m_workspace.addPage(u"plan"_s));
        ask(u" plan"_s);
        m_model->openHighlighted();
        QCOMPARE(ui().selection(), Destination::page(page));
        QCOMPARE(ui().takeSoughtText(), u"plan"_s);
        QCOMPARE(ui().takeSoughtText(), QString());
        m_model->begin();
        m_model->openHighlighted();
        QCOMPARE(ui().takeSoughtText(), QString());
    }

    void resultsAreGroupedByKind()
    {
        PageOperations::create(store(), PageKind::note);
        m_workspace.addPage(u"Untitled plan"_s);
        PageOperations::create(store(), PageKind::note);
        m_workspace.addTask(u"untitled"_s, u"done"_s);
        addProject(u"The untitled"_s, u"🎯"_s);
        ask(u"UNTITLED "_s);
        QCOMPARE(rows(),
                 u"NOTE: Untitled Untitled PAGE: Untitled plan TASK: untitled PROJECT: The untitled"_s);
        const QList<PaletteRow> &list = m_model->rowList();
        QCOMPARE(list[0].symbol, u"note.text"_s);
        QCOMPARE(list[2].title, u"<b>Untitled</b> plan"_s);
        QCOMPARE(list[3].subtitle, u"Done · done"_s);
        QCOMPARE(list[3].symbol, u"checkmark.square"_s);
        QCOMPARE(list[4].emoji, u"🎯"_s);
    }

    void titlesShowAsTheyAre()
    {
        m_workspace.addTask(u"<i>a & b</i>"_s);
        ask(u"a &"_s);
        QCOMPARE(m_model->rowList().first().title, u"&lt;i&gt;<b>a &amp;</b> b&lt;/i&gt;"_s);
        QCOMPARE(m_model->rowList().first().name, u"<i>a & b</i>"_s);
    }

    void nothingFound()
    {
        ask(u" nowhere "_s);
        QVERIFY(m_model->isNothingFound());
        QCOMPARE(m_model->nothingFoundText(), u"Nothing matches “nowhere”."_s);
        QCOMPARE(m_model->highlighted(), -1);
        m_model->step(1);
        m_model->jump(-9);
        m_model->openHighlighted();
        QVERIFY(ui().isSearchPresented());
        QCOMPARE(ui().selection(), Destination());
    }

    void theHighlightMoves()
    {
        for (int i = 0; i < 3; ++i)
            m_workspace.addPage(u"plan"_s);
        m_workspace.addTask(u"plan too"_s);
        ask(u"plan"_s);
        QCOMPARE(m_model->highlighted(), 0);
        const auto step = [this](int rows) { return m_model->step(rows), m_model->highlighted(); };
        const auto jump = [this](int rows) { return m_model->jump(rows), m_model->highlighted(); };
        QCOMPARE(step(-1), 3);
        QCOMPARE(m_model->highlightedText(), u"plan too, To do"_s);
        QCOMPARE(step(1), 0);
        QCOMPARE(step(1), 1);
        QCOMPARE(jump(10), 3);
        QCOMPARE(jump(-2), 1);
        m_model->setHighlighted(4);
        m_model->setHighlighted(-1);
        QCOMPARE(m_model->highlighted(), 1);

        m_model->setQuery(u"plan "_s);
        QCOMPARE(m_model->highlighted(), 1);
        m_model->setQuery(u"plan t"_s);
        QCOMPARE(rows(), u"TASK: plan too"_s);
        QCOMPARE(m_model->highlighted(), 0);
        m_model->begin();
        QCOMPARE(m_model->query(), QString());
        QCOMPARE(m_model->rowList().first().name, u"plan"_s);
        QCOMPARE(m_model->highlighted(), 0);
    }

    void opensWhatIsHighlighted()
    {
        const QUuid page(m_workspace.addPage(u"plan"_s));
        m_workspace.addTask(u"plan"_s);
        ui().setShortcutsPresented(true);
        ask(u"plan"_s);
        m_model->openHighlighted();
        QCOMPARE(ui().selection(), Destination::page(page));
        QVERIFY(!ui().isSearchPresented());
        QVERIFY(!ui().isShortcutsPresented());

        ask(u"plan"_s);
        m_model->open(1);
        QCOMPARE(ui().selection().text(), u"tasks"_s);
        ask(u"plan"_s);
        m_model->open(1);
        QVERIFY(!ui().isSearchPresented());
    }

    void goingElsewhereClosesIt()
    {
        ask(u"x"_s);
        ui().select(u"today"_s);
        QVERIFY(!ui().isSearchPresented());
    }
};

QTEST_GUILESS_MAIN(PaletteViewModelTest)
#include "tst_paletteviewmodel.moc"
