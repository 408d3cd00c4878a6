#include "Features/Transfer/MarkdownTransfer.h"
#include "Harness/TestWorkspace.h"

#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

class MarkdownTransferTest : public QObject
{
    Q_OBJECT

private:
    TestWorkspace m_workspace;
    OrvelSession m_session{&m_workspace.store(), &m_workspace.ui()};
    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<MarkdownTransfer> m_transfer;

    WorkspaceStore &store() { return m_workspace.store(); }
    QString put(const QString &name, const QByteArray &bytes)
    {
        const QString path = m_folder->filePath(name);
        QDir().mkpath(QFileInfo(path).path());
        QFile file(path);
        return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() ? path : QString();
    }
    void read(const QString &path)
    {
        m_transfer->read({QUrl::fromLocalFile(path)});
        QTRY_VERIFY(!m_transfer->isBusy());
    }

private slots:
    void init()
    {
        m_workspace.reset();
        m_folder = std::make_unique<QTemporaryDir>();
        m_transfer = std::make_unique<MarkdownTransfer>();
        m_transfer->setSession(&m_session);
    }
    void cleanup() { m_transfer.reset(); }

    void aFolderIsLookedAtAndAddedInOneStep()
    {
        put(u"Trips/a.md"_s, "# Fjords\n\n| a |\n|---|\n| 1 |\n");
        put(u"Trips/Norway/b.md"_s, "text");
        put(u"Trips/c.png"_s, "x");
        read(m_folder->filePath(u"Trips"_s));
        QCOMPARE(m_transfer->pageCount(), 2);
        QCOMPARE(m_transfer->folderCount(), 2);
        QCOMPARE(m_transfer->skippedCount(), 1);
        QCOMPARE(m_transfer->losses(), QStringList{u"Tables become code (in 1 file)."_s});
        QVERIFY(store().pages().isEmpty());

        m_transfer->addPages();
        QCOMPARE(store().pages().size(), 2);
        QCOMPARE(store().folders().all().last().name, u"Trips / Norway"_s);
        QCOMPARE(store().pages().all().last().folderID, store().folders().all().last().id);
        QCOMPARE(m_session.undo()->message(), u"2 pages imported"_s);
        QCOMPARE(m_transfer->pageCount(), 0);
        m_session.undo()->undo();
        QVERIFY(store().pages().isEmpty() && store().folders().isEmpty());
    }

    void oneFileIsOpenedOnceItIsAdded()
    {
        read(put(u"a.md"_s, "# Fjords"));
        m_transfer->addPages();
        QCOMPARE(m_workspace.ui().selection(), Destination::page(store().pages().all().first().id));
    }

    void tellsWhatCanNotBeRead()
    {
        read(put(u"a.txt"_s, "x"));
        QCOMPARE(m_transfer->error(), u"There are no Markdown files in there."_s);
        m_transfer->readPlace(m_folder->filePath(u"gone"_s));
        QTRY_VERIFY(m_transfer->error().endsWith(u"is not there."_s));
        m_transfer->addPages();
        QVERIFY(store().pages().isEmpty() && !m_session.undo()->canUndo());
    }

    void aCancelledReadingAddsNothing()
    {
        for (int i = 0; i < 50; ++i)
            put(u"many/%1.md"_s.arg(i), "# A\n" + QByteArray(10'000, 'x'));
        m_transfer->read({QUrl::fromLocalFile(m_folder->filePath(u"many"_s))});
        QVERIFY(m_transfer->isBusy());
        m_transfer->cancel();
        QTest::qWait(0);
        QVERIFY(!m_transfer->isBusy());
        QCOMPARE(m_transfer->pageCount(), 0);
    }

    void whatIsExportedComesBack()
    {
        const QString folder = m_workspace.addFolder(u"Trips"_s);
        m_workspace.addPage(u"Fjords"_s, false, folder);
        m_workspace.addNote(u"Quick"_s, u"one\ntwo"_s);
        QSignalSpy told(m_transfer.get(), &MarkdownTransfer::message);
        m_transfer->exportTo(m_folder->path());
        QTRY_COMPARE(told.size(), 1);
        QVERIFY2(told.first().first().toString().startsWith(u"2 pages saved in “My Workspace”"_s),
                 qPrintable(told.first().first().toString()));
        read(m_folder->filePath(u"My Workspace"_s));
        QCOMPARE(m_transfer->pageCount(), 2);
        m_transfer->addPages();
        const Page &note = store().pages().all().at(2);
        QCOMPARE(note.title, u"Quick"_s);
        QCOMPARE(note.previewText(), u"one two"_s);
    }
};

QTEST_GUILESS_MAIN(MarkdownTransferTest)
#include "tst_markdowntransfer.moc"
