#include <QGuiApplication>
#include <QQmlApplicationEngine>
#include <QQuickStyle>
#include <QQuickWindow>

#include <cstdio>

/// The baseline of a start: a window of Qt Quick Controls with nothing in it.
int main(int argc, char *argv[])
{
    const QGuiApplication application(argc, argv);
    QQuickStyle::setStyle(QStringLiteral("Basic"));
    QQmlApplicationEngine engine;
    engine.loadData("import QtQuick.Controls\n"
                    "ApplicationWindow { visible: true; width: 1180; height: 760 }");
    if (engine.rootObjects().isEmpty())
        return EXIT_FAILURE;
    auto *const window = qobject_cast<QQuickWindow *>(engine.rootObjects().constFirst());
    QObject::connect(
        window, &QQuickWindow::frameSwapped, window, [] { std::fputs("first frame\n", stderr); },
        Qt::ConnectionType(Qt::DirectConnection | Qt::SingleShotConnection));
    return QGuiApplication::exec();
}
