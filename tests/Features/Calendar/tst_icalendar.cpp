#include "Features/Calendar/ICalendarReader.h"
#include "Features/Calendar/ICalendarWriter.h"

#include <QTemporaryDir>
#include <QtTest>

#include <ctime>

using namespace Qt::StringLiterals;

namespace
{
const QTimeZone berlin("Europe/Berlin");
/// Friday 2026-03-13, 09:30 UTC.
const Timestamp now = toTimestamp(QDateTime({2026, 3, 13}, {9, 30}, QTimeZone::utc()));

QByteArray calendarOf(const QByteArray &lines)
{
    return "BEGIN:VCALENDAR\nVERSION:2.0\nPRODID:-//Elsewhere//EN\n" + lines + "END:VCALENDAR\n";
}

QByteArray eventOf(const QByteArray &lines)
{
    return calendarOf("BEGIN:VEVENT\nUID:a@example.org\nSUMMARY:Meet\n" + lines + "END:VEVENT\n");
}

/// "2026-03-13 09:30 Title" for each event in the order of the file, or the error.
QString told(const std::expected<ICalendarContents, QString> &contents)
{
    if (!contents)
        return contents.error();
    QStringList events;
    for (const CalendarEvent &event : contents->events) {
        const QString day = toDateTime(event.date, berlin).toString(u"yyyy-MM-dd"_s);
        const auto minutes = event.timeMinutes;
        const QString time =
            minutes ? QTime(int(*minutes / 60), int(*minutes % 60)).toString(u" hh:mm"_s) : QString();
        events.append(day + time + u' ' + event.title);
    }
    return events.join(u", "_s);
}

std::expected<ICalendarContents, QString> read(const QByteArray &bytes)
{
    return ICalendarReader::read(bytes, {.zone = berlin, .now = now});
}
} // namespace

class ICalendarTest : public QObject
{
    Q_OBJECT

private slots:
    void whatIsWrittenIsReadAsItWas();
    void writesWhatTheFormatAsksFor();
    void reads_data();
    void reads();
    void tellsWhatIsLost_data();
    void tellsWhatIsLost();
    void knowsEventsAgain();
    void endsSoon_data();
    void endsSoon();
    void refusesHugeAndOddFiles();
    void bearsDamage();

private:
    static CalendarEvent event(const QString &title, const QDateTime &moment,
                               std::optional<qint64> minutes = std::nullopt)
    {
        return {.id = QUuid::createUuid(),
                .title = title,
                .date = toTimestamp(moment),
                .timeMinutes = minutes,
                .createdDate = now};
    }
    static QList<CalendarEvent> sample()
    {
        QList<CalendarEvent> events{
            event(u"Commas, semicolons; back\\slashes: \"all\""_s, {{2026, 3, 13}, {9, 30}, berlin}),
            event(u"日本語の予定と👩‍👩‍👧‍👦 "_s.repeated(12).trimmed(),
                  {{2026, 3, 29}, {0, 0}, berlin}, 0),
            event(u"Late"_s, {{2026, 10, 25}, {23, 59, 59}, berlin}, 23 * 60 + 59),
            event(u"x"_s.repeated(200), {{1999, 12, 31}, {12, 0}, berlin}, 600)};
        events[0].notes = u"First line\nSecond, with a \\n that is no line end\n\n"_s;
        events[1].kind = EventKind::deadline;
        events[2].kind = EventKind::reminder;
        return events;
    }
};

void ICalendarTest::whatIsWrittenIsReadAsItWas()
{
    const QList<CalendarEvent> events = sample();
    const auto contents = read(ICalendarWriter::write(events, {}, berlin, now));
    QVERIFY(contents);
    QCOMPARE(contents->events.size(), events.size());
    for (qsizetype i = 0; i < events.size(); ++i)
        QVERIFY2(contents->events[i] == events[i], qPrintable(events[i].title));
    QCOMPARE(contents->losses, QStringList());
}

