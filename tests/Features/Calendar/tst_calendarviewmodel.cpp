#include "Features/Calendar/CalendarViewModel.h"
#include "Harness/TestWorkspace.h"
#include "Store/EventOperations.h"
#include "Support/OVDate.h"

#include <QAbstractItemModelTester>
#include <QtTest>

using namespace Qt::StringLiterals;

/// Time stands at Friday 2026-03-13, 09:30 UTC.
class CalendarViewModelTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void addsTheEventOfTheForm_data();
    void addsTheEventOfTheForm();
    void addsOnTheSelectedDay();
    void onlyTheDayModeTakesTheSelectionAlong();
    void modesGoOnAtTheSelectedDay();
    void movesTheSelectedDay();
    void fillsTheCells();
    void laysOutRows();
    void followsTheClock();
    void aJourneyKeepsTheDaysOfEvents();
    void showsWhereAStepWasUndone();

private:
    QVariant role(QAbstractItemModel *model, int row, const QByteArray &name) const
    {
        return model->index(row, 0).data(model->roleNames().key(name));
    }
    QVariant cell(const QByteArray &name) const
    {
        return role(m_model->cells(), m_model->selectedCell(), name);
    }
    QString chips() const
    {
        auto *const model = cell("chips").value<QAbstractItemModel *>();
        QStringList titles;
        for (int row = 0; row < model->rowCount(); ++row)
            titles.append(role(model, row, "title").toString());
        return titles.join(u' ');
    }
    /// Dates in brackets, items by time and title.
    QString rows() const
    {
        QStringList texts;
        for (int row = 0; row < m_model->rows()->rowCount(); ++row)
            texts.append(m_model->isItem(row)
                             ? role(m_model->rows(), row, "timeText").toString() +
                                   role(m_model->rows(), row, "title").toString()
                             : u'[' + role(m_model->rows(), row, "dateText").toString() + u']');
        return texts.join(u' ');
    }
    QUuid add(const QString &title, QDate day, std::optional<qint64> minutes = std::nullopt)
    {
        const QUuid id = EventOperations::create(m_workspace.store(), title,
                                                 OVDate::startOfDay(day, m_workspace.clock().timeZone()),
                                                 minutes, EventKind::event);
        m_model->flush();
        return id;
    }
    const CalendarEvent &lastEvent() { return m_workspace.store().list<CalendarEvent>().all().last(); }

    TestWorkspace m_workspace;
    OrvelSession m_session{&m_workspace.store(), &m_workspace.ui()};
    std::unique_ptr<CalendarViewModel> m_model;
    std::unique_ptr<QAbstractItemModelTester> m_cellsTester;
    std::unique_ptr<QAbstractItemModelTester> m_rowsTester;
};

void CalendarViewModelTest::init()
{
    m_workspace.clock().setTimeZone(QTimeZone::utc());
    m_workspace.reset();
    m_model = std::make_unique<CalendarViewModel>();
    m_model->setSession(&m_session);
    m_cellsTester = std::make_unique<QAbstractItemModelTester>(m_model->cells());
    m_rowsTester = std::make_unique<QAbstractItemModelTester>(m_model->rows());
}

void CalendarViewModelTest::cleanup()
{
    m_cellsTester.reset();
    m_rowsTester.reset();
    m_model.reset();
}

void CalendarViewModelTest::addsTheEventOfTheForm_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QTime>("time");
    QTest::addColumn<QString>("kind");
    QTest::addColumn<QString>("title");
    QTest::addColumn<int>("minutes");
    QTest::newRow("all day") << u" Two  words\n"_s << QTime() << u"event"_s << u"Two  words"_s << -1;
    QTest::newRow("at a time") << u"Call"_s << QTime(23, 5, 59) << u"reminder"_s << u"Call"_s << 1385;
    QTest::newRow("pasted lines") << u"One\nTwo"_s << QTime(0, 0) << u"deadline"_s << u"One Two"_s << 0;
    QTest::newRow("blank") << u" \t\n"_s << QTime() << u"event"_s << QString() << -1;
}

