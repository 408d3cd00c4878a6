#pragma once

#include <QString>

#include <expected>
#include <stop_token>

/// The ZIP file that holds a new copy of the program.
namespace PackageArchive
{
/// What an honest package stays below.
struct Limits {
    qint64 entries = 20'000;
    /// Of all files together, unpacked.
    qint64 bytes = 2'000'000'000;
    /// How many bytes may come out of one byte of the archive.
    qint64 ratio = 100;
};

/// Unpacks the bundle of the archive, and nothing beside it, into the folder, as plain files and folders:
/// there are no links, and of the modes only "executable" is kept. Blocks until it is done or asked to stop.
/// An archive that could reach outside the folder, or be read in two ways, is refused.
/// On failure gives the reason, for logs rather than for the user; what was unpacked so far is left.
std::expected<void, QString> unpack(const QString &archive, const QString &folder,
                                    const std::stop_token &stop = {}, const Limits &limits = Limits());
} // namespace PackageArchive