void ICalendarTest::writesWhatTheFormatAsksFor()
{
    TaskItem task{.id = QUuid::createUuid(), .title = u"Pay"_s, .priority = TaskPriority::high};
    task.dueDate = now;
    task.createdDate = task.updatedDate = now;
    const TaskItem undated{.id = QUuid::createUuid(), .title = u"Someday"_s};
    const QByteArray file = ICalendarWriter::write(sample(), {task, undated}, berlin, now);
    QVERIFY(file.startsWith("BEGIN:VCALENDAR\r\n"));
    QVERIFY(file.endsWith("END:VCALENDAR\r\n"));
    QCOMPARE(file.count('\n'), file.count("\r\n"));
    for (const QByteArray &line : file.split('\n')) {
        QVERIFY2(line.size() <= 76, line.constData());
        QStringDecoder decoder(QStringDecoder::Utf8);
        const QString text = decoder(line);
        QVERIFY2(!decoder.hasError(), line.constData());
    }
    for (const char *line :
         {"DTSTART;VALUE=DATE:20260313\r\n", "DTEND;VALUE=DATE:20260314\r\n", "DTSTART:20260329T000000\r\n",
          "DTSTART:20261025T235900\r\n", "BEGIN:VTODO\r\n", "DUE:20260313T093000Z\r\n",
          "STATUS:NEEDS-ACTION\r\n", "PRIORITY:1\r\n", "SUMMARY:Pay\r\n"})
        QVERIFY2(file.contains(line), line);
    QVERIFY(!file.contains("Someday"));
}

