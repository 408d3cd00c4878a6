#include "Harness/TestWorkspace.h"
#include "Session/VisitHistory.h"

#include <QtTest>

using namespace Qt::StringLiterals;

class VisitHistoryTest : public QObject
{
    Q_OBJECT

private:
    TestWorkspace m_workspace;
    UIState &m_ui = m_workspace.ui();
    std::unique_ptr<VisitHistory> m_visits;

    void visit(const QStringList &places)
    {
        for (const QString &place : places)
            m_ui.select(place);
    }
    QString here() const { return m_ui.selection().text(); }

private slots:
    void init()
    {
        m_workspace.reset();
        m_visits = std::make_unique<VisitHistory>(&m_workspace.store(), &m_ui);
    }

    void goesBackAndForward()
    {
        QVERIFY(!m_visits->canGoBack() && !m_visits->canGoForward());
        visit({u"tasks"_s, u"notes"_s, u"calendar"_s});
        m_visits->back();
        m_visits->back();
        QCOMPARE(here(), u"tasks"_s);
        m_visits->forward();
        QCOMPARE(here(), u"notes"_s);
        m_visits->back();
        visit({u"habits"_s});
        QVERIFY(!m_visits->canGoForward());
        m_visits->back();
        m_visits->back();
        QCOMPARE(here(), u"dashboard"_s);
        m_visits->back();
        QCOMPARE(here(), u"dashboard"_s);
    }

    void whatIsGoneIsPassedOverAndComesBack()
    {
        const QString page = m_workspace.addPage(u"Harbour"_s);
        m_ui.selectPage(QUuid(page));
        visit({u"notes"_s});
        m_workspace.deletePage(page);
        m_visits->back();
        QCOMPARE(here(), u"dashboard"_s);
        m_workspace.store().undo();
        m_visits->forward();
        QCOMPARE(m_ui.selection(), Destination::page(QUuid(page)));

        // Nor does it lead from a place to the same one.
        m_workspace.deletePage(page);
        visit({u"dashboard"_s});
        QVERIFY(!m_visits->canGoBack());
    }

    void whatWasOpenInAPlaceIsOpenAgain()
    {
        const QUuid first(m_workspace.addCode(u"a"_s, u"python"_s, u"1"_s));
        const QUuid second(m_workspace.addCode(u"b"_s, u"python"_s, u"2"_s));
        m_ui.selectCodeDocument(first);
        m_ui.setCodeDocumentID(second);
        visit({u"tasks"_s});
        m_ui.setCodeDocumentID(first);
        m_visits->back();
        QCOMPARE(m_ui.codeDocumentID(), second);
    }

    void theViewIsKeptWithTheVisit()
    {
        visit({u"tasks"_s, u"notes"_s});
        m_visits->keepView(u"tasks"_s, 12);
        QVERIFY(!m_visits->takeView().isValid());
        m_visits->back();
        m_visits->keepView(u"notes"_s, 34);
        QCOMPARE(m_visits->takeView(), QVariant(12));
        QVERIFY(!m_visits->takeView().isValid());
        m_visits->forward();
        QCOMPARE(m_visits->takeView(), QVariant(34));
        // A new visit begins afresh.
        visit({u"tasks"_s});
        QVERIFY(!m_visits->takeView().isValid());
    }

    void recentPlacesAreEachGivenOnce()
    {
        visit({u"tasks"_s, u"notes"_s, u"tasks"_s, u"calendar"_s});
        QStringList texts;
        for (const Destination &place : m_visits->recentPlaces(2))
            texts.append(place.text());
        QCOMPARE(texts, (QStringList{u"tasks"_s, u"notes"_s}));
    }
};

QTEST_GUILESS_MAIN(VisitHistoryTest)
#include "tst_visithistory.moc"
