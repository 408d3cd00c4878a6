#include "Features/Decks/DeckEditorViewModel.h"
#include "Features/Decks/DeckExportViewModel.h"
#include "Features/Decks/DeckPresenterViewModel.h"
#include "Features/Decks/DecksViewModel.h"
#include "Features/Decks/PresenterDisplays.h"
#include "Harness/TestWorkspace.h"
#include "Store/DeckOperations.h"

#include <QAbstractItemModelTester>
#include <QClipboard>
#include <QGuiApplication>
#include <QSignalSpy>
#include <QtTest>

using namespace Qt::StringLiterals;

class DeckViewModelsTest : public QObject
{
    Q_OBJECT

private:
    WorkspaceStore &store() { return m_workspace->store(); }
    const Deck *deck() { return store().list<Deck>().first(m_decks->deckID()); }
    QString titles()
    {
        QStringList texts;
        for (const Slide &slide : deck()->slides)
            texts.append(slide.title);
        return texts.join(u',');
    }
    QString rows()
    {
        QStringList texts;
        const QAbstractItemModel *const model = m_decks->rows();
        for (int row = 0; row < model->rowCount(); ++row)
            texts.append(model->index(row, 0).data(model->roleNames().key("title")).toString());
        return texts.join(u',');
    }
    QUuid addDeck(const QString &title, const QStringList &slides = {})
    {
        m_workspace->clock().advance(std::chrono::minutes(1));
        const QUuid id = DeckOperations::create(store(), SlideTheme::inkTheme());
        store().change<Deck>(id, [&](Deck &deck) {
            deck.title = title;
            deck.slides.clear();
            for (const QString &slide : slides) {
                deck.slides.append(Slide::fresh(QUuid::createUuid()));
                deck.slides.last().title = slide;
            }
        });
        turn();
        return id;
    }
    void open(const QUuid &id)
    {
        m_decks->select(id);
        m_editor->setDeckID(m_decks->deckID());
    }
    static void turn() { QCoreApplication::sendPostedEvents(); }

    std::unique_ptr<TestWorkspace> m_workspace;
    std::unique_ptr<OrvelSession> m_session;
    std::unique_ptr<DecksViewModel> m_decks;
    std::unique_ptr<DeckEditorViewModel> m_editor;

private slots:
    void init()
    {
        m_workspace = std::make_unique<TestWorkspace>();
        m_session = std::make_unique<OrvelSession>(&store(), &m_workspace->ui());
        m_decks = std::make_unique<DecksViewModel>();
        m_editor = std::make_unique<DeckEditorViewModel>();
        m_decks->setSession(m_session.get());
        m_editor->setSession(m_session.get());
        new QAbstractItemModelTester(m_decks->rows(), QAbstractItemModelTester::FailureReportingMode::QtTest,
                                     m_decks.get());
        new QAbstractItemModelTester(m_editor->slides(),
                                     QAbstractItemModelTester::FailureReportingMode::QtTest, m_editor.get());
    }
    void cleanup()
    {
        m_editor.reset();
        m_decks.reset();
        m_session.reset();
        m_workspace.reset();
    }

    void theDeckChangedLastComesFirst()
    {
        const QUuid plan = addDeck(u"Plan"_s);
        addDeck(u"Review"_s);
        QCOMPARE(rows(), u"Review,Plan"_s);
        m_workspace->clock().advance(std::chrono::minutes(1));
        open(plan);
        m_editor->setSummary(u"More"_s);
        turn();
        QCOMPARE(rows(), u"Plan,Review"_s);
        QCOMPARE(m_decks->selectedRow(), 0);
        // What changes nothing is no change.
        m_workspace->clock().advance(std::chrono::minutes(1));
        open(store().list<Deck>().all().last().id);
        m_editor->setTheme(m_editor->themeID());
        m_editor->moveSlide(1);
        turn();
        QCOMPARE(rows(), u"Plan,Review"_s);
    }

