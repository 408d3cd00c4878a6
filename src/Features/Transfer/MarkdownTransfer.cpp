#include "Features/Transfer/MarkdownTransfer.h"

#include "Features/Transfer/MarkdownExport.h"
#include "Features/Transfer/MarkdownFiles.h"
#include "Support/OrvelNavigation.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <utility>

/// What the worker found.
struct MarkdownTransfer::Reading {
    QList<Folder> folders;
    QList<Page> pages;
    int skipped = 0;
    bool isCut = false;
    /// How many files lose what.
    QHash<BlockMarkdown::Loss, int> losses;
    int lostFrontMatter = 0;
    int guessed = 0;
    /// A sentence for each file that could not be read.
    QStringList failures;
};

MarkdownTransfer::MarkdownTransfer(QObject *parent)
    : ViewModel(parent), m_portal(QDBusConnection::sessionBus())
{
    follow<Page>();
    connect(&m_work, &BackgroundWork::changed, this, &MarkdownTransfer::stateChanged);
}

void MarkdownTransfer::begin()
{
    m_work.cancel();
    m_error.clear();
    m_folders.clear();
    m_pages.clear();
    m_skipped = 0;
    m_losses.clear();
    emit stateChanged();
}

bool MarkdownTransfer::takes(const QList<QUrl> &places)
{
    return std::ranges::any_of(places, [](const QUrl &place) {
        const QString path = place.toLocalFile();
        return place.isLocalFile() && (MarkdownFiles::isMarkdown(path) || QFileInfo(path).isDir());
    });
}

void MarkdownTransfer::chooseFiles()
{
    ask(tr("Import Markdown"), {{QStringLiteral("multiple"), true}},
        [this](const QStringList &paths) { readPaths(paths); });
}

void MarkdownTransfer::chooseFolder()
{
    ask(tr("Import Markdown"), {{QStringLiteral("directory"), true}},
        [this](const QStringList &paths) { readPaths(paths); });
}

void MarkdownTransfer::ask(const QString &title, const QVariantMap &options,
                           const std::function<void(const QStringList &)> &receiver)
{
    m_portal.askForAll(
        QStringLiteral("OpenFile"), title, options,
        [this, receiver](const std::expected<QStringList, FilePortal::NoFile> &paths) {
            if (paths)
                receiver(*paths);
            else if (paths.error() == FilePortal::NoFile::noPortal)
                fail(tr("This desktop has no file dialog. Type the path, or drop files on the window."));
        });
}

void MarkdownTransfer::read(const QList<QUrl> &places)
{
    QStringList paths;
    for (const QUrl &place : places)
        if (place.isLocalFile())
            paths.append(place.toLocalFile());
    readPaths(paths);
}

void MarkdownTransfer::readPlace(const QString &place)
{
    const QUrl url(place);
    readPaths({url.isLocalFile() ? url.toLocalFile() : place.trimmed()});
}

void MarkdownTransfer::readPaths(const QStringList &paths)
{
    begin();
    m_work.start([this, paths, now = store().now()](BackgroundWork::Job &job) -> std::function<void()> {
        for (const QString &path : paths)
            if (!QFileInfo::exists(path))
                return [this, path] { fail(tr("“%1” is not there.").arg(path)); };
        const auto reading = std::make_shared<Reading>(readAll(paths, &QUuid::createUuid, now, job));
        return [this, reading] { take(*reading); };
    });
}

MarkdownTransfer::Reading MarkdownTransfer::readAll(const QStringList &paths,
                                                    const std::function<QUuid()> &makeId, Timestamp now,
                                                    BackgroundWork::Job &job)
{
    const MarkdownFiles::Listing listing = MarkdownFiles::list(paths, [&job] { return !job.isCanceled(); });
    Reading reading{.skipped = listing.skipped, .isCut = listing.isCut};
    const double order = secondsSince1970(now);
    QHash<QString, QUuid> folders;
    for (qsizetype i = 0; i < listing.sources.size(); ++i) {
        if (!job.goOn(double(i) / double(listing.sources.size())))
            break;
        const auto &[path, folder] = listing.sources[i];
        auto document = MarkdownFiles::read(path, makeId);
        if (!document) {
            reading.failures.append(document.error());
            continue;
        }
        for (const auto loss : {BlockMarkdown::Loss::nesting, BlockMarkdown::Loss::headingLevels,
                                BlockMarkdown::Loss::tables, BlockMarkdown::Loss::html})
            reading.losses[loss] += document->losses.testFlag(loss);
        reading.lostFrontMatter += document->lostFrontMatter;
        reading.guessed += document->wasGuessed;
        Page page{.id = makeId(),
                  .title = document->title,
                  .content = std::move(document->blocks),
                  .sortOrder = order,
                  .createdDate = now,
                  .updatedDate = now};
        if (!folder.isEmpty() && !folders.contains(folder)) {
            folders.insert(folder, makeId());
            reading.folders.append({folders[folder], folder, QStringLiteral("📁"), order, now, now});
        }
        if (!folder.isEmpty())
            page.folderID = folders[folder];
        reading.pages.append(std::move(page));
    }
    return reading;
}

