#include "Features/Code/ProcessSupervisor.h"
#include "RunnerMachine.h"

#include <cerrno>
#include <unistd.h>

using namespace Qt::StringLiterals;
using Status = CodeRunResult::Status;

Q_DECLARE_METATYPE(CodeRunResult)

/// Fails with the whole answer in sight.
#define COMPARE_ANSWER(answer, wantedStatus, wantedOutput)                                                   \
    do {                                                                                                     \
        const CodeRunResult got = (answer);                                                                  \
        QCOMPARE(got.output, QString(wantedOutput));                                                         \
        QCOMPARE(got.status, wantedStatus);                                                                  \
    } while (false)

class CodeRunnerTest : public QObject
{
    Q_OBJECT

private slots:
    void whatNeedsNoInterpreter()
    {
        const RunnerMachine machine;
        const auto run = [&](const QString &source, CodeLanguage language) {
            return machine.answer(source, language);
        };
        COMPARE_ANSWER(run(u"a"_s, CodeLanguage::html), Status::unsupported,
                       u"HTML is markup  -  there is nothing to run."_s);
        COMPARE_ANSWER(run(u"a"_s, CodeLanguage::plain), Status::unsupported,
                       u"Plain text has no runtime."_s);
        COMPARE_ANSWER(run(u" \u200b\r\n\u2028"_s, CodeLanguage::python), Status::success,
                       u"Nothing to run."_s);
        COMPARE_ANSWER(run(u"1"_s, CodeLanguage::json), Status::success, u"1"_s);
        const CodeRunResult invalid = run(u"\""_s, CodeLanguage::json);
        QCOMPARE(invalid.status, Status::failure);
        QVERIFY(invalid.output.startsWith(u"Invalid JSON: "_s));
        QCOMPARE(invalid.tool, u"JSON"_s);
        QVERIFY(invalid.duration > 0);
        QCOMPARE(machine.scratchFolders(), QStringList());
    }

    void pastedTextIsCleaned()
    {
        QCOMPARE(CodeRunner::prepared(
                     u"\ufeffa\r\nb\rc\u2028d\u2029e\u00a0\u2007\u202ff\u00ad\u200b\u2060\ufeffg"_s),
                 u"a\nb\nc\nd\ne   fg\n"_s);
        QCOMPARE(CodeRunner::prepared(u"a\n"_s), u"a\n"_s);
        QCOMPARE(CodeRunner::prepared(u"\U0001F600"_s), u"\U0001F600\n"_s);
    }

