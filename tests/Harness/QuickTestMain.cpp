#include "Harness/Assistive.h"

#include <QQmlEngine>
#include <QtQuickTest>

/// Lets the QML tests of a folder import the modules they link.
class Setup : public QObject
{
    Q_OBJECT

public slots:
    void qmlEngineAvailable(QQmlEngine *engine)
    {
        engine->addImportPath(QStringLiteral(":/qt/qml"));
        qmlRegisterSingletonInstance("Orvel.Testing", 1, 0, "Assistive", &m_assistive);
    }

private:
    Assistive m_assistive;
};

QUICK_TEST_MAIN_WITH_SETUP(orvel, Setup)
#include "QuickTestMain.moc"
