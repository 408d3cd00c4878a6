#include "Features/Pages/BlockClipboard.h"
#include "Harness/Scene.h"
#include "Support/Markdown/BlockMarkdown.h"

#include <QGuiApplication>

#include <cstdio>

namespace
{
const QString sentence =
    QStringLiteral("The harbour wakes before the town does. Nets are mended on the quay. ");

Snapshot pageOf(int count)
{
    Page page;
    page.title = QStringLiteral("Harbour");
    page.id = QUuid(QStringLiteral("11111111-2222-4333-8444-555555555555"));
    for (int i = 0; i < count; ++i) {
        const BlockType type =
            i % 10 == 0 ? BlockType(i / 10 % int(enumCases<BlockType>().size())) : BlockType::paragraph;
        page.content.append({.id = QUuid::createUuid(), .type = type, .text = sentence.repeated(1 + i % 4)});
    }
    page.content.first().type = BlockType::paragraph;
    Snapshot workspace;
    workspace.list<Page>().append(page);
    return workspace;
}

/// The editor of a page of blocks, all of them selected.
class EditorScene : public Scene
{
public:
    explicit EditorScene(int count)
        : Scene(pageOf(count),
                "import QtQuick\nimport Orvel.Pages\n"
                "PageEditorView { pageID: '11111111-2222-4333-8444-555555555555'; focus: true }")
    {
        open();
        // Leads into the first block.
        press(Qt::Key_Down);
        selectAll();
    }

    void selectAll()
    {
        for (int i = 0; i < 2; ++i)
            press(Qt::Key_A, {}, Qt::ControlModifier);
    }

    /// Takes the end of the selection back and forth.
    Comparison::Duration extend()
    {
        m_isShorter = !m_isShorter;
        return press(m_isShorter ? Qt::Key_Up : Qt::Key_Down, {}, Qt::ShiftModifier);
    }

    /// Types over all blocks; what it takes to bring them back does not count.
    Comparison::Duration typeOver()
    {
        const auto duration = press(Qt::Key_X, QStringLiteral("x"));
        m_typedOver = m_typedOver && desk().store->pages().at(0).content.size() == 1;
        press(Qt::Key_Z, {}, Qt::ControlModifier);
        selectAll();
        return duration;
    }

    bool hasTypedOver() const { return m_typedOver; }

private:
    bool m_isShorter = false;
    bool m_typedOver = true;
};
} // namespace

int main(int argc, char *argv[])
{
    const QGuiApplication application(argc, argv);
    EditorScene many(2'000);
    EditorScene few(10);
    const auto milliseconds = [](double count) { return Comparison::Duration(count); };
    Comparison comparison;
    const auto judge = [&](const QString &what, const Comparison::Times &times) {
        for (const int share : {50, 95})
            comparison.timeUnder(what.arg(share), Comparison::quantile(times.ours, share / 100.0),
                                 Comparison::quantile(times.baseline, share / 100.0), milliseconds(8));
    };
    judge(QStringLiteral("key that extends a selection over 2,000 blocks, against 10, %1 of 100"),
          Comparison::alternate(300, [&] { return many.extend(); }, [&] { return few.extend(); }));
    many.selectAll();
    few.selectAll();
    judge(QStringLiteral("key typed over 2,000 selected blocks, against 10, %1 of 100"),
          Comparison::alternate(40, [&] { return many.typeOver(); }, [&] { return few.typeOver(); }));
    if (!many.hasTypedOver()) {
        std::fprintf(stderr, "bench_pageselection: the keys have not arrived\n");
        return 2;
    }

    QString markdown;
    while (markdown.size() < 5'000'000)
        markdown += QStringLiteral("## Heading\n\n- item\n- [x] done\n\n") + sentence.repeated(3) +
                    QStringLiteral("\n\n");
    const auto readings = Comparison::alternate(
        5, [&] { return timed([&] { BlockClipboard::blocksIn({{}, {}, markdown}); }); },
        [&] { return timed([&] { BlockClipboard::linesIn(markdown); }); });
    comparison.timeUnder(QStringLiteral("read 5 MB of Markdown beside the window, against its lines alone"),
                         Comparison::best(readings.ours), Comparison::best(readings.baseline),
                         milliseconds(1'000));
    return comparison.exitCode();
}
