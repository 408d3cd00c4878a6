#include "Harness/Comparison.h"
#include "Harness/SourceText.h"

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
    explicit Scene(const QByteArray &page)
    {
        m_engine.addImportPath(QStringLiteral(":/qt/qml"));
        QQmlComponent component(&m_engine);
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

    void settle()
    {
        for (int turn = 0; turn < 20; ++turn) {
            QCoreApplication::processEvents();
            update();
        }
    }

    /// Sends one key, to the moment when the scene is up to date.
    Comparison::Duration type(Qt::Key key, const QString &text)
    {
        const auto time = timed([&] {
            QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, text);
            QCoreApplication::sendEvent(&m_window, &press);
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

    QQmlEngine m_engine;
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
    const QString source = SourceText::ofSize(100'000);
    Scene ours("import QtQuick\nimport Orvel.Code\n"
               "CodeEditor { id: editor; focus: true; language: 'swift'; property string told;"
               " onEdited: text => told = text }");
    ours.page()->setProperty("text", source);
    ours.page()->setProperty("wrap", qEnvironmentVariableIntValue("NOWRAP") == 0);
    auto *const input = ours.page()->property("input").value<QQuickItem *>();
    ours.settle();
    Scene bare("import QtQuick\nFlickable { id: view; property alias input: area;\n"
               "contentWidth: width; contentHeight: area.height\n"
               "TextEdit { id: area; focus: true; width: view.width; font.family: 'JetBrains Mono';"
               " font.pixelSize: 13; wrapMode: TextEdit.Wrap } }");
    auto *const bareInput = bare.page()->property("input").value<QQuickItem *>();
    bareInput->setProperty("text", source);
    bare.settle();
    Comparison comparison;
    for (const double place : {0.0, 0.5, 0.99}) {
        const int position = int(
            source.indexOf(QStringLiteral("never empty"), qsizetype(double(source.size()) * place) - 500));
        input->setProperty("cursorPosition", position);
        bareInput->setProperty("cursorPosition", position);
        bare.page()->setProperty("contentY", input->property("cursorRectangle").toRectF().y() - 300);
        ours.settle();
        bare.settle();
        const auto times = Comparison::alternate(
            200, [&] { return ours.type(Qt::Key_X, QStringLiteral("x")); },
            [&] { return bare.type(Qt::Key_X, QStringLiteral("x")); });
        comparison.timeUnder(
            QStringLiteral("key into 100 KB of code at %1, against a bare text field, 95 of 100").arg(place),
            Comparison::quantile(times.ours, 0.95), Comparison::quantile(times.baseline, 0.95),
            Comparison::Duration(8));
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
    return comparison.exitCode();
}
