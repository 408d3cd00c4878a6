#pragma once

#include <QString>

#include <expected>
#include <optional>

/// Lets two files or folders change places in one step of the file system: nobody, and no kill or power cut,
/// ever finds one of the two places empty.
namespace PathExchange
{
/// Both have to exist on one file system. On failure gives the system's reason, and nothing has changed.
std::expected<void, QString> exchange(const QString &first, const QString &second);

/// Whether things in this folder can change places: tries it with two empty folders.
bool isPossibleIn(const QString &folder);

/// Serves `PROGRAM --exchange FIRST SECOND`, for scripts; gives the code to exit with, or nothing if that is
/// not what the arguments ask for.
std::optional<int> serve(int argc, char *argv[]);
} // namespace PathExchange
