#pragma once

#include "Foundation/Clock.h"
#include "Store/PreparedSearch.h"
#include "Store/WorkspaceStore.h"
#include "Support/UIState.h"
#include "Support/Updates/UpdateService.h"

#include <QtQml/qqml.h>

/// Makes the long-lived objects known to QML, which lie below it and know nothing of it.
struct WorkspaceStoreType {
    Q_GADGET
    QML_FOREIGN(WorkspaceStore)
    QML_NAMED_ELEMENT(WorkspaceStore)
    QML_UNCREATABLE("The application makes the store.")
};

struct SaveSchedulerType {
    Q_GADGET
    QML_FOREIGN(SaveScheduler)
    QML_NAMED_ELEMENT(SaveScheduler)
    QML_UNCREATABLE("The store makes its scheduler.")
};

struct UIStateType {
    Q_GADGET
    QML_FOREIGN(UIState)
    QML_NAMED_ELEMENT(UIState)
    QML_UNCREATABLE("The application makes the UI state.")
};

struct UpdateServiceType {
    Q_GADGET
    QML_FOREIGN(UpdateService)
    QML_NAMED_ELEMENT(UpdateService)
    QML_UNCREATABLE("The application makes the update service.")
};

struct PreparedSearchType {
    Q_GADGET
    QML_FOREIGN(PreparedSearch)
    QML_NAMED_ELEMENT(PreparedSearch)
    QML_UNCREATABLE("The session makes the search.")
};

struct ClockType {
    Q_GADGET
    QML_FOREIGN(Clock)
    QML_NAMED_ELEMENT(Clock)
    QML_UNCREATABLE("The application makes the clock.")
};
