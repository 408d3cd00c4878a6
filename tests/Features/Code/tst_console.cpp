#include "Features/Code/CodeRun.h"
#include "Features/Code/ConsoleExcerpt.h"
#include "RunnerMachine.h"

using namespace Qt::StringLiterals;

class ConsoleTest : public QObject
{
    Q_OBJECT

private slots:
    void shortOutputsAreShownWhole()
    {
        QCOMPARE(ConsoleExcerpt::of({}, 100), QString());
        QCOMPARE(ConsoleExcerpt::of(u"x"_s.repeated(100), 100), u"x"_s.repeated(100));
    }

    void longOutputsAreShownByTheirEnds()
    {
        QString output;
        for (int i = 0; i < 1000; ++i)
            output += u"line %1\n"_s.arg(i);
        const QString shown = ConsoleExcerpt::of(output, 200);
        QVERIFY(shown.startsWith(u"line 0\nline 1\n"));
        QVERIFY(shown.endsWith(u"\nline 999\n"));
        QVERIFY(shown.size() < 320);
        const QStringList lines = shown.split(u'\n');
        qsizetype kept = 0;
        for (const QString &line : lines)
            kept += line.startsWith(u"line ") ? line.size() + 1 : 0;
        QVERIFY2(shown.contains(u" %L1 characters are left out"_s.arg(output.size() - kept)),
                 qUtf8Printable(shown));
    }

    void oneLongLineIsCutBetweenCharacters()
    {
        for (const int offset : {0, 1}) {
            const QString shown = ConsoleExcerpt::of(u"a"_s.repeated(offset) + u"🌊"_s.repeated(500), 100);
            QVERIFY(shown.isValidUtf16());
            QVERIFY(shown.startsWith(u"a"_s.repeated(offset) + u"🌊"_s));
        }
    }

    void aRunTellsHowItWent()
    {
        RunnerMachine machine;
        CodeRun run(machine.options);
        QSignalSpy results(&run, &CodeRun::resultChanged);
        run.run(u"[1]"_s, u"json"_s);
        QVERIFY(run.isRunning());
        QVERIFY(!run.hasResult());
        // A second one waits for nobody: it does not start.
        run.run(u"["_s, u"json"_s);
        QTRY_VERIFY(!run.isRunning());
        QCOMPARE(results.count(), 1);
        QCOMPARE(run.statusWord(), u"Succeeded"_s);
        QCOMPARE(run.tool(), u"JSON"_s);
        QVERIFY(run.output().contains(u'1'));

        run.run(u"exit 3"_s, u"shell"_s);
        QVERIFY(!run.hasResult());
        QTRY_VERIFY(!run.isRunning());
        QCOMPARE(run.statusWord(), u"Failed"_s);
        QCOMPARE(run.consoleText(), u"Exited with status 3."_s);
        QVERIFY(QRegularExpression(u"^\\d+\\.\\d\\ds$"_s).match(run.durationText()).hasMatch());

        run.run(u"# text"_s, u"markdown"_s);
        QTRY_VERIFY(!run.isRunning());
        QCOMPARE(run.statusWord(), u"Unsupported"_s);
        QCOMPARE(run.consoleText(), u"Markdown has no runtime."_s);
        QCOMPARE(run.durationText(), QString());
        QCOMPARE(run.tool(), QString());
        run.clear();
        QVERIFY(!run.hasResult());
        QCOMPARE(run.consoleText(), QString());
    }

    void aRunIsSeenAsItGoesAndCanBeStopped_data()
    {
        QTest::addColumn<QString>("source");
        QTest::newRow("willing") << u"echo first; echo error >&2; sleep 1000"_s;
        QTest::newRow("deaf") << u"trap '' TERM; echo first; echo error >&2; while :; do sleep 1000; done"_s;
        QTest::newRow("in the background") << u"echo first; echo error >&2; setsid sleep 1000"_s;
    }
    void aRunIsSeenAsItGoesAndCanBeStopped()
    {
        QFETCH(QString, source);
        RunnerMachine machine;
        machine.options.timeScale = 0.2;
        CodeRun run(machine.options);
        run.stop();
        run.run(source, u"shell"_s);
        QCOMPARE(run.consoleText(), u"Running…"_s);
        QTRY_COMPARE(run.output(), u"first\nerror\n"_s);
        QCOMPARE(run.consoleText(), run.output());
        QVERIFY(run.isRunning());
        QTRY_VERIFY(QRegularExpression(u"^\\d+\\.\\ds$"_s).match(run.durationText()).hasMatch());
        run.stop();
        run.stop();
        QTRY_VERIFY(!run.isRunning());
        QCOMPARE(run.statusWord(), u"Stopped"_s);
        QCOMPARE(run.output(), u"first\nerror\n[stopped]"_s);
        QTRY_COMPARE(machine.processes(), 0);
    }

    void aFloodIsShownInPortions()
    {
        RunnerMachine machine;
        CodeRun run(machine.options);
        QSignalSpy outputs(&run, &CodeRun::outputChanged);
        QElapsedTimer timer;
        timer.start();
        run.run(u"echo start; yes 0123456789abcde"_s, u"shell"_s);
        QTest::qWait(600);
        QVERIFY(run.output().startsWith(u"start\n0123456789abcde\n"_s));
        QVERIFY(run.output().contains(u" characters are left out here"_s));
        QVERIFY(run.output().size() < 70'000);
        QVERIFY2(outputs.count() <= timer.elapsed() / 33 + 3, qPrintable(QString::number(outputs.count())));
        run.stop();
        QTRY_VERIFY(!run.isRunning());
        QVERIFY(run.output().endsWith(u"\n[stopped]"_s));
    }

    void aRunEndsWithItsOwner()
    {
        RunnerMachine machine;
        auto run = std::make_unique<CodeRun>(machine.options);
        run->run(u"sleep 100"_s, u"shell"_s);
        QVERIFY(machine.waitForMoreProcessesThan(0));
        run.reset();
        QCOMPARE(machine.processes(), 0);
    }
};

QTEST_MAIN(ConsoleTest)
#include "tst_console.moc"
