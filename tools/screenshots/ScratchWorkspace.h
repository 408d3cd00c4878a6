#pragma once

#include "Foundation/SystemClock.h"
#include "Session/OrvelSession.h"
#include "Store/WorkspaceStore.h"
#include "Support/UIState.h"

#include <QTemporaryDir>

/// A workspace that is gone with the program. The timer runs 2,000 times as fast as the clock, so that a
/// picture shows a session that is under way.
struct ScratchWorkspace {
    QTemporaryDir folder;
    SystemClock clock;
    WorkspaceStore store{{.filePath = folder.filePath(QStringLiteral("workspace.json")), .clock = &clock}};
    UIState ui;
    UpdateService updates{{}};
    OrvelSession session{&store, &ui, &updates, Machine{.uptime = [] { return 2'000 * Machine().uptime(); }}};
};
