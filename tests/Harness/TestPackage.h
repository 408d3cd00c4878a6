#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

#include <sys/stat.h>

/// Packages and bundles for tests, good ones and bad ones.
namespace TestPackage
{
struct Entry {
    /// As it stands in the archive; a folder's ends in a slash.
    QByteArray name;
    QByteArray contents;
    mode_t mode = S_IFREG | 0644;
    /// For a symbolic link.
    QByteArray target = {};
};

/// A bundle that says it has this version; its program adds the version to the file `marks` when it is
/// started, and makes exchanges through the probe.
QList<Entry> bundle(const QByteArray &version, const QByteArray &probe = {}, const QByteArray &marks = {});
QByteArray infoPlist(const QByteArray &version);

/// A ZIP file of the entries in their order, not packed smaller where asked for.
QByteArray zip(const QList<Entry> &entries, bool isStored = false);
/// Puts files and folders of the entries into a folder.
void layOut(const QList<Entry> &entries, const QString &folder);

/// Every name, mode and content below the folder, to compare.
QStringList tree(const QString &folder);
} // namespace TestPackage