    void theSearchFindsWhatSlidesSay()
    {
        addDeck(u"Plan"_s, {u"Harbour"_s});
        addDeck(u"Review"_s);
        m_decks->setQuery(u"  HARB "_s);
        turn();
        QCOMPARE(rows(), u"Plan"_s);
        // A deck opened from elsewhere is not hidden by the query.
        m_workspace->ui().setSelection(Destination::deck(store().list<Deck>().all().last().id));
        turn();
        QCOMPARE(m_decks->query(), QString());
        QCOMPARE(rows(), u"Review,Plan"_s);
        QCOMPARE(m_decks->selectedRow(), 0);
    }

    void aRemovedDeckIsReplacedByTheFirst()
    {
        const QUuid plan = addDeck(u"Plan"_s);
        const QUuid review = addDeck(u"Review"_s);
        const QUuid talk = addDeck(u"Talk"_s);
        open(plan);
        m_decks->remove(plan);
        turn();
        QCOMPARE(m_decks->deckID(), talk);
        QCOMPARE(m_session->undo()->message(), u"Deck deleted"_s);
        m_session->undo()->undo();
        turn();
        QCOMPARE(m_decks->deckID(), plan);
        for (const QUuid &id : {plan, review, talk})
            m_decks->remove(id);
        turn();
        QVERIFY(m_decks->isEmpty());
        QVERIFY(m_decks->deckID().isNull());
    }

    void newDecksStartWithFourSlidesOfTheTheme()
    {
        m_decks->newDeck(u"noir"_s);
        m_editor->setDeckID(m_decks->deckID());
        QCOMPARE(m_editor->themeID(), u"noir"_s);
        QCOMPARE(m_editor->title(), u"Untitled"_s);
        QCOMPARE(m_editor->slideCount(), 4);
        QCOMPARE(m_editor->selectedIndex(), 0);
        m_decks->duplicate(m_decks->deckID());
        QCOMPARE(deck()->title, u"Untitled copy"_s);
    }

    void slidesAreAddedAndNumbered()
    {
        open(addDeck(u"Plan"_s));
        QVERIFY(!m_editor->hasSlide());
        m_editor->addSlide(u"title"_s);
        m_editor->addSlide(u"section"_s);
        QCOMPARE(deck()->slides[1].kicker, u"02"_s);
        QCOMPARE(m_editor->selectedIndex(), 1);
        m_editor->selectAt(0);
        m_editor->setText(u"title"_s, u"One"_s);
        turn();
        m_editor->duplicateSlide();
        QCOMPARE(titles(), u"One,One,"_s);
        QCOMPARE(m_editor->selectedIndex(), 1);
        QVERIFY(deck()->slides[0].id != deck()->slides[1].id);
    }

    void slidesMoveWithinTheDeck()
    {
        open(addDeck(u"Plan"_s, {u"a"_s, u"b"_s, u"c"_s}));
        m_editor->moveSlide(-1);
        QCOMPARE(titles(), u"a,b,c"_s);
        m_editor->moveSlide(1);
        QCOMPARE(titles(), u"b,a,c"_s);
        QCOMPARE(m_editor->selectedIndex(), 1);
        m_editor->moveSlide(1);
        m_editor->moveSlide(1);
        QCOMPARE(titles(), u"b,c,a"_s);
        m_editor->moveSlide(-2);
        QCOMPARE(titles(), u"a,b,c"_s);
    }

    void theSlideBehindARemovedOneIsSelected()
    {
        open(addDeck(u"Plan"_s, {u"a"_s, u"b"_s, u"c"_s}));
        m_editor->selectAt(1);
        m_editor->deleteSlide();
        QCOMPARE(m_editor->shown().slide.title, u"c"_s);
        m_editor->deleteSlide();
        QCOMPARE(m_editor->shown().slide.title, u"a"_s);
        m_editor->deleteSlide();
        QVERIFY(!m_editor->hasSlide());
        QCOMPARE(m_session->undo()->message(), u"Slide deleted"_s);
        m_session->undo()->undo();
        turn();
        QCOMPARE(m_editor->shown().slide.title, u"a"_s);
    }

    void aSlideThatUndoBringsBackIsSelected()
    {
        open(addDeck(u"Plan"_s, {u"a"_s, u"b"_s, u"c"_s}));
        m_editor->selectAt(1);
        m_editor->deleteSlide();
        m_editor->selectAt(0);
        m_session->undo()->undo();
        turn();
        QCOMPARE(m_editor->selectedIndex(), 1);
        QCOMPARE(m_editor->shown().slide.title, u"b"_s);
    }

