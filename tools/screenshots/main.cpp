// Draws pages of the program into pictures, in every look.
// usage: orvel-screenshots FOLDER [--size=WIDTHxHEIGHT]

#include "DesignSystem/OVTheme.h"
#include "DesignSystem/ThemePresets.h"

#include <QDir>
#include <QGuiApplication>
#include <QQmlEngine>
#include <QQuickView>
#include <QTextStream>
#include <QTimer>

#include <functional>

namespace {

struct Look {
    QString name;
    std::function<void(AppSettings &)> choose;
};

QList<Look> looks()
{
    return {
        {QStringLiteral("light"), [](AppSettings &settings) { settings.appearance = AppearanceMode::light; }},
        {QStringLiteral("dark"), [](AppSettings &settings) { settings.appearance = AppearanceMode::dark; }},
        {QStringLiteral("ink"), [](AppSettings &settings) { settings.inkMode = true; }},
        {QStringLiteral("aurora"),
         [](AppSettings &settings) {
             settings.appearance = AppearanceMode::light;
             applyThemePreset(ThemePreset::aurora, settings.theme);
         }},
        {QStringLiteral("aurora-dark"),
         [](AppSettings &settings) {
             settings.appearance = AppearanceMode::dark;
             applyThemePreset(ThemePreset::aurora, settings.theme);
         }},
        {QStringLiteral("huge"),
         [](AppSettings &settings) {
             settings.appearance = AppearanceMode::light;
             settings.theme.fontScale = 1.4;
         }},
    };
}

/// Lets bindings, animations and images settle.
void settle(int milliseconds)
{
    QEventLoop loop;
    QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
    loop.exec();
}

} // namespace

int main(int argc, char *argv[])
{
    QGuiApplication application(argc, argv);
    const QStringList arguments = application.arguments();
    QTextStream err(stderr);
    if (arguments.size() < 2) {
        err << "usage: orvel-screenshots FOLDER\n";
        return 2;
    }
    const QDir folder(arguments.at(1));
    if (!folder.mkpath(QStringLiteral("."))) {
        err << "The folder " << folder.path() << " cannot be made.\n";
        return 1;
    }

    QQuickView view;
    view.engine()->addImportPath(QStringLiteral(":/qt/qml"));
    view.setResizeMode(QQuickView::SizeRootObjectToView);
    view.resize(1240, 1500);
    view.setSource(QUrl(QStringLiteral("qrc:/qt/qml/Orvel/Gallery/Gallery.qml")));
    if (view.status() != QQuickView::Ready)
        return 1;
    view.show();

    for (const Look &look : looks()) {
        AppSettings settings;
        look.choose(settings);
        OVTheme::apply(settings);
        settle(900);
        const QString file = folder.filePath(QStringLiteral("gallery-%1.png").arg(look.name));
        if (!view.grabWindow().save(file)) {
            err << "The picture " << file << " cannot be written.\n";
            return 1;
        }
    }
    return 0;
}
