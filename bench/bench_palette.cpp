#include "DesignSystem/OVTheme.h"
#include "Foundation/SystemClock.h"
#include "Harness/Comparison.h"
#include "Harness/WorkspaceGenerator.h"
#include "Session/OrvelSession.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QQmlComponent>
#include <QQuickView>

#include <cstdio>

using namespace Qt::StringLiterals;

namespace
{
constexpr std::chrono::milliseconds frame(16);

/// The real palette in a window, over a workspace of so many pages of 1 KB and records of each other kind.
class Desk
{
public:
    Desk(int pages, int ofEachKind)
    {
        Snapshot workspace = WorkspaceGenerator::ofEveryKind(ofEachKind, 64);
        workspace.list<Page>() = WorkspaceGenerator::longPages(pages, 1024);
        WorkspaceGenerator::addTo(m_store, workspace);
        m_store.changeSettings([](AppSettings &settings) { settings.reducedMotion = true; });
        OVTheme::apply(m_store.settings());
        m_session.search()->search(u"zzz"_s);
        m_view.engine()->addImportPath(u":/qt/qml"_s);
        m_session.provideTo(*m_view.engine());
        m_view.setResizeMode(QQuickView::SizeRootObjectToView);
        m_view.resize(1240, 820);
        m_view.setSource(QUrl(u"qrc:/qt/qml/Orvel/Palette/CommandPalette.qml"_s));
        m_view.show();
        m_view.requestActivate();
        QCoreApplication::processEvents();
        if (m_view.status() != QQuickView::Ready || QGuiApplication::focusWindow() != &m_view) {
            std::fprintf(stderr, "bench_palette: the window does not open\n");
            std::exit(2);
        }
    }

    /// From the key that opens the palette to its first frame.
    Comparison::Duration open()
    {
        m_ui.setSearchPresented(false);
        QCoreApplication::processEvents();
        return toFrame([this] { m_ui.setSearchPresented(true); });
    }
    /// Each letter of the text from its key to the frame that shows what it finds.
    QList<Comparison::Duration> type(const QString &text)
    {
        QList<Comparison::Duration> times;
        for (const QChar letter : text)
            times.append(toFrame([&] {
                QKeyEvent press(QEvent::KeyPress, letter.toUpper().unicode(), Qt::NoModifier, letter);
                QCoreApplication::sendEvent(&m_view, &press);
            }));
        return times;
    }

private:
    template <typename Action>
    Comparison::Duration toFrame(Action action)
    {
        QCoreApplication::processEvents();
        // A running program does so on each turn; without it, rows given up would go on living.
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        return timed([&] {
            action();
            QEvent update(QEvent::UpdateRequest);
            QCoreApplication::sendEvent(&m_view, &update);
        });
    }

    SystemClock m_clock;
    WorkspaceStore m_store{{u"/nowhere/workspace.json"_s, &m_clock, std::chrono::hours(1)}};
    UIState m_ui;
    OrvelSession m_session{&m_store, &m_ui};
    QQuickView m_view;
};

/// What the program does in its pauses: all of it after the start, and what one changed page asks for.
void measurePreparation(Comparison &comparison)
{
    const SystemClock clock;
    WorkspaceStore store({.filePath = u"/nowhere/workspace.json"_s, .clock = &clock});
    Snapshot workspace;
    workspace.list<Page>() = WorkspaceGenerator::longPages(100'000, 1024);
    WorkspaceGenerator::addTo(store, workspace);
    WorkspaceSearch search(store);
    QList<Comparison::Duration> slices;
    bool isDone = false;
    while (!isDone)
        slices.append(timed([&] { isDone = search.prepare(std::chrono::milliseconds(3)); }));
    std::fprintf(stderr, "%d slices, the longest %.1f ms\n", int(slices.size()),
                 Comparison::quantile(slices, 1).count());
    comparison.timeUnder(u"one slice of preparing the search, 95 of 100"_s,
                         Comparison::quantile(slices, 0.95), std::chrono::milliseconds(3), frame / 2);
    QList<Comparison::Duration> changes;
    for (int i = 0; i < 50; ++i) {
        store.change<Page>(store.pages().at(i * 1999).id, [](Page &page) { page.title += u'x'; });
        changes.append(timed([&] { search.prepare(std::chrono::milliseconds(3)); }));
    }
    comparison.timeUnder(u"the slice after a change of one in 100,000 pages, 95 of 100"_s,
                         Comparison::quantile(changes, 0.95), std::chrono::milliseconds(3), frame);
}
} // namespace

int main(int argc, char *argv[])
{
    const QGuiApplication application(argc, argv);
    Comparison comparison;
    measurePreparation(comparison);
    Comparison::Times opening;
    Comparison::Times keys;
    const auto measure = [](int pages, int ofEachKind, QList<Comparison::Duration> &openings,
                            QList<Comparison::Duration> &letters) {
        Desk desk(pages, ofEachKind);
        desk.open();
        for (int round = 0; round < 10; ++round)
            for (const QString &query :
                 {u"zzz"_s, u"page 99999"_s, u"river of paper"_s, u"meeting no"_s, u"qu"_s}) {
                openings.append(desk.open());
                letters.append(desk.type(query));
            }
    };
    Comparison::Times everyKind;
    measure(100'000, 0, opening.ours, keys.ours);
    measure(100'000, 100'000, everyKind.baseline, everyKind.ours);
    measure(0, 0, opening.baseline, keys.baseline);
    const auto most = [](const QList<Comparison::Duration> &times) {
        return Comparison::quantile(times, 0.95);
    };
    comparison.timeUnder(u"palette opened over 100,000 pages of 1 KB, against none, 95 of 100"_s,
                         most(opening.ours), most(opening.baseline), frame);
    comparison.timeUnder(u"key in the palette over 100,000 pages of 1 KB, against none, 95 of 100"_s,
                         most(keys.ours), most(keys.baseline), frame);
    comparison.timeUnder(u"key in the palette over 100,000 records of each kind, against none, 95 of 100"_s,
                         most(everyKind.ours), most(keys.baseline), frame);
    return comparison.exitCode();
}
