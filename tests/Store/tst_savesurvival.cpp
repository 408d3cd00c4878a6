#include "Harness/FaultySystem.h"
#include "Harness/ManualClock.h"
#include "SampleSnapshot.h"
#include "Store/SnapshotCodec.h"
#include "Store/TaskOperations.h"

#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

#include <random>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using Fault = FaultySystem::Fault;

class SaveSurvivalTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<QTemporaryDir> m_folder;
    ManualClock m_clock;

    QString path() const { return m_folder->filePath(u"workspace.json"_s); }
    QStringList names() const
    {
        return QDir(m_folder->path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    }
    std::unique_ptr<WorkspaceStore> open() const
    {
        return std::make_unique<WorkspaceStore>(WorkspaceStore::Options{path(), &m_clock});
    }
    void put(const QByteArray &bytes) const
    {
        QFile file(path());
        QVERIFY(file.open(QIODevice::WriteOnly));
        QCOMPARE(file.write(bytes), bytes.size());
    }
    QByteArray fileBytes() const
    {
        QFile file(path());
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    /// What the call prints to standard output.
    template <typename Call>
    QByteArray printed(Call call) const
    {
        QTemporaryFile output;
        if (!output.open())
            return "no place for the output";
        std::fflush(stdout);
        const int before = ::dup(STDOUT_FILENO);
        ::dup2(output.handle(), STDOUT_FILENO);
        call();
        std::fflush(stdout);
        ::dup2(before, STDOUT_FILENO);
        ::close(before);
        output.seek(0);
        return output.readAll();
    }

    /// The one generation that the whole file belongs to, or -1 if it is torn, mixed or gone.
    qint64 generationInFile() const
    {
        const auto snapshot = SnapshotCodec::decodeFile(path(), m_clock.now(), &QUuid::createUuid);
        if (!snapshot || snapshot->list<TaskItem>().isEmpty() ||
            snapshot->list<TaskItem>().size() != snapshot->list<Page>().size())
            return -1;
        const QString name = snapshot->settings.userName;
        const QString text = snapshot->list<TaskItem>().first().notes;
        const bool isWhole = text.startsWith(name) &&
                             std::ranges::all_of(snapshot->list<TaskItem>(),
                                                 [&](const TaskItem &task) {
                                                     return task.title == name && task.notes == text;
                                                 }) &&
                             std::ranges::all_of(snapshot->list<Page>(), [&](const Page &page) {
                                 return page.title == name && page.content.first().text == text;
                             });
        return isWhole ? name.toLongLong() : -1;
    }

private slots:
    void init() { m_folder = std::make_unique<QTemporaryDir>(); }

    /// Whatever was reported as saved is there, or one save more, and never a mixture.
    void threeHundredKills()
    {
        static constexpr int kills = 300;
        std::mt19937 random(5);
        std::uniform_int_distribution<unsigned long> delay(0, 6'000);
        int killedWithinASave = 0;
        qint64 saved = 0;
        for (int kill = 0; kill < kills; ++kill) {
            QProcess child;
            child.start(QStringLiteral(SAVE_FOREVER), {path()});
            QVERIFY2(child.waitForReadyRead(), qPrintable(child.errorString()));
            QThread::usleep(delay(random));
            child.kill();
            QVERIFY(child.waitForFinished());
            const QByteArrayList reports = child.readAllStandardOutput().split('\n');
            QVERIFY2(!reports.first().startsWith('['), reports.first().constData());
            const qint64 before = saved;
            // Behind the last line end lies nothing, or a report cut short.
            saved = reports.at(reports.size() - 2).toLongLong();
            QVERIFY(saved > before);
            const qint64 found = generationInFile();
            QVERIFY2(found == saved || found == saved + 1,
                     qPrintable(u"kill %1: %2 saved, %3 found"_s.arg(kill).arg(saved).arg(found)));
            saved = found;

            killedWithinASave += names().size() > 1;
            open();
            QCOMPARE(names(), QStringList{u"workspace.json"_s});
        }
        qInfo("%d of %d kills fell between the first byte and the rename", killedWithinASave, kills);
        QVERIFY(killedWithinASave > 0);
    }

    void everySystemCallFailsOnce_data()
    {
        QTest::addColumn<int>("error");
        for (const int error : {EIO, ENOSPC, EDQUOT})
            QTest::newRow(::strerrorname_np(error)) << error;
    }
    void everySystemCallFailsOnce()
    {
        QFETCH(int, error);
        const QByteArray old = SnapshotCodec::encode(SampleSnapshot::make());
        put(old);
        const auto store = open();
        TaskOperations::rename(*store, SampleSnapshot::id(5), u"Changed"_s);
        const QByteArray next = SnapshotCodec::encode(store->snapshot());
        const QStringList calls = [&] {
            const FaultySystem system;
            store->saveNow();
            return system.calls();
        }();
        QCOMPARE(fileBytes(), next);
        // The last call closes the folder, after everything is on disk.
        for (qsizetype call = 0; call < calls.size() - 1; ++call) {
            put(old);
            const QByteArray line = printed([&] {
                const FaultySystem system(Fault::once, call, error);
                store->saveNow();
            });
            QVERIFY2(line.startsWith("[Orvel] Failed to save workspace snapshot: "), line.constData());
            QVERIFY2(line.endsWith(qt_error_string(error).toUtf8() + '\n'), line.constData());
            QCOMPARE(line.count('\n'), 1);
            QCOMPARE(fileBytes(), call > calls.indexOf(u"rename"_s) ? next : old);
            QCOMPARE(names(), QStringList{u"workspace.json"_s});

            QCOMPARE(printed([&] { store->saveNow(); }), QByteArray());
            QCOMPARE(fileBytes(), next);
        }
    }

    void aMissingFolderFailsUntilItIsBack()
    {
        const auto store = open();
        TaskOperations::create(*store, u"Kept"_s, TaskPriority::low, {});
        QVERIFY(QDir().rmdir(m_folder->path()));
        QCOMPARE(printed([&] { store->saveNow(); }),
                 "[Orvel] Failed to save workspace snapshot: open folder: " +
                     qt_error_string(ENOENT).toUtf8() + '\n');
        QVERIFY(QDir().mkdir(m_folder->path()));
        store->saveNow();
        QCOMPARE(open()->tasks().size(), 1);
    }

    void aFileReplacedMeanwhileIsReplacedWhole()
    {
        const auto store = open();
        TaskOperations::create(*store, u"Mine"_s, TaskPriority::low, {});
        const QString other = m_folder->filePath(u"other"_s);
        QVERIFY(QFile::rename((put("theirs"), path()), other));
        QVERIFY(QFile::link(u"other"_s, path()));
        store->saveNow();
        QVERIFY(QFileInfo(path()).isSymLink());
        QCOMPARE(fileBytes(), SnapshotCodec::encode(store->snapshot()));
    }

    void unreadablePlacesGiveAnEmptyWorkspace()
    {
        QVERIFY(QDir().mkdir(path()));
        const auto store = open();
        QCOMPARE(store->snapshot(), Snapshot());
        QVERIFY(printed([&] { store->saveNow(); }).endsWith(qt_error_string(EISDIR).toUtf8() + '\n'));
        QCOMPARE(names(), QStringList{u"workspace.json"_s});
        QVERIFY(QDir().rmdir(path()));

        put(SnapshotCodec::encode(SampleSnapshot::make()));
        QVERIFY(QFile::setPermissions(path(), QFile::Permissions()));
        QVERIFY(QFile::setPermissions(m_folder->path(), QFile::Permissions(0x7777)));
        const bool isRoot = ::geteuid() == 0;
        // Root may read everything, so for the moment this process is someone else.
        if (isRoot && ::seteuid(65534) != 0)
            QSKIP("cannot become an ordinary user");
        const auto unread = open();
        const QByteArray line = printed([&] { unread->saveNow(); });
        if (isRoot)
            QCOMPARE(::seteuid(0), 0);
        QCOMPARE(unread->snapshot(), Snapshot());
        QCOMPARE(line, QByteArray());
        QCOMPARE(fileBytes(), SnapshotCodec::encode(Snapshot()));
    }

    void twoHundredMegabytesLoad()
    {
#ifdef __SANITIZE_ADDRESS__
        QSKIP("needs several times its memory under the sanitizers");
#endif
        Snapshot large = SampleSnapshot::make();
        Page page = large.list<Page>().first();
        page.content.first().text = u"A line of plain text, Zoë's \"own\".\n"_s.repeated(2'900);
        for (int i = 0; i < 2'000; ++i) {
            page.id = SampleSnapshot::id(1000 + i);
            large.list<Page>().append(page);
        }
        const QByteArray bytes = SnapshotCodec::encode(large);
        QVERIFY2(bytes.size() > 200'000'000, qPrintable(QString::number(bytes.size())));
        put(bytes);
        QVERIFY(open()->snapshot() == large);
    }

    void aNestingBombGivesAnEmptyWorkspace()
    {
        for (const QByteArray &open : {"["_ba, "{\"tasks\":"_ba}) {
            put(open.repeated(5'000'000));
            QCOMPARE(this->open()->snapshot(), Snapshot());
        }
    }
};

QTEST_GUILESS_MAIN(SaveSurvivalTest)
#include "tst_savesurvival.moc"
