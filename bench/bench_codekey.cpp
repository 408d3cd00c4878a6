#include "Harness/Comparison.h"
#include "Harness/Desk.h"
#include "Harness/SourceText.h"
#include "Harness/WorkspaceGenerator.h"

#include <QGuiApplication>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickRenderControl>
#include <QQuickRenderTarget>
#include <QQuickWindow>

#include <cstdio>
#include <memory>

namespace
{
/// A page of QML in a window that is never painted: the scene is brought up to date, and that is what counts.
class Scene
{
public:
    explicit Scene(QQmlEngine &engine, const QByteArray &page)
    {
        QQmlComponent component(&engine);
        component.setData(page, {});
        m_page.reset(qobject_cast<QQuickItem *>(component.create()));
        if (!m_page) {
            std::fprintf(stderr, "bench_codekey: %s\n", qUtf8Printable(component.errorString()));
            std::exit(2);
        }
        m_page->setParentItem(m_window.contentItem());
        m_window.resize(1240, 820);
        m_page->setSize(QSizeF(1240, 820));
        m_window.setRenderTarget(QQuickRenderTarget::fromPaintDevice(&m_ground));
        QFocusEvent focus(QEvent::FocusIn);
        QCoreApplication::sendEvent(&m_window, &focus);
        settle();
    }

    QQuickItem *page() const { return m_page.get(); }
    QQuickItem *focused() const { return m_window.activeFocusItem(); }

    void settle()
    {
        for (int turn = 0; turn < 20; ++turn) {
            QCoreApplication::processEvents();
            update();
        }
    }

    /// Sends one key, to the moment when what follows from it is done and the scene is up to date.
    Comparison::Duration type(Qt::Key key, const QString &text)
    {
        const auto time = timed([&] {
            QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, text);
            QCoreApplication::sendEvent(&m_window, &press);
            QCoreApplication::processEvents();
            update();
        });
        render();
        return time;
    }

    /// The longest turn of the event loop until nothing is left to do.
    Comparison::Duration longestTurn()
    {
        Comparison::Duration longest{};
        for (int turn = 0; turn < 50; ++turn) {
            longest = std::max(longest, timed([&] {
                                   QCoreApplication::processEvents();
                                   update();
                               }));
            render();
        }
        return longest;
    }

private:
    void update()
    {
        m_control.polishItems();
        m_control.beginFrame();
        m_control.sync();
    }
    void render()
    {
        m_control.render();
        m_control.endFrame();
    }

    QImage m_ground{QSize(1240, 820), QImage::Format_ARGB32_Premultiplied};
    QQuickRenderControl m_control;
    QQuickWindow m_window{&m_control};
    std::unique_ptr<QQuickItem> m_page;
};
} // namespace

int main(int argc, char *argv[])
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    const QGuiApplication application(argc, argv);
    Snapshot workspace = WorkspaceGenerator::ofFileSize(10'000'000);
    workspace.list<CodeDocument>().prepend({.id = QUuid::createUuid(),
                                            .title = QStringLiteral("Long"),
                                            .language = CodeLanguage::swift,
                                            .source = SourceText::ofSize(100'000)});
    const CodeDocument document = workspace.list<CodeDocument>().first();
    Desk desk(workspace);
    desk.ui.setCodeDocumentID(document.id);
    QQmlEngine engine;
    desk.provideTo(engine);
    Scene ours(engine, "import QtQuick\nimport Orvel.Code\nCodeView { focus: true }");
    QQuickItem *const input = ours.focused();
    Scene bare(engine, "import QtQuick\nFlickable { contentWidth: width; contentHeight: area.height\n"
                       "TextEdit { id: area; focus: true; width: parent.width; font.family: 'JetBrains Mono';"
                       " font.pixelSize: 13; wrapMode: TextEdit.Wrap } }");
    QQuickItem *const bareInput = bare.focused();
    if (!input || !bareInput || input->property("text").toString() != document.source) {
        std::fprintf(stderr, "bench_codekey: the document is not open\n");
        return 2;
    }
    bareInput->setProperty("text", document.source);
    bare.settle();
    Comparison comparison;
    qsizetype keys = 0;
    for (const double place : {0.0, 0.5, 0.99}) {
        const int position = int(document.source.indexOf(
            QStringLiteral("never empty"), qsizetype(double(document.source.size()) * place) - 500));
        input->setProperty("cursorPosition", position);
        bareInput->setProperty("cursorPosition", position);
        bare.page()->setProperty("contentY", input->property("cursorRectangle").toRectF().y() - 300);
        ours.settle();
        bare.settle();
        const auto times = Comparison::alternate(
            200, [&] { return ours.type(Qt::Key_X, QStringLiteral("x")); },
            [&] { return bare.type(Qt::Key_X, QStringLiteral("x")); });
        comparison.timeUnder(
            QStringLiteral("key into 100 KB of code in 10 MB at %1, against a bare text field, 95 of 100")
                .arg(place),
            Comparison::quantile(times.ours, 0.95), Comparison::quantile(times.baseline, 0.95),
            Comparison::Duration(8));
        keys += times.ours.size();
    }
    input->setProperty("cursorPosition", 0);
    ours.settle();
    ours.type(Qt::Key_Slash, QStringLiteral("/"));
    const auto open = ours.type(Qt::Key_Asterisk, QStringLiteral("*"));
    const auto after = ours.longestTurn();
    bareInput->setProperty("cursorPosition", 0);
    bare.settle();
    bare.type(Qt::Key_Slash, QStringLiteral("/"));
    comparison.timeUnder(QStringLiteral("longest turn after a comment is opened at the top"),
                         std::max(open, after), bare.type(Qt::Key_Asterisk, QStringLiteral("*")),
                         Comparison::Duration(8));
    const QString typed = desk.store->codeDocuments().first(document.id)->source;
    const QString bareText = bareInput->property("text").toString();
    if (typed.size() < document.source.size() + keys + 2 || typed.size() != bareText.size()) {
        std::fprintf(stderr, "bench_codekey: the keys have not arrived\n");
        return 2;
    }
    return comparison.exitCode();
}
