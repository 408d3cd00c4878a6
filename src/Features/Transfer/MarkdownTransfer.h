#pragma once

#include "Models/Folder.h"
#include "Models/Page.h"
#include "Session/BackgroundWork.h"
#include "Session/FilePortal.h"
#include "Session/ViewModel.h"

#include <QUrl>

/// Takes Markdown files in as pages, and writes all pages out as Markdown files. Files are read beside the
/// window; the user sees what is in them before anything of it is added.
class MarkdownTransfer : public ViewModel
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(bool isBusy READ isBusy NOTIFY stateChanged FINAL)
    /// From 0 to 1.
    Q_PROPERTY(double progress READ progress NOTIFY stateChanged FINAL)
    /// What went wrong; empty for nothing.
    Q_PROPERTY(QString error READ error NOTIFY stateChanged FINAL)
    /// What was read and can be added.
    Q_PROPERTY(int pageCount READ pageCount NOTIFY stateChanged FINAL)
    Q_PROPERTY(int folderCount READ folderCount NOTIFY stateChanged FINAL)
    /// Files that are no Markdown.
    Q_PROPERTY(int skippedCount READ skippedCount NOTIFY stateChanged FINAL)
    /// A sentence for each thing that is not kept.
    Q_PROPERTY(QStringList losses READ losses NOTIFY stateChanged FINAL)
    /// How many pages and notes an export writes.
    Q_PROPERTY(int exportCount READ exportCount NOTIFY stateChanged FINAL)

public:
    explicit MarkdownTransfer(QObject *parent = nullptr);

    bool isBusy() const { return m_work.isBusy(); }
    double progress() const { return m_work.progress(); }
    const QString &error() const { return m_error; }
    int pageCount() const { return int(m_pages.size()); }
    int folderCount() const { return int(m_folders.size()); }
    int skippedCount() const { return m_skipped; }
    const QStringList &losses() const { return m_losses; }
    int exportCount() const { return session() ? int(store().pages().size()) : 0; }

    /// Forgets what was read.
    Q_INVOKABLE void begin();
    /// Whether one of these is a folder or a Markdown file.
    Q_INVOKABLE static bool takes(const QList<QUrl> &places);
    /// Lets the user choose files, or a folder, and reads them.
    Q_INVOKABLE void chooseFiles();
    Q_INVOKABLE void chooseFolder();
    /// Begins to read.
    Q_INVOKABLE void read(const QList<QUrl> &places);
    /// @param place the path of a file or folder
    Q_INVOKABLE void readPlace(const QString &place);
    Q_INVOKABLE void cancel() { m_work.cancel(); }
    /// Adds what was read as one action.
    Q_INVOKABLE void addPages();

    /// Lets the user choose the folder to write into, and writes.
    Q_INVOKABLE void chooseAndExport();
    /// @param folder the path of a folder
    Q_INVOKABLE void exportTo(const QString &folder);

signals:
    void stateChanged();
    /// Pages were added, or written.
    void finished();
    /// A sentence on how it went.
    void message(const QString &text);

protected:
    void refresh(const ChangeSet &) override { emit stateChanged(); }

private:
    struct Reading;

    void readPaths(const QStringList &paths);
    static Reading readAll(const QStringList &paths, const std::function<QUuid()> &makeId, Timestamp now,
                           BackgroundWork::Job &job);
    void take(const Reading &reading);
    void ask(const QString &title, const QVariantMap &options,
             const std::function<void(const QStringList &)> &receiver);
    void fail(const QString &error);

    QString m_error;
    QList<Folder> m_folders;
    QList<Page> m_pages;
    int m_skipped = 0;
    QStringList m_losses;
    FilePortal m_portal;
    // Last, so that it has ended before anything that it uses goes.
    BackgroundWork m_work;
};
