#include "Features/Notes/NotesViewModel.h"
#include "Harness/TestWorkspace.h"
#include "Store/PageOperations.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QtTest>

namespace
{
void finishTurn()
{
    QCoreApplication::sendPostedEvents();
}

Page noteOf(const QStringList &texts)
{
    Page note;
    for (const QString &text : texts)
        note.content.append(Block{.id = QUuid::createUuid(), .text = text});
    return note;
}
} // namespace

class NotesViewModelTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void cardsShowTheirBeginning_data();
    void cardsShowTheirBeginning();
    void titlesAreNeverBlank();
    void lastEditedStandsFirst();
    void findsByTitleAndText_data();
    void findsByTitleAndText();
    void searchFollowsEdits();
    void emptyStatesHaveTheirWords();
    void convertedPagesComeAndGo();
    void datesFollowTheClock();
    void makesAndDeletesNotes();
    void standsStillWhileHidden();

private:
    QString shown() const
    {
        QStringList titles;
        for (const NoteRow &row : m_notes->rowList())
            titles.append(row.titleText());
        return titles.join(u' ');
    }
    QString add(const QString &title, const QString &text = QString())
    {
        m_workspace.clock().advance(std::chrono::seconds(1));
        const QString id = m_workspace.addNote(title, text);
        finishTurn();
        return id;
    }
    void search(const QString &query)
    {
        m_notes->setQuery(query);
        finishTurn();
    }

    TestWorkspace m_workspace;
    OrvelSession m_session{&m_workspace.store(), &m_workspace.ui()};
    std::unique_ptr<NotesViewModel> m_notes;
    std::unique_ptr<QAbstractItemModelTester> m_tester;
};

void NotesViewModelTest::init()
{
    m_workspace.reset();
    m_notes = std::make_unique<NotesViewModel>();
    m_notes->setSession(&m_session);
    m_tester = std::make_unique<QAbstractItemModelTester>(m_notes->rows());
}

void NotesViewModelTest::cleanup()
{
    m_tester.reset();
    m_notes.reset();
}

void NotesViewModelTest::cardsShowTheirBeginning_data()
{
    QTest::addColumn<QStringList>("texts");
    QTest::addColumn<QString>("preview");
    QTest::addColumn<bool>("isBlank");
    const QString family = QStringLiteral("👩‍👩‍👧‍👦");
    QTest::newRow("none") << QStringList{} << "Empty note" << true;
    QTest::newRow("blanks") << QStringList{" ", "\t\n", ""} << "Empty note" << true;
    QTest::newRow("joined") << QStringList{"", " one", "two\nthree ", ""} << "one two three" << false;
    QTest::newRow("long") << QStringList{QStringLiteral("x").repeated(139), "yz"}
                          << QStringLiteral("x").repeated(139) + u'…' << false;
    QTest::newRow("just as long") << QStringList{QStringLiteral("x").repeated(140)}
                                  << QStringLiteral("x").repeated(140) << false;
    QTest::newRow("emoji") << QStringList{family.repeated(200)} << family.repeated(140) + u'…' << false;
    QTest::newRow("accents") << QStringList{QStringLiteral("e\u0301").repeated(150)}
                             << QStringLiteral("e\u0301").repeated(140) + u'…' << false;
    QTest::newRow("text after a long gap") << QStringList(5000) + QStringList{"end"} << "end" << false;
}

void NotesViewModelTest::cardsShowTheirBeginning()
{
    QFETCH(QStringList, texts);
    const NoteRow row = NoteRow::of(noteOf(texts), {}, {});
    QTEST(row.preview(), "preview");
    QTEST(row.isBlank(), "isBlank");
}

void NotesViewModelTest::titlesAreNeverBlank()
{
    Page note;
    note.title = QStringLiteral(" \t");
    QCOMPARE(NoteRow::of(note, {}, {}).titleText(), QStringLiteral("Untitled"));
    note.title = QStringLiteral(" a\nb");
    QCOMPARE(NoteRow::of(note, {}, {}).titleText(), QStringLiteral("a b"));
}

void NotesViewModelTest::lastEditedStandsFirst()
{
    const QString first = add(QStringLiteral("a"));
    add(QStringLiteral("b"));
    m_workspace.addPage(QStringLiteral("page"));
    add(QStringLiteral("c"));
    QCOMPARE(shown(), QStringLiteral("c b a"));
    m_workspace.advanceHours(1);
    PageOperations::rename(m_workspace.store(), QUuid(first), QStringLiteral("A"));
    finishTurn();
    QCOMPARE(shown(), QStringLiteral("A c b"));
}

void NotesViewModelTest::findsByTitleAndText_data()
{
    QTest::addColumn<QString>("query");
    QTest::addColumn<QString>("found");
    QTest::newRow("nothing") << "" << "Travel Recipes";
    QTest::newRow("blanks") << " \t " << "Travel Recipes";
    QTest::newRow("title") << "TRAV" << "Travel";
    QTest::newRow("text alone") << "basil" << "Recipes";
    QTest::newRow("trimmed") << "  basil " << "Recipes";
    QTest::newRow("over two blocks") << "PASTA with" << "Recipes";
    QTest::newRow("both") << "r" << "Travel Recipes";
    QTest::newRow("other script") << "ÜBER" << "Travel";
    QTest::newRow("none") << "xyz" << "";
    QTest::newRow("of a page") << "secret" << "";
}

