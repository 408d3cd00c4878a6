#include "Features/Dashboard/DashboardViewModel.h"
#include "Harness/ShownRows.h"
#include "Harness/TestWorkspace.h"
#include "Session/TaskActions.h"
#include "Store/HabitOperations.h"
#include "Support/OVQuotes.h"

#include <QtTest>

using namespace ShownRows;

class DashboardViewModelTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { m_model.reset(); }

    void tilesCountTheDay();
    void listsFiveOfTheTasksDueToday();
    void eventsStandInTheirOrder();
    void theNextDayShowsItself();
    void aShuffledQuoteStays();
    void theLibraryShowsPages();

private:
    void addEvent(const QString &title, std::optional<qint64> minutes, int inDays = 0)
    {
        CalendarEvent event{.id = QUuid::createUuid(), .title = title, .timeMinutes = minutes};
        event.date = m_workspace.clock().now() + std::chrono::days(inDays);
        m_workspace.store().add(event);
    }

    TestWorkspace m_workspace;
    OrvelSession m_session{&m_workspace.store(), &m_workspace.ui()};
    TaskActions m_actions{&m_session};
    QRandomGenerator m_random{4};
    std::unique_ptr<DashboardViewModel> m_model;
};

void DashboardViewModelTest::init()
{
    m_workspace.reset();
    m_workspace.ui().setRandomQuote({});
    m_model = std::make_unique<DashboardViewModel>(nullptr, &m_random);
    m_model->setSession(&m_session);
}

void DashboardViewModelTest::tilesCountTheDay()
{
    m_workspace.addTask(QStringLiteral("Plain"));
    m_workspace.addTask(QStringLiteral("Due"), QStringLiteral("inProgress"), QStringLiteral("high"), 2);
    m_workspace.addTask(QStringLiteral("Overdue"), QStringLiteral("todo"), QStringLiteral("low"), -24);
    m_workspace.addTask(QStringLiteral("Done"), QStringLiteral("done"), QStringLiteral("low"), 1);
    addEvent(QStringLiteral("Today"), 60);
    addEvent(QStringLiteral("Tomorrow"), 60, 1);
    Habit habit{.id = QUuid::createUuid(), .name = QStringLiteral("Read")};
    m_workspace.store().add(habit);
    HabitOperations::toggle(m_workspace.store(), habit.id, m_workspace.clock().now());
    finishTurn();
    QCOMPARE(texts(m_model->tiles(), "number"), QStringLiteral("3|1|1|1"));
    QCOMPARE(texts(m_model->tiles(), "place"), QStringLiteral("tasks|today|calendar|habits"));
    QCOMPARE(m_model->progressText(), QStringLiteral("1 of 4 complete"));
    QCOMPARE(m_model->progress(), 0.25);

    m_workspace.reset();
    finishTurn();
    QCOMPARE(texts(m_model->tiles(), "number"), QStringLiteral("0|0|0|0"));
    QCOMPARE(m_model->progressText(), QStringLiteral("0 of 0 complete"));
    QCOMPARE(m_model->progress(), 0.0);
}

void DashboardViewModelTest::listsFiveOfTheTasksDueToday()
{
    for (int i = 1; i <= 7; ++i)
        m_workspace.addTask(QString::number(i), QStringLiteral("todo"), QStringLiteral("medium"), 1);
    finishTurn();
    QCOMPARE(texts(m_model->dueTasks(), "title"), QStringLiteral("1|2|3|4|5"));
    QCOMPARE(role(m_model->tiles(), 1, "number").toString(), QStringLiteral("7"));
    QCOMPARE(m_model->moreDueText(), QStringLiteral("2 more"));

    m_actions.toggleDone(role(m_model->dueTasks(), 0, "taskID").toUuid());
    finishTurn();
    QCOMPARE(texts(m_model->dueTasks(), "title"), QStringLiteral("2|3|4|5|6"));
    QCOMPARE(role(m_model->tiles(), 1, "number").toString(), QStringLiteral("6"));
    QVERIFY(m_workspace.store().tasks().all().first().completedDate);
}