void CalendarViewModelTest::addsTheEventOfTheForm()
{
    QFETCH(QString, typed);
    QFETCH(QTime, time);
    QFETCH(QString, kind);
    QFETCH(QString, title);
    QFETCH(int, minutes);
    EventForm &form = *m_model->form();
    QCOMPARE(form.property("time").toTime(), QTime(9, 30));
    form.setTitle(typed);
    form.setKind(kind);
    form.setProperty("timeEnabled", time.isValid());
    if (time.isValid())
        form.setTime(QDateTime({2020, 1, 1}, time, QTimeZone::utc()));
    m_model->addEvent();
    if (title.isEmpty()) {
        QVERIFY(m_workspace.store().list<CalendarEvent>().all().isEmpty());
        QCOMPARE(form.title(), typed);
        return;
    }
    QCOMPARE(lastEvent().title, title);
    QCOMPARE(lastEvent().timeMinutes.value_or(-1), minutes);
    QCOMPARE(enumRawText(lastEvent().kind), kind);
    QCOMPARE(lastEvent().date, m_workspace.clock().now());
    QCOMPARE(lastEvent().createdDate, m_workspace.clock().now());
    QCOMPARE(form.title(), QString());
    QCOMPARE(form.kind(), EventKind::event);
    QVERIFY(!form.property("timeEnabled").toBool());
    if (time.isValid())
        QCOMPARE(form.property("time").toTime(), time);
}

void CalendarViewModelTest::addsOnTheSelectedDay()
{
    m_model->moveSelection(16);
    QCOMPARE(m_model->addLabel(), u"Add on Mar 29"_s);
    m_model->step(5);
    m_model->form()->setTitle(u"far from what is shown"_s);
    m_model->addEvent();
    QCOMPARE(OVDate::day(lastEvent().date, QTimeZone::utc()), QDate(2026, 3, 29));
}

void CalendarViewModelTest::onlyTheDayModeTakesTheSelectionAlong()
{
    for (const auto &[mode, label] : {std::pair{"month", "April 2026"},
                                      {"week", "Week of Mar 15"},
                                      {"agenda", "Agenda · next 30 days"}}) {
        m_model->goToToday();
        m_model->setMode(QString::fromLatin1(mode));
        m_model->step(1);
        QCOMPARE(m_model->periodLabel(), QString::fromUtf8(label));
        QCOMPARE(m_model->addLabel(), u"Add on Mar 13"_s);
    }
    m_model->setMode(u"day"_s);
    m_model->goToToday();
    m_model->step(-1);
    QCOMPARE(m_model->periodLabel(), u"Thursday, March 12, 2026"_s);
    QCOMPARE(m_model->addLabel(), u"Add on Mar 12"_s);
}

void CalendarViewModelTest::modesGoOnAtTheSelectedDay()
{
    m_model->moveSelection(14);
    m_model->setMode(u"week"_s);
    QCOMPARE(m_model->periodLabel(), u"Week of Mar 22"_s);
    m_model->setMode(u"month"_s);
    m_model->step(3);
    m_model->setMode(u"week"_s);
    QCOMPARE(m_model->periodLabel(), u"Week of Jun 21"_s);
    m_model->setMode(u"day"_s);
    m_model->step(1);
    QCOMPARE(m_model->periodLabel(), u"Saturday, March 28, 2026"_s);
}

void CalendarViewModelTest::movesTheSelectedDay()
{
    // March begins on a Sunday: its first cell is its first day.
    QCOMPARE(m_model->selectedCell(), 12);
    m_model->moveSelection(-7);
    m_model->moveSelection(-7);
    QCOMPARE(m_model->periodLabel(), u"February 2026"_s);
    QCOMPARE(m_model->selectedCell(), 26);
    m_model->step(4);
    QCOMPARE(m_model->selectedCell(), -1);
    m_model->moveSelection(1);
    QCOMPARE(m_model->periodLabel(), u"June 2026"_s);
    QCOMPARE(cell("number").toString(), u"27"_s);
    // A cell of the next month is selected without leaving this one.
    m_model->selectCell(34);
    QCOMPARE(m_model->periodLabel(), u"June 2026"_s);
    QCOMPARE(m_model->addLabel(), u"Add on Jul 4"_s);
    m_model->moveSelection(-1);
    QCOMPARE(m_model->periodLabel(), u"July 2026"_s);
}

