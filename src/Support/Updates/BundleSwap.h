#pragma once

#include <QString>

#include <expected>

/// The last stage of an update: a script that outlives the program puts the new bundle in the place of the
/// old one and starts it.
namespace BundleSwap
{
/// Starts the script, which waits for the process to end first, and from now on owns the work folder. On
/// failure gives the system's reason, and nothing has happened.
/// @param target the installed bundle
/// @param staged the new one, inside `work`
/// @param work a folder for this one swap
std::expected<void, QString> start(const QString &target, const QString &staged, const QString &work,
                                   qint64 processId);
} // namespace BundleSwap
