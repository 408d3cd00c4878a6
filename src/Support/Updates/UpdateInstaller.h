#pragma once

#include "Support/Updates/AvailableUpdate.h"

#include <expected>
#include <functional>

class QObject;

/// Installs an update.
class UpdateInstaller
{
public:
    virtual ~UpdateInstaller() = default;
    virtual bool canInstall() const = 0;
    virtual void install(const AvailableUpdate &update, QObject *owner, std::function<void(double)> progress,
                         std::function<void(std::expected<void, QString>)> done) = 0;
};