    void aChangeOfKindKeepsAllTexts()
    {
        open(addDeck(u"Plan"_s, {u"a"_s}));
        m_editor->setText(u"kicker"_s, u"Spring"_s);
        m_editor->setKind(u"quote"_s);
        m_editor->setText(u"body"_s, u"One\ntwo"_s);
        turn();
        QCOMPARE(m_editor->fields()->rowCount(), 2);
        m_editor->setKind(u"title"_s);
        turn();
        QCOMPARE(deck()->slides[0].kicker, u"Spring"_s);
        QCOMPARE(deck()->slides[0].body, u"One\ntwo"_s);
    }

    void singleLinesStaySingle()
    {
        open(addDeck(u"Plan"_s, {u"a"_s}));
        QCOMPARE(m_editor->setText(u"title"_s, u"a\nb"_s), u"a b"_s);
        QCOMPARE(m_editor->setText(u"body"_s, u"a\r\nb"_s), u"a\nb"_s);
        QCOMPARE(m_editor->setText(u"notes"_s, u"a\nb"_s), u"a\nb"_s);
        QCOMPARE(m_editor->text(u"title"_s), u"a b"_s);
        m_editor->rename(m_decks->deckID(), u"  "_s);
        QCOMPARE(deck()->title, u"Plan"_s);
    }

    void typingRedrawsOneSlide()
    {
        QStringList slides;
        for (int i = 0; i < 300; ++i)
            slides.append(QString::number(i));
        open(addDeck(u"Plan"_s, slides));
        m_editor->selectAt(7);
        QSignalSpy changed(m_editor->slides(), &QAbstractItemModel::dataChanged);
        m_editor->setText(u"title"_s, u"7x"_s, 2);
        turn();
        QCOMPARE(changed.size(), 1);
        QCOMPARE(changed[0][0].toModelIndex().row(), 7);
        QCOMPARE(changed[0][1].toModelIndex().row(), 7);
    }

    void undoneTypingIsRevealed()
    {
        const QUuid plan = addDeck(u"Plan"_s, {u"a"_s, u"b"_s});
        const QUuid review = addDeck(u"Review"_s, {u"c"_s});
        open(plan);
        m_editor->selectAt(1);
        m_editor->setText(u"title"_s, u"bx"_s, 2);
        turn();
        open(review);
        QSignalSpy revealed(m_decks.get(), &DecksViewModel::slideRevealed);
        m_session->undo()->undo();
        turn();
        QCOMPARE(m_decks->deckID(), plan);
        QCOMPARE(revealed.size(), 1);
        QCOMPARE(revealed[0][1].toString(), u"title"_s);
        QCOMPARE(revealed[0][2].toInt(), 1);
    }

    void slidesFitBetweenTheBars()
    {
        using Presenter = DeckPresenterViewModel;
        QCOMPARE(Presenter::fittedSize({1600, 1300}, -1), QSizeF(1600, 900));
        QCOMPARE(Presenter::fittedSize({1600, 930}, -1), QSizeF(1440, 810));
        QCOMPARE(Presenter::fittedSize({1600, 930}, 150), QSizeF(570 * 16.0 / 9, 570));
        QCOMPARE(Presenter::fittedSize({1600, 200}, 150).height(), 160.0);
    }

    void theAudienceHasTheDisplayOfTheUsersChoice()
    {
        using Displays = PresenterDisplays;
        const QStringList two{u"desk"_s, u"stage"_s}, three = two + QStringList{u"side"_s};
        QCOMPARE(Displays::audienceOf({u"desk"_s}, 0, {}), -1);
        QCOMPARE(Displays::audienceOf(two, 0, {}), 1);
        QCOMPARE(Displays::audienceOf(two, 1, {}), 0);
        QCOMPARE(Displays::audienceOf(three, 0, u"side"_s), 2);
        QCOMPARE(Displays::audienceOf(three, 0, QString()), -1);
        // Unplugged, or where the window has gone meanwhile.
        QCOMPARE(Displays::audienceOf(two, 0, u"side"_s), 1);
        QCOMPARE(Displays::audienceOf(two, 1, u"stage"_s), 0);
        QCOMPARE(Displays::audienceOf({u"desk"_s}, 0, u"stage"_s), -1);
    }

