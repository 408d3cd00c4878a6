#include "Features/Code/CodeViewModel.h"
#include "Harness/TestWorkspace.h"

#include <QAbstractItemModelTester>
#include <QClipboard>
#include <QGuiApplication>
#include <QtTest>

using namespace Qt::StringLiterals;

class CodeViewModelTest : public QObject
{
    Q_OBJECT

private:
    /// The screen over a workspace of its own.
    struct Desk {
        TestWorkspace workspace;
        OrvelSession session{&workspace.store(), &workspace.ui()};
        CodeDesk desk;
        CodeViewModel code;

        Desk()
        {
            workspace.reset();
            code.setProperty("desk", QVariant::fromValue(&desk));
            code.setSession(&session);
        }

        QUuid add(const QString &title, CodeLanguage language = CodeLanguage::python,
                  const QString &source = {})
        {
            const CodeDocument document{
                .id = QUuid::createUuid(), .title = title, .language = language, .source = source};
            workspace.store().add(document);
            return document.id;
        }
        const CodeDocument *document(const QUuid &id) { return workspace.store().codeDocuments().first(id); }
        QString titles()
        {
            QCoreApplication::processEvents();
            QStringList titles;
            const int role = code.rows()->roleNames().key("title");
            for (int row = 0; row < code.rows()->rowCount(); ++row)
                titles.append(code.rows()->index(row, 0).data(role).toString() +
                              (row == code.selectedRow() ? u"*"_s : QString()));
            return titles.join(u' ');
        }
    };

private slots:
    void theFirstDocumentIsOpen()
    {
        Desk desk;
        QCoreApplication::processEvents();
        QVERIFY(desk.code.isEmpty());
        QVERIFY(desk.code.selectedID().isNull());
        desk.code.runSnippet();
        desk.code.setSource(u"x"_s);
        desk.code.selectBy(1);

        desk.add(u"a"_s);
        desk.add(u"b"_s);
        QCOMPARE(desk.titles(), u"a* b"_s);
        QVERIFY(!desk.code.isEmpty());
    }

    void theOneThatIsWantedComesFirst()
    {
        Desk desk;
        desk.add(u"a"_s);
        const QUuid b = desk.add(u"b"_s), c = desk.add(u"c"_s);
        desk.workspace.ui().setCodeDocumentID(b);
        QCOMPARE(desk.titles(), u"a b* c"_s);
        // It is wanted once; later the user goes where they like.
        desk.code.select(c);
        desk.add(u"d"_s);
        QCOMPARE(desk.titles(), u"a b c* d"_s);
        desk.workspace.ui().setCodeDocumentID(QUuid::createUuid());
        QCOMPARE(desk.titles(), u"a b c* d"_s);
        desk.workspace.ui().setCodeDocumentID(c);
        QCOMPARE(desk.titles(), u"a b c* d"_s);
        desk.workspace.ui().setCodeDocumentID(b);
        QCOMPARE(desk.titles(), u"a b* c d"_s);
    }

    void theFirstOneTakesThePlaceOfADeletedOne()
    {
        Desk desk;
        desk.add(u"a"_s);
        desk.add(u"b"_s);
        const QUuid c = desk.add(u"c"_s);
        QCoreApplication::processEvents();
        desk.code.select(c);
        desk.code.deleteDocument(c);
        QCOMPARE(desk.titles(), u"a* b"_s);
        desk.code.deleteDocument(desk.code.selectedID());
        QCOMPARE(desk.titles(), u"b*"_s);
        desk.code.deleteDocument(desk.code.selectedID());
        QCOMPARE(desk.titles(), QString());
        QVERIFY(desk.code.isEmpty());
        QCOMPARE(desk.code.source(), QString());
        QCOMPARE(desk.code.title(), QString());
    }