    void interpretersRun_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<CodeLanguage>("language");
        QTest::addColumn<QString>("source");
        QTest::addColumn<QString>("output");
        using enum CodeLanguage;
        QTest::newRow("python") << u"python3"_s << python << u"if True:\n\u00a0\u00a0print('\u00e9')"_s
                                << u"\u00e9\n"_s;
        QTest::newRow("node") << u"node"_s << javascript << u"console.log([1, 2].map(x => x * 2).join())"_s
                              << u"2,4\n"_s;
        QTest::newRow("sh") << u"sh"_s << shell << u"echo a; basename \"$0\"; cat"_s << u"a\nmain.sh\n"_s;
        QTest::newRow("sqlite") << u"sqlite3"_s << sql << u"select 1 as one;"_s
                                << u"\u250c\u2500\u2500\u2500\u2500\u2500\u2510\n\u2502 one \u2502\n"
                                   "\u251c\u2500\u2500\u2500\u2500\u2500\u2524\n\u2502 1   \u2502\n"
                                   "\u2514\u2500\u2500\u2500\u2500\u2500\u2518\n"_s;
        QTest::newRow("swift") << u"swift"_s << swift << u"print(1)"_s << u"1\n"_s;
    }
    void interpretersRun()
    {
        QFETCH(QString, name);
        QFETCH(CodeLanguage, language);
        QFETCH(QString, source);
        QFETCH(QString, output);
        RunnerMachine machine;
        if (!Interpreters(machine.options, -1).resolve(name))
            QSKIP(qPrintable(name + u" is not installed"_s));
        // The path of the snippet may hold anything.
        machine.options.temporaryFolder = machine.folder.filePath(u"it's a \"new\" \\ folder"_s);
        const CodeRunResult result = machine.answer(source, language);
        COMPARE_ANSWER(result, Status::success, output);
        QVERIFY(!result.tool->isEmpty());
        QCOMPARE(machine.scratchFolders(), QStringList());
    }

    void theOutputTellsWhatHappened_data()
    {
        QTest::addColumn<QString>("source");
        QTest::addColumn<Status>("status");
        QTest::addColumn<QString>("output");
        const auto row = [](const char *name, const QString &source, Status status, const QString &output) {
            QTest::newRow(name) << source << status << output;
        };
        row("output first, then errors", u"echo e >&2; printf o"_s, Status::success, u"o\ne\n"_s);
        row("silent", u"true"_s, Status::success, u"Finished with no output."_s);
        row("silent failure", u"exit 3"_s, Status::failure, u"Exited with status 3."_s);
        row("failure with a word", u"echo no; exit 1"_s, Status::failure, u"no\n"_s);
        row("killed", u"kill -9 $$"_s, Status::failure, u"Exited with status 9."_s);
        row("invalid UTF-8", u"printf 'a\\377b'"_s, Status::success, u"a\ufffdb"_s);
        row("nothing to read, nothing else open", u"cat; ls /proc/self/fd | wc -l"_s, Status::success,
            u"4\n"_s);
        row("the environment", u"echo $NO_COLOR $PYTHONIOENCODING $TERM"_s, Status::success,
            u"1 utf-8 dumb\n"_s);
        row("a folder of its own", u"ls; basename \"$PWD\" | cut -c -9"_s, Status::success,
            u"main.sh\nOrvelRun-\n"_s);
    }
    void theOutputTellsWhatHappened()
    {
        QFETCH(QString, source);
        QFETCH(Status, status);
        QFETCH(QString, output);
        const RunnerMachine machine;
        const FileDescriptor inheritable(::dup(STDERR_FILENO));
        COMPARE_ANSWER(machine.answer(source, CodeLanguage::shell), status, output);
    }

    void typescriptTakesWhatIsThere_data()
    {
        QTest::addColumn<QString>("nodeVersion");
        QTest::addColumn<QStringList>("others");
        QTest::addColumn<QString>("output");
        QTest::addColumn<QString>("label");
        const QString none;
        QTest::newRow("no node") << none << QStringList{u"tsx"_s} << none << none;
        QTest::newRow("new") << u"v23.1"_s << QStringList{u"tsx"_s} << u"node main.ts"_s << u"v23.1"_s;
        QTest::newRow("unreadable") << u"?"_s << QStringList() << u"node main.ts"_s << u"?"_s;
        QTest::newRow("22") << u"v22.1"_s << QStringList() << u"node --experimental-strip-types main.ts"_s
                            << u"v22.1"_s;
        QTest::newRow("tsx") << u"v20.1"_s << QStringList{u"tsc"_s, u"ts-node"_s, u"tsx"_s}
                             << u"tsx main.ts"_s << u"tsx 1"_s;
        QTest::newRow("ts-node") << u"v20.1"_s << QStringList{u"tsc"_s, u"ts-node"_s} << u"ts-node main.ts"_s
                                 << u"ts-node 1"_s;
        QTest::newRow("tsc") << u"v20.1"_s << QStringList{u"tsc"_s}
                             << u"tsc --noEmit --skipLibCheck --target es2022 --module esnext "
                                "--moduleResolution bundler main.ts"_s
                             << u"tsc 1 (type check)"_s;
        QTest::newRow("nothing") << u"v20.1"_s << QStringList() << none << none;
    }
    void typescriptTakesWhatIsThere()
    {
        QFETCH(QString, nodeVersion);
        QFETCH(QStringList, others);
        QFETCH(QString, output);
        QFETCH(QString, label);
        RunnerMachine machine;
        machine.useOwnTools();
        const auto add = [&](const QString &name, const QString &version) {
            machine.addTool(name,
                            QStringLiteral("#!/bin/sh\nif [ \"$1\" = --version ]; then echo ' %2 '; echo; "
                                           "exit; fi\necho %1 \"$@\" | sed 's:/[^ ]*/::'\n")
                                .arg(name, version)
                                .toUtf8());
        };
        if (!nodeVersion.isEmpty())
            add(u"node"_s, nodeVersion);
        for (const QString &name : others)
            add(name, name + u" 1"_s);
        const CodeRunResult result = machine.answer(u"1"_s, CodeLanguage::typescript);
        if (output.isEmpty()) {
            COMPARE_ANSWER(result, Status::unsupported, u"TypeScript can\u2019t be run here."_s);
            QVERIFY(!result.tool);
        } else {
            COMPARE_ANSWER(result, Status::success, output + u'\n');
            QCOMPARE(result.tool, label);
        }
    }

    void theLoginShellKnowsMore()
    {
        RunnerMachine machine;
        machine.useOwnTools();
        machine.options.timeScale = 0.1;
        const QString hidden = machine.addTool(u"hidden"_s, "#!/bin/sh\n");
        machine.options.folders = {machine.folder.filePath(u"none"_s)};
        const auto found = [&](const QByteArray &shell) {
            machine.options.loginShell = machine.addTool(u"shell"_s, "#!/bin/sh\n" + shell);
            return Interpreters(machine.options, -1).resolve(u"python3"_s);
        };
        const QByteArray path = hidden.toUtf8();
        QCOMPARE(found("[ \"$1 $2\" = '-lc command -v python3' ] && echo " + path), hidden);
        QCOMPARE(found("echo 'Good morning!'; echo " + path), hidden);
        QCOMPARE(found("echo " + path + ".txt"), std::nullopt);
        QCOMPARE(found("echo hidden"), std::nullopt);
        QCOMPARE(found("echo " + path + "; exec sleep 1000"), hidden);
        QCOMPARE(found("exec sleep 1000"), std::nullopt);
        QCOMPARE(machine.processes(), 0);
        machine.options.loginShell = u"/nonexistent"_s;
        COMPARE_ANSWER(machine.answer(u"1"_s, CodeLanguage::python), Status::unsupported,
                       u"Python can\u2019t be run here."_s);
    }

    void versionsAreAskedOnce()
    {
        RunnerMachine machine;
        const QString path = machine.addTool(u"tool"_s, "#!/bin/sh\necho asked >> \"$0.log\"\necho 1.0\n");
        const Interpreters interpreters(machine.options, -1);
        QCOMPARE(interpreters.versionLabel(path), u"1.0"_s);
        QCOMPARE(interpreters.versionLabel(path), u"1.0"_s);
        QCOMPARE(QFileInfo(path + u".log"_s).size(), 6);
        QCOMPARE(interpreters.versionLabel(machine.addTool(u"mute"_s, "#!/bin/sh\n")), u"mute"_s);
        QCOMPARE(Interpreters::nodeMajor(u"v20.11.1"_s), 20);
        QCOMPARE(Interpreters::nodeMajor(u"none"_s), std::nullopt);
    }

    void whatCannotStartSaysWhy()
    {
        RunnerMachine machine;
        machine.useOwnTools();
        machine.addTool(u"python3"_s, "#!/nonexistent/interpreter\n");
        COMPARE_ANSWER(machine.answer(u"1"_s, CodeLanguage::python), Status::failure,
                       u"Couldn\u2019t launch python3: "_s + qt_error_string(ENOENT));
        QCOMPARE(machine.scratchFolders(), QStringList());

        QFile::setPermissions(machine.addTool(u"sh"_s, "#!/bin/sh\n"), QFile::ReadOwner);
        COMPARE_ANSWER(machine.answer(u"1"_s, CodeLanguage::shell), Status::unsupported,
                       u"Shell can\u2019t be run here."_s);

        machine.options.temporaryFolder = machine.addTool(u"file"_s, "") + u"/tmp"_s;
        COMPARE_ANSWER(machine.answer(u"1"_s, CodeLanguage::python), Status::failure,
                       u"Couldn\u2019t prepare a scratch folder: "_s + qt_error_string(ENOTDIR));
    }

    void aRunEndsWithAllItsProcesses_data()
    {
        QTest::addColumn<bool>("isIsolated");
        QTest::addColumn<QString>("source");
        QTest::addColumn<QString>("output");
        QTest::addColumn<Status>("status");
        const QString stopped = u"[stopped after 20s]"_s, killed = u"Exited with status 9."_s;
        const QString daemon = u"setsid env -i sh -c 'while sleep 1; do :; done' $ORVEL_TEST_MARK & "_s;
        for (const bool isIsolated : {false, true}) {
            const auto row = [&](const char *name, const QString &source, const QString &output,
                                 Status status = Status::timedOut) {
                QTest::addRow("%s%s", name, isIsolated ? ", isolated" : "")
                    << isIsolated << source << output << status;
            };
            row("endless", u"printf before; while :; do :; done"_s, u"before\n"_s + stopped);
            row("deaf to SIGTERM", u"trap '' TERM; while :; do sleep 1000; done"_s, stopped);
            row("closed pipes", u"exec >&- 2>&-; sleep 1000; sleep 1000"_s, stopped);
            row("fork bomb",
                u"bomb() { [ $1 -eq 0 ] || { bomb $(($1 - 1)) & bomb $(($1 - 1)) & }; trap '' TERM; "
                "while :; do sleep 1000; done; }; bomb 9"_s,
                stopped);
            row("sessions of their own",
                u"setsid sh -c 'setsid sleep 1000 & exec sleep 1000' & setsid sleep 1000"_s, stopped);
            row("a grandchild holds the pipe", u"sleep 1000 & echo done"_s, u"done\n"_s, Status::success);
            row("grandchildren without parents", u"(setsid sleep 1000 &) ; (sleep 1000 &) ; echo done"_s,
                u"done\n"_s, Status::success);
            row("a grandchild has the last word", u"(sleep 0.1; echo late) & echo done"_s, u"done\nlate\n"_s,
                Status::success);
            row("the supervisor is stopped", daemon + u"kill -STOP $PPID; sleep 1000"_s, stopped);
            // The first process of a namespace can't be killed from within.
            row("the supervisor is killed", daemon + u"sleep 0.2; kill -9 $PPID; sleep 1000"_s,
                isIsolated ? stopped : killed, isIsolated ? Status::timedOut : Status::failure);
            row("a locked folder", u"mkdir -p a/b; echo > a/b/c; chmod 0 a/b/c a/b a ."_s,
                u"Finished with no output."_s, Status::success);
            row("a deep folder", u"p=$(printf 'd/%.0s' $(seq 1500)); mkdir -p $p; cd $p; chmod 0 ."_s,
                u"Finished with no output."_s, Status::success);
        }
    }
    void aRunEndsWithAllItsProcesses()
    {
        QFETCH(bool, isIsolated);
        QFETCH(QString, source);
        QFETCH(QString, output);
        QFETCH(Status, status);
        if (isIsolated && !ProcessSupervisor::canIsolate())
            QSKIP("this system allows no namespaces");
        RunnerMachine machine;
        machine.options.isIsolated = isIsolated;
        // A second and a half for what the table gives 20 seconds, 75 ms for the grace of one.
        machine.options.timeScale = 0.075;
        if (QByteArray(QTest::currentDataTag()).contains("last word"))
            machine.options.timeScale = 3;
        COMPARE_ANSWER(machine.answer(source, CodeLanguage::shell), status, output);
        QTRY_COMPARE(machine.processes(), 0);
        QCOMPARE(machine.scratchFolders(), QStringList());
    }

    void anIsolatedRunSeesNothingElse()
    {
        if (!ProcessSupervisor::canIsolate())
            QSKIP("this system allows no namespaces");
        const RunnerMachine machine;
        const CodeRunResult result = machine.answer(
            u"ls -d /proc/[0-9]* | grep -c .; id -u; kill -9 %1"_s.arg(::getpid()), CodeLanguage::shell);
        const QStringList lines = result.output.split(u'\n');
        QVERIFY2(lines[0].toInt() <= 4, qPrintable(result.output));
        QCOMPARE(lines.value(1), QString::number(::geteuid()));
    }

    void aFloodIsCut()
    {
        RunnerMachine machine;
        machine.options.outputLimit = 1024 * 1024;
        const QString line = u"0123456789abcde\n"_s;
        const CodeRunResult result =
            machine.answer(u"yes 0123456789abcde | head -c 1000000000; echo end >&2"_s, CodeLanguage::shell);
        QCOMPARE(result.status, Status::success);
        QVERIFY(result.output.startsWith(line + line));
        QCOMPARE(result.output.size(), 1024 * 1024 + u"[cut after 1 MiB]\nend\n"_s.size());
        QVERIFY(result.output.endsWith(u"\n[cut after 1 MiB]\nend\n"_s));
    }

    void manyRunsAtOnce()
    {
        const RunnerMachine machine;
        CodeRunner runner(machine.options);
        QStringList outputs;
        for (int i = 0; i < 50; ++i)
            runner.run(u"sleep 0.3; echo %1"_s.arg(i), CodeLanguage::shell, this,
                       [&](const CodeRunResult &result) { outputs.append(result.output); });
        QTRY_COMPARE_WITH_TIMEOUT(outputs.size(), 50, 120'000);
        outputs.removeDuplicates();
        QCOMPARE(outputs.size(), 50);
        QCOMPARE(machine.scratchFolders(), QStringList());
    }

    void leavingEndsARun()
    {
        RunnerMachine machine;
        // Far too long to be waited for.
        machine.options.timeScale = 100;
        auto runner = std::make_unique<CodeRunner>(machine.options);
        bool hasAnswer = false;
        runner->run(u"trap '' TERM; sleep 1000; sleep 1000"_s, CodeLanguage::shell, this,
                    [&](const CodeRunResult &) { hasAnswer = true; });
        QVERIFY(machine.waitForMoreProcessesThan(1));
        runner.reset();
        QCOMPARE(machine.processes(), 0);
        QCOMPARE(machine.scratchFolders(), QStringList());

        // Nor does a run hold up the program that has stopped its supervisor.
        machine.options.isIsolated = false;
        runner = std::make_unique<CodeRunner>(machine.options);
        runner->run(u"kill -STOP $PPID; sleep 1000; sleep 1000"_s, CodeLanguage::shell, this,
                    [&](const CodeRunResult &) { hasAnswer = true; });
        QVERIFY(machine.waitForMoreProcessesThan(1));
        QElapsedTimer timer;
        timer.start();
        runner.reset();
        QVERIFY2(timer.elapsed() < 2500, qPrintable(QString::number(timer.elapsed())));
        QCOMPARE(machine.processes(), 0);
        QCOMPARE(machine.scratchFolders(), QStringList());

        runner = std::make_unique<CodeRunner>(machine.options);
        auto context = std::make_unique<QObject>();
        runner->run(u"echo a"_s, CodeLanguage::shell, context.get(),
                    [&](const CodeRunResult &) { hasAnswer = true; });
        context.reset();
        RunnerMachine::answer(*runner, u"sleep 0.1"_s, CodeLanguage::shell);
        QVERIFY(!hasAnswer);
    }

    void theProgramIsKilledDuringARun()
    {
        const RunnerMachine machine;
        QProcess program;
        program.setProcessEnvironment(machine.options.environment);
        program.start(QCoreApplication::applicationFilePath(),
                      {u"--run-in"_s, machine.options.temporaryFolder});
        // The runner looks for its tools first, in processes of their own.
        QTRY_COMPARE_WITH_TIMEOUT(machine.scratchFolders().size(), 1, 30'000);
        QVERIFY(machine.waitForMoreProcessesThan(2));
        program.kill();
        QVERIFY(program.waitForFinished());
        QTRY_COMPARE_WITH_TIMEOUT(machine.processes(), 0, 30'000);
        QTRY_COMPARE_WITH_TIMEOUT(machine.scratchFolders(), QStringList(), 30'000);
    }
};

/// A program that is killed by the test while it runs a snippet.
static int runUntilKilled(const QString &temporaryFolder)
{
    CodeRunnerOptions options = CodeRunnerOptions::ofThisMachine();
    options.temporaryFolder = temporaryFolder;
    CodeRunner runner(options);
    runner.run(u"trap '' TERM HUP; setsid sleep 1000 & sleep 1000; sleep 1000"_s, CodeLanguage::shell,
               &runner, [](const CodeRunResult &) {});
    return QCoreApplication::exec();
}

int main(int argc, char *argv[])
{
    // To one who may do everything, the modes of a folder mean nothing.
    if (::geteuid() == 0 && (::setgid(65534) != 0 || ::setuid(65534) != 0))
        return 1;
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.value(1) == u"--run-in"_s)
        return runUntilKilled(arguments.value(2));
    CodeRunnerTest test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_coderunner.moc"
