#include <QGuiApplication>
#include <QQmlEngine>
#include <QQuickStyle>
#include <QQuickView>

/// Every component in a window of its own.
int main(int argc, char *argv[])
{
    const QGuiApplication application(argc, argv);
    QQuickStyle::setStyle(QStringLiteral("Basic"));
    QQuickView view;
    view.engine()->addImportPath(QStringLiteral(":/qt/qml"));
    view.setResizeMode(QQuickView::SizeRootObjectToView);
    view.setSource(QUrl(QStringLiteral("qrc:/qt/qml/Orvel/Gallery/Gallery.qml")));
    view.resize(1240, 8900);
    view.show();
    return QGuiApplication::exec();
}
