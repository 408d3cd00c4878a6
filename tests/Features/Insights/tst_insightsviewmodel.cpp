#include "DesignSystem/Contrast.h"
#include "DesignSystem/OVTheme.h"
#include "Features/Insights/InsightsViewModel.h"
#include "Harness/TestWorkspace.h"
#include "Session/OrvelSession.h"
#include "Store/ProjectOperations.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QtTest>

using namespace Qt::StringLiterals;

namespace
{
void finishTurn()
{
    QCoreApplication::sendPostedEvents();
}
} // namespace

class InsightsViewModelTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void chartsOfNothingAreEmpty();
    void countsOnlyWhatChanged_data();
    void countsOnlyWhatChanged();
    void showsFiguresAndPoints();
    void movesOnAtMidnight();
    void countsAnewInAnotherZone();
    void narrowHabitsGoByTheirEmoji();
    void habitColorsStandOutFromTheCard();
    void copiesATable();

private:
    QList<ChartPoint> points(const char *chart) const
    {
        return m_model->property(chart).value<QList<ChartPoint>>();
    }
    static QString text(const QList<ChartPoint> &points)
    {
        QStringList texts;
        for (const ChartPoint &point : points)
            texts.append(point.label + u' ' + point.valueText);
        return texts.join(u", ");
    }

    TestWorkspace m_workspace;
    OrvelSession m_session{&m_workspace.store(), &m_workspace.ui()};
    std::unique_ptr<InsightsViewModel> m_model;
};

void InsightsViewModelTest::init()
{
    m_workspace.reset();
    m_model = std::make_unique<InsightsViewModel>();
    m_model->setSession(&m_session);
}

void InsightsViewModelTest::chartsOfNothingAreEmpty()
{
    for (const char *chart : {"statuses", "completions", "pages", "events", "projects", "habits"})
        QVERIFY2(points(chart).isEmpty(), chart);
    QCOMPARE(m_model->completionText(), QStringLiteral("0%"));
    // A project without tasks and a habit without days are shown nevertheless.
    ProjectOperations::createBlank(m_workspace.store(), QStringLiteral("Book"));
    m_workspace.addHabit(QStringLiteral("Read"));
    finishTurn();
    QCOMPARE(text(points("projects")), QStringLiteral("Book 0%"));
    QCOMPARE(text(points("habits")), QStringLiteral("Read 0"));
    QVERIFY(points("statuses").isEmpty());
}

void InsightsViewModelTest::countsOnlyWhatChanged_data()
{
    QTest::addColumn<std::function<void(TestWorkspace &)>>("change");
    QTest::addColumn<QString>("counted");
    const auto row = [](const char *name, std::function<void(TestWorkspace &)> change, const char *counted) {
        QTest::newRow(name) << std::move(change) << QString::fromLatin1(counted);
    };
    row("task", [](TestWorkspace &workspace) { workspace.addTask(QStringLiteral("a")); }, "tasks projects ");
    row("page", [](TestWorkspace &workspace) { workspace.addPage(QStringLiteral("a")); }, "pages ");
    row(
        "project",
        [](TestWorkspace &workspace) {
            workspace.store().add(Project{.id = QUuid::createUuid(), .name = QStringLiteral("a")});
        },
        "projects ");
    row(
        "event",
        [](TestWorkspace &workspace) { workspace.store().add(CalendarEvent{.id = QUuid::createUuid()}); },
        "events ");
    row("habit", [](TestWorkspace &workspace) { workspace.addHabit(QStringLiteral("a")); }, "habits ");
    row("folder", [](TestWorkspace &workspace) { workspace.addFolder(QStringLiteral("a")); }, "");
}

void InsightsViewModelTest::countsOnlyWhatChanged()
{
    QFETCH(const std::function<void(TestWorkspace &)>, change);
    QString counted;
    const auto listen = [&](auto signal, const char *name) {
        connect(m_model.get(), signal, this, [&counted, name] { counted += QLatin1String(name) + u' '; });
    };
    listen(&InsightsViewModel::tasksChanged, "tasks");
    listen(&InsightsViewModel::pagesChanged, "pages");
    listen(&InsightsViewModel::eventsChanged, "events");
    listen(&InsightsViewModel::projectsChanged, "projects");
    listen(&InsightsViewModel::habitsChanged, "habits");
    change(m_workspace);
    finishTurn();
    QTEST(counted, "counted");
}

