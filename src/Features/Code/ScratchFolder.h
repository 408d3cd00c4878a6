#pragma once

#include <QString>

#include <expected>

/// The folder that a snippet runs in.
namespace ScratchFolder
{
/// Makes a folder that only its owner can enter. On failure gives the system's reason.
std::expected<QString, QString> make(const QString &parent);

/// Removes the folder, whatever modes its contents have, and waits for it. As soon as `cancelled` can be read
/// it waits only for a moment; the removal then goes on by itself.
void remove(const QString &folder, int cancelled);
} // namespace ScratchFolder
