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
    qsizetype eventCount() const { return m_workspace.store().list<CalendarEvent>().all().size(); }

    QTemporaryDir m_folder;
    mutable TestWorkspace m_workspace;
    OrvelSession m_session{&m_workspace.store(), &m_workspace.ui()};
    std::unique_ptr<CalendarInterchange> m_interchange;
    std::unique_ptr<QSignalSpy> m_opened;
    std::unique_ptr<QSignalSpy> m_messages;
};

void CalendarInterchangeTest::init()
{
    m_workspace.reset();
    m_interchange = std::make_unique<CalendarInterchange>();
    m_interchange->setSession(&m_session);
    m_opened = std::make_unique<QSignalSpy>(m_interchange.get(), &CalendarInterchange::opened);
    m_messages = std::make_unique<QSignalSpy>(m_interchange.get(), &CalendarInterchange::message);
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
    QTRY_COMPARE(m_messages->size(), 1);
    QCOMPARE(m_messages->last().first().toString(), u"This is not a calendar file."_s);
    m_interchange->open({QUrl(u"https://example.org/a.ics"_s)});
    QCOMPARE(m_messages->size(), 2);
    m_interchange->open({});
    QCOMPARE(m_messages->size(), 3);
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
    QTRY_COMPARE(m_messages->size(), 1);
    QCOMPARE(m_messages->last().first().toString(), u"Saved as “Calendar.ics”."_s);
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
    QCOMPARE(m_messages->size(), 0);
    answer = std::unexpected(FilePortal::NoFile::noPortal);
    m_interchange->chooseFile();
    QCOMPARE(m_messages->size(), 1);
    answer = write(u"one.ics"_s, calendarOf({"a"})).toLocalFile();
    m_interchange->chooseFile();
    QTRY_COMPARE(m_opened->size(), 1);
}

QTEST_GUILESS_MAIN(CalendarInterchangeTest)
#include "tst_calendarinterchange.moc"
