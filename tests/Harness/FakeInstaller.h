#pragma once

#include "Support/Updates/UpdateInstaller.h"

#include <QList>

/// Keeps what it is told, and answers when the test says so.
struct FakeInstaller final : UpdateInstaller {
    bool canInstall() const override { return isAllowed; }
    void install(const AvailableUpdate &update, QObject *, std::function<void(double)> tellProgress,
                 std::function<void(std::expected<void, QString>)> tellDone) override
    {
        installs.append(update);
        progress = std::move(tellProgress);
        done = std::move(tellDone);
    }

    bool isAllowed = true;
    QList<AvailableUpdate> installs;
    std::function<void(double)> progress;
    std::function<void(std::expected<void, QString>)> done;
};
