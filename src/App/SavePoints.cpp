#include "App/SavePoints.h"

SavePoints::SavePoints(WorkspaceStore *store, SystemClock *clock, QGuiApplication *application)
    : m_store(store), m_clock(clock)
{
    connect(application, &QGuiApplication::applicationStateChanged, this,
            &SavePoints::applicationStateChanged);
    // The session goes on to end when this returns.
    connect(
        application, &QGuiApplication::commitDataRequest, this, [this] { m_store->saveNow(); },
        Qt::DirectConnection);
    connect(application, &QCoreApplication::aboutToQuit, this, [this] { m_store->saveNow(); });
}

void SavePoints::applicationStateChanged(Qt::ApplicationState state)
{
    if (state == Qt::ApplicationActive)
        m_clock->check();
    else
        m_store->saveNow();
}
