#pragma once

#include <QString>

/// A self-contained copy of the program: the folder `Orvel.app`, with `Contents/Info.plist` and the program
/// in `Contents/bin`, which a package holds and an update replaces as a whole.
namespace AppBundle
{
inline constexpr QLatin1StringView name{"Orvel.app"};

QString programPath(const QString &bundle);
/// Whether the bundle has a program that can be started.
bool hasProgram(const QString &bundle);

/// A text of the bundle's `Info.plist`; empty if there is none.
QString info(const QString &bundle, QStringView key);
/// Such as "1.4.2"; empty if unreadable.
QString version(const QString &bundle);

/// The bundle that a program in this folder belongs to, or empty if it belongs to none.
QString containing(const QString &programFolder);
} // namespace AppBundle
