#pragma once

#include "DesignSystem/OVTheme.h"
#include "Features/Shell/SidebarViewModel.h"
#include "Foundation/SystemClock.h"
#include "Session/OrvelSession.h"
#include "Store/SnapshotCodec.h"

#include <QFile>
#include <QQmlEngine>
#include <QTemporaryDir>

#include <cstdio>

/// A workspace with what every window does with its changes, whichever screen it shows.
struct Desk {
    explicit Desk(const Snapshot &workspace)
    {
        const QString path = folder.filePath(QStringLiteral("workspace.json"));
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly) || file.write(SnapshotCodec::encode(workspace)) < 0) {
            std::fprintf(stderr, "bench: cannot prepare the workspace\n");
            std::exit(2);
        }
        file.close();
        // The save comes after the last key, so none falls into the measurement.
        store =
            std::make_unique<WorkspaceStore>(WorkspaceStore::Options{path, &clock, std::chrono::hours(1)});
        OVTheme::apply(store->settings());
        session = std::make_unique<OrvelSession>(store.get(), &ui, &updates);
        sidebar.setSession(session.get());
    }

    void provideTo(QQmlEngine &engine) const
    {
        engine.addImportPath(QStringLiteral(":/qt/qml"));
        session->provideTo(engine);
    }

    QTemporaryDir folder;
    SystemClock clock;
    UIState ui;
    UpdateService updates{{}};
    std::unique_ptr<WorkspaceStore> store;
    std::unique_ptr<OrvelSession> session;
    SidebarViewModel sidebar;
};
