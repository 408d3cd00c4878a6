#include "Harness/Comparison.h"
#include "Harness/Desk.h"
#include "Harness/WorkspaceGenerator.h"

#include <QGuiApplication>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQmlIncubationController>
#include <QQuickItem>
#include <QQuickRenderControl>
#include <QQuickView>
#include <QQuickWindow>

#include <cstdio>

namespace
{
constexpr int blockCount = 2000;
constexpr int typedBlock = 1000;

Page longPage()
{
    const QString text =
        QStringLiteral("The harbour wakes before the town does. Nets are mended on the quay. ");
    Page page;
    page.id = QUuid::createUuid();
    for (int i = 0; i < blockCount; ++i) {
        const BlockType type =
            i % 10 == 0 ? BlockType(i / 10 % int(enumCases<BlockType>().size())) : BlockType::paragraph;
        page.content.append({.id = QUuid::createUuid(), .type = type, .text = text.repeated(1 + i % 4)});
    }
    page.content[typedBlock].type = BlockType::paragraph;
    return page;
}

/// A window that is never drawn, so that nothing but the items' own work is measured.
class Stage
{
public:
    explicit Stage(QQmlEngine &engine) : m_engine(engine)
    {
        m_window.contentItem()->setSize({1240, 820});
        m_window.resize(1240, 820);
        QFocusEvent focus(QEvent::FocusIn);
        QCoreApplication::sendEvent(&m_window, &focus);
    }

    /// Shows a page of QML in the place of the last one.
    void show(const QByteArray &qml, const QVariantMap &properties)
    {
        m_item.reset();
        QQmlComponent component(&m_engine);
        component.setData(qml, QUrl());
        m_item.reset(qobject_cast<QQuickItem *>(component.createWithInitialProperties(properties)));
        if (!m_item) {
            std::fprintf(stderr, "bench_pagekey: %s\n", qUtf8Printable(component.errorString()));
            std::exit(2);
        }
        m_item->setParentItem(m_window.contentItem());
        m_item->setSize({1240, 820});
        settle();
    }

    /// Does all that is left to do before the next frame is drawn.
    void settle()
    {
        QCoreApplication::processEvents();
        m_control.polishItems();
    }

    Comparison::Duration typeKey()
    {
        return timed([this] {
            for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
                QKeyEvent key(type, Qt::Key_X, Qt::NoModifier, QStringLiteral("x"));
                QCoreApplication::sendEvent(&m_window, &key);
            }
            settle();
        });
    }

    QQuickItem *item() const { return m_item.get(); }
    QQuickItem *focused() const { return m_window.activeFocusItem(); }

private:
    QQmlEngine &m_engine;
    QQuickRenderControl m_control;
    QQuickWindow m_window{&m_control};
    std::unique_ptr<QQuickItem> m_item;
};

constexpr char editorPage[] = "import QtQuick\nimport Orvel.Pages\n"
                              "PageEditorView { function focusBlock(row) { list.focusBlock(row, 5) } }";
constexpr char windowPage[] = "import Orvel.App\nWorkspaceView { }";
constexpr char barePage[] =
    "import QtQuick\n"
    "ListView { id: list; required property var texts; model: texts; currentIndex: -1\n"
    "delegate: TextEdit { required property string modelData; text: modelData; wrapMode: TextEdit.Wrap\n"
    "width: ListView.view.width }\n"
    "function focusBlock(row) { positionViewAtIndex(row, ListView.Contain); currentIndex = row\n"
    "currentItem.forceActiveFocus() } }";

/// From the choice of a page to its first frame, in a window that has shown another screen so far.
Comparison::Duration openFirstPage(QQmlEngine &engine, UIState &ui, const QUuid &pageID)
{
    QQuickView view(&engine, nullptr);
    QQmlComponent component(&engine);
    component.setData(windowPage, QUrl());
    ui.select(QStringLiteral("tasks"));
    view.setResizeMode(QQuickView::SizeRootObjectToView);
    view.resize(1240, 820);
    view.setContent(QUrl(), &component, component.create());
    view.show();
    QFocusEvent focus(QEvent::FocusIn);
    QCoreApplication::sendEvent(&view, &focus);
    const auto draw = [&view] {
        QCoreApplication::processEvents();
        QEvent update(QEvent::UpdateRequest);
        QCoreApplication::sendEvent(&view, &update);
    };
    // What the window makes ahead is there before a user chooses anything.
    do
        draw();
    while (engine.incubationController()->incubatingObjectCount() > 0);
    const auto duration = timed([&] {
        ui.selectPage(pageID);
        draw();
    });
    if (!view.activeFocusItem() ||
        view.activeFocusItem()->property("placeholderText") != QStringLiteral("Untitled")) {
        std::fprintf(stderr, "bench_pagekey: the page has not been opened\n");
        std::exit(2);
    }
    return duration;
}

QVariantMap texts(const Page &page)
{
    QStringList list;
    for (const Block &block : page.content)
        list.append(block.text);
    return {{QStringLiteral("texts"), list}};
}
} // namespace

int main(int argc, char *argv[])
{
    const QGuiApplication application(argc, argv);
    const Page page = longPage();
    Snapshot workspace = WorkspaceGenerator::ofFileSize(10'000'000);
    workspace.list<Page>().append(page);
    Desk desk(workspace);
    QQmlEngine engine;
    desk.provideTo(engine);
    const QVariantMap id{{QStringLiteral("pageID"), page.id}};
    const auto milliseconds = [](double count) { return Comparison::Duration(count); };

    Comparison comparison;
    const auto first = openFirstPage(engine, desk.ui, page.id);
    Stage ours(engine);
    Stage bare(engine);
    comparison.timeUnder(QStringLiteral("first frame of the first page of a window, of 2,000 blocks"), first,
                         timed([&] { bare.show(barePage, texts(page)); }), milliseconds(100));
    const auto open = [&] { return timed([&] { ours.show(editorPage, id); }); };
    const auto openBare = [&] { return timed([&] { bare.show(barePage, texts(page)); }); };
    const auto openings = Comparison::alternate(20, open, openBare);
    comparison.timeUnder(QStringLiteral("open a page of 2,000 blocks, half of the times"),
                         Comparison::quantile(openings.ours, 0.5),
                         Comparison::quantile(openings.baseline, 0.5), milliseconds(100));

    for (const Stage *stage : {&ours, &bare})
        QMetaObject::invokeMethod(stage->item(), "focusBlock", Q_ARG(QVariant, typedBlock));
    ours.settle();
    bare.settle();
    const auto keys =
        Comparison::alternate(300, [&] { return ours.typeKey(); }, [&] { return bare.typeKey(); });
    const QString typed = desk.store->pages().first(page.id)->content[typedBlock].text;
    if (typed.count(u'x') < keys.ours.size()) {
        std::fprintf(stderr, "bench_pagekey: the keys have not arrived\n");
        return 2;
    }
    const QString what = QStringLiteral("key into a page of 2,000 blocks in 10 MB, %1 of 100");
    for (const int share : {50, 95})
        comparison.timeUnder(what.arg(share), Comparison::quantile(keys.ours, share / 100.0),
                             Comparison::quantile(keys.baseline, share / 100.0), milliseconds(8));
    return comparison.exitCode();
}