    void theQueryLooksIntoTitleLanguageAndSource()
    {
        Desk desk;
        const QAbstractItemModelTester tester(desk.code.rows());
        desk.add(u"alpha"_s, CodeLanguage::sql, u"select one"_s);
        const QUuid beta = desk.add(u"beta"_s, CodeLanguage::python, u"print(ALPHA)"_s);
        desk.add(u"gamma"_s, CodeLanguage::typescript);
        const auto found = [&](const QString &query) {
            desk.code.setQuery(query);
            return desk.titles();
        };
        QCOMPARE(found(u" Alpha "_s), u"alpha* beta"_s);
        QCOMPARE(found(u"script"_s), u"gamma"_s);
        QCOMPARE(desk.code.selectedRow(), -1);
        QCOMPARE(found(u"nothing"_s), QString());
        QVERIFY(!desk.code.isEmpty());
        // What is edited stays in sight, and a new document shows whatever was looked for.
        QCOMPARE(found(u"print"_s), u"beta"_s);
        desk.code.select(beta);
        desk.code.setSource(u"pass"_s);
        QCOMPARE(desk.titles(), u"beta*"_s);
        desk.code.newDocument();
        QCOMPARE(desk.code.query(), QString());
        QCOMPARE(desk.titles(), u"alpha beta gamma Untitled*"_s);
        // So does one that is asked for from elsewhere.
        QCOMPARE(found(u"script"_s), u"gamma"_s);
        desk.workspace.ui().setCodeDocumentID(beta);
        QCOMPARE(desk.titles(), u"alpha beta* gamma Untitled"_s);
        QCOMPARE(desk.code.query(), QString());
    }

    void editsReachTheRecord()
    {
        Desk desk;
        const QUuid id = desk.add(u"a"_s);
        const QUuid other = desk.add(u"b"_s, CodeLanguage::css);
        QCoreApplication::processEvents();
        desk.workspace.clock().advance(std::chrono::hours(1));
        QSignalSpy selections(&desk.code, &CodeViewModel::selectionChanged);
        desk.code.setSource(u"one\ntwo\n"_s);
        desk.code.rename(id, u"  first \n"_s);
        desk.code.setLanguage(u"json"_s);
        desk.code.setLanguage(u"klingon"_s);
        QCOMPARE(desk.titles(), u"first* b"_s);
        QCOMPARE(desk.document(id)->source, u"one\ntwo\n"_s);
        QCOMPARE(desk.document(id)->language, CodeLanguage::json);
        QCOMPARE(desk.document(id)->updatedDate, desk.workspace.clock().now());
        QCOMPARE(desk.code.lineCountText(), u"3 lines"_s);
        QCOMPARE(selections.count(), 0);
        desk.code.rename(id, u"   "_s);
        QCOMPARE(desk.document(id)->title, u"first"_s);

        desk.code.select(other);
        QCOMPARE(selections.count(), 1);
        QCOMPARE(desk.code.source(), QString());
        QCOMPARE(desk.code.language().raw, u"css"_s);
        QCOMPARE(desk.code.lineCountText(), u"1 line"_s);
        desk.code.setSource(u"x"_s);
        QCOMPARE(desk.document(id)->source, u"one\ntwo\n"_s);
        desk.code.copySource();
        QCOMPARE(QGuiApplication::clipboard()->text(), u"x"_s);
    }

    void typingIsUndoneWhereItWas()
    {
        Desk desk;
        const QUuid a = desk.add(u"a"_s, CodeLanguage::sql, u"select"_s);
        const QUuid b = desk.add(u"b"_s);
        QCoreApplication::processEvents();
        desk.workspace.ui().setSelection(Destination::to(Destination::Kind::code));
        QSignalSpy carets(&desk.code, &CodeViewModel::caretRestored);
        desk.code.setSource(u"select 1"_s, 8);
        desk.code.setSource(u"select 12"_s, 9);
        desk.code.select(b);
        desk.code.rename(b, u"c"_s);
        desk.session.undo()->undo();
        QCOMPARE(desk.titles(), u"a b*"_s);
        QCOMPARE(carets.count(), 0);
        // One step of typing: back to its document, with the caret where it began.
        desk.session.undo()->undo();
        QCOMPARE(desk.titles(), u"a* b"_s);
        QCOMPARE(desk.document(a)->source, u"select"_s);
        QCOMPARE(desk.code.source(), u"select"_s);
        QCOMPARE(carets.count(), 1);
        QCOMPARE(carets.takeFirst().first().toInt(), 6);
        desk.session.undo()->redo();
        QCoreApplication::processEvents();
        QCOMPARE(desk.code.source(), u"select 12"_s);
        QCOMPARE(carets.takeFirst().first().toInt(), 9);
        desk.code.deleteDocument(a);
        QCOMPARE(desk.titles(), u"b*"_s);
        desk.session.undo()->undo();
        QCOMPARE(desk.titles(), u"a* b"_s);
    }

