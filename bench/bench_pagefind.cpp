#include "DesignSystem/TextFinder.h"
#include "Harness/Scene.h"

#include <QGuiApplication>

#include <cstdio>

namespace
{
constexpr int blockCount = 2000;
/// Typed letter by letter and taken back: it stands in most blocks, then in one of ten.
constexpr char16_t typedText[] = u"harbour 7";

const QUuid pageID = QUuid::createUuid();

Snapshot workspace()
{
    const QString text =
        QStringLiteral("The harbour wakes before the town does. Nets are mended on the quay. ");
    Page page;
    page.id = pageID;
    for (int i = 0; i < blockCount; ++i)
        page.content.append({.id = QUuid::createUuid(),
                             .text = text.repeated(1 + i % 4) + QStringLiteral("Harbour %1").arg(i % 10)});
    Snapshot workspace;
    workspace.list<Page>().append(page);
    return workspace;
}

class PageScene : public Scene
{
public:
    PageScene()
        : Scene(workspace(), "import Orvel.Pages\nPageEditorView { focus: true; pageID: \"" +
                                 pageID.toString(QUuid::WithoutBraces).toUtf8() + "\" }")
    {
    }

    Comparison::Duration typeKey()
    {
        const QString text = QString::fromUtf16(typedText);
        if (m_typed == text.size()) {
            finder()->setQuery({});
            settle();
            m_typed = 0;
        }
        const QChar letter = text[m_typed++];
        const bool isLetter = letter.isLetter();
        return press(isLetter ? letter.toUpper().unicode() : int(letter.unicode()), letter);
    }
    Comparison::Duration next() { return press(Qt::Key_Return, QStringLiteral("\r")); }

    TextFinder *finder() { return desk().session->finder(); }
    void openBar()
    {
        finder()->open();
        settle();
    }

private:
    qsizetype m_typed = 0;
};

/// What a plain search does for one key: it compares every block, case aside.
Comparison::Duration plainSearch(const QList<Block> &blocks, const QString &query)
{
    return timed([&] {
        qsizetype count = 0;
        for (const Block &block : blocks)
            for (qsizetype at = block.text.indexOf(query, 0, Qt::CaseInsensitive); at >= 0;
                 at = block.text.indexOf(query, at + query.size(), Qt::CaseInsensitive))
                ++count;
        if (count == 0)
            std::exit(2);
    });
}
} // namespace

int main(int argc, char *argv[])
{
    const QGuiApplication application(argc, argv);
    PageScene scene;
    scene.open();
    scene.openBar();
    const QList<Block> blocks = scene.desk().store->pages().first(pageID)->content;

    Comparison comparison;
    const auto milliseconds = [](double count) { return Comparison::Duration(count); };
    const auto plain = [&] { return plainSearch(blocks, QStringLiteral("harbour")); };
    const auto keys = Comparison::alternate(300, [&] { return scene.typeKey(); }, plain);
    if (scene.desk().session->finder()->count() == 0) {
        std::fprintf(stderr, "bench_pagefind: the keys have not arrived\n");
        return 2;
    }
    for (const int share : {50, 95})
        comparison.timeUnder(
            QStringLiteral("key into the search of a page of 2,000 blocks, %1 of 100").arg(share),
            Comparison::quantile(keys.ours, share / 100.0),
            Comparison::quantile(keys.baseline, share / 100.0), milliseconds(16));
    const auto steps = Comparison::alternate(300, [&] { return scene.next(); }, plain);
    comparison.timeUnder(QStringLiteral("to the next match of a page of 2,000 blocks, 95 of 100"),
                         Comparison::quantile(steps.ours, 0.95), Comparison::quantile(steps.baseline, 0.95),
                         milliseconds(16));
    return comparison.exitCode();
}
