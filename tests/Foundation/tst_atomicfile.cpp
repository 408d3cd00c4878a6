#include "Foundation/AtomicFile.h"
#include "Harness/FaultySystem.h"

#include <QTemporaryDir>
#include <QtTest>

#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using Fault = FaultySystem::Fault;

class AtomicFileTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<QTemporaryDir> m_folder;
    const QByteArray m_old = "the old contents";
    const QByteArray m_new = QByteArray("the new contents ").repeated(10'000);

    QString path(const QString &name = u"file.json"_s) const { return m_folder->filePath(name); }

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
    QStringList names(const QString &folder = QString()) const
    {
        return QDir(path(folder))
            .entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    }
    static mode_t modeOf(const QString &path)
    {
        struct stat status = {};
        ::stat(QFile::encodeName(path).constData(), &status);
        return status.st_mode & 07777;
    }
    /// The calls of one write that succeeds.
    QStringList callsOfOneWrite() const
    {
        FaultySystem system;
        return AtomicFile::write(path(), m_new) ? system.calls() : QStringList();
    }

private slots:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        put(path(), m_old);
    }

    void syncsTheFileBeforeTheRenameAndTheFolderAfterIt()
    {
        const QStringList calls = callsOfOneWrite();
        QCOMPARE(contents(path()), m_new);
        QCOMPARE(calls, (QStringList{u"lstat"_s, u"open"_s, u"stat"_s, u"open"_s, u"fstat"_s, u"fchmod"_s,
                                     u"write"_s, u"fsync"_s, u"fstat"_s, u"close"_s, u"rename"_s, u"fsync"_s,
                                     u"close"_s}));
    }

    void everyCallFailsOnce_data()
    {
        QTest::addColumn<int>("error");
        for (const int error : {EIO, ENOSPC, EDQUOT, EACCES, EROFS})
            QTest::newRow(::strerrorname_np(error)) << error;
    }
    void everyCallFailsOnce()
    {
        QFETCH(int, error);
        const QStringList calls = callsOfOneWrite();
        const qsizetype rename = calls.indexOf(u"rename"_s), last = calls.size() - 1;
        // Owner and mode are kept if that can be done, and closing the synced folder can lose nothing.
        const QList<qsizetype> spared{calls.indexOf(u"stat"_s), calls.indexOf(u"fstat"_s),
                                      calls.indexOf(u"fchmod"_s), last};
        for (qsizetype call = 0; call <= last; ++call) {
            // A write whose mode could not be kept leaves another one, which would leave calls out of the
            // next.
            QFile::remove(path());
            put(path(), m_old);
            const auto outcome = [&] {
                const FaultySystem system(Fault::once, call, error);
                return AtomicFile::write(path(), m_new);
            }();
            const QByteArray place = calls[call].toLatin1() + ' ' + QByteArray::number(call);
            QVERIFY2(outcome.has_value() == spared.contains(call), place.constData());
            if (!outcome)
                QVERIFY2(outcome.error().endsWith(u": "_s + qt_error_string(error)),
                         qPrintable(outcome.error()));
            QVERIFY2(contents(path()) == (outcome || call > rename ? m_new : m_old), place.constData());
            QCOMPARE(names(), QStringList{u"file.json"_s});
            QVERIFY2(AtomicFile::write(path(), m_new), place.constData());
            QVERIFY2(contents(path()) == m_new, place.constData());
        }
    }

    /// Not even the temporary file can be removed then; the next start does.
    void theDiskDies()
    {
        const QStringList calls = callsOfOneWrite();
        bool hasLeftOne = false;
        for (qsizetype call = 0; call <= calls.indexOf(u"rename"_s); ++call) {
            put(path(), m_old);
            {
                const FaultySystem system(Fault::fromThereOn, call, EIO);
                QVERIFY(!AtomicFile::write(path(), m_new));
            }
            QCOMPARE(contents(path()), m_old);
            hasLeftOne |= names().size() > 1;
            AtomicFile::sweepLeftovers(path());
            QCOMPARE(names(), QStringList{u"file.json"_s});
        }
        QVERIFY(hasLeftOne);
    }

    void signalsAndShortWritesGoUnnoticed()
    {
        const QStringList calls = callsOfOneWrite();
        for (qsizetype call = 0; call < calls.size(); ++call) {
            put(path(), m_old);
            FaultySystem system(Fault::once, call, EINTR);
            system.limitWrites(3'001);
            const auto outcome = AtomicFile::write(path(), m_new);
            QVERIFY2(outcome, qPrintable(calls[call]));
            QCOMPARE(contents(path()), m_new);
            QCOMPARE(names(), QStringList{u"file.json"_s});
        }
    }

    void aFolderThatCannotBeSyncedIsNoFailure()
    {
        const qsizetype syncOfFolder = callsOfOneWrite().lastIndexOf(u"fsync"_s);
        const FaultySystem system(Fault::once, syncOfFolder, EINVAL);
        QVERIFY(AtomicFile::write(path(), m_new));
    }

    void anExistingFileKeepsItsMode_data()
    {
        QTest::addColumn<int>("before");
        QTest::addColumn<AtomicFile::Access>("access");
        QTest::addColumn<int>("after");
        QTest::newRow("private") << 0600 << AtomicFile::Access::umask << 0600;
        QTest::newRow("shared") << 0664 << AtomicFile::Access::owner << 0664;
        QTest::newRow("read-only") << 0444 << AtomicFile::Access::owner << 0644;
        QTest::newRow("new and private") << 0 << AtomicFile::Access::owner << 0600;
        QTest::newRow("new document") << 0 << AtomicFile::Access::umask << 0640;
    }
    void anExistingFileKeepsItsMode()
    {
        QFETCH(int, before);
        QFETCH(AtomicFile::Access, access);
        QFETCH(int, after);
        if (before == 0)
            QVERIFY(QFile::remove(path()));
        else
            QCOMPARE(::chmod(qPrintable(path()), mode_t(before)), 0);
        const mode_t mask = ::umask(027);
        const auto outcome = AtomicFile::write(path(), m_new, access);
        ::umask(mask);
        QVERIFY(outcome);
        QCOMPARE(modeOf(path()), mode_t(after));
    }

    void linksStay_data()
    {
        QTest::addColumn<QString>("target");
        QTest::addColumn<QString>("written");
        QTest::newRow("same folder") << u"file.json"_s << u"file.json"_s;
        QTest::newRow("other folder") << u"deep/down/file.json"_s << u"deep/down/file.json"_s;
        QTest::newRow("absolute") << path(u"deep/down/file.json"_s) << u"deep/down/file.json"_s;
        QTest::newRow("dangling") << u"deep/new.json"_s << u"deep/new.json"_s;
        QTest::newRow("through a linked folder and up") << u"short/../other.json"_s << u"deep/other.json"_s;
        QTest::newRow("link to a link") << u"deep/link"_s << u"deep/down/linked.json"_s;
    }
    void linksStay()
    {
        QFETCH(QString, target);
        QFETCH(QString, written);
        QVERIFY(QDir(path({})).mkpath(u"deep/down"_s));
        QVERIFY(QFile::link(u"deep/down"_s, path(u"short"_s)));
        QVERIFY(QFile::link(u"down/linked.json"_s, path(u"deep/link"_s)));
        const QString place = target.startsWith(u'/') ? path(written) : target;
        QVERIFY(QFile::link(place, path(u"link"_s)));

        const QStringList calls = [&] {
            FaultySystem system;
            return AtomicFile::write(path(u"link"_s), m_old) ? system.calls() : QStringList();
        }();
        {
            const FaultySystem system(Fault::fromThereOn, calls.indexOf(u"rename"_s), EIO);
            QVERIFY(!AtomicFile::write(path(u"link"_s), m_new));
        }
        const QString folder = QFileInfo(written).path();
        QCOMPARE(QDir(path(folder)).entryList({u"*.saving-*"_s}).size(), 1);
        AtomicFile::sweepLeftovers(path(u"link"_s));
        QVERIFY(QDir(path(folder)).entryList({u"*.saving-*"_s}).isEmpty());

        QVERIFY(AtomicFile::write(path(u"link"_s), m_new));
        QVERIFY(QFileInfo(path(u"link"_s)).isSymLink());
        QVERIFY(!QFileInfo(path(written)).isSymLink());
        QCOMPARE(contents(path(written)), m_new);
    }

    void aRingOfLinksIsRefused()
    {
        QVERIFY(QFile::link(u"b"_s, path(u"a"_s)));
        QVERIFY(QFile::link(u"a"_s, path(u"b"_s)));
        QVERIFY(AtomicFile::write(path(u"a"_s), m_new).error().endsWith(qt_error_string(ELOOP)));
        AtomicFile::sweepLeftovers(path(u"a"_s));
        QCOMPARE(names(), (QStringList{u"a"_s, u"b"_s, u"file.json"_s}));
    }

    void oddNamesWork()
    {
        for (const QString &name : {u"a b"_s, u"\"quoted\" 'twice'"_s, u"Büro 🗂"_s, u"[x]*?.json"_s,
                                    u"two\nlines"_s, u"back\\slash"_s, u"%1"_s, u".hidden"_s}) {
            QVERIFY(QDir(path({})).mkdir(name));
            const QString file = path(name + u'/' + name);
            QVERIFY2(AtomicFile::write(file, m_old), qPrintable(name));
            put(file + u".saving-abc123"_s, m_old);
            QVERIFY(AtomicFile::write(file, m_new));
            AtomicFile::sweepLeftovers(file);
            QCOMPARE(contents(file), m_new);
            QCOMPARE(names(name), QStringList{name});
        }
        const QString before = QDir::currentPath();
        QVERIFY(QDir::setCurrent(path({})));
        QVERIFY(AtomicFile::write(u"file.json"_s, m_new));
        QVERIFY(QDir::setCurrent(before));
        QCOMPARE(contents(path()), m_new);
    }

    void impossiblePlacesAreReported()
    {
        QVERIFY(QDir(path({})).mkpath(u"folder/inside"_s));
        QVERIFY(AtomicFile::write(path(u"folder"_s), m_new).error().endsWith(qt_error_string(EISDIR)));
        QVERIFY(AtomicFile::write(path(u"gone/file"_s), m_new).error().endsWith(qt_error_string(ENOENT)));
        QVERIFY(
            AtomicFile::write(path(u"file.json/file"_s), m_new).error().endsWith(qt_error_string(ENOTDIR)));
        QCOMPARE(names(), (QStringList{u"file.json"_s, u"folder"_s}));
    }

    void aReadOnlyFolderIsReported()
    {
        static constexpr uid_t nobody = 65534;
        QVERIFY(QFile::setPermissions(path({}), QFile::Permissions(0x5555)));
        const bool isRoot = ::geteuid() == 0;
        // Root may write everywhere, so for the moment this process is someone else.
        if (isRoot && ::seteuid(nobody) != 0)
            QSKIP("cannot become an ordinary user");
        const auto outcome = AtomicFile::write(path(), m_new);
        if (isRoot)
            QCOMPARE(::seteuid(0), 0);
        QVERIFY(QFile::setPermissions(path({}), QFile::Permissions(0x7700)));
        QVERIFY(!outcome);
        QVERIFY2(outcome.error().endsWith(qt_error_string(EACCES)), qPrintable(outcome.error()));
        QCOMPARE(contents(path()), m_old);
        QCOMPARE(names(), QStringList{u"file.json"_s});
    }

    void sweepsOnlyItsOwnLeftovers()
    {
        const QStringList others{u"file.json.backup"_s,         u"file.json.saving-abc12"_s,
                                 u"file.json.saving-abc1234"_s, u"file.json.saving-"_s,
                                 u"xfile.json.saving-abc123"_s, u"file-json.saving-abc123"_s,
                                 u"other.json.saving-abc123"_s};
        for (const QString &name : others)
            put(path(name), m_old);
        QVERIFY(QDir(path({})).mkdir(u"file.json.saving-folder"_s));
        QVERIFY(QFile::link(u"file.json"_s, path(u"file.json.saving-linked"_s)));
        QStringList kept = names();
        put(path(u"file.json.saving-Abc12z"_s), m_new);
        AtomicFile::sweepLeftovers(path());
        QCOMPARE(names(), kept);
        QCOMPARE(contents(path()), m_old);
    }
};

QTEST_GUILESS_MAIN(AtomicFileTest)
#include "tst_atomicfile.moc"
