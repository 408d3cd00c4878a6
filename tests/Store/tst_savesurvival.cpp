#include "Harness/ManualClock.h"
#include "SampleSnapshot.h"
#include "Store/SnapshotCodec.h"
#include "Store/WorkspaceStore.h"

#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

#include <random>

using namespace Qt::StringLiterals;

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

    /// The one generation that the whole file belongs to, or -1 if it is torn, mixed or gone.
    qint64 generationInFile() const
    {
        const auto snapshot = SnapshotCodec::decode(fileBytes(), m_clock.now(), &QUuid::createUuid);
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
};

QTEST_GUILESS_MAIN(SaveSurvivalTest)
#include "tst_savesurvival.moc"
