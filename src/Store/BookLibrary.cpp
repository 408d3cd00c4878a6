#include "Store/BookLibrary.h"

#include "Foundation/AtomicFile.h"
#include "Foundation/Utf8.h"

#include <QDir>
#include <QFile>

QString BookLibrary::directory() const
{
    QDir().mkpath(m_folder);
    return m_folder;
}

QString BookLibrary::filePath(const QUuid &id) const
{
    return m_folder + u'/' + id.toString(QUuid::WithoutBraces).toUpper() + QStringLiteral(".txt");
}

QString BookLibrary::text(const QUuid &id) const
{
    QFile file(filePath(id));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    return Utf8::decode(file.readAll()).value_or(QString());
}

std::expected<void, QString> BookLibrary::write(const QUuid &id, const QString &text) const
{
    directory();
    AtomicFile::sweepLeftovers(filePath(id));
    return AtomicFile::write(filePath(id), text.toUtf8());
}

void BookLibrary::deleteText(const QUuid &id) const
{
    AtomicFile::sweepLeftovers(filePath(id));
    QFile::remove(filePath(id));
}

void BookLibrary::deleteAll() const
{
    const auto entries =
        QDir(m_folder).entryInfoList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    for (const QFileInfo &entry : entries) {
        // A link goes, what it leads to stays.
        if (entry.isDir() && !entry.isSymLink())
            QDir(entry.filePath()).removeRecursively();
        else
            QFile::remove(entry.filePath());
    }
}
