#include "Features/Calendar/CalendarInterchange.h"
#include "Harness/TestWorkspace.h"

#include <QtTest>

using namespace Qt::StringLiterals;

class CalendarInterchangeTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void showsBeforeItAdds();
    void tellsWhatWentWrong();
    void savesAndReadsItsOwn();
    void asksForFiles();
    void tellsOfTheSaveAfterLeaving();

private:
    QUrl write(const QString &name, const QByteArray &bytes) const
    {
        QFile file(m_folder.filePath(name));
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) < 0)
            qFatal("cannot write");
        return QUrl::fromLocalFile(file.fileName());
    }
    static QByteArray calendarOf(const QByteArrayList &uids)
    {
        QByteArray file = "BEGIN:VCALENDAR\n";
        for (const QByteArray &uid : uids)
            file +=
                "BEGIN:VEVENT\nUID:" + uid + "\nSUMMARY:" + uid + "\nDTSTART:20260316T090000\nEND:VEVENT\n";
        return file + "END:VCALENDAR\n";
    }
    const QString &message() { return m_session.undo()->message(); }
    qsizetype eventCount() const { return m_workspace.store().list<CalendarEvent>().all().size(); }

    QTemporaryDir m_folder;
    mutable TestWorkspace m_workspace;
    OrvelSession m_session{&m_workspace.store(), &m_workspace.ui()};
    std::unique_ptr<CalendarInterchange> m_interchange;
    std::unique_ptr<QSignalSpy> m_opened;
};

void CalendarInterchangeTest::init()
{
    m_workspace.reset();
    m_interchange = std::make_unique<CalendarInterchange>();
    m_interchange->setSession(&m_session);
    m_opened = std::make_unique<QSignalSpy>(m_interchange.get(), &CalendarInterchange::opened);
    m_session.undo()->dismissMessage();
}

void CalendarInterchangeTest::showsBeforeItAdds()
{
    m_interchange->open({write(u"one.ics"_s, calendarOf({"a", "b"}))});
    QTRY_COMPARE(m_opened->size(), 1);
    QCOMPARE(m_interchange->fileName(), u"one.ics"_s);
    QCOMPARE(m_interchange->newCount(), 2);
    QCOMPARE(eventCount(), 0);
    m_interchange->addEvents();
    QCOMPARE(eventCount(), 2);
    QCOMPARE(m_session.undo()->message(), u"2 events added"_s);

    // What is known is known by its UID, and added once.
    m_interchange->open({write(u"two.ics"_s, calendarOf({"b", "c", "c"}))});
    QTRY_COMPARE(m_opened->size(), 2);
    QCOMPARE(m_interchange->newCount(), 1);
    QCOMPARE(m_interchange->knownCount(), 1);
    m_interchange->addEvents();
    m_interchange->addEvents();
    QCOMPARE(eventCount(), 3);
    m_session.undo()->undo();
    QCOMPARE(eventCount(), 2);
    m_session.undo()->undo();
    QCOMPARE(eventCount(), 0);
}

void CalendarInterchangeTest::tellsWhatWentWrong()
{
    m_interchange->open({write(u"letter.txt"_s, "Dear all")});
    QTRY_COMPARE(message(), u"This is not a calendar file."_s);
    m_interchange->open({QUrl(u"https://example.org/a.ics"_s)});
    QCOMPARE(message(), u"Drop one calendar file at a time."_s);
    // Only the last of two that were begun shows.
    m_interchange->open({write(u"one.ics"_s, calendarOf({"a"}))});
    m_interchange->open({write(u"two.ics"_s, calendarOf({"b"}))});
    QTRY_COMPARE(m_opened->size(), 1);
    QTest::qWait(50);
    QCOMPARE(m_opened->size(), 1);
    QCOMPARE(m_interchange->fileName(), u"two.ics"_s);
}

void CalendarInterchangeTest::savesAndReadsItsOwn()
{
    const QString path = m_folder.filePath(u"Calendar.ics"_s);
    m_interchange->setDesktop(
        {.askForFile = {}, .askForPlace = [&](const QString &name, const auto &receiver) {
             QCOMPARE(name, u"Calendar.ics"_s);
             receiver(SaveFileDialog::Answer{path});
         }});
    m_workspace.addEvent(u"Meet"_s, 2, 600, u"reminder"_s);
    m_workspace.addTask(u"Pay"_s, u"todo"_s, u"high"_s, 5);
    const QList<CalendarEvent> before = m_workspace.store().list<CalendarEvent>().all();
    m_interchange->save();
    QTRY_COMPARE(message(), u"Saved as “Calendar.ics”."_s);
    m_interchange->open({QUrl::fromLocalFile(path)});
    QTRY_COMPARE(m_opened->size(), 1);
    QCOMPARE(m_interchange->newCount(), 0);
    QCOMPARE(m_interchange->knownCount(), 1);
    QCOMPARE(m_interchange->losses(), QStringList{u"Tasks and journal entries are left out (1)"_s});
    m_workspace.store().erase<CalendarEvent>(before.first().id);
    QTRY_COMPARE(m_interchange->newCount(), 1);
    m_interchange->addEvents();
    QCOMPARE(m_workspace.store().list<CalendarEvent>().all(), before);
}

void CalendarInterchangeTest::asksForFiles()
{
    std::expected<QString, FilePortal::NoFile> answer = std::unexpected(FilePortal::NoFile::cancelled);
    m_interchange->setDesktop(
        {.askForFile = [&](const auto &receiver) { receiver(answer); }, .askForPlace = {}});
    m_interchange->chooseFile();
    QCOMPARE(message(), QString());
    answer = std::unexpected(FilePortal::NoFile::noPortal);
    m_interchange->chooseFile();
    QVERIFY(message().startsWith(u"This desktop has no dialog"_s));
    answer = write(u"one.ics"_s, calendarOf({"a"})).toLocalFile();
    m_interchange->chooseFile();
    QTRY_COMPARE(m_opened->size(), 1);
}

void CalendarInterchangeTest::tellsOfTheSaveAfterLeaving()
{
    const QString path = m_folder.filePath(u"Left.ics"_s);
    m_interchange->setDesktop({.askForFile = {}, .askForPlace = [&](const QString &, const auto &receiver) {
                                   receiver(SaveFileDialog::Answer{path});
                               }});
    // Takes as long as a file may, and nobody waits for it.
    const QByteArray never = "BEGIN:VEVENT\nDTSTART:20260316T090000\nRRULE:FREQ=DAILY;BYMONTH=2;"
                             "BYMONTHDAY=30\nEND:VEVENT\n";
    m_interchange->open(
        {write(u"never.ics"_s, "BEGIN:VCALENDAR\n" + never.repeated(10'000) + "END:VCALENDAR\n")});
    m_interchange->save();
    m_interchange.reset();
    QTRY_COMPARE(message(), u"Saved as “Left.ics”."_s);
    QVERIFY(QFile::exists(path));
    QVERIFY(QThreadPool::globalInstance()->waitForDone());
    QCoreApplication::processEvents();
    QCOMPARE(message(), u"Saved as “Left.ics”."_s);
}

QTEST_GUILESS_MAIN(CalendarInterchangeTest)
#include "tst_calendarinterchange.moc"
