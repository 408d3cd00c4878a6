#include "Features/Pages/PageHeaderViewModel.h"
#include "Features/Pages/PageMenuViewModel.h"
#include "Harness/TestWorkspace.h"
#include "Store/PageOperations.h"

#include <QSignalSpy>
#include <QTest>
#include <QTimeZone>
#include <QUuid>

class PageHeaderViewModelTest : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void pagesAndNotesHaveTheirWords();
    void theDateFollowsTheClock();
    void wordsAreCountedAfterTheChange();
    void titlesStayOnOneLine();
    void editsTouchTheDate();
    void deletingGoesBackFirst_data();
    void deletingGoesBackFirst();
    void listensToItsPageAlone();
    void offersFolders();

private:
    const Page &page() const { return *m_workspace.store().pages().first(m_header->pageID()); }
    QString editedText()
    {
        m_header->flush();
        return m_header->editedText();
    }
    void show(const QString &id) { m_header->setPageID(QUuid(id)); }

    mutable TestWorkspace m_workspace;
    OrvelSession m_session{&m_workspace.store(), &m_workspace.ui()};
    std::unique_ptr<PageHeaderViewModel> m_header;
};

void PageHeaderViewModelTest::init()
{
    m_workspace.reset();
    m_header = std::make_unique<PageHeaderViewModel>(nullptr, std::chrono::milliseconds(0));
    m_header->setSession(&m_session);
}

void PageHeaderViewModelTest::pagesAndNotesHaveTheirWords()
{
    show(m_workspace.addPage(QStringLiteral("Plan"), true));
    QCOMPARE(m_header->title(), QStringLiteral("Plan"));
    QCOMPARE(m_header->icon(), QStringLiteral("📄"));
    QVERIFY(m_header->isFavorite());
    const auto words = [this] {
        m_header->flush();
        return QStringList{m_header->kindText(), m_header->backText(), m_header->convertText()};
    };
    const QStringList ofPage{"Page", "Home", "Convert to note"};
    const QStringList ofNote{"Note", "All notes", "Convert to page"};
    QCOMPARE(words(), ofPage);
    QVERIFY(!m_header->isNote());
    m_header->goBack();
    QCOMPARE(m_workspace.ui().selection(), Destination());

    m_header->convert();
    QCOMPARE(words(), ofNote);
    QVERIFY(m_header->isNote());
    QCOMPARE(page().kind, PageKind::note);
    m_header->goBack();
    QCOMPARE(m_workspace.ui().selection().text(), QStringLiteral("notes"));
    m_header->convert();
    QCOMPARE(words(), ofPage);
}

void PageHeaderViewModelTest::theDateFollowsTheClock()
{
    show(m_workspace.addPage(QStringLiteral("Plan")));
    QCOMPARE(editedText(), QStringLiteral("Edited Today"));
    m_workspace.advanceHours(15);
    QCOMPARE(editedText(), QStringLiteral("Edited Yesterday"));
    m_workspace.clock().setTimeZone(QTimeZone(QByteArrayLiteral("America/New_York")));
    QCOMPARE(editedText(), QStringLiteral("Edited Today"));
    m_workspace.advanceHours(24 * 10);
    QCOMPARE(editedText(), QStringLiteral("Edited Mar 13, 2026"));
    m_header->setTitle(QStringLiteral("Plans"));
    QCOMPARE(editedText(), QStringLiteral("Edited Today"));
}

void PageHeaderViewModelTest::wordsAreCountedAfterTheChange()
{
    const QString id =
        m_workspace.addNote(QStringLiteral("Plan of the day"), QStringLiteral("one two\nthree"));
    show(id);
    QCOMPARE(m_header->wordsText(), QStringLiteral("3 words"));
    QCOMPARE(m_header->readingTimeText(), QStringLiteral("1 min read"));

    QSignalSpy counts(m_header.get(), &PageHeaderViewModel::countsChanged);
    for (int words = 199; words <= 201; ++words)
        m_workspace.store().change<Page>(QUuid(id), [words](Page &page) {
            page.content.first().text = QStringLiteral("word ").repeated(words - 1);
        });
    QCOMPARE(m_header->wordsText(), QStringLiteral("3 words"));
    QTRY_COMPARE(m_header->wordsText(), QStringLiteral("201 words"));
    QCOMPARE(m_header->selectedWordsText(), QString());
    m_header->setSelectedText(QStringLiteral("wide\tsea \U0001F30A"));
    QTRY_COMPARE(m_header->selectedWordsText(), QStringLiteral("3 words selected"));
    QCOMPARE(m_header->selectedCountsText(), QStringLiteral("3 words, 10 characters"));
    m_header->setSelectedText({});
    QTRY_COMPARE(m_header->selectedWordsText(), QString());
    QCOMPARE(m_header->readingTimeText(), QStringLiteral("2 min read"));
    QCOMPARE(counts.count(), 1);
}