    void theTimerCountsMinutesBeyondAnHour()
    {
        const Timestamp start = m_workspace->clock().now();
        const auto after = [&](std::chrono::milliseconds time) {
            return DeckPresenterViewModel::timerText(start, start + time);
        };
        QCOMPARE(after(std::chrono::milliseconds(61'999)), u"01:01"_s);
        QCOMPARE(after(std::chrono::minutes(75)), u"75:00"_s);
        QCOMPARE(after(std::chrono::seconds(-5)), u"00:00"_s);
    }

    void aTalkKeepsTheDeckItBeganWith()
    {
        const QUuid plan = addDeck(u"Plan"_s, {u"a"_s, u"b"_s});
        DeckPresenterViewModel talk;
        talk.setSession(m_session.get());
        QVERIFY(!talk.isPresenting());
        m_workspace->ui().setPresentingDeckID(QUuid::createUuid());
        QVERIFY(!talk.isPresenting());
        m_workspace->ui().setPresentingDeckID(plan);
        QCOMPARE(talk.count(), 2);
        talk.advance(-1);
        QCOMPARE(talk.index(), 0);
        talk.advance(1);
        talk.advance(1);
        QCOMPARE(talk.index(), 1);
        QCOMPARE(talk.progress(), 1.0);
        talk.setBlanked(true);
        m_workspace->clock().advance(std::chrono::minutes(2));
        talk.restartTimer();
        QCOMPARE(talk.elapsedText(), u"00:00"_s);
        QVERIFY(talk.isBlanked());
        talk.close();
        QVERIFY(!talk.isPresenting());
    }

    void exportsWithoutHoldingTheWindow()
    {
        open(addDeck(u"A/B"_s, {u"a"_s, u"b"_s}));
        DeckExportViewModel exporter;
        exporter.setProperty("deckID", m_decks->deckID());
        exporter.setSession(m_session.get());
        const QTemporaryDir folder;
        QString asked;
        bool isCancelled = true;
        exporter.setAskForPlace([&](const QString &name, const SaveFileDialog::Receiver &receiver) {
            asked = name;
            if (isCancelled)
                return receiver(std::nullopt);
            receiver(SaveFileDialog::Answer{folder.filePath(name), true});
        });
        QSignalSpy done(&exporter, &DeckExportViewModel::done);
        QSignalSpy failed(&exporter, &DeckExportViewModel::failed);

        exporter.exportAs(u"pdf"_s);
        QVERIFY(exporter.isMaking());
        QTRY_VERIFY_WITH_TIMEOUT(!exporter.isExporting(), 30000);
        QCOMPARE(asked, u"A-B.pdf"_s);
        QVERIFY(QDir(folder.path()).isEmpty());
        QVERIFY(done.isEmpty() && failed.isEmpty());

        isCancelled = false;
        exporter.exportAs(u"markdown"_s);
        QTRY_COMPARE(done.size(), 1);
        QCOMPARE(done.takeFirst()[0].toString(), u"Exported MD"_s);
        QVERIFY(QFile::exists(folder.filePath(u"A-B.md"_s)));

        asked.clear();
        exporter.exportAs(u"pdf"_s);
        exporter.cancel();
        QVERIFY(!exporter.isExporting());
        QThreadPool::globalInstance()->waitForDone();
        turn();
        QCOMPARE(asked, QString());
        QVERIFY(!QFile::exists(folder.filePath(u"A-B.pdf"_s)));

        exporter.copyOutline();
        QVERIFY(QGuiApplication::clipboard()->text().startsWith(u"# A/B"_s));
        QCOMPARE(done.takeFirst()[0].toString(), u"Outline copied"_s);

        open(addDeck(u"None"_s));
        exporter.setProperty("deckID", m_decks->deckID());
        exporter.exportAs(u"pptx"_s);
        QTRY_COMPARE(failed.size(), 1);
        QCOMPARE(failed[0][0].toString(), u"This deck has no slides yet."_s);
        QVERIFY(!exporter.isExporting());
    }
};

QTEST_MAIN(DeckViewModelsTest)
#include "tst_deckviewmodels.moc"
