#pragma once

#include <QByteArrayView>
#include <QString>

#include <expected>

/// Replaces whole files durably: after a success the new bytes survive a power cut, after a failure or a
/// kill at any moment the old file is intact.
namespace AtomicFile
{
/// Writes the bytes to a temporary file beside `path`, syncs it, renames it over `path` and syncs the folder.
/// The file is readable by its owner only. A symbolic link stays and its target is replaced, even one that
/// does not exist yet.
/// On failure gives the step that failed and the system's reason. If that step is the last one, the sync of
/// the folder, the new file is in place but a power cut may still bring back the old one.
std::expected<void, QString> write(const QString &path, QByteArrayView bytes);

/// Removes the temporary files that a killed writer of `path` left beside it.
void sweepLeftovers(const QString &path);
} // namespace AtomicFile
