#include "TestPackage.h"

#include <QDir>
#include <QDirIterator>

#include <archive.h>
#include <archive_entry.h>

QByteArray TestPackage::infoPlist(const QByteArray &version)
{
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<plist version=\"1.0\">\n<dict>\n"
           "    <key>CFBundleName</key>\n    <string>Orvel</string>\n"
           "    <key>CFBundleShortVersionString</key>\n    <string>" +
           version + "</string>\n</dict>\n</plist>\n";
}

QList<TestPackage::Entry> TestPackage::bundle(const QByteArray &version, const QByteArray &probe,
                                              const QByteArray &marks)
{
    const QByteArray program = "#!/bin/sh\n[ \"$1\" = --exchange ] && exec '" + probe + "' \"$@\"\necho " +
                               version + " >>'" + marks + "'\n";
    return {{"Orvel.app/", {}, S_IFDIR | 0755},
            {"Orvel.app/Contents/", {}, S_IFDIR | 0755},
            {"Orvel.app/Contents/Info.plist", infoPlist(version)},
            {"Orvel.app/Contents/bin/", {}, S_IFDIR | 0755},
            {"Orvel.app/Contents/bin/orvel", program, S_IFREG | 0755},
            {"Orvel.app/Contents/share/doc.txt", "made for " + version}};
}

QByteArray TestPackage::zip(const QList<Entry> &entries, bool isStored)
{
    QByteArray bytes;
    archive *const writer = archive_write_new();
    archive_write_set_format_zip(writer);
    if (isStored)
        archive_write_zip_set_compression_store(writer);
    archive_write_set_bytes_in_last_block(writer, 1);
    archive_write_open(
        writer, &bytes, nullptr,
        [](archive *, void *out, const void *piece, std::size_t size) -> la_ssize_t {
            static_cast<QByteArray *>(out)->append(static_cast<const char *>(piece), qsizetype(size));
            return la_ssize_t(size);
        },
        nullptr);
    for (const Entry &each : entries) {
        archive_entry *const entry = archive_entry_new();
        archive_entry_set_pathname(entry, each.name.constData());
        archive_entry_set_mode(entry, each.mode);
        archive_entry_set_size(entry, each.contents.size());
        if (S_ISLNK(each.mode))
            archive_entry_set_symlink(entry, each.target.constData());
        if (archive_write_header(writer, entry) != ARCHIVE_OK)
            qFatal("%s", archive_error_string(writer));
        archive_write_data(writer, each.contents.constData(), std::size_t(each.contents.size()));
        archive_entry_free(entry);
    }
    archive_write_free(writer);
    return bytes;
}

void TestPackage::layOut(const QList<Entry> &entries, const QString &folder)
{
    const QDir place(folder);
    for (const Entry &each : entries) {
        const QString name = QString::fromUtf8(each.name);
        if (S_ISDIR(each.mode)) {
            place.mkpath(name);
            continue;
        }
        place.mkpath(QFileInfo(name).path());
        QFile file(place.filePath(name));
        if (!file.open(QIODevice::WriteOnly) || file.write(each.contents) != each.contents.size())
            qFatal("%s", qPrintable(file.errorString()));
        file.close();
        ::chmod(QFile::encodeName(file.fileName()).constData(), each.mode & 07777);
    }
}

QStringList TestPackage::tree(const QString &folder)
{
    QStringList lines;
    QDirIterator each(folder, QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                      QDirIterator::Subdirectories);
    while (each.hasNext()) {
        const QString path = each.next();
        struct stat status = {};
        ::lstat(QFile::encodeName(path).constData(), &status);
        QFile file(path);
        const bool isFile = S_ISREG(status.st_mode) && file.open(QIODevice::ReadOnly);
        lines.append(QDir(folder).relativeFilePath(path) + u' ' + QString::number(status.st_mode, 8) + u' ' +
                     QString::fromUtf8(isFile ? file.readAll() : QByteArray()));
    }
    lines.sort();
    return lines;
}