void ICalendarTest::reads_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<QString>("events");
    const auto row = [](const char *name, const QByteArray &lines, const QString &events) {
        QTest::newRow(name) << eventOf(lines) << events;
    };
    row("a time that is the same everywhere", "DTSTART:20260316T090000\n", u"2026-03-16 09:00 Meet"_s);
    row("UTC", "DTSTART:20260316T233000Z\n", u"2026-03-17 00:30 Meet"_s);
    row("a time zone", "DTSTART;TZID=America/New_York:20260316T090000\n", u"2026-03-16 14:00 Meet"_s);
    row("a time zone by its Windows name", "DTSTART;TZID=Tokyo Standard Time:20260316T090000\n",
        u"2026-03-16 01:00 Meet"_s);
    row("a time zone with words before it",
        "DTSTART;TZID=/example.org/20050126_1/Asia/Tokyo:20260316T090000\n", u"2026-03-16 01:00 Meet"_s);
    row("a whole day", "DTSTART;VALUE=DATE:20260316\nDTEND;VALUE=DATE:20260317\n", u"2026-03-16 Meet"_s);
    row("over the end of February", "DTSTART;VALUE=DATE:20260228\nDTEND;VALUE=DATE:20260302\n",
        u"2026-02-28 Meet, 2026-03-01 Meet"_s);
    row("days by their number", "DTSTART;VALUE=DATE:20260316\nDURATION:P2D\n",
        u"2026-03-16 Meet, 2026-03-17 Meet"_s);
    row("weekly over the change of the clocks, by its end in UTC",
        "DTSTART;TZID=Europe/Berlin:20260323T090000\nRRULE:FREQ=WEEKLY;UNTIL=20260406T070000Z\n",
        u"2026-03-23 09:00 Meet, 2026-03-30 09:00 Meet, 2026-04-06 09:00 Meet"_s);
    row("an exception",
        "DTSTART;TZID=Europe/Berlin:20260316T090000\nRRULE:FREQ=DAILY;COUNT=3\n"
        "EXDATE;TZID=Europe/Berlin:20260317T090000\n",
        u"2026-03-16 09:00 Meet, 2026-03-18 09:00 Meet"_s);
    row("an exception in UTC",
        "DTSTART;TZID=Europe/Berlin:20260316T090000\nRRULE:FREQ=DAILY;COUNT=2\nEXDATE:20260316T080000Z\n",
        u"2026-03-17 09:00 Meet"_s);
    row("the 31st", "DTSTART;VALUE=DATE:20260331\nRRULE:FREQ=MONTHLY;BYMONTHDAY=31;COUNT=2\n",
        u"2026-03-31 Meet, 2026-05-31 Meet"_s);
    row("a birthday", "DTSTART;VALUE=DATE:19800601\nRRULE:FREQ=YEARLY\n",
        u"2024-06-01 Meet, 2025-06-01 Meet, 2026-06-01 Meet, 2027-06-01 Meet"_s);
    row("further dates", "DTSTART:20260316T090000\nRDATE:20260318T090000,20260320T100000\n",
        u"2026-03-16 09:00 Meet, 2026-03-18 09:00 Meet, 2026-03-20 10:00 Meet"_s);
    QTest::newRow("one that was moved")
        << calendarOf("BEGIN:VEVENT\nUID:a\nSUMMARY:Meet\nDTSTART:20260316T090000\nRRULE:FREQ=DAILY;COUNT=2\n"
                      "END:VEVENT\nBEGIN:VEVENT\nUID:a\nSUMMARY:Moved\nDTSTART:20260319T100000\n"
                      "RECURRENCE-ID:20260317T090000\nEND:VEVENT\n")
        << u"2026-03-16 09:00 Meet, 2026-03-19 10:00 Moved"_s;
    row("until a day, which counts", "DTSTART:20260316T090000\nRRULE:FREQ=DAILY;UNTIL=20260317\n",
        u"2026-03-16 09:00 Meet, 2026-03-17 09:00 Meet"_s);
    row("whole days until midnight where it was written, in UTC",
        "DTSTART;VALUE=DATE:20260330\nRRULE:FREQ=DAILY;UNTIL=20260331T220000Z\n",
        u"2026-03-30 Meet, 2026-03-31 Meet, 2026-04-01 Meet"_s);
    row("exceptions in a list, of another zone and of a day",
        "DTSTART;TZID=Europe/Berlin:20260316T090000\nRRULE:FREQ=DAILY;COUNT=5\n"
        "EXDATE;TZID=America/New_York:20260316T040000,20260318T040000\nEXDATE;VALUE=DATE:20260319\n",
        u"2026-03-17 09:00 Meet, 2026-03-20 09:00 Meet"_s);
    row("a rule of exceptions",
        "DTSTART:20260316T090000\nRRULE:FREQ=DAILY;COUNT=4\nEXRULE:FREQ=DAILY;INTERVAL=2\n",
        u"2026-03-17 09:00 Meet, 2026-03-19 09:00 Meet"_s);
    row("periods as further dates",
        "DTSTART;TZID=Europe/Berlin:20260316T090000\nDURATION:PT1H\n"
        "RDATE;VALUE=PERIOD:20260318T110000Z/PT2H,20260320T110000Z/PT2H\n",
        u"2026-03-16 09:00 Meet, 2026-03-18 12:00 Meet, 2026-03-20 12:00 Meet"_s);
    // "Home" is five hours behind in winter and four in summer, which begins on 2026-03-08.
    const QByteArray home = "BEGIN:VTIMEZONE\nTZID:Home\nBEGIN:STANDARD\nDTSTART:16011101T020000\n"
                            "RRULE:FREQ=YEARLY;BYDAY=1SU;BYMONTH=11\nTZOFFSETFROM:-0400\n"
                            "TZOFFSETTO:-0500\nEND:STANDARD\nBEGIN:DAYLIGHT\nDTSTART:16010311T020000\n"
                            "RRULE:FREQ=YEARLY;BYDAY=2SU;BYMONTH=3\nTZOFFSETFROM:-0500\n"
                            "TZOFFSETTO:-0400\nEND:DAYLIGHT\nEND:VTIMEZONE\n";
    QTest::newRow("a time zone that only the file knows")
        << calendarOf(home + "BEGIN:VEVENT\nUID:a\nSUMMARY:Meet\nDTSTART;TZID=Home:20260306T090000\n"
                             "RRULE:FREQ=DAILY;UNTIL=20260309T130000Z\nEXDATE:20260308T130000Z\n"
                             "RDATE:20260311T130000Z\nEND:VEVENT\n")
        << u"2026-03-06 15:00 Meet, 2026-03-07 15:00 Meet, 2026-03-09 14:00 Meet, 2026-03-11 14:00 Meet"_s;
    for (const QByteArray &moved : {QByteArray(":20260317T080000Z"), QByteArray(";VALUE=DATE:20260317"),
                                    QByteArray(";TZID=Asia/Tokyo:20260317T170000")})
        QTest::newRow(("one that was moved, told as" + moved).constData())
            << calendarOf("BEGIN:VEVENT\nUID:a\nSUMMARY:Moved\nDTSTART:20260319T100000\nRECURRENCE-ID" +
                          moved +
                          "\nEND:VEVENT\nBEGIN:VEVENT\nUID:a\nSUMMARY:Meet\n"
                          "DTSTART;TZID=Europe/Berlin:20260316T090000\nRRULE:FREQ=DAILY;COUNT=2\n"
                          "END:VEVENT\n")
            << u"2026-03-19 10:00 Moved, 2026-03-16 09:00 Meet"_s;
    QTest::newRow("folded within a letter")
        << calendarOf("BEGIN:VEVENT\r\nUID:a\r\nSUMMARY:Caf\xC3\r\n \xA9\r\n"
                      "DTSTART;VALUE=DATE:20260316\r\nEND:VEVENT\r\n")
        << u"2026-03-16 Café"_s;
    QTest::newRow("folded and escaped")
        << calendarOf("BEGIN:VEVENT\r\nUID:a\r\nSUMMARY:A lo\r\n ng\\, folded\\; one\r\n"
                      "DTSTART;VALUE=DATE:20260316\r\nEND:VEVENT\r\n")
        << u"2026-03-16 A long, folded; one"_s;
    QTest::newRow("Latin-1") << calendarOf("BEGIN:VEVENT\nUID:a\nSUMMARY:Caf\xE9\nDTSTART:20260316T090000\n"
                                           "END:VEVENT\n")
                             << u"2026-03-16 09:00 Café"_s;
    QTest::newRow("nothing in it") << calendarOf({}) << QString();
    QTest::newRow("no calendar") << QByteArray("Dear all,\nsee you tomorrow.\n")
                                 << u"This is not a calendar file."_s;
    QTest::newRow("without its end")
        << calendarOf("BEGIN:VEVENT\nUID:a\nDTSTART:20260316T090000\n").chopped(14)
        << u"This calendar file is incomplete: its end is missing."_s;
}

