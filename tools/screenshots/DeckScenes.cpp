#include "SampleDecks.h"
#include "Scenes.h"

namespace
{
/// A page of decks after a script has done something in it, and what it presents if the deck is presented.
QByteArray deckPage(const QByteArray &script)
{
    return "import QtQuick\nimport Orvel.DesignSystem\nimport Orvel.Decks\n"
           "Item { OVBackground { anchors.fill: parent }\n"
           "DecksView { id: view; anchors.fill: parent; focus: true }\n"
           "DeckPresenterLayer { id: talk; anchors.fill: parent }\n"
           "Timer { interval: 200; running: true; onTriggered: { " +
           script + " } } }";
}
} // namespace

QList<Picture> deckPictures()
{
    const auto on = [](const std::function<QUuid(WorkspaceStore &)> &make, bool presented = false) {
        return [make, presented](WorkspaceStore &store, UIState &ui) {
            const QUuid id = make(store);
            ui.setDeckID(id);
            if (presented)
                ui.setPresentingDeckID(id);
        };
    };
    const auto every = [](WorkspaceStore &store) {
        return SampleDecks::everyKind(store, SlideTheme::catalog().at(3));
    };
    const auto many = [](WorkspaceStore &store) { return SampleDecks::many(store, 300); };
    // So many that the export is still under way when the picture is taken; its end leaves no file.
    const auto endless = [](WorkspaceStore &store) { return SampleDecks::many(store, 5'000); };
    QList<Picture> pictures;
    const auto add = [&](const QString &name, const QByteArray &script, QSize size, const Content &content,
                         const Look &look) {
        pictures.append({QStringLiteral("deck-") + name, deckPage(script), size, content, look});
    };
    for (const SlideTheme &theme : SlideTheme::catalog())
        for (const auto &kind : enumCases<SlideKind>())
            add(QStringLiteral("kind-%1-%2").arg(theme.id, enumRawText(kind.value)),
                "view.showInspector = false; view.editor.selectAt(" + QByteArray::number(int(kind.value)) +
                    ")",
                windowSize,
                on([theme](WorkspaceStore &store) { return SampleDecks::everyKind(store, theme); }), light);
    const QByteArray bullet = "view.editor.selectAt(3); view.pane.slide.edit('body', 12)";
    const QByteArray notes = "PresenterStyle.showingNotes = true; talk.presenter.advance(3)";
    for (const auto &[name, look] : looks()) {
        add(QStringLiteral("editing-") + name, bullet, windowSize, on(every), look);
        add(QStringLiteral("exporting-") + name, "view.deckExport.exportAs('pdf')", windowSize, on(endless),
            look);
        add(QStringLiteral("notes-") + name, notes, windowSize, on(every, true), look);
    }
    for (int i = 0; i < 8; ++i)
        add(QStringLiteral("overflow-%1").arg(i + 1), "view.editor.selectAt(" + QByteArray::number(i) + ")",
            windowSize, on(SampleDecks::crowded), light);
    add(QStringLiteral("bare"), {}, windowSize, on(SampleDecks::bare), light);
    add(QStringLiteral("many"), "view.editor.selectAt(150)", windowSize, on(many), dark);
    add(QStringLiteral("small"), bullet, smallSize, on(every), dark);
    add(QStringLiteral("small-huge"), bullet, smallSize, on(SampleDecks::crowded), both(light, huge));
    add(QStringLiteral("blanked"), "talk.presenter.blanked = true", windowSize, on(every, true), light);
    add(QStringLiteral("end"), "PresenterStyle.showingNotes = false; talk.presenter.showLast()", windowSize,
        on(every, true), light);
    add(QStringLiteral("notes-small-huge"), notes, smallSize, on(SampleDecks::crowded, true),
        both(light, huge));
    return pictures;
}
