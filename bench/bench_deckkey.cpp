#include "Features/Decks/DecksViewModel.h"
#include "Harness/Scene.h"
#include "Harness/WorkspaceGenerator.h"

#include <QGuiApplication>

#include <cstdio>

namespace
{
Deck deckOf(int slides)
{
    Deck deck = Deck::fresh(Timestamp(), QUuid::createUuid());
    deck.title = QStringLiteral("A year in review");
    for (int i = 0; i < slides; ++i) {
        Slide slide = Slide::fresh(QUuid::createUuid());
        slide.kind = enumCases<SlideKind>()[std::size_t(i) % enumCases<SlideKind>().size()].value;
        slide.title = QStringLiteral("What we learned about steady work");
        slide.body = QStringLiteral("72 | First of several points\nSecond, with a little more to say\nThird");
        deck.slides.append(slide);
    }
    return deck;
}

Snapshot workspaceOf(int slides)
{
    Snapshot workspace = WorkspaceGenerator::ofFileSize(10'000'000);
    workspace.list<Deck>() = {deckOf(slides)};
    return workspace;
}
} // namespace

int main(int argc, char *argv[])
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    const QGuiApplication application(argc, argv);
    const QByteArray screen = "import QtQuick\nimport Orvel.Decks\nDecksView { focus: true }";
    Scene large(workspaceOf(300), screen);
    Scene small(workspaceOf(3), screen);
    const auto opened = Comparison::alternate(10, [&] { return large.open(); }, [&] { return small.open(); });
    Comparison comparison;
    comparison.timeUnder(QStringLiteral("a deck of 300 slides opens, beside one of three, half of all"),
                         Comparison::quantile(opened.ours, 0.5), Comparison::quantile(opened.baseline, 0.5),
                         Comparison::Duration(100));
    // Into the first text of the slide.
    for (Scene *const scene : {&large, &small})
        scene->press(Qt::Key_Return);
    const auto typed = Comparison::alternate(
        200, [&] { return large.press(Qt::Key_X, QStringLiteral("x")); },
        [&] { return small.press(Qt::Key_X, QStringLiteral("x")); });
    comparison.timeUnder(QStringLiteral("key into a slide of 300, beside one of three, 95 of 100"),
                         Comparison::quantile(typed.ours, 0.95), Comparison::quantile(typed.baseline, 0.95),
                         Comparison::Duration(8));
    const QQuickItem *const input = large.focusItem();
    if (!input || input->property("text").toString().count(u'x') < typed.ours.size()) {
        std::fprintf(stderr, "bench_deckkey: the keys have not arrived\n");
        return 2;
    }
    return comparison.exitCode();
}