void MarkdownTransfer::take(const Reading &reading)
{
    m_folders = reading.folders;
    m_pages = reading.pages;
    m_skipped = reading.skipped;
    const auto add = [this](int count, const QString &sentence) {
        if (count > 0)
            m_losses.append(sentence);
    };
    const auto lost = [&reading](BlockMarkdown::Loss loss) { return reading.losses.value(loss); };
    using enum BlockMarkdown::Loss;
    const auto inFiles = [](int count) {
        return count == 1 ? tr("in 1 file") : tr("in %L1 files").arg(count);
    };
    const auto tell = [&](int count, const QString &sentence) { add(count, sentence.arg(inFiles(count))); };
    tell(lost(nesting), tr("Lists and quotes within others stand one level up (%1)."));
    tell(lost(headingLevels), tr("Headings below the third level become third (%1)."));
    tell(lost(tables), tr("Tables become code (%1)."));
    tell(lost(html), tr("HTML becomes code (%1)."));
    tell(reading.lostFrontMatter, tr("Of the front matter only the title is kept (%1)."));
    tell(reading.guessed, tr("Text that is not UTF-8 was read as Western European (%1)."));
    add(reading.isCut,
        tr("There are more than %L1 files; the others are left out.").arg(MarkdownFiles::mostFiles));
    static constexpr qsizetype mostFailures = 5;
    m_losses += reading.failures.first(std::min(mostFailures, reading.failures.size()));
    add(int(reading.failures.size() - mostFailures),
        tr("%L1 more files could not be read.").arg(reading.failures.size() - mostFailures));
    if (m_pages.isEmpty() && reading.failures.isEmpty())
        m_error = tr("There are no Markdown files in there.");
}

void MarkdownTransfer::addPages()
{
    if (m_pages.isEmpty())
        return;
    {
        const Action action(store(), tr("Import Markdown"));
        action.setMessage(m_pages.size() == 1 ? tr("1 page imported")
                                              : tr("%L1 pages imported").arg(m_pages.size()));
        for (const Folder &folder : std::as_const(m_folders))
            store().add(folder);
        for (const Page &page : std::as_const(m_pages))
            store().add(page);
        if (m_pages.size() == 1)
            ui().setSelection(Destination::page(m_pages.first().id));
    }
    begin();
    emit finished();
}

void MarkdownTransfer::chooseAndExport()
{
    ask(tr("Export as Markdown"), {{QStringLiteral("directory"), true}},
        [this](const QStringList &paths) { exportTo(paths.first()); });
}

void MarkdownTransfer::exportTo(const QString &folder)
{
    begin();
    const QUrl url(folder);
    m_work.start([this, parent = url.isLocalFile() ? url.toLocalFile() : folder.trimmed(),
                  name = OrvelNavigation::windowTitle(store().settings()), folders = store().folders().all(),
                  pages = store().pages().all()](BackgroundWork::Job &job) -> std::function<void()> {
        const auto written = MarkdownExport::write(MarkdownExport::files(folders, pages), parent, name,
                                                   [&job](double share) { return job.goOn(share); });
        return [this, written, count = pages.size()] {
            if (!written)
                return fail(written.error());
            const QFileInfo made(*written);
            emit message(
                tr("%L1 pages saved in “%2” in “%3”.").arg(count).arg(made.fileName(), made.dir().dirName()));
            emit finished();
        };
    });
}

void MarkdownTransfer::fail(const QString &error)
{
    m_error = error;
    emit stateChanged();
}
