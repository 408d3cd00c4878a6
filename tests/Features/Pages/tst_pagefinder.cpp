#include "Features/Pages/PageFinder.h"
#include "Harness/TestWorkspace.h"

#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

class PageFinderTest : public QObject
{
    Q_OBJECT

private:
    TestWorkspace m_workspace;
    OrvelSession m_session{&m_workspace.store(), &m_workspace.ui()};
    QUuid m_page;
    std::unique_ptr<PageFinder> m_finder;

    void show(const QVariantList &blocks)
    {
        m_page = QUuid(m_workspace.addPageOf(blocks));
        m_workspace.ui().selectPage(m_page);
        m_finder = std::make_unique<PageFinder>();
        m_finder->setSession(&m_session);
        m_finder->setPageID(m_page);
    }
    static QVariantMap block(const QString &text, const QString &type = u"paragraph"_s)
    {
        return {{u"text"_s, text}, {u"type"_s, type}};
    }
    const Page &page() { return *m_workspace.store().pages().first(m_page); }
    QStringList texts()
    {
        QStringList texts;
        for (const Block &block : page().content)
            texts.append(block.text);
        return texts;
    }
    QList<int> marks(int row, int partBegin = 0)
    {
        QList<int> starts;
        for (const TextMark &mark : m_finder->marksIn(page().content[row].id, partBegin).marks)
            starts.append(mark.start);
        return starts;
    }

private slots:
    void init() { m_workspace.reset(); }

    void findsAndMarksWhatEveryBlockHolds()
    {
        show({block(u"Sea “sail” sea"_s), block(u"sea"_s, u"divider"_s), block(u"let SEA = 1"_s, u"code"_s)});
        QSignalSpy shown(m_finder.get(), &PageFinder::shown);
        m_finder->open();
        m_finder->setQuery(u"sea"_s);
        QCOMPARE(m_finder->countText(), u"1 of 3"_s);
        QCOMPARE(marks(0), (QList<int>{0, 11}));
        QCOMPARE(marks(0, 5), QList<int>{6});
        QCOMPARE(marks(2), QList<int>{4});
        m_finder->previous();
        QCOMPARE(m_finder->countText(), u"3 of 3"_s);
        QCOMPARE(shown.last().first().toInt(), 2);
        m_finder->next();
        QCOMPARE(m_finder->current(), 0);
        m_finder->setQuery(u"\"SAIL\""_s);
        QCOMPARE(marks(0), QList<int>{4});
        m_finder->setQuery(u"  "_s);
        QCOMPARE(m_finder->countText(), QString());
        m_finder->setQuery(u"sea"_s);
        m_finder->close();
        QVERIFY(marks(0).isEmpty());
    }

    void beginsWhereTheUserIs()
    {
        show({block(u"oar oar"_s), block(u"oar"_s)});
        m_finder->startAt(page().content[0].id, 3);
        m_finder->open(u"oar"_s);
        QCOMPARE(m_finder->countText(), u"2 of 3"_s);
        m_finder->close();
        // The keys that go on open the bar again, at the next match behind the caret and at the one before
        // it.
        m_finder->startAt(page().content[0].id, 7);
        m_finder->next();
        QVERIFY(m_finder->isOpen());
        QCOMPARE(m_finder->countText(), u"3 of 3"_s);
        m_finder->close();
        m_finder->startAt(page().content[0].id, 4);
        m_finder->previous();
        QCOMPARE(m_finder->countText(), u"1 of 3"_s);
    }

    void replacesOneByOneAndAllAtOnce()
    {
        show({block(u"oar, oars"_s), block(u"Oar"_s)});
        m_finder->openReplace(u"oar"_s);
        m_finder->setProperty("replacement", u"oar oar"_s);
        m_finder->replace();
        QCOMPARE(texts(), (QStringList{u"oar oar, oars"_s, u"Oar"_s}));
        // It goes on behind what it has put there.
        QCOMPARE(m_finder->countText(), u"3 of 4"_s);

        m_finder->setProperty("replacement", u"sail"_s);
        m_finder->replaceAll();
        QCOMPARE(texts(), (QStringList{u"sail sail, sails"_s, u"sail"_s}));
        QCOMPARE(m_finder->countText(), u"No matches"_s);
        QCOMPARE(m_session.undo()->message(), u"4 replaced"_s);
        m_session.undo()->undo();
        QCOMPARE(texts(), (QStringList{u"oar oar, oars"_s, u"Oar"_s}));
        m_session.undo()->undo();
        QCOMPARE(texts().first(), u"oar, oars"_s);
    }

    void neverReplacesWhatHasChangedMeanwhile()
    {
        show({block(u"oar"_s)});
        m_finder->openReplace(u"oar"_s);
        m_workspace.store().change<Page>(m_page, [](Page &page) { page.content[0].text = u"sailor"_s; });
        m_finder->replace();
        QCOMPARE(texts(), QStringList{u"sailor"_s});
    }

    void followsThePage()
    {
        show({block(u"oar"_s)});
        m_finder->open(u"oar"_s);
        m_workspace.store().change<Page>(m_page, [](Page &page) { page.content[0].text = u"an oar, oar"_s; });
        QTRY_COMPARE(m_finder->count(), 2);
        QCOMPARE(marks(0), (QList<int>{3, 8}));
    }

    void showsWhatThePaletteHasFound()
    {
        show({block(u"Nets"_s), block(u"the quay"_s)});
        QSignalSpy shown(m_finder.get(), &PageFinder::shown);
        m_workspace.ui().showText(Destination::page(m_page), u"Quay"_s);
        QCOMPARE(shown.last().at(2).toInt(), 4);
        QVERIFY(shown.last().at(4).toBool());
        QVERIFY(!m_finder->isOpen());
        const qsizetype count = shown.size();
        m_workspace.ui().showText(Destination::to(Destination::Kind::tasks), u"Quay"_s);
        QCOMPARE(shown.size(), count);
    }
};

QTEST_GUILESS_MAIN(PageFinderTest)
#include "tst_pagefinder.moc"
