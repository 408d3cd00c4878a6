#include "Harness/TestPackage.h"
#include "Support/Updates/AppBundle.h"
#include "Support/Updates/BundleSwap.h"
#include "Support/Updates/PathExchange.h"

#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

#include <unistd.h>

using namespace Qt::StringLiterals;

/// Runs the script with stand-ins for its tools, in a folder that stands for the user's applications.
class BundleSwapTest : public QObject
{
    Q_OBJECT

private:
    static constexpr uid_t nobody = 65534;

    std::unique_ptr<QTemporaryDir> m_folder;

    QString path(const QString &name) const { return m_folder->filePath(name); }
    QString target() const { return path(u"apps/Orvel.app"_s); }
    QString staged() const { return path(u"work/Orvel.app"_s); }
    QString marks() const { return path(u"marks"_s); }

    static QByteArray contents(const QString &path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    static void put(const QString &path, const QByteArray &bytes, mode_t mode = 0644)
    {
        TestPackage::layOut({{QFileInfo(path).fileName().toUtf8(), bytes, S_IFREG | mode}},
                            QFileInfo(path).path());
    }
    QList<TestPackage::Entry> bundle(const QByteArray &version) const
    {
        // Its exchange is a step to be killed at, too.
        const QString exchange = path(u"tools/exchange"_s);
        return TestPackage::bundle(version, exchange.toUtf8(), marks().toUtf8());
    }
    void stage(const QByteArray &version) const
    {
        TestPackage::layOut(bundle(version), path(u"work"_s));
        QFile::copy(u":/orvel/updates/swap.sh"_s, path(u"work/swap.sh"_s));
    }
    QByteArray log() const { return contents(path(u"log"_s)); }
    int count(const QString &what) const { return int(contents(path(what)).size()); }
    QStringList applications() const
    {
        return QDir(path(u"apps"_s)).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    }
    /// Whether a whole bundle of this version stands in the place of the program.
    bool isInstalled(const QByteArray &version) const
    {
        QTemporaryDir expected;
        TestPackage::layOut(bundle(version), expected.path());
        return TestPackage::tree(target()) == TestPackage::tree(expected.filePath(u"Orvel.app"_s));
    }
    /// Whether the program in its place, started by hand, says it is this version.
    bool starts(const QByteArray &version) const
    {
        QFile::remove(marks());
        QProcess program;
        program.start(AppBundle::programPath(target()), {});
        return program.waitForFinished() && contents(marks()).startsWith(version + '\n');
    }

    void makeTool(const QString &name, const QByteArray &before, const QByteArray &command,
                  const QByteArray &after = {})
    {
        const QByteArray place = m_folder->path().toUtf8();
        const QByteArray text = "#!/bin/sh\nplace='" + place +
                                "'\n"
                                "step() {\n"
                                "    printf . >>\"$place/steps\"\n"
                                "    [ \"$(wc -c <\"$place/steps\")\" = \"$KILL_AT\" ] || return 0\n"
                                "    half=${1:-:}\n"
                                "    [ $# = 0 ] || shift\n"
                                "    eval \"$half\"\n"
                                "    kill -9 0\n"
                                "}\n" +
                                before + "\n" + command + "\n" + after + "\n";
        put(path(u"tools/"_s + name), text, 0755);
    }
    void makeTools()
    {
        const QByteArray end = "code=$?; step; exit $code";
        // Half done, the most inconvenient part first.
        makeTool(u"rm"_s, "step; step 'for each; do /bin/rm -rf -- \"$each/Contents/bin\"; done' \"$@\"",
                 "/bin/rm \"$@\"", end);
        makeTool(
            u"mv"_s,
            "step; step 'mkdir -p \"$3/Contents\"; cp \"$2/Contents/Info.plist\" \"$3/Contents\"' \"$@\"",
            "/bin/mv \"$@\"", end);
        makeTool(u"exchange"_s, "step", QByteArray("'") + UPDATE_PROBE + "' \"$@\"", end);
        makeTool(u"sync"_s, "step", "/bin/sync \"$@\"", end);
        makeTool(u"touch"_s, "step", "/bin/touch \"$@\"", end);
        makeTool(u"setsid"_s, "step", "exec /usr/bin/setsid \"$@\"");
        makeTool(u"logger"_s, "step", "printf '%s\\n' \"$*\" >>\"$place/log\"");
        // No time passes, but what is to happen meanwhile does.
        makeTool(u"sleep"_s, "printf . >>\"$place/sleeps\"",
                 "[ \"$(wc -c <\"$place/sleeps\")\" != 3 ] || eval \"$AFTER_THREE_SLEEPS\"");
    }

    /// Gives the script's exit code, or -1 if it was killed.
    int run(qint64 processId = 0, int killAt = 0, const QString &afterThreeSleeps = {}, uid_t user = 0)
    {
        for (const QString &name : {u"steps"_s, u"sleeps"_s, u"log"_s})
            QFile::remove(path(name));
        QProcess script;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"PATH"_s, path(u"tools"_s) + u':' + environment.value(u"PATH"_s));
        environment.insert(u"KILL_AT"_s, QString::number(killAt));
        environment.insert(u"AFTER_THREE_SLEEPS"_s, afterThreeSleeps);
        script.setProcessEnvironment(environment);
        // A group of its own, so that a kill takes the script and nothing else.
        script.setChildProcessModifier([user] {
            ::setsid();
            if (user > 0 && (::setgid(user) != 0 || ::setuid(user) != 0))
                ::_exit(99);
        });
        script.start(u"/bin/sh"_s, {path(u"work/swap.sh"_s), target(), staged(), path(u"work"_s),
                                    QString::number(processId)});
        if (!script.waitForFinished(60'000))
            qFatal("The script doesn't end");
        return script.exitStatus() == QProcess::NormalExit ? script.exitCode() : -1;
    }

private slots:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        QDir(m_folder->path()).mkdir(u"apps"_s);
        TestPackage::layOut(bundle("1.0"), path(u"apps"_s));
        makeTools();
        stage("2.0");
    }

    void putsTheNewBundleInThePlaceOfTheOldAndStartsIt()
    {
        QCOMPARE(run(), 0);
        QTRY_COMPARE(contents(marks()), "2.0\n"_ba);
        QVERIFY(isInstalled("2.0"));
        QCOMPARE(applications(), QStringList(u"Orvel.app"_s));
        QVERIFY(!QFile::exists(path(u"work"_s)));
        const QByteArray tag = "-p user.notice -t Orvel-update ";
        QCOMPARE(log(), tag + "swap: replacing " + target().toUtf8() + "\n" + tag + "swap: done\n");
        QCOMPARE(count(u"sleeps"_s), 0);
    }

    void findsItsWorkDoneTheSecondTime()
    {
        QCOMPARE(run(), 0);
        QTRY_VERIFY(QFile::exists(marks()));
        QFile::remove(marks());
        stage("2.0");
        QDir(path(u"apps"_s)).mkdir(u"Orvel.app.old"_s);
        QCOMPARE(run(), 0);
        QVERIFY(log().contains("swap: target already at 2.0\n"));
        QVERIFY(!log().contains("replacing"));
        QVERIFY(isInstalled("2.0"));
        QCOMPARE(applications(), QStringList(u"Orvel.app"_s));
        QVERIFY(!QFile::exists(path(u"work"_s)));
        QVERIFY(!QFile::exists(marks()));
    }

    void takesANewBuildOfTheSameVersion()
    {
        const auto number = [](const QByteArray &build) {
            return TestPackage::infoPlist("1.0").replace("</dict>", "<key>CFBundleVersion</key><string>" +
                                                                        build + "</string></dict>");
        };
        put(target() + u"/Contents/Info.plist"_s, number("7"));
        for (const QByteArray &build : {"8"_ba, "8"_ba}) {
            stage("1.0");
            put(staged() + u"/Contents/Info.plist"_s, number(build));
            QCOMPARE(run(), 0);
        }
        QVERIFY(log().contains("swap: target already at 1.0\n"));
        QCOMPARE(AppBundle::info(target(), u"CFBundleVersion"), u"8"_s);
        QTRY_COMPARE(contents(marks()), "1.0\n"_ba);
    }

    void leavesTheLockToTheNextSwap()
    {
        put(AppBundle::programPath(staged()),
            "#!/bin/sh\n[ \"$1\" = --exchange ] && exec '" + path(u"tools/exchange"_s).toUtf8() +
                "' \"$@\"\nfor each in /proc/$$/fd/*; do readlink $each; done >'" + marks().toUtf8() +
                "'\necho end >>'" + marks().toUtf8() + "'\n",
            0755);
        QCOMPARE(run(), 0);
        QTRY_VERIFY(contents(marks()).endsWith("end\n"));
        QVERIFY2(!contents(marks()).contains(path(u"apps\n"_s).toUtf8()), contents(marks()).constData());
        QVERIFY(contents(marks()).contains("/dev/null\n"));
    }

    void leavesAWholeProgramWhereverItIsKilled()
    {
        QCOMPARE(run(), 0);
        const int steps = count(u"steps"_s);
        QVERIFY(steps > 20);
        int oldOnes = 0, newOnes = 0;
        for (int step = 1; step <= steps; ++step) {
            init();
            const int code = run(0, step);
            const QByteArray found = AppBundle::version(target()).toUtf8();
            QVERIFY2(isInstalled(found) && starts(found), qPrintable(u"killed at %1"_s.arg(step)));
            if (code != -1)
                continue;
            (found == "1.0" ? oldOnes : newOnes) += 1;

            // The next update clears up.
            stage("3.0");
            QCOMPARE(run(), 0);
            QVERIFY2(isInstalled("3.0"), qPrintable(u"killed at %1"_s.arg(step)));
            QCOMPARE(applications(), QStringList(u"Orvel.app"_s));
        }
        QVERIFY(oldOnes > 5);
        QVERIFY(newOnes > 5);
    }

    void waitsForTheOldProcessOnly_data()
    {
        QTest::addColumn<QString>("program");
        QTest::addColumn<QString>("afterThreeSleeps");
        QTest::addColumn<int>("sleeps");
        QTest::newRow("ends in time") << u"apps/Orvel.app/Contents/bin/sleeper"_s
                                      << u"kill -9 %1; while readlink /proc/%1/exe; do :; done"_s << 3;
        QTest::newRow("never ends") << u"apps/Orvel.app/Contents/bin/sleeper"_s << QString() << 20;
        QTest::newRow("a stranger of the same name")
            << u"other/Orvel.app/Contents/bin/orvel"_s << QString() << 0;
    }
    void waitsForTheOldProcessOnly()
    {
        QFETCH(QString, program);
        QFETCH(QString, afterThreeSleeps);
        QFETCH(int, sleeps);
        put(path(program), contents(QStandardPaths::findExecutable(u"sleep"_s)), 0755);
        QProcess old;
        old.start(path(program), {u"1000"_s});
        QVERIFY(old.waitForStarted());
        if (!afterThreeSleeps.isEmpty())
            afterThreeSleeps = afterThreeSleeps.arg(old.processId());
        QCOMPARE(run(old.processId(), 0, afterThreeSleeps), 0);
        QCOMPARE(count(u"sleeps"_s), sleeps);
        QVERIFY(isInstalled("2.0"));
        old.kill();
        old.waitForFinished();
    }

    void leavesTheOldOneInAReadOnlyPlace()
    {
        const QString place = path(u"apps"_s);
        const uid_t user = ::geteuid() == 0 ? nobody : 0;
        QFile::remove(path(u"steps"_s));
        ::chmod(QFile::encodeName(m_folder->path()).constData(), 0777);
        ::chmod(QFile::encodeName(place).constData(), 0555);
        if (user > 0)
            QCOMPARE(QProcess::execute(u"chown"_s, {u"-R"_s, QString::number(user), path(u"work"_s)}), 0);
        const QStringList before = TestPackage::tree(place);
        QCOMPARE(run(0, 0, {}, user), 1);
        QVERIFY(log().contains("swap: move failed, restoring previous build\n"));
        QCOMPARE(TestPackage::tree(place), before);
        QVERIFY(starts("1.0"));
        ::chmod(QFile::encodeName(place).constData(), 0755);
    }

    void refusesAProgramThatCannotStart()
    {
        put(AppBundle::programPath(staged()), "no program", 0755);
        QCOMPARE(run(), 1);
        QVERIFY(isInstalled("1.0"));
        QVERIFY(!QFile::exists(marks()));
        QCOMPARE(applications(), QStringList(u"Orvel.app"_s));
    }

    void takesTurnsWithAnother()
    {
        // Two copies of the program that were updated at once.
        TestPackage::layOut(bundle("2.0"), path(u"work2"_s));
        QProcess first, second;
        const auto start = [this](QProcess &script, const QString &work) {
            script.start(u"/bin/sh"_s, {path(u"swap.sh"_s), target(), work + u"/Orvel.app"_s, work, u"0"_s});
        };
        QFile::copy(u":/orvel/updates/swap.sh"_s, path(u"swap.sh"_s));
        start(first, path(u"work"_s));
        start(second, path(u"work2"_s));
        QVERIFY(first.waitForFinished() && second.waitForFinished());
        QCOMPARE(first.exitCode() + second.exitCode(), 0);
        QVERIFY(isInstalled("2.0"));
        QCOMPARE(applications(), QStringList(u"Orvel.app"_s));
        QTRY_COMPARE(contents(marks()), "2.0\n"_ba);
        QVERIFY(!QFile::exists(path(u"work"_s)) && !QFile::exists(path(u"work2"_s)));
    }

    void outlivesTheProgram()
    {
        // The real script with the system's own tools, started the way the program starts it.
        const auto started = BundleSwap::start(target(), staged(), path(u"work"_s), ::getpid());
        QVERIFY2(started, qPrintable(started ? QString() : started.error()));
        QTRY_VERIFY_WITH_TIMEOUT(!QFile::exists(path(u"work"_s)), 30'000);
        QTRY_COMPARE(contents(marks()), "2.0\n"_ba);
        QVERIFY(isInstalled("2.0"));
    }

    void readsWhatABundleSays()
    {
        QCOMPARE(AppBundle::version(target()), u"1.0"_s);
        QCOMPARE(AppBundle::containing(target() + u"/Contents/bin"_s),
                 QFileInfo(target()).canonicalFilePath());
        QCOMPARE(AppBundle::containing(target() + u"/Contents"_s), QString());
        QCOMPARE(AppBundle::containing(u"/usr/bin"_s), QString());
        QVERIFY(AppBundle::hasProgram(target()));

        const QString info = target() + u"/Contents/Info.plist"_s;
        put(info, "<plist><dict><key>Other</key><dict><key>CFBundleShortVersionString</key>"
                  "<string>9</string></dict><key>CFBundleShortVersionString</key><string>4</string>"
                  "</dict></plist>");
        QCOMPARE(AppBundle::version(target()), u"4"_s);
        put(info, "bplist00 or any other bytes");
        QCOMPARE(AppBundle::version(target()), QString());
        QFile::remove(info);
        QCOMPARE(AppBundle::version(target()), QString());
        QCOMPARE(AppBundle::containing(target() + u"/Contents/bin"_s), QString());
    }

    void exchangesTwoThingsOrNeither()
    {
        const QString other = path(u"work/Orvel.app"_s);
        QVERIFY(PathExchange::isPossibleIn(path(u"apps"_s)));
        QCOMPARE(applications(), QStringList(u"Orvel.app"_s));
        QVERIFY(PathExchange::exchange(target(), other));
        QVERIFY(isInstalled("2.0"));
        QVERIFY(!PathExchange::exchange(target(), path(u"nothing"_s)));
        QVERIFY(isInstalled("2.0"));
        QVERIFY(!PathExchange::isPossibleIn(path(u"nothing"_s)));
        QVERIFY(!PathExchange::isPossibleIn(u"/proc"_s));
    }
};

QTEST_GUILESS_MAIN(BundleSwapTest)
#include "tst_bundleswap.moc"