void ICalendarTest::reads()
{
    QFETCH(QByteArray, file);
    QTEST(told(read(file)), "events");
}

void ICalendarTest::tellsWhatIsLost_data()
{
    QTest::addColumn<QByteArray>("lines");
    QTest::addColumn<QString>("events");
    QTest::addColumn<QString>("loss");
    const auto row = [](const char *name, const QByteArray &lines, const QString &events,
                        const QString &loss) { QTest::newRow(name) << lines << events << loss; };
    const QByteArray start = "DTSTART:20260316T090000\n";
    const QString meet = u"2026-03-16 09:00 Meet"_s;
    row("end", start + "DTEND:20260316T100000\n", meet, u"End times are not kept (1)"_s);
    row("alarm", start + "BEGIN:VALARM\nACTION:DISPLAY\nTRIGGER:-PT5M\nEND:VALARM\n", meet,
        u"Alarms are not kept (1)"_s);
    row("guests", start + "ATTENDEE:mailto:a@example.org\nATTENDEE:mailto:b@example.org\n", meet,
        u"Guests are not kept (2)"_s);
    row("picture", start + "ATTACH;ENCODING=BASE64;VALUE=BINARY:" + QByteArray(100'000, 'A') + "\n", meet,
        u"Attachments and very long texts are not kept (1)"_s);
    row("zone", "DTSTART;TZID=Home:20260316T090000\n", meet,
        u"Times in an unknown time zone stay as they are written (1)"_s);
    row("cancelled", start + "STATUS:CANCELLED\n", {}, u"Cancelled events are left out (1)"_s);
    row("other categories", start + "CATEGORIES:Work,Deadline\n", meet,
        u"Categories, organizers and other details are not kept (1)"_s);
    row("ended long ago", "DTSTART:20200316T090000\nRRULE:FREQ=DAILY;COUNT=3\n", {},
        u"Repeating events begin two years before today (1)"_s);
    row("from here on", start + "RECURRENCE-ID;RANGE=THISANDFUTURE:20260316T080000\n", meet,
        u"Changes to the rest of a series are made to one day only (1)"_s);
    row("no date", {}, {}, u"Events without a readable date are left out (1)"_s);
    row("impossible date", "DTSTART:20261399T990000\n", {},
        u"Events without a readable date are left out (1)"_s);
    row("often", start + "RRULE:FREQ=SECONDLY\n", meet,
        u"Events that repeat within a day, or by a damaged rule, stand once (1)"_s);
    row("damaged rule", start + "RRULE:FREQ=NEVER;COUNT=x\n", meet, QString());
    row("without end", "DTSTART;VALUE=DATE:20280301\nRRULE:FREQ=WEEKLY\n",
        u"2028-03-01 Meet, 2028-03-08 Meet"_s, u"Repeating events go on for two years from today (1)"_s);
}

void ICalendarTest::tellsWhatIsLost()
{
    QFETCH(QByteArray, lines);
    const auto contents = read(eventOf(lines));
    QTEST(told(contents), "events");
    QTEST(contents->losses.join(u' '), "loss");
}

void ICalendarTest::knowsEventsAgain()
{
    const QByteArray file = eventOf("DTSTART;VALUE=DATE:20260316\nRRULE:FREQ=DAILY;COUNT=3\n");
    const auto first = read(file);
    const auto again = ICalendarReader::read(file, {.zone = QTimeZone("Asia/Tokyo"), .now = now});
    QCOMPARE(first->series, 1);
    QCOMPARE(first->occurrences, 3);
    QSet<QUuid> ids;
    for (qsizetype i = 0; i < 3; ++i) {
        QCOMPARE(first->events[i].id, again->events[i].id);
        ids.insert(first->events[i].id);
    }
    QCOMPARE(ids.size(), 3);
    QVERIFY(!ids.contains(read(eventOf("DTSTART;VALUE=DATE:20260316\n"))->events.first().id));
}

void ICalendarTest::endsSoon_data()
{
    QTest::addColumn<QByteArray>("file");
    const QByteArray start = "DTSTART:20260316T090000\n";
    QTest::newRow("a million recurrences") << eventOf(start + "RRULE:FREQ=DAILY;COUNT=1000000\n");
    QTest::newRow("from the year 1") << eventOf("DTSTART:00010101T000000\nRRULE:FREQ=DAILY;COUNT=2000000\n");
    QTest::newRow("never") << eventOf(start + "RRULE:FREQ=DAILY;BYMONTH=2;BYMONTHDAY=30\n");
    QTest::newRow("never a year") << eventOf(start + "RRULE:FREQ=YEARLY;BYMONTH=2;BYMONTHDAY=31\n");
    QTest::newRow("a time zone that changes each second")
        << calendarOf("BEGIN:VTIMEZONE\nTZID:Home\nBEGIN:STANDARD\nDTSTART:16010101T000000\n"
                      "RRULE:FREQ=SECONDLY\nTZOFFSETFROM:-0400\nTZOFFSETTO:-0500\nEND:STANDARD\n"
                      "END:VTIMEZONE\nBEGIN:VEVENT\nDTSTART;TZID=Home:20260316T090000\nEND:VEVENT\n");
    QTest::newRow("many series") << calendarOf(
        ("BEGIN:VEVENT\n" + start + "RRULE:FREQ=DAILY\nEND:VEVENT\n").repeated(20'000));
    QTest::newRow("many dates") << eventOf(start + "RDATE:" + QByteArray("20260316T090000,").repeated(3'800) +
                                           "20260316T090000\n");
    QTest::newRow("deep") << QByteArray("BEGIN:VCALENDAR\n").repeated(500'000);
    QTest::newRow("deep and folded") << QByteArray("BEG\n IN:VEVENT\n").repeated(500'000);
    QTest::newRow("one line") << QByteArray(ICalendarReader::maxBytes, 'a');
    QTest::newRow("line ends") << QByteArray(ICalendarReader::maxBytes, '\n');
    QTest::newRow("folds") << "BEGIN:VCALENDAR" + QByteArray("\n ").repeated(ICalendarReader::maxBytes / 2);
    QTest::newRow("commas") << eventOf(start +
                                       ("CATEGORIES:" + QByteArray(60'000, ',') + '\n').repeated(200));
}

void ICalendarTest::endsSoon()
{
    QFETCH(QByteArray, file);
    // Other work on the machine does not count.
    const std::clock_t begin = std::clock();
    const auto contents = read(file);
    const auto elapsed = (std::clock() - begin) * 1000 / CLOCKS_PER_SEC;
    qInfo() << elapsed << "ms" << (contents ? QString::number(contents->events.size()) : contents.error());
    QVERIFY2(elapsed < 2000, qPrintable(QString::number(elapsed)));
}

void ICalendarTest::refusesHugeAndOddFiles()
{
    const QTemporaryDir folder;
    QFile file(folder.filePath(u"huge.ics"_s));
    QVERIFY(file.open(QIODevice::WriteOnly) && file.resize(100 * 1024 * 1024));
    file.close();
    const ICalendarReader::Options options{.zone = berlin, .now = now};
    QCOMPARE(told(ICalendarReader::readFile(file.fileName(), options)),
             u"This file is too large for a calendar: it has more than 16 MB."_s);
    QVERIFY(told(ICalendarReader::readFile(folder.path(), options)).endsWith(u"could not be read."_s));
    QCOMPARE(told(read(QByteArray("BEGIN:VCALENDAR\0\n", 17))), u"This is not a calendar file."_s);
}

void ICalendarTest::bearsDamage()
{
    const QByteArray whole = ICalendarWriter::write(sample(), {}, berlin, now);
    for (qsizetype length = 0; length < whole.size(); length += 7)
        (void)read(whole.first(length));
    QRandomGenerator random(11);
    for (int i = 0; i < 3000; ++i) {
        QByteArray damaged = whole;
        for (int hits = 0; hits < 4; ++hits)
            damaged[random.bounded(damaged.size())] = char(random.bounded(1, 256));
        const auto contents = read(damaged);
        for (const CalendarEvent &event : contents ? contents->events : QList<CalendarEvent>())
            QVERIFY(event.timeMinutes.value_or(0) >= 0 && event.timeMinutes.value_or(0) < 1440);
    }
}

QTEST_GUILESS_MAIN(ICalendarTest)
#include "tst_icalendar.moc"
