#include "Features/Pages/PageShareViewModel.h"

#include "Features/Pages/PageShare.h"
#include "Support/PageText.h"

#include <QClipboard>
#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <QStandardPaths>
#include <QTemporaryDir>

namespace
{
/// A private folder that goes with the program, since nobody tells when another program has read its file.
class LentFolder : public QObject
{
public:
    LentFolder(const QString &parentFolder, QObject *parent)
        : QObject(parent), m_folder(parentFolder + QStringLiteral("/orvel-XXXXXX"))
    {
    }
    const QTemporaryDir &folder() const { return m_folder; }

private:
    QTemporaryDir m_folder;
};
} // namespace

PageShareViewModel::PageShareViewModel(QObject *parent) : ViewModel(parent)
{
    auto *const dialog =
        new SaveFileDialog(QDBusConnection::sessionBus(),
                           QStandardPaths::writableLocation(QStandardPaths::DownloadLocation), this);
    m_desktop = {&QDesktopServices::openUrl,
                 [dialog](const QString &fileName, SaveFileDialog::Receiver receiver) {
                     dialog->ask(fileName, std::move(receiver));
                 },
                 QDir::tempPath()};
}

void PageShareViewModel::copyMarkdown()
{
    if (const Page *const found = page())
        QGuiApplication::clipboard()->setText(PageText::markdownExport(*found));
}

void PageShareViewModel::copyPlainText()
{
    if (const Page *const found = page())
        QGuiApplication::clipboard()->setText(PageText::plainTextExport(*found));
}

void PageShareViewModel::save()
{
    const Page *const found = page();
    if (!found)
        return;
    m_desktop.askForPlace(PageShare::fileName(found->title),
                          [this, pageID = m_pageID](const std::optional<SaveFileDialog::Answer> &place) {
                              if (place)
                                  saveTo(pageID, *place);
                          });
}

void PageShareViewModel::saveTo(const QUuid &pageID, const SaveFileDialog::Answer &place)
{
    const Page *const found = store().pages().first(pageID);
    if (!found)
        return;
    const QFileInfo file(place.path);
    if (const auto written = PageShare::write(*found, place.path); !written)
        emit message(written.error());
    else if (place.wasAsked)
        emit message(tr("Saved as “%1”.").arg(file.fileName()));
    else
        emit message(tr("Saved in “%1” as “%2”.").arg(file.dir().dirName(), file.fileName()));
}

void PageShareViewModel::open()
{
    const Page *const found = page();
    if (!found)
        return;
    const auto *const lent = new LentFolder(m_desktop.temporaryFolder, QCoreApplication::instance());
    const QString path = lent->folder().filePath(PageShare::fileName(found->title));
    if (const auto written = PageShare::write(*found, path); !written) {
        emit message(written.error());
        return;
    }
    QFile::setPermissions(path, QFile::ReadOwner);
    if (!m_desktop.open(QUrl::fromLocalFile(path)))
        emit message(tr("There is no program to open Markdown files."));
}

void PageShareViewModel::mail()
{
    const Page *const found = page();
    if (!found)
        return;
    if (const auto link = PageShare::mailLink(*found); !link)
        emit message(link.error());
    else if (!m_desktop.open(*link))
        emit message(tr("There is no mail program to write with."));
}
