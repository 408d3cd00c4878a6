#include "DesignSystem/OVTheme.h"
#include "Harness/Assistive.h"
#include "Harness/TestComposer.h"
#include "Harness/TestDrop.h"
#include "Harness/TestWorkspace.h"
#include "Session/OrvelSession.h"

#include <QQmlEngine>
#include <QtQuickTest>

/// Gives the QML tests of a screen a workspace of their own.
class Setup : public QObject
{
    Q_OBJECT

public slots:
    void qmlEngineAvailable(QQmlEngine *engine)
    {
        engine->addImportPath(QStringLiteral(":/qt/qml"));
        qmlRegisterSingletonInstance("Orvel.Testing", 1, 0, "Workspace", &m_workspace);
        qmlRegisterSingletonInstance("Orvel.Testing", 1, 0, "Composer", &m_composer);
        qmlRegisterSingletonInstance("Orvel.Testing", 1, 0, "Assistive", &m_assistive);
        qmlRegisterSingletonInstance("Orvel.Testing", 1, 0, "Drop", &m_drop);
        qmlRegisterType(QUrl::fromLocalFile(QStringLiteral(SCREEN_TEST_CASE)), "Orvel.Testing", 1, 0,
                        "ScreenTestCase");
        m_session.provideTo(*engine);
        connect(&m_workspace.clock(), &Clock::ticked, m_session.focus(), &FocusTimer::check);
        const WorkspaceStore &store = m_workspace.store();
        connect(&store, &WorkspaceStore::changed, this, [&store](const ChangeSet &changes) {
            if (changes.settings)
                OVTheme::apply(store.settings());
        });
        m_workspace.reset();
    }

private:
    Assistive m_assistive;
    TestComposer m_composer;
    TestDrop m_drop;
    TestWorkspace m_workspace;
    OrvelSession m_session{&m_workspace.store(), &m_workspace.ui(), &m_workspace.updates(),
                           m_workspace.machine()};
};

QUICK_TEST_MAIN_WITH_SETUP(orvel, Setup)
#include "ScreenTestMain.moc"
