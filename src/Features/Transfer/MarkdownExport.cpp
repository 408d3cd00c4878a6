#include "Features/Transfer/MarkdownExport.h"

#include "Support/FileNames.h"
#include "Support/Markdown/BlockMarkdown.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QHash>

#include <algorithm>
#include <ranges>

namespace
{
struct Texts {
    Q_DECLARE_TR_FUNCTIONS(MarkdownExport)
};

QString untitled()
{
    return Texts::tr("Untitled");
}

/// The files and folders made so far, which are taken away again unless they are to stay.
class Written
{
public:
    ~Written()
    {
        for (const QString &file : m_files)
            QFile::remove(file);
        for (const QString &folder : m_folders | std::views::reverse)
            QDir().rmdir(folder);
    }

    bool makeFolder(const QString &path)
    {
        if (QFileInfo(path).isDir())
            return true;
        const bool isMade = QDir().mkdir(path);
        if (isMade)
            m_folders.append(path);
        return isMade;
    }
    std::expected<void, QString> write(const QString &path, const QByteArray &bytes)
    {
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly | QIODevice::NewOnly))
            return std::unexpected(file.errorString());
        m_files.append(path);
        const bool isWritten = file.write(bytes) == bytes.size() && file.flush();
        return isWritten ? std::expected<void, QString>() : std::unexpected(file.errorString());
    }
    void keep()
    {
        m_files.clear();
        m_folders.clear();
    }

private:
    QStringList m_files;
    QStringList m_folders;
};

QString freeFolder(const QString &parentFolder, const QString &name)
{
    QString path = QDir(parentFolder).filePath(name);
    for (int number = 2; QFileInfo::exists(path) || QFileInfo(path).isSymLink(); ++number)
        path = QDir(parentFolder).filePath(name + u' ' + QString::number(number));
    return path;
}
} // namespace

QString MarkdownExport::text(const Page &page)
{
    const QString title = page.title.simplified();
    QList<Block> blocks{Block{.type = BlockType::heading1, .text = title.isEmpty() ? untitled() : title}};
    const bool isEmpty = std::ranges::all_of(page.content, [](const Block &block) {
        return block.type == BlockType::paragraph && block.text.isEmpty();
    });
    if (!isEmpty)
        blocks += page.content;
    return BlockMarkdown::write(blocks);
}

QList<MarkdownExport::File> MarkdownExport::files(const QList<Folder> &folders, const QList<Page> &pages)
{
    QHash<QUuid, QString> folderNames;
    FileNames::Unique roots;
    for (const Folder &folder : folders) {
        QString name = FileNames::fit(folder.name, untitled());
        // A page may have a file of that name.
        if (name.endsWith(QStringLiteral(".md"), Qt::CaseInsensitive))
            name += u'-';
        folderNames.insert(folder.id, roots.take(name));
    }
    const bool hasNotes =
        std::ranges::any_of(pages, [](const Page &page) { return page.kind == PageKind::note; });
    const QString notes = hasNotes ? roots.take(Texts::tr("Notes")) : QString();
    QHash<QString, FileNames::Unique> used;
    used.insert(QString(), roots);
    QList<File> files;
    for (const Page &page : pages) {
        const QString folder = page.folderID ? folderNames.value(*page.folderID)
                                             : (page.kind == PageKind::note ? notes : QString());
        const QString name = used[folder].take(FileNames::fit(page.title, untitled()));
        files.append(
            {(folder.isEmpty() ? QString() : folder + u'/') + name + QStringLiteral(".md"), text(page)});
    }
    return files;
}

std::expected<QString, QString> MarkdownExport::write(const QList<File> &files, const QString &parentFolder,
                                                      const QString &name,
                                                      const std::function<bool(double)> &goOn)
{
    if (!QFileInfo(parentFolder).isDir())
        return std::unexpected(Texts::tr("“%1” is not a folder.").arg(parentFolder));
    const QString root = freeFolder(parentFolder, FileNames::fit(name, untitled()));
    const auto failed = [](const QString &path, const QString &reason) {
        return std::unexpected(Texts::tr("“%1” could not be written: %2.").arg(path, reason));
    };
    Written written;
    if (!written.makeFolder(root))
        return failed(root, Texts::tr("the folder could not be made"));
    for (qsizetype i = 0; i < files.size(); ++i) {
        if (!goOn(double(i) / double(files.size())))
            return std::unexpected(QString());
        const QString path = root + u'/' + files[i].path;
        if (!written.makeFolder(QFileInfo(path).path()))
            return failed(QFileInfo(path).path(), Texts::tr("the folder could not be made"));
        if (const auto result = written.write(path, files[i].text.toUtf8()); !result)
            return failed(path, result.error());
    }
    written.keep();
    return root;
}
