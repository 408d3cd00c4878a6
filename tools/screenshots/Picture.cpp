#include "Picture.h"

#include "DesignSystem/OVTheme.h"
#include "DesignSystem/ThemePresets.h"
#include "ScratchWorkspace.h"

#include <QKeyEvent>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickView>
#include <QTextStream>
#include <QTimer>

namespace
{
Look preset(ThemePreset preset)
{
    return [preset](AppSettings &settings) { applyThemePreset(preset, settings.theme); };
}

void type(QWindow &window, const QString &text)
{
    for (const QChar letter : text) {
        QKeyEvent press(QEvent::KeyPress, letter.toUpper().unicode(), Qt::NoModifier, letter);
        QCoreApplication::sendEvent(&window, &press);
    }
}

/// Moves the pointer to where the page wants it, if it does.
void point(QWindow &window, const QObject &page)
{
    const QVariant pointer = page.property("pointer");
    if (!pointer.canConvert<QPointF>())
        return;
    const QPointF place = pointer.toPointF();
    QMouseEvent move(QEvent::MouseMove, place, window.mapToGlobal(place), Qt::NoButton, Qt::NoButton,
                     Qt::NoModifier);
    QCoreApplication::sendEvent(&window, &move);
}

/// Lets bindings, animations and images settle.
void settle(int milliseconds)
{
    QEventLoop loop;
    QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
    loop.exec();
}
} // namespace

void light(AppSettings &settings)
{
    settings.appearance = AppearanceMode::light;
}

void dark(AppSettings &settings)
{
    settings.appearance = AppearanceMode::dark;
}

void huge(AppSettings &settings)
{
    settings.theme.fontScale = 1.4;
}

Look both(const Look &first, const Look &second)
{
    return [first, second](AppSettings &settings) {
        first(settings);
        second(settings);
    };
}

QList<std::pair<QString, Look>> looks()
{
    return {
        {QStringLiteral("light"), light},
        {QStringLiteral("dark"), dark},
        {QStringLiteral("ink"), [](AppSettings &settings) { settings.inkMode = true; }},
        {QStringLiteral("aurora"), both(light, preset(ThemePreset::aurora))},
        {QStringLiteral("aurora-dark"), both(dark, preset(ThemePreset::aurora))},
        {QStringLiteral("huge"), both(light, huge)},
    };
}

QByteArray screenPage(const QByteArray &module, const QByteArray &view, const QByteArray &script)
{
    return "import QtQuick\nimport Orvel.DesignSystem\nimport Orvel." + module +
           "\nItem { OVBackground { anchors.fill: parent }\n" + view +
           " { id: view; anchors.fill: parent; anchors.leftMargin: Theme.sidebarWidth; focus: true }\n"
           "Timer { id: later; interval: 300; onTriggered: { view.viewModel.toggleRunning(); "
           "if (resumed) view.viewModel.toggleRunning() } "
           "property bool resumed: true }\n"
           "Timer { interval: 20; running: true; onTriggered: { " +
           script + " } } }";
}

bool draw(const Picture &picture, const QString &file)
{
    ScratchWorkspace workspace;
    workspace.store.changeSettings(picture.look);
    picture.content(workspace.store, workspace.ui);
    OVTheme::apply(workspace.store.settings());

    QQuickView view;
    view.engine()->addImportPath(QStringLiteral(":/qt/qml"));
    workspace.session.provideTo(*view.engine());
    view.setResizeMode(QQuickView::SizeRootObjectToView);
    view.resize(picture.size);
    auto *const component = new QQmlComponent(view.engine(), &view);
    component->setData(picture.page, QUrl());
    view.setContent(QUrl(), component, component->create());
    if (view.status() != QQuickView::Ready) {
        QTextStream(stderr) << component->errorString();
        return false;
    }
    view.show();
    settle(900);
    point(view, *view.rootObject());
    if (!picture.typed.isEmpty()) {
        view.requestActivate();
        type(view, picture.typed);
    }
    settle(300);
    return view.grabWindow().save(file);
}
