#pragma once

#include <QSet>
#include <QString>

/// Names for files that every file system takes.
namespace FileNames
{
/// The title without the signs that some file systems don't take, no longer than about 200 bytes.
/// @param otherwise the name of a title of which nothing is left
QString fit(const QString &title, const QString &otherwise);

/// Makes names different from each other, also where a file system takes upper and lower case for the same.
class Unique
{
public:
    /// The name, or with a number behind it: "Plan", "Plan 2", ...
    QString take(const QString &name);

private:
    QSet<QString> m_taken;
};
} // namespace FileNames