void PageHeaderViewModelTest::titlesStayOnOneLine()
{
    show(m_workspace.addPage(QStringLiteral("Plan")));
    QCOMPARE(m_header->setTitle(QStringLiteral("one\ntwo\u2029three\r")), QStringLiteral("one two three "));
    QCOMPARE(page().title, QStringLiteral("one two three "));
    QCOMPARE(m_header->setTitle({}), QString());
    QCOMPARE(page().title, QString());

    QSignalSpy cut(m_header.get(), &PageHeaderViewModel::titleCut);
    QCOMPARE(m_header->setTitle(QString(1000, u'a')).size(), 1000);
    QVERIFY(cut.isEmpty());
    QCOMPARE(m_header->setTitle(QString(999, u'a') + QString::fromUtf8("😀")).size(), 999);
    QCOMPARE(cut.takeFirst()[0].toString(),
             QStringLiteral("The title was too long and has been cut to 999 characters."));
    m_workspace.store().change<Page>(page().id, [](Page &page) { page.title = QString(5000, u'a'); });
    QCOMPARE(m_header->setTitle(QString(4999, u'b')).size(), 4999);
    QVERIFY(cut.isEmpty());
}

void PageHeaderViewModelTest::editsTouchTheDate()
{
    show(m_workspace.addPage(QStringLiteral("Plan")));
    const auto touches = [this](const auto &edit) {
        m_workspace.advanceHours(1);
        edit();
        return page().updatedDate == m_workspace.clock().now();
    };
    QVERIFY(touches([this] { m_header->setTitle(QStringLiteral("Other")); }));
    QCOMPARE(m_header->icons().size(), 16);
    QVERIFY(touches([this] { m_header->setIcon(m_header->icons().at(10)); }));
    m_header->flush();
    QCOMPARE(m_header->icon(), QStringLiteral("🗺️"));
    QVERIFY(touches([this] { m_header->convert(); }));
    QVERIFY(touches([this] { m_header->toggleFavorite(); }));
    m_header->flush();
    QVERIFY(m_header->isFavorite());
}

void PageHeaderViewModelTest::deletingGoesBackFirst_data()
{
    QTest::addColumn<bool>("isNote");
    QTest::addColumn<QString>("place");
    QTest::newRow("page") << false << "dashboard";
    QTest::newRow("note") << true << "notes";
}

void PageHeaderViewModelTest::deletingGoesBackFirst()
{
    QFETCH(bool, isNote);
    QFETCH(QString, place);
    const QString id =
        isNote ? m_workspace.addNote(QStringLiteral("Plan")) : m_workspace.addPage(QStringLiteral("Plan"));
    show(id);
    m_workspace.ui().selectPage(QUuid(id));
    bool wasThere = false;
    const QObject scope;
    connect(&m_workspace.ui(), &UIState::selectionChanged, &scope,
            [&] { wasThere = m_workspace.store().pages().first(QUuid(id)); });
    m_header->deletePage();
    QVERIFY(wasThere);
    QVERIFY(m_workspace.store().pages().isEmpty());
    QCOMPARE(m_workspace.ui().selection().text(), place);
    QVERIFY(!m_workspace.saved().contains(QStringLiteral("Plan")));
}

void PageHeaderViewModelTest::listensToItsPageAlone()
{
    show(m_workspace.addPage(QStringLiteral("Plan")));
    const QUuid other(m_workspace.addPage(QStringLiteral("Other")));
    QSignalSpy titles(m_header.get(), &PageHeaderViewModel::titleChanged);
    PageOperations::rename(m_workspace.store(), other, QStringLiteral("Another"));
    m_header->flush();
    QCOMPARE(titles.count(), 0);
    PageOperations::rename(m_workspace.store(), m_header->pageID(), QStringLiteral("Plans"));
    m_header->flush();
    QCOMPARE(titles.count(), 1);

    m_workspace.store().erase<Page>(m_header->pageID());
    QCOMPARE(m_header->title(), QStringLiteral("Plans"));
    QCOMPARE(m_header->setTitle(QStringLiteral("Gone")), QStringLiteral("Plans"));
    m_header->convert();
    show(other.toString());
    QCOMPARE(m_header->title(), QStringLiteral("Another"));
}

void PageHeaderViewModelTest::offersFolders()
{
    const QUuid folder(m_workspace.addFolder(QStringLiteral("Travel")));
    const QUuid id(m_workspace.addPage(QStringLiteral("Plan"), false, folder.toString()));
    PageMenuViewModel menu;
    menu.setSession(&m_session);
    menu.setProperty("noFolderTitle", QStringLiteral("None"));
    menu.open(id);
    const QList<FolderChoice> choices{{{}, "None", false}, {folder, "Travel", true}};
    QCOMPARE(menu.folderList(), choices);
    menu.moveTo({});
    QVERIFY(!m_workspace.store().pages().first(id)->folderID);
}

QTEST_MAIN(PageHeaderViewModelTest)
#include "tst_pageheaderviewmodel.moc"