void DashboardViewModelTest::eventsStandInTheirOrder()
{
    addEvent(QStringLiteral("Late"), 17 * 60 + 5);
    addEvent(QStringLiteral("Early"), 9 * 60);
    addEvent(QStringLiteral("Whole day"), std::nullopt);
    finishTurn();
    QCOMPARE(texts(m_model->events(), "title"), QStringLiteral("Whole day|Early|Late"));
    QCOMPARE(texts(m_model->events(), "timeText"), QStringLiteral("All-day|09:00|17:05"));
    QCOMPARE(texts(m_model->events(), "hasTime"), QStringLiteral("false|true|true"));
}

void DashboardViewModelTest::theNextDayShowsItself()
{
    m_workspace.addTask(QStringLiteral("Today"), QStringLiteral("todo"), QStringLiteral("low"), 1);
    m_workspace.addTask(QStringLiteral("Tomorrow"), QStringLiteral("todo"), QStringLiteral("low"), 24);
    addEvent(QStringLiteral("Next morning"), 60, 1);
    finishTurn();
    const QString quote = m_model->quoteText();
    m_workspace.advanceHours(15);
    finishTurn();
    QCOMPARE(texts(m_model->dueTasks(), "title"), QStringLiteral("Tomorrow"));
    QCOMPARE(texts(m_model->events(), "title"), QStringLiteral("Next morning"));
    QCOMPARE(m_model->dateText(), QStringLiteral("Saturday, March 14, 2026"));
    QVERIFY(m_model->quoteText() != quote);
}

void DashboardViewModelTest::aShuffledQuoteStays()
{
    const QSignalSpy changed(m_model.get(), &DashboardViewModel::quoteChanged);
    QString last = m_model->quoteText();
    for (int i = 0; i < 200; ++i) {
        m_model->shuffleQuote();
        QVERIFY(m_model->quoteText() != last);
        last = m_model->quoteText();
    }
    QCOMPARE(changed.count(), 200);
    m_workspace.advanceHours(24);
    finishTurn();
    QCOMPARE(m_model->quoteText(), last);
    m_workspace.ui().setRandomQuote({});
    const Clock &clock = m_workspace.clock();
    QCOMPARE(m_model->quoteText(), OVQuotes::ofTheDay(clock.now(), clock.timeZone()).text);
}

void DashboardViewModelTest::theLibraryShowsPages()
{
    const auto add = [this](const QString &title, bool favorite) {
        m_workspace.clock().advance(std::chrono::seconds(1));
        return m_workspace.addPage(title, favorite);
    };
    const QString first = add(QStringLiteral("First"), true);
    add(QStringLiteral("  "), false);
    const QUuid note(m_workspace.addNote(QStringLiteral("Note")));
    m_workspace.store().change<Page>(note, [](Page &page) { page.isFavorite = true; });
    finishTurn();
    QCOMPARE(texts(m_model->library(), "title"), QStringLiteral("Untitled|First"));

    m_model->setLibraryTab(QStringLiteral("favourites"));
    QCOMPARE(texts(m_model->library(), "title"), QStringLiteral("Note|First"));
    m_workspace.clock().advance(std::chrono::seconds(1));
    m_workspace.renamePage(first, QStringLiteral("Changed last"));
    finishTurn();
    QCOMPARE(texts(m_model->library(), "title"), QStringLiteral("Changed last|Note"));
    m_model->setLibraryTab(QStringLiteral("nonsense"));
    QCOMPARE(m_model->libraryTab(), QStringLiteral("favourites"));

    for (int i = 0; i < 30; ++i)
        m_workspace.addPage(QString::number(i), true);
    finishTurn();
    QCOMPARE(m_model->library()->rowCount(), 5);
    QCOMPARE(m_model->morePagesText(), QStringLiteral("27 more"));
    m_model->showMorePages();
    QCOMPARE(m_model->morePagesText(), QStringLiteral("7 more"));
    m_model->showMorePages();
    QCOMPARE(m_model->library()->rowCount(), 32);
    QCOMPARE(m_model->morePagesText(), QString());
}

QTEST_MAIN(DashboardViewModelTest)
#include "tst_dashboardviewmodel.moc"
