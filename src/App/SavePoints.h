#pragma once

#include "Foundation/SystemClock.h"
#include "Store/WorkspaceStore.h"

#include <QGuiApplication>

/// Saves the workspace at each moment that may be the last chance for it: the program loses the person's
/// attention, the desktop's session ends, the program ends. Coming back, the clock looks at the day.
class SavePoints : public QObject
{
    Q_OBJECT

public:
    /// All three live longer than the save points.
    SavePoints(WorkspaceStore *store, SystemClock *clock, QGuiApplication *application);

private:
    void applicationStateChanged(Qt::ApplicationState state);

    WorkspaceStore *m_store;
    SystemClock *m_clock;
};
