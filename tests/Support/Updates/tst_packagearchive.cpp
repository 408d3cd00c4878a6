#include "Harness/TestPackage.h"
#include "Support/Updates/PackageArchive.h"

#include <QTemporaryDir>
#include <QtTest>

using namespace Qt::StringLiterals;
using TestPackage::Entry;

class PackageArchiveTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<QTemporaryDir> m_folder;

    QString staging() const { return m_folder->filePath(u"staging"_s); }

    /// The reason of the refusal, or nothing.
    QString unpack(const QByteArray &archive, const PackageArchive::Limits &limits = {},
                   const std::stop_token &stop = {})
    {
        QFile file(m_folder->filePath(u"package.zip"_s));
        if (!file.open(QIODevice::WriteOnly) || file.write(archive) != archive.size())
            return u"THE TEST CAN'T WRITE"_s;
        file.close();
        QDir(m_folder->path()).mkdir(u"staging"_s);
        const auto unpacked = PackageArchive::unpack(file.fileName(), staging(), stop, limits);
        file.remove();
        return unpacked ? QString() : unpacked.error();
    }

    /// The good bundle with one more entry.
    static QByteArray withEntry(const Entry &entry)
    {
        return TestPackage::zip(TestPackage::bundle("2.0") << entry);
    }
    /// With an entry of a type that no archiver writes.
    static QByteArray withType(mode_t type)
    {
        const auto mode = [](mode_t bits) { return QByteArray(1, char(bits)) + char(bits >> 8); };
        return withEntry({"Orvel.app/strange", {}, S_IFREG | 0641})
            .replace(mode(S_IFREG | 0641), mode(type | 0641));
    }
    static QByteArray withBytes(const QByteArray &from, const QByteArray &to)
    {
        QByteArray archive =
            TestPackage::zip(TestPackage::bundle("2.0") << Entry{"Orvel.app/strange", "the contents"}, true);
        return archive.replace(from, to);
    }

private slots:
    void init() { m_folder = std::make_unique<QTemporaryDir>(); }

    void unpacksTheBundleAndNothingBesideIt()
    {
        QList<Entry> entries = TestPackage::bundle("2.0");
        entries.append(Entry{"Orvel.app/Contents/bin/helper", "#!/bin/sh\n", S_IFREG | 06755});
        entries.append(Entry{"Orvel.app/Contents/share/größe.txt", "12"});
        QTemporaryDir expected;
        TestPackage::layOut(entries, expected.path());
        ::chmod(QFile::encodeName(expected.filePath(u"Orvel.app/Contents/bin/helper"_s)).constData(), 0755);
        entries.append(Entry{"__MACOSX/Orvel.app/junk", "junk"});
        entries.append(Entry{"README", "read me"});

        for (const bool isStored : {false, true}) {
            init();
            QCOMPARE(unpack(TestPackage::zip(entries, isStored)), QString());
            QCOMPARE(TestPackage::tree(staging()), TestPackage::tree(expected.path()));
        }
    }

    void refusesWhatReachesOutsideOrIsNoPlainPackage_data()
    {
        QTest::addColumn<QByteArray>("archive");
        const auto link = [](const QByteArray &name, const QByteArray &target) {
            return withEntry({name, {}, S_IFLNK | 0777, target});
        };
        QTest::newRow("absolute path") << withEntry({"/tmp/orvel-escaped", "out"});
        QTest::newRow("up and out") << withEntry({"../escaped", "out"});
        QTest::newRow("up and out, from inside") << withEntry({"Orvel.app/../../escaped", "out"});
        QTest::newRow("up, but not out") << withEntry({"Orvel.app/Contents/../x", "in"});
        QTest::newRow("dot") << withEntry({"Orvel.app/./x", "in"});
        QTest::newRow("empty part") << withEntry({"Orvel.app//x", "in"});
        QTest::newRow("link out") << link("Orvel.app/out", "/etc");
        QTest::newRow("link inside") << link("Orvel.app/in", "Contents");
        QTest::newRow("link beside the bundle") << link("out", "/etc");
        QTest::newRow("link, then a file through it") << TestPackage::zip(
            {{"Orvel.app/out", {}, S_IFLNK | 0777, "../.."}, {"Orvel.app/out/escaped", "out"}});
        QTest::newRow("device") << withType(S_IFCHR);
        QTest::newRow("file twice") << withEntry({"Orvel.app/Contents/Info.plist", "other"});
        QTest::newRow("folder twice") << withEntry({"Orvel.app/Contents/", {}, S_IFDIR | 0755});
        QTest::newRow("file in the place of a folder") << withEntry({"Orvel.app/Contents/share", "a file"});
        QTest::newRow("folder in the place of a file")
            << withEntry({"Orvel.app/Contents/Info.plist/x", "in a file"});
        QTest::newRow("endless name") << withEntry({"Orvel.app/" + QByteArray("x/").repeated(600), "long"});
        QTest::newRow("no text as a name") << withBytes("Orvel.app/strange", "Orvel.app/str\xff\xfe\xfd\xfc");
        QTest::newRow("changed contents") << withBytes("the contents", "THE contents");
        QTest::newRow("truncated") << withBytes({}, {}).chopped(200);
        QTest::newRow("no archive") << "<html><body>Please sign in.</body></html>"_ba;
        QTest::newRow("nothing") << QByteArray();
    }
    void refusesWhatReachesOutsideOrIsNoPlainPackage()
    {
        QFETCH(QByteArray, archive);
        const QStringList before = TestPackage::tree(m_folder->path());
        const QString reason = unpack(archive);
        QVERIFY(!reason.isEmpty());
        QVERIFY2(!reason.startsWith(u"THE TEST"), qPrintable(reason));
        QVERIFY(QDir(staging()).removeRecursively());
        QCOMPARE(TestPackage::tree(m_folder->path()), before);
        QVERIFY(!QFile::exists(u"/tmp/orvel-escaped"_s));
    }

    void refusesBombs()
    {
        const QByteArray zeros(20'000'000, '\0');
        const QByteArray bomb = withEntry({"Orvel.app/zeros", zeros});
        QVERIFY(bomb.size() < 100'000);
        QVERIFY(unpack(bomb).contains(u"bytes"));
        QVERIFY(QFileInfo(staging() + u"/Orvel.app/zeros"_s).size() < zeros.size());

        // A directory that would fill the memory before the first entry is looked at.
        QByteArray vast = TestPackage::zip(TestPackage::bundle("2.0"));
        const qsizetype directory = vast.indexOf("PK\1\2"), end = vast.lastIndexOf("PK\5\6");
        QVERIFY(directory > 0 && end > directory);
        vast.insert(end, vast.sliced(directory, end - directory).repeated(60'000));
        QVERIFY(unpack(vast).contains(u"directory"));

        // Each limit by itself, met exactly and missed by one.
        const QByteArray package = TestPackage::zip({{"Orvel.app/a", "12345"}, {"Orvel.app/b", "67890"}});
        init();
        QCOMPARE(unpack(package, {.entries = 2, .bytes = 10}), QString());
        init();
        QVERIFY(unpack(package, {.entries = 1, .bytes = 10}).contains(u"entries"));
        init();
        QVERIFY(unpack(package, {.entries = 2, .bytes = 9}).contains(u"bytes"));
    }

    void stopsWhenAsked()
    {
        std::stop_source source;
        source.request_stop();
        QVERIFY(!unpack(TestPackage::zip(TestPackage::bundle("2.0")), {}, source.get_token()).isEmpty());
    }
};

QTEST_GUILESS_MAIN(PackageArchiveTest)
#include "tst_packagearchive.moc"