void CalendarViewModelTest::fillsTheCells()
{
    const QDate day(2026, 3, 13);
    QCOMPARE(cell("isToday").toBool(), true);
    for (const QString &title : {u"a"_s, u"b"_s, u"c"_s})
        add(title, day);
    QCOMPARE(chips(), u"a b c"_s);
    QCOMPARE(cell("moreText").toString(), QString());
    m_workspace.addTask(u"task"_s, u"done"_s, u"medium"_s, 1);
    add(u"d"_s, day, 5);
    m_model->flush();
    QCOMPARE(chips(), u"a b c"_s);
    QCOMPARE(cell("moreText").toString(), u"2 more"_s);
    QCOMPARE(m_model->selectedText(), u"Friday, March 13, 2026, 5 items"_s);
    m_model->setMode(u"week"_s);
    QCOMPARE(m_model->cells()->rowCount(), 7);
    QCOMPARE(cell("number").toString(), u"13 Fri"_s);
    QCOMPARE(chips(), u"a b c d task"_s);
    QCOMPARE(role(cell("chips").value<QAbstractItemModel *>(), 4, "isDone").toBool(), true);
}

void CalendarViewModelTest::laysOutRows()
{
    const QDate day(2026, 3, 13);
    const QUuid event = add(u"meet"_s, day, 600);
    m_workspace.addTask(u"done"_s, u"done"_s, u"medium"_s, 24);
    add(u"too late"_s, day.addDays(30));
    add(u"last"_s, day.addDays(29));
    m_model->setMode(u"agenda"_s);
    QCOMPARE(rows(), u"[Fri, Mar 13] 10:00meet [Sat, Mar 14] done [Sat, Apr 11] last"_s);
    m_model->step(1);
    QCOMPARE(rows(), u"[Sun, Apr 12] too late"_s);
    m_model->openDayOf(1);
    QCOMPARE(m_model->periodLabel(), u"Sunday, April 12, 2026"_s);
    m_model->goToToday();
    QCOMPARE(rows(), u"10:00meet"_s);
    m_model->deleteEvent(event);
    QVERIFY(m_model->isEmpty());
    QCOMPARE(m_session.undo()->message(), u"Event deleted"_s);
}

void CalendarViewModelTest::followsTheClock()
{
    const auto night = [this] {
        m_workspace.advanceHours(24);
        m_model->flush();
    };
    night();
    QCOMPARE(m_model->addLabel(), u"Add on Mar 14"_s);
    QCOMPARE(cell("isToday").toBool(), true);
    // What is being typed is meant for the day that it was begun on.
    m_model->form()->setTitle(u"Call"_s);
    night();
    QCOMPARE(m_model->addLabel(), u"Add on Mar 14"_s);
    QCOMPARE(cell("isToday").toBool(), false);
    m_model->form()->reset();
    night();
    QCOMPARE(m_model->addLabel(), u"Add on Mar 14"_s);
}

void CalendarViewModelTest::aJourneyKeepsTheDaysOfEvents()
{
    m_model->moveSelection(4);
    m_model->form()->setTitle(u"chosen"_s);
    m_model->addEvent();
    m_workspace.addTask(u"task"_s, u"todo"_s, u"medium"_s, 4 * 24 + 13.5);
    m_model->flush();
    QCOMPARE(chips(), u"chosen task"_s);
    for (const auto &[zone, shown] :
         {std::pair{"America/Los_Angeles", "chosen task"}, {"Asia/Tokyo", "chosen"}}) {
        m_workspace.clock().setTimeZone(QTimeZone(zone));
        m_model->flush();
        QCOMPARE(m_model->addLabel(), u"Add on Mar 17"_s);
        QCOMPARE(chips(), QString::fromLatin1(shown));
    }
}

void CalendarViewModelTest::showsWhereAStepWasUndone()
{
    const QUuid event = add(u"June"_s, {2026, 6, 5});
    m_workspace.ui().setSelection(Destination::to(Destination::Kind::calendar));
    m_model->deleteEvent(event);
    QSignalSpy revealed(m_model.get(), &CalendarViewModel::revealed);
    m_session.undo()->undo();
    QTRY_COMPARE(revealed.size(), 1);
    QCOMPARE(m_model->periodLabel(), u"June 2026"_s);
    QCOMPARE(chips(), u"June"_s);
    m_model->setMode(u"day"_s);
    m_model->deleteEvent(event);
    m_model->goToToday();
    m_session.undo()->undo();
    QTRY_COMPARE(revealed.size(), 2);
    QCOMPARE(revealed.last().first().toInt(), 0);
    QCOMPARE(rows(), u"June"_s);
}

QTEST_GUILESS_MAIN(CalendarViewModelTest)
#include "tst_calendarviewmodel.moc"
