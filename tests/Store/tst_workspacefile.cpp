#include "Harness/FaultySystem.h"
#include "Harness/ManualClock.h"
#include "SampleSnapshot.h"
#include "Store/SnapshotCodec.h"
#include "Store/WorkspaceFile.h"

#include <QElapsedTimer>
#include <QTemporaryDir>
#include <QtTest>

#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using Fault = FaultySystem::Fault;
using State = WorkspaceFile::State;

/// What is found at the workspace's place is never lost, whatever it is and whichever program wrote it.
class WorkspaceFileTest : public QObject
{
    Q_OBJECT

private:
    static constexpr uid_t nobody = 65534;

    std::unique_ptr<QTemporaryDir> m_folder;
    ManualClock m_clock;
    const Snapshot m_sample = SampleSnapshot::make();
    const QByteArray m_sampleBytes = SnapshotCodec::encode(m_sample);
    Snapshot m_changed = changed(u"Changed"_s);

    static Snapshot changed(const QString &userName)
    {
        Snapshot snapshot = SampleSnapshot::make();
        snapshot.settings.userName = userName;
        return snapshot;
    }
    QString at(const QString &name) const { return m_folder->filePath(name); }
    QString path() const { return at(u"data/workspace.json"_s); }
    WorkspaceFile file() const
    {
        return WorkspaceFile(
            {.path = path(), .rescueFolder = at(u"rescued"_s), .now = [this] { return m_clock.now(); }});
    }
    static void put(const QString &path, const QByteArray &bytes)
    {
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        QCOMPARE(file.write(bytes), bytes.size());
    }
    static QByteArray contents(const QString &path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("nothing there");
    }
    /// The contents of the versions kept, oldest first.
    QByteArrayList rescued(const QString &folder = u"rescued"_s) const
    {
        QByteArrayList all;
        for (const QString &name :
             QDir(at(folder)).entryList({u"workspace-*.json"_s}, QDir::Files, QDir::Name))
            all.append(contents(at(folder) + u'/' + name));
        return all;
    }
    /// Root may do everything, so for the moment this process is someone else.
    template <typename Call>
    static void asOrdinaryUser(Call call)
    {
        const bool isRoot = ::geteuid() == 0;
        if (isRoot && ::seteuid(nobody) != 0)
            QSKIP("cannot become an ordinary user");
        call();
        if (isRoot)
            QCOMPARE(::seteuid(0), 0);
    }
    void giveFoldersToOrdinaryUser() const
    {
        for (const QString &name : {QString(), u"data"_s})
            QVERIFY(::chown(QFile::encodeName(at(name)).constData(), nobody, gid_t(-1)) == 0 ||
                    ::geteuid() != 0);
    }

private slots:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        QVERIFY(QDir(m_folder->path()).mkdir(u"data"_s));
    }

    void savesAndLoads()
    {
        WorkspaceFile one = file();
        QCOMPARE(one.load().state, State::absent);
        QVERIFY(!one.save(m_sample).failure);
        QCOMPARE(contents(path()), m_sampleBytes);
        const auto loaded = file().load();
        QCOMPARE(loaded.state, State::whole);
        QCOMPARE(loaded.snapshot, m_sample);
        QVERIFY(!one.save(m_changed).failure);
        QVERIFY(rescued().isEmpty());
    }

    /// The first save after any of these keeps what was there.
    void whatCanNotBeTakenOverIsKept_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<State>("state");
        const auto with = [&](const QByteArray &from, const QByteArray &to) {
            QByteArray bytes = m_sampleBytes;
            return bytes.replace(from, to);
        };
        QTest::newRow("no JSON") << "not json"_ba << State::damaged;
        QTest::newRow("cut off") << m_sampleBytes.first(m_sampleBytes.size() / 2) << State::damaged;
        QTest::newRow("zeros") << QByteArray(5000, '\0') << State::damaged;
        QTest::newRow("picture") << "\x89PNG\r\n"_ba + m_sampleBytes << State::damaged;
        QTest::newRow("nesting bomb") << "{\"tasks\":"_ba.repeated(500'000) << State::damaged;
        QTest::newRow("block of an unknown type")
            << with("\"type\":\"checklist\"", "\"type\":\"poem\"") << State::partial;
        QTest::newRow("record without a key") << with("\"kind\":\"note\",", "") << State::partial;
        QTest::newRow("unknown key") << with("{\"settings\":{", "{\"later\":[1],\"settings\":{")
                                     << State::partial;
        QTest::newRow("unknown key of a record")
            << with("\"priority\":", "\"later\":1,\"priority\":") << State::partial;
        QTest::newRow("unreadable setting")
            << with("\"userName\":\"", "\"userName\":7,\"x\":\"") << State::partial;
        QTest::newRow("bad UTF-8") << with("Letter", "Let\xfft") << State::partial;
    }
    void whatCanNotBeTakenOverIsKept()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(State, state);
        QVERIFY(bytes != m_sampleBytes);
        put(path(), bytes);
        WorkspaceFile one = file();
        const auto loaded = one.load();
        QCOMPARE(loaded.state, state);
        QVERIFY(!loaded.notice.isEmpty());
        QVERIFY2(rescued().isEmpty(), "nothing is written without a change");
        const auto saved = one.save(m_changed);
        QVERIFY(!saved.failure);
        QVERIFY2(saved.notice.contains(at(u"rescued/workspace-20260313T093000.000Z.json"_s)),
                 qPrintable(saved.notice));
        QVERIFY(!one.save(m_sample).failure);
        QCOMPARE(rescued(), QByteArrayList{bytes});
        QCOMPARE(contents(path()), m_sampleBytes);
    }

    void everyCallOfALoadFailsOnce_data()
    {
        QTest::addColumn<int>("error");
        for (const int error : {EACCES, EIO, EMFILE, ESTALE, ENOMEM})
            QTest::newRow(::strerrorname_np(error)) << error;
    }
    void everyCallOfALoadFailsOnce()
    {
        QFETCH(int, error);
        put(path(), m_sampleBytes);
        const QStringList calls = [&] {
            const FaultySystem system;
            file().load();
            return system.calls();
        }();
        int unreadable = 0;
        for (qsizetype call = 0; call < calls.size(); ++call) {
            QFile::remove(path());
            put(path(), m_sampleBytes);
            WorkspaceFile one = file();
            const auto loaded = [&] {
                const FaultySystem system(Fault::once, call, error);
                return one.load();
            }();
            const QByteArray place = calls[call].toLatin1() + ' ' + QByteArray::number(call);
            QVERIFY2(loaded.state == State::whole || loaded.state == State::unreadable, place.constData());
            QCOMPARE(loaded.snapshot, loaded.state == State::whole ? m_sample : Snapshot());
            QCOMPARE(contents(path()), m_sampleBytes);
            unreadable += loaded.state == State::unreadable;
            QVERIFY(!one.save(m_changed).failure);
            QCOMPARE(rescued().size(), unreadable);
            QVERIFY2(unreadable == 0 || rescued().last() == m_sampleBytes, place.constData());
            m_clock.advance(std::chrono::seconds(1));
            if (unreadable == 4) {
                QVERIFY(QDir(at(u"rescued"_s)).removeRecursively());
                unreadable = 0;
            }
        }
    }

    void everyCallOfASaveFailsOnce_data()
    {
        QTest::addColumn<int>("error");
        QTest::addColumn<bool>("keeps");
        for (const int error : {EIO, ENOSPC, EDQUOT, EACCES}) {
            QTest::addRow("%s", ::strerrorname_np(error)) << error << false;
            QTest::addRow("%s, with a version to keep", ::strerrorname_np(error)) << error << true;
        }
    }
    void everyCallOfASaveFailsOnce()
    {
        QFETCH(int, error);
        QFETCH(bool, keeps);
        const QByteArray found = keeps ? m_sampleBytes.first(m_sampleBytes.size() - 1) : m_sampleBytes;
        const QByteArray next = SnapshotCodec::encode(m_changed);
        const auto start = [&] {
            QVERIFY(QDir(at({})).removeRecursively());
            QVERIFY(QDir().mkpath(at(u"data"_s)));
            put(path(), found);
        };
        start();
        WorkspaceFile first = file();
        first.load();
        const QStringList calls = [&] {
            const FaultySystem system;
            first.save(m_changed);
            return system.calls();
        }();
        for (qsizetype call = 0; call < calls.size(); ++call) {
            start();
            WorkspaceFile one = file();
            one.load();
            const auto saved = [&] {
                const FaultySystem system(Fault::once, call, error);
                return one.save(m_changed);
            }();
            const QByteArray place = calls[call].toLatin1() + ' ' + QByteArray::number(call);
            const QByteArray now = contents(path());
            QVERIFY2(saved.failure ? now == found || now == next || now == "nothing there" : now == next,
                     place.constData());
            if (keeps && now != found)
                QVERIFY2(rescued().contains(found) || rescued(u"data"_s).contains(found), place.constData());
            if (saved.failure)
                QVERIFY2(saved.failure->problem.startsWith("Not saved: "), place.constData());
            QVERIFY(!one.save(m_changed).failure);
            QCOMPARE(contents(path()), next);
            QCOMPARE(QDir(at(u"data"_s)).entryList({u"*.saving-*"_s}, QDir::Files | QDir::Hidden).size(),
                     calls[call] == u"unlink"_s ? 1 : 0);
        }
    }

    void problemsAreSentences_data()
    {
        QTest::addColumn<int>("error");
        QTest::addColumn<QString>("cause");
        QTest::newRow("full") << ENOSPC << u"the disk is full"_s;
        QTest::newRow("read-only") << EROFS << u"the disk can't be written"_s;
        QTest::newRow("other") << EMFILE << u"create temporary file: "_s + qt_error_string(EMFILE);
    }
    void problemsAreSentences()
    {
        QFETCH(int, error);
        QFETCH(QString, cause);
        WorkspaceFile one = file();
        one.load();
        const auto calls = [&] {
            const FaultySystem system;
            one.save(m_sample);
            return system.calls();
        }();
        // The folder comes first.
        const FaultySystem system(Fault::once, calls.indexOf(u"open"_s, calls.indexOf(u"open"_s) + 1), error);
        QCOMPARE(one.save(m_changed).failure->problem,
                 u"Not saved: "_s + cause + u". Your changes are safe only while Orvel is open."_s);
    }

    void anotherProgramsVersionIsKept()
    {
        put(path(), m_sampleBytes);
        WorkspaceFile one = file();
        one.load();
        const QByteArray theirs = SnapshotCodec::encode(changed(u"Theirs"_s));
        // In its place, as a sync tool does it.
        put(at(u"data/new"_s), theirs);
        QCOMPARE(std::rename(qPrintable(at(u"data/new"_s)), qPrintable(path())), 0);
        const auto saved = one.save(m_changed);
        QVERIFY(!saved.failure);
        QVERIFY(saved.notice.startsWith(u"Another program changed the workspace file."_s));
        QCOMPARE(rescued(), QByteArrayList{theirs});
        QVERIFY(one.save(m_sample).notice.isEmpty());

        // Into the file, as a copy of a backup does it.
        QTest::qSleep(20);
        put(path(), "{}");
        QVERIFY(!one.save(m_changed).failure);
        QCOMPARE(rescued(), (QByteArrayList{theirs, "{}"}));

        QVERIFY(QFile::remove(path()));
        QVERIFY(one.save(m_sample).notice.isEmpty());
        QCOMPARE(contents(path()), m_sampleBytes);

        for (int i = 0; i < 8; ++i) {
            m_clock.advance(std::chrono::seconds(1));
            QVERIFY(QFile::remove(path()));
            put(path(), QByteArray::number(i));
            QVERIFY(!one.save(m_sample).failure);
        }
        QCOMPARE(rescued(), (QByteArrayList{"3", "4", "5", "6", "7"}));
    }

    /// By a link, a copy, or by moving it; in its folder if need be; and else nothing is saved.
    void keepsByAnyWayThereIs()
    {
        const auto attempt = [&](const QStringList &refused, const QString &rescueFolder) {
            m_folder = std::make_unique<QTemporaryDir>();
            QDir(m_folder->path()).mkdir(u"data"_s);
            put(path(), "found");
            WorkspaceFile one(
                {.path = path(), .rescueFolder = at(rescueFolder), .now = [this] { return m_clock.now(); }});
            one.load();
            FaultySystem system;
            system.refuse(refused, EPERM);
            return !one.save(m_changed).failure;
        };
        QVERIFY(attempt({}, u"rescued"_s));
        QCOMPARE(rescued(), QByteArrayList{"found"});
        QVERIFY(attempt({u"link"_s}, u"rescued"_s));
        QCOMPARE(rescued(), QByteArrayList{"found"});
        QVERIFY(attempt({u"link"_s, u"read"_s}, u"rescued"_s));
        QCOMPARE(rescued(), QByteArrayList{"found"});
        QVERIFY(attempt({}, u"data/workspace.json/no/folder"_s));
        QCOMPARE(rescued(u"data"_s), QByteArrayList{"found"});
        QVERIFY(!attempt({u"link"_s, u"read"_s, u"rename"_s}, u"rescued"_s));
        QCOMPARE(contents(path()), "found");
    }

    void aFileOfRootsIsKeptFromAnOrdinaryUser()
    {
        if (::geteuid() != 0)
            QSKIP("only root can make it");
        put(path(), m_sampleBytes);
        QVERIFY(QFile::setPermissions(path(), QFile::ReadOwner | QFile::WriteOwner));
        giveFoldersToOrdinaryUser();
        asOrdinaryUser([&] {
            WorkspaceFile one = file();
            QCOMPARE(one.load().state, State::unreadable);
            QVERIFY(!one.save(m_changed).failure);
            QCOMPARE(file().load().snapshot, m_changed);
        });
        QCOMPARE(rescued(), QByteArrayList{m_sampleBytes});
    }

    void ownerAndModeAreKept()
    {
        const mode_t mask = ::umask(022);
        put(path(), m_sampleBytes);
        QVERIFY(QFile::setPermissions(path(), QFile::Permissions(0x6644)));
        giveFoldersToOrdinaryUser();
        if (::geteuid() == 0)
            QCOMPARE(::chown(qPrintable(path()), nobody, 0), 0);
        struct stat before = {}, after = {};
        ::stat(qPrintable(path()), &before);
        WorkspaceFile one = file();
        one.load();
        QVERIFY(!one.save(m_changed).failure);
        ::stat(qPrintable(path()), &after);
        QCOMPARE(after.st_uid, before.st_uid);
        QCOMPARE(after.st_mode & 07777, before.st_mode & 07777);
        // What root makes anew belongs to whom the folder belongs to, and nobody else reads it.
        QVERIFY(QFile::remove(path()));
        QVERIFY(!one.save(m_sample).failure);
        ::stat(qPrintable(path()), &after);
        ::umask(mask);
        QCOMPARE(after.st_uid, before.st_uid);
        QCOMPARE(after.st_mode & 07777, 0600U);
    }

    void onlyRegularFilesAreReadAndReplaced_data()
    {
        QTest::addColumn<QString>("kind");
        for (const char *kind : {"pipe", "device", "folder", "link to a device", "ring of links"})
            QTest::newRow(kind) << QString::fromLatin1(kind);
    }
    void onlyRegularFilesAreReadAndReplaced()
    {
        QFETCH(QString, kind);
        if (kind == u"pipe"_s)
            QCOMPARE(::mkfifo(qPrintable(path()), 0600), 0);
        else if (kind == u"device"_s && ::mknod(qPrintable(path()), S_IFCHR | 0600, 0x105) != 0)
            QSKIP("only root can make a device");
        else if (kind == u"folder"_s)
            QVERIFY(QDir().mkdir(path()));
        else if (kind == u"link to a device"_s)
            QVERIFY(QFile::link(u"/dev/zero"_s, path()));
        else if (kind == u"ring of links"_s)
            QVERIFY(QFile::link(path(), path()));
        struct stat before = {}, after = {};
        ::lstat(qPrintable(path()), &before);
        WorkspaceFile one = file();
        QCOMPARE(one.load().state, State::unreadable);
        QVERIFY(one.save(m_changed).failure);
        ::lstat(qPrintable(path()), &after);
        QCOMPARE(after.st_ino, before.st_ino);
        QCOMPARE(QDir(at(u"data"_s)).entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot),
                 QStringList{u"workspace.json"_s});
    }

    void linksAreFollowed()
    {
        QVERIFY(QDir(at({})).mkdir(u"other"_s));
        put(at(u"other/real.json"_s), m_sampleBytes);
        QVERIFY(QFile::link(u"../other/real.json"_s, path()));
        WorkspaceFile one = file();
        QCOMPARE(one.load().state, State::whole);
        QVERIFY(!one.save(m_changed).failure);
        QVERIFY(QFileInfo(path()).isSymLink());
        QCOMPARE(contents(at(u"other/real.json"_s)), SnapshotCodec::encode(m_changed));
    }

    void aHugeFileIsToldByItsFirstBytes()
    {
        put(path(), {});
        QCOMPARE(::truncate(qPrintable(path()), 5'000'000'000), 0);
        WorkspaceFile one = file();
        QElapsedTimer time;
        time.start();
        QCOMPARE(one.load().state, State::damaged);
        QVERIFY(!one.save(m_changed).failure);
        QVERIFY2(time.elapsed() < 1000, qPrintable(QString::number(time.elapsed())));
        QCOMPARE(file().load().snapshot, m_changed);
    }

    void aRemovedFolderIsMadeAgain()
    {
        put(path(), m_sampleBytes);
        WorkspaceFile one = file();
        one.load();
        QVERIFY(QDir(at(u"data"_s)).removeRecursively());
        QVERIFY(!one.save(m_changed).failure);
        QCOMPARE(file().load().snapshot, m_changed);
    }

    void withoutTheLockNothingIsSaved()
    {
        put(path(), m_sampleBytes);
        WorkspaceFile one({.path = path(),
                           .rescueFolder = at(u"rescued"_s),
                           .now = [this] { return m_clock.now(); },
                           .checkLock = [] { return std::unexpected(u"it is another's"_s); }});
        one.load();
        QVERIFY(one.save(m_changed).failure->problem.startsWith(u"Not saved: it is another's."_s));
        QCOMPARE(contents(path()), m_sampleBytes);
        const auto place = one.saveInto(at(u"data"_s), m_changed);
        QCOMPARE(contents(place.value()), SnapshotCodec::encode(m_changed));
    }

    void withoutMemoryNothingIsLost()
    {
#ifdef __SANITIZE_ADDRESS__
        QSKIP("the sanitizers need more address space than there is");
#endif
        Snapshot large = m_sample;
        large.list<Page>().first().content.first().text = u"A line of plain text.\n"_s.repeated(2'000'000);
        const QByteArray bytes = SnapshotCodec::encode(large);
        put(path(), bytes);
        rlimit before = {};
        ::getrlimit(RLIMIT_AS, &before);
        QFile status(u"/proc/self/statm"_s);
        QVERIFY(status.open(QIODevice::ReadOnly));
        const rlim_t used =
            status.readAll().split(' ').first().toULongLong() * rlim_t(::sysconf(_SC_PAGESIZE));
        // The memory gives out within the reading, the parsing and the making of records.
        int unreadable = 0;
        for (const rlim_t room : {10, 60, 200, 300, 450, 600, 4000}) {
            WorkspaceFile one = file();
            const rlimit limit{used + room * 1'000'000, before.rlim_max};
            ::setrlimit(RLIMIT_AS, &limit);
            const auto loaded = one.load();
            ::setrlimit(RLIMIT_AS, &before);
            QVERIFY(loaded.state == State::whole || loaded.state == State::unreadable);
            unreadable += loaded.state == State::unreadable;
            QVERIFY(loaded.state == State::unreadable || loaded.snapshot == large);
        }
        QVERIFY2(unreadable > 2 && unreadable < 7, qPrintable(QString::number(unreadable)));
        QCOMPARE(contents(path()), bytes);
    }

    /// Cuts the power after each call of a save, with every state of the disk that the calls so far allow.
    void powerCuts_data()
    {
        QTest::addColumn<QByteArray>("found");
        QTest::newRow("whole") << m_sampleBytes;
        QTest::newRow("with a version to keep") << m_sampleBytes.first(m_sampleBytes.size() - 1);
    }
    void powerCuts()
    {
        QFETCH(QByteArray, found);
        put(path(), found);
        WorkspaceFile one = file();
        one.load();
        const auto effects = [&] {
            const FaultySystem system;
            one.save(m_changed);
            return system.effects();
        }();
        const QByteArray next = SnapshotCodec::encode(m_changed), name = QFile::encodeName(path());
        static constexpr qsizetype original = -2;
        QHash<qsizetype, QByteArray> written{{original, found}}, opened;
        QSet<qsizetype> synced{original};
        // For each folder the states that a power cut may leave: as last synced, or after any change since.
        using Names = QHash<QByteArray, qsizetype>;
        const QByteArray data = QFile::encodeName(at(u"data"_s)), kept = QFile::encodeName(at(u"rescued"_s));
        QHash<QByteArray, QList<Names>> possible{{data, {Names{{name, original}}}}, {kept, {Names()}}};
        int images = 0;
        for (const FaultySystem::Effect &effect : effects) {
            const QByteArray &target = effect.target.isEmpty() ? effect.path : effect.target;
            QList<Names> &states = possible[target.left(target.lastIndexOf('/'))];
            Names names = states.value(states.size() - 1);
            if (effect.name == u"open"_s) {
                opened.insert(effect.file, effect.path);
                if (effect.path.contains(".saving-"))
                    names.insert(effect.path, effect.file);
            } else if (effect.name == u"write"_s) {
                written[effect.file] += effect.bytes;
                synced.remove(effect.file);
            } else if (effect.name == u"fsync"_s) {
                synced.insert(effect.file);
                if (auto folder = possible.find(opened.value(effect.file)); folder != possible.end())
                    *folder = {folder->last()};
            } else if (effect.name == u"rename"_s) {
                names.insert(effect.target, names.take(effect.path));
            } else if (effect.name == u"link"_s) {
                names.insert(effect.target, original);
            }
            states.append(names);
            for (const Names &inData : qAsConst(possible[data]))
                for (const Names &inKept : qAsConst(possible[kept])) {
                    ++images;
                    const qsizetype file = inData.value(name, -1);
                    QVERIFY2(synced.contains(file), "a file may be torn");
                    QVERIFY(written.value(file) == found || written.value(file) == next);
                    QVERIFY(found == m_sampleBytes || file == original || inKept.values().contains(original));
                }
        }
        QCOMPARE(written.value(possible[data].last().value(name)), next);
        QVERIFY2(images > 10, qPrintable(QString::number(images)));
    }
};

QTEST_GUILESS_MAIN(WorkspaceFileTest)
#include "tst_workspacefile.moc"
