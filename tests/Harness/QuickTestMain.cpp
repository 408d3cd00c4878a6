#include <QQmlEngine>
#include <QtQuickTest>

/// Lets the QML tests of a folder import the modules they link.
class Setup : public QObject
{
    Q_OBJECT

public slots:
    void qmlEngineAvailable(QQmlEngine *engine) { engine->addImportPath(QStringLiteral(":/qt/qml")); }
};

QUICK_TEST_MAIN_WITH_SETUP(orvel, Setup)
#include "QuickTestMain.moc"
