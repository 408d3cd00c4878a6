#pragma once

#include "Foundation/SystemClock.h"
#include "Store/WorkspaceStore.h"

#include <QGuiApplication>

/// Saves the workspace at each moment that may be the last chance for it: the program loses the user's
/// attention, the desktop's session ends, the program ends, whether in order or by a call of `exit`, as when
/// the connection to the display is lost. Coming back, the clock looks at the day.
///
/// One object per process.
class SavePoints : public QObject
{
    Q_OBJECT

public:
    /// All three live longer than the save points.
    SavePoints(WorkspaceStore *store, SystemClock *clock, QGuiApplication *application);
    ~SavePoints() override;

    /// Lets writes to a closed pipe and beyond the limit of a file's size fail, where the system would end
    /// the program. Processes started by it are not concerned.
    static void surviveFailedWrites();

private:
    void applicationStateChanged(Qt::ApplicationState state);
    void saveAtExit();

    WorkspaceStore *m_store;
    SystemClock *m_clock;
};