void InsightsViewModelTest::showsFiguresAndPoints()
{
    m_workspace.addTask(QStringLiteral("a"), QStringLiteral("done"));
    m_workspace.addTask(QStringLiteral("b"), QStringLiteral("inProgress"));
    m_workspace.addTask(QStringLiteral("c"));
    m_workspace.addPage(QStringLiteral("p"));
    m_workspace.addHabit(QStringLiteral("Read"), {0, 1, 2, 3, 4, 5, 6, 7});
    finishTurn();
    QCOMPARE(m_model->tasksDoneText(), QStringLiteral("1"));
    QCOMPARE(m_model->completionText(), QStringLiteral("33%"));
    QCOMPARE(m_model->pagesText(), QStringLiteral("1"));
    QCOMPARE(m_model->streakText(), QStringLiteral("8"));
    QCOMPARE(text(points("statuses")), QStringLiteral("To do 1, In progress 1, Done 1"));
    QCOMPARE(points("completions").size(), 14);
    QCOMPARE(points("completions").last().label, QStringLiteral("Fri, Mar 13"));
    QCOMPARE(points("completions").last().shortLabel, QStringLiteral("Mar 13"));
    QCOMPARE(text(points("habits")), QStringLiteral("Read 6"));
}

void InsightsViewModelTest::movesOnAtMidnight()
{
    m_workspace.addPage(QStringLiteral("p"));
    m_workspace.addHabit(QStringLiteral("Read"), {0});
    finishTurn();
    QCOMPARE(points("pages").last().value, 1.0);
    m_workspace.advanceHours(48);
    finishTurn();
    QCOMPARE(points("pages").last().value, 0.0);
    QCOMPARE(points("pages").at(11).value, 1.0);
    QCOMPARE(m_model->streakText(), QStringLiteral("0"));
    QCOMPARE(text(points("habits")), QStringLiteral("Read 0"));
    m_workspace.advanceHours(12 * 24);
    finishTurn();
    QVERIFY(points("pages").isEmpty());
}

void InsightsViewModelTest::countsAnewInAnotherZone()
{
    const auto lastDays = [this] {
        finishTurn();
        const QList<ChartPoint> days = points("pages");
        return QString(u"%1 %2, %3 %4"_s)
            .arg(days.at(12).shortLabel)
            .arg(days.at(12).value)
            .arg(days.at(13).shortLabel)
            .arg(days.at(13).value);
    };
    m_workspace.advanceHours(1);
    m_workspace.addPage(QStringLiteral("p"));
    m_workspace.advanceHours(15);
    QCOMPARE(lastDays(), QStringLiteral("Mar 13 1, Mar 14 0"));
    // The day of today stays what it was, that of the page does not.
    m_workspace.clock().setTimeZone(QTimeZone(14 * 3600));
    QCOMPARE(lastDays(), QStringLiteral("Mar 13 0, Mar 14 1"));
    m_workspace.clock().setTimeZone(QTimeZone(-10 * 3600));
    QCOMPARE(lastDays(), QStringLiteral("Mar 12 0, Mar 13 1"));
    m_workspace.clock().setTimeZone(QTimeZone::utc());
    finishTurn();
}

void InsightsViewModelTest::narrowHabitsGoByTheirEmoji()
{
    Habit habit{.id = QUuid::createUuid(), .name = QStringLiteral("Read"), .emoji = QStringLiteral("📚")};
    m_workspace.store().add(habit);
    habit.id = QUuid::createUuid();
    habit.emoji = QString();
    m_workspace.store().add(habit);
    finishTurn();
    QCOMPARE(points("habits").at(0).shortLabel, QStringLiteral("📚"));
    QCOMPARE(points("habits").at(1).shortLabel, QStringLiteral("Read"));
}

void InsightsViewModelTest::habitColorsStandOutFromTheCard()
{
    for (const AppearanceMode appearance : {AppearanceMode::light, AppearanceMode::dark}) {
        AppSettings settings;
        settings.appearance = appearance;
        OVTheme::apply(settings);
        const QColor card = OVTheme::colors().surface;
        for (const auto &entry : enumCases<AccentPalette>()) {
            const AccentShades shades = AccentShades::of(entry.value);
            const double ratio =
                Contrast::ratio(appearance == AppearanceMode::dark ? shades.dark : shades.light, card);
            QVERIFY2(ratio >= 3, qPrintable(u"%1: %2"_s.arg(shades.raw).arg(ratio)));
        }
    }
}

void InsightsViewModelTest::copiesATable()
{
    ProjectOperations::createBlank(m_workspace.store(), QStringLiteral("A\tbook\nof tabs"));
    finishTurn();
    m_model->copyNumbers(QStringLiteral("Project"), QStringLiteral("Progress"), points("projects"));
    QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("Project\tProgress\nA book of tabs\t0\n"));
}

QTEST_MAIN(InsightsViewModelTest)
#include "tst_insightsviewmodel.moc"