void NotesViewModelTest::findsByTitleAndText()
{
    QFETCH(QString, query);
    add(QStringLiteral("Recipes"), QStringLiteral("Pasta\nwith Basil"));
    add(QStringLiteral("Travel"), QStringLiteral("über den Brenner"));
    m_workspace.addPage(QStringLiteral("secret"));
    search(query);
    QTEST(shown(), "found");
}

void NotesViewModelTest::searchFollowsEdits()
{
    const QUuid id(add(QStringLiteral("Recipes"), QStringLiteral("pasta")));
    add(QStringLiteral("Travel"), QStringLiteral("train"));
    search(QStringLiteral("rice"));
    QCOMPARE(shown(), QString());
    m_workspace.store().change<Page>(id,
                                     [](Page &note) { note.content.first().text = QStringLiteral("rice"); });
    finishTurn();
    QCOMPARE(shown(), QStringLiteral("Recipes"));
    m_workspace.store().erase<Page>(id);
    finishTurn();
    QCOMPARE(shown(), QString());
    search(QStringLiteral("train"));
    QCOMPARE(shown(), QStringLiteral("Travel"));
}

void NotesViewModelTest::emptyStatesHaveTheirWords()
{
    QVERIFY(m_notes->isEmpty());
    QCOMPARE(m_notes->emptyTitle(), QStringLiteral("No notes yet"));
    QCOMPARE(m_notes->emptyAction(), QStringLiteral("New note"));
    search(QStringLiteral("  "));
    QCOMPARE(m_notes->emptyTitle(), QStringLiteral("No notes yet"));
    search(QStringLiteral("x"));
    QCOMPARE(m_notes->emptyTitle(), QStringLiteral("No matches"));
    QCOMPARE(m_notes->emptyAction(), QString());
    add(QStringLiteral("x"));
    QVERIFY(!m_notes->isEmpty());
}

void NotesViewModelTest::convertedPagesComeAndGo()
{
    const QUuid id(m_workspace.addPage(QStringLiteral("Plan")));
    PageOperations::convert(m_workspace.store(), id);
    finishTurn();
    QCOMPARE(shown(), QStringLiteral("Plan"));
    PageOperations::convert(m_workspace.store(), id);
    finishTurn();
    QCOMPARE(shown(), QString());
}

void NotesViewModelTest::datesFollowTheClock()
{
    add(QStringLiteral("Plan"));
    const auto date = [this] {
        finishTurn();
        return m_notes->rowList().first().dateText();
    };
    QCOMPARE(date(), QStringLiteral("Today"));
    m_workspace.advanceHours(24);
    QCOMPARE(date(), QStringLiteral("Yesterday"));
    m_workspace.clock().setTimeZone(QTimeZone(QByteArrayLiteral("Pacific/Kiritimati")));
    QCOMPARE(date(), QStringLiteral("Yesterday"));
    m_workspace.advanceHours(24 * 8);
    QCOMPARE(date(), QStringLiteral("Mar 13, 2026"));
}

void NotesViewModelTest::makesAndDeletesNotes()
{
    m_notes->newNote();
    finishTurn();
    const Page note = m_workspace.store().pages().all().first();
    QCOMPARE(m_workspace.ui().selection(), Destination::page(note.id));
    QCOMPARE(note.kind, PageKind::note);
    QCOMPARE(note.title, QStringLiteral("Untitled"));
    QCOMPARE(note.content.size(), 1);
    QCOMPARE(shown(), QStringLiteral("Untitled"));

    const QUuid other(add(QStringLiteral("Other")));
    m_notes->deleteNote(other);
    QCOMPARE(m_workspace.ui().selection(), Destination::page(note.id));
    m_notes->openNote(note.id);
    bool wasThere = false;
    connect(&m_workspace.ui(), &UIState::selectionChanged, m_notes.get(),
            [&] { wasThere = !m_workspace.store().pages().isEmpty(); });
    m_notes->deleteNote(note.id);
    QVERIFY(wasThere);
    QCOMPARE(m_workspace.ui().selection().text(), QStringLiteral("notes"));
    finishTurn();
    QVERIFY(m_notes->isEmpty());
}

void NotesViewModelTest::standsStillWhileHidden()
{
    m_notes->setActive(false);
    QSignalSpy found(m_notes.get(), &NotesViewModel::shownChanged);
    add(QStringLiteral("a"));
    QCOMPARE(found.count(), 0);
    m_notes->setActive(true);
    QCOMPARE(shown(), QStringLiteral("a"));
    for (int i = 0; i < 3; ++i)
        m_workspace.addNote(QStringLiteral("b"));
    finishTurn();
    QCOMPARE(found.count(), 2);
}

QTEST_MAIN(NotesViewModelTest)
#include "tst_notesviewmodel.moc"
