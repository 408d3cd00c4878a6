#include "Features/Calendar/CalendarViewModel.h"
#include "Features/Dashboard/DashboardViewModel.h"
#include "Features/Decks/DecksViewModel.h"
#include "Features/Habits/HabitsViewModel.h"
#include "Features/Insights/InsightsViewModel.h"
#include "Features/MenuBar/MenuBarViewModel.h"
#include "Features/Notes/NotesViewModel.h"
#include "Features/Projects/ProjectsViewModel.h"
#include "Features/Reader/ReaderViewModel.h"
#include "Features/Shell/NavigationViewModel.h"
#include "Features/Shell/OverflowMenuViewModel.h"
#include "Features/Shell/SidebarViewModel.h"
#include "Features/Tasks/TasksViewModel.h"
#include "Features/Today/TodayViewModel.h"
#include "Harness/RandomOperations.h"
#include "Harness/ShownRows.h"
#include "Harness/TestWorkspace.h"

#include <QMetaProperty>
#include <QtTest>

using namespace std::chrono_literals;

namespace
{
using Make = std::function<std::unique_ptr<ViewModel>()>;

template <typename Screen>
Make made()
{
    return [] { return std::make_unique<Screen>(); };
}

const QList<std::pair<QString, Make>> &screens()
{
    static const QList<std::pair<QString, Make>> all{
        {QStringLiteral("calendar"), made<CalendarViewModel>()},
        {QStringLiteral("dashboard"), made<DashboardViewModel>()},
        {QStringLiteral("decks"), made<DecksViewModel>()},
        {QStringLiteral("habits"), made<HabitsViewModel>()},
        {QStringLiteral("insights"), made<InsightsViewModel>()},
        {QStringLiteral("menu bar"), made<MenuBarViewModel>()},
        {QStringLiteral("navigation"), made<NavigationViewModel>()},
        {QStringLiteral("notes"), made<NotesViewModel>()},
        {QStringLiteral("overflow"), made<OverflowMenuViewModel>()},
        {QStringLiteral("projects"), made<ProjectsViewModel>()},
        {QStringLiteral("reader"), made<ReaderViewModel>()},
        {QStringLiteral("sidebar"), made<SidebarViewModel>()},
        {QStringLiteral("tasks"), made<TasksViewModel>()},
        {QStringLiteral("today"), made<TodayViewModel>()},
    };
    return all;
}

QString shown(const QVariant &value);

QString shownRows(const QAbstractItemModel &model)
{
    QStringList rows;
    for (int row = 0; row < model.rowCount(); ++row) {
        QStringList cells;
        const auto names = model.roleNames();
        for (auto role = names.begin(); role != names.end(); ++role)
            cells.append(QString::fromUtf8(*role) + u'=' + shown(model.index(row, 0).data(role.key())));
        cells.sort();
        rows.append(cells.join(QStringLiteral("; ")));
    }
    return rows.join(u'\n');
}

/// Objects tell nothing here but the rows of models.
QString shown(const QVariant &value)
{
    if (const auto *const model = value.value<QAbstractItemModel *>())
        return shownRows(*model);
    if (value.canConvert<QVariantList>() && !value.canConvert<QString>()) {
        QStringList parts;
        for (const QVariant &part : value.toList())
            parts.append(shown(part));
        return parts.join(u'|');
    }
    if (value.metaType().flags() & QMetaType::PointerToQObject)
        return {};
    if (const QMetaObject *const gadget = value.metaType().metaObject();
        gadget && value.metaType().flags() & QMetaType::IsGadget) {
        QStringList parts;
        for (int i = 0; i < gadget->propertyCount(); ++i)
            parts.append(shown(gadget->property(i).readOnGadget(value.constData())));
        return parts.join(u',');
    }
    QString text;
    QDebug(&text) << value;
    return text;
}

/// What the user chose on a screen that was opened earlier.
const QSet<QByteArray> ownState{"due", "hasSelection", "selectedBookID", "selectedRow"};

/// All else that a screen's QML can bind to.
QStringList shown(const ViewModel &screen)
{
    QStringList lines;
    const QMetaObject *const meta = screen.metaObject();
    for (int i = ViewModel::staticMetaObject.propertyCount(); i < meta->propertyCount(); ++i)
        if (!ownState.contains(meta->property(i).name()))
            lines.append(QString::fromUtf8(meta->property(i).name()) + QStringLiteral(": ") +
                         shown(meta->property(i).read(&screen)));
    return lines.join(u'\n').split(u'\n');
}
} // namespace

class ScreensWalkTest : public QObject
{
    Q_OBJECT

private slots:
    void showsWhatAFreshScreenWould_data()
    {
        QTest::addColumn<unsigned>("seed");
        for (const unsigned seed : {1U, 2U, 3U})
            QTest::addRow("%u", seed) << seed;
    }

    /// Screens touch only what a change concerns. After any operations, undone and redone, over days, each
    /// still shows what it would if it were opened now.
    void showsWhatAFreshScreenWould()
    {
        QFETCH(unsigned, seed);
        TestWorkspace workspace;
        workspace.reset();
        OrvelSession session(&workspace.store(), &workspace.ui(), &workspace.updates(), workspace.machine());
        StarterContent::seed(workspace.store(), {OrvelModule::tasks, OrvelModule::projects}, true);
        std::vector<std::unique_ptr<ViewModel>> kept;
        for (const auto &[name, make] : screens()) {
            kept.push_back(make());
            kept.back()->setSession(&session);
        }
        RandomOperations operations(workspace.store(), workspace.clock(), seed);
        for (int step = 0; step < 400; ++step) {
            const int choice = operations.below(12);
            if (choice < 8)
                operations.act();
            else if (choice < 10)
                workspace.store().undo();
            else if (choice < 11)
                workspace.store().redo();
            else
                workspace.clock().advance(std::chrono::hours(operations.below(10)));
            ShownRows::finishTurn();
            if (step % 20 == 19)
                compareWithFresh(session, kept, step);
            if (QTest::currentTestFailed())
                return;
        }
    }

private:
    static void compareWithFresh(OrvelSession &session, const std::vector<std::unique_ptr<ViewModel>> &kept,
                                 int step)
    {
        for (std::size_t i = 0; i < kept.size(); ++i) {
            const auto &[name, make] = screens().at(qsizetype(i));
            const auto fresh = make();
            fresh->setSession(&session);
            ShownRows::finishTurn();
            const QStringList expected = shown(*fresh), actual = shown(*kept[i]);
            for (qsizetype line = 0; line < qMax(expected.size(), actual.size()); ++line)
                if (expected.value(line) != actual.value(line))
                    QFAIL(qPrintable(QStringLiteral("%1, step %2, line %3:\nkept  %4\nfresh %5")
                                         .arg(name)
                                         .arg(step)
                                         .arg(line)
                                         .arg(actual.value(line), expected.value(line))));
        }
    }
};

QTEST_MAIN(ScreensWalkTest)
#include "tst_screenswalk.moc"
