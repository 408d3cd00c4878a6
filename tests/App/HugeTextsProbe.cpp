#include "Session/OrvelSession.h"
#include "Store/PageOperations.h"

#include <QGuiApplication>
#include <QQmlEngine>
#include <QQuickWindow>
#include <QTimer>

#include <cstdio>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace
{
/// A page of one long paragraph or of many blocks, or a document of many lines; the place that shows it.
Destination addHugeText(WorkspaceStore &store, const QString &kind)
{
    if (kind == "lines"_L1) {
        CodeDocument document{
            .id = QUuid::createUuid(), .title = kind, .source = u"print(1)\n"_s.repeated(400'000)};
        document.createdDate = document.updatedDate = store.now();
        store.add(document);
        return Destination::codeDocument(document.id);
    }
    const QUuid id = PageOperations::create(store, PageKind::page);
    store.change<Page>(id, [&](Page &page) {
        page.content.clear();
        const bool isOne = kind == "paragraph"_L1;
        for (int i = 0; i < (isOne ? 1 : 200'000); ++i)
            page.content.append(Block{.id = QUuid::createUuid(),
                                      .text = isOne ? u"word "_s.repeated(1'000'000) : u"block"_s});
    });
    return Destination::page(id);
}

void openHugeText()
{
    const auto windows = QGuiApplication::topLevelWindows();
    auto *const window = windows.isEmpty() ? nullptr : qobject_cast<QQuickWindow *>(windows.constFirst());
    QQmlEngine *const engine = window ? qmlEngine(window) : nullptr;
    if (!engine || window->property("starting").toBool() || window->property("loading").toBool()) {
        QTimer::singleShot(20ms, qApp, &openHugeText);
        return;
    }
    auto *const session =
        engine->singletonInstance<OrvelSession *>(qmlTypeId("Orvel.Session", 1, 0, "Orvel"));
    const QStringList arguments = QCoreApplication::arguments();
    const Destination place = addHugeText(*session->store(), arguments.value(1));
    session->store()->changeSettings([](AppSettings &settings) { settings.userName = u"Ada"_s; });
    if (const int delay = arguments.value(2).toInt(); delay >= 0)
        QTimer::singleShot(delay, window, &QWindow::close);
    std::puts("opening");
    std::fflush(stdout);
    session->ui()->setSelection(place);
}

/// Beside the program's own `main`: opens a huge text as soon as the workspace is shown. Arguments: "lines",
/// "paragraph" or "blocks", and after how many milliseconds the window is closed, less than none for never.
void begin()
{
    QTimer::singleShot(0, qApp, &openHugeText);
}
} // namespace

Q_COREAPP_STARTUP_FUNCTION(begin)