    void aCopyIsADocumentOfItsOwn()
    {
        Desk desk;
        const QUuid id = desk.add(u"a"_s, CodeLanguage::sql, u"select 1"_s);
        desk.code.duplicate(id);
        QCOMPARE(desk.titles(), u"a a copy*"_s);
        QCOMPARE(desk.code.source(), u"select 1"_s);
        QCOMPARE(desk.code.language().raw, u"sql"_s);
        QCOMPARE(desk.document(desk.code.selectedID())->createdDate, desk.workspace.clock().now());
        desk.code.setSource(u"select 2"_s);
        QCOMPARE(desk.document(id)->source, u"select 1"_s);
    }

    void arrowsWalkThroughTheRows()
    {
        Desk desk;
        for (const QString &title : {u"a"_s, u"b"_s, u"c"_s})
            desk.add(title);
        QCoreApplication::processEvents();
        desk.code.selectBy(1);
        QCOMPARE(desk.titles(), u"a b* c"_s);
        desk.code.selectBy(100);
        QCOMPARE(desk.code.selectedRow(), 2);
        desk.code.selectBy(-100);
        QCOMPARE(desk.code.selectedRow(), 0);
    }

    void aRunBelongsToItsDocument()
    {
        Desk desk;
        const QUuid a = desk.add(u"a"_s, CodeLanguage::json, u"[1]"_s);
        const QUuid b = desk.add(u"b"_s, CodeLanguage::json, u"["_s);
        QCoreApplication::processEvents();
        CodeRun *const run = desk.desk.run(a);
        QSignalSpy results(run, &CodeRun::resultChanged);
        desk.code.runSnippet();
        desk.code.runSnippet();
        QVERIFY(desk.desk.showConsole());
        QVERIFY(run->isRunning());
        desk.code.select(b);
        QVERIFY(!desk.desk.run(b)->isRunning());
        desk.code.runSnippet();
        QTRY_VERIFY(!run->isRunning() && !desk.desk.run(b)->isRunning());
        QCOMPARE(results.count(), 1);
        QCOMPARE(desk.desk.run(a), run);
        QCOMPARE(run->statusWord(), u"Succeeded"_s);
        QCOMPARE(desk.desk.run(b)->statusWord(), u"Failed"_s);
        // A document that is gone takes its run along.
        const QPointer<CodeRun> gone = run;
        desk.code.deleteDocument(a);
        QTRY_VERIFY(!gone);
    }

    void theDeskKeepsWhatFits()
    {
        CodeDesk desk;
        desk.setFontSize(1000);
        QCOMPARE(desk.fontSize(), CodeDesk::largestFont);
        QVERIFY(!desk.canGrow());
        desk.setFontSize(-5);
        QCOMPARE(desk.fontSize(), CodeDesk::smallestFont);
        QVERIFY(!desk.canShrink());
        const QUuid first = QUuid::createUuid();
        const QPointer<CodeRun> run = desk.run(first);
        for (int i = 0; i < 20; ++i)
            desk.run(QUuid::createUuid());
        QTRY_VERIFY(!run);
    }
};

QTEST_MAIN(CodeViewModelTest)
#include "tst_codeviewmodel.moc"
