#include "Harness/ManualClock.h"
#include "Store/WorkspaceStore.h"

#include <QCoreApplication>

#include <cstdio>

namespace
{
constexpr int records = 40;

/// Every record of the workspace says which generation it belongs to, and its size changes with it.
void makeGeneration(WorkspaceStore &store, qint64 generation)
{
    const QString name = QString::number(generation);
    const QString text = name.leftJustified(name.size() + generation * 977 % 4001, u'.');
    const Action action(store, QString());
    store.changeSettings([&](AppSettings &settings) { settings.userName = name; });
    for (const TaskItem &task : QList(store.tasks().all()))
        store.change<TaskItem>(task.id, [&](TaskItem &changed) {
            changed.title = name;
            changed.notes = text;
        });
    for (const Page &page : QList(store.pages().all()))
        store.change<Page>(page.id, [&](Page &changed) {
            changed.title = name;
            changed.content.first().text = text;
        });
}
} // namespace

/// Saves one generation of the workspace file given after the other until it is killed, and prints each
/// number once that generation is saved. It goes on from the generation in the file.
int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    const ManualClock clock;
    WorkspaceStore store({.filePath = application.arguments().at(1), .clock = &clock});
    for (qsizetype i = store.tasks().size(); i < records; ++i) {
        store.add(TaskItem{.id = QUuid::createUuid()});
        store.add(Page{.id = QUuid::createUuid(), .content = {Block{.id = QUuid::createUuid()}}});
    }
    for (qint64 generation = store.settings().userName.toLongLong() + 1;; ++generation) {
        makeGeneration(store, generation);
        store.saveNow();
        std::printf("%lld\n", static_cast<long long>(generation));
        std::fflush(stdout);
    }
}
