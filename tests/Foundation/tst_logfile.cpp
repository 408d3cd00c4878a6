#include "Foundation/LogFile.h"

#include <QDir>
#include <QFile>
#include <QLoggingCategory>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

Q_LOGGING_CATEGORY(ownLog, "orvel.test")
Q_LOGGING_CATEGORY(otherLog, "somebody.else")

/// What the program says, in a file.
class LogFileTest : public QObject
{
    Q_OBJECT

    QTemporaryDir m_folder;

    LogFile::Options options(qint64 maxBytes = 4096) const
    {
        return {.folder = m_folder.filePath(u"log"_s), .maxBytes = maxBytes, .now = [] {
                    return QDateTime(QDate(2026, 3, 4), QTime(5, 6, 7, 8), Qt::UTC);
                }};
    }

    QByteArray read(const QString &name) const
    {
        QFile file(m_folder.filePath(u"log/"_s + name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

private slots:
    void cleanup() { QDir(m_folder.filePath(u"log"_s)).removeRecursively(); }

    void keepsOwnTextsAndOnlyPlacesOfOthers()
    {
        {
            const LogFile log(options());
            qCInfo(ownLog, "first\nsecond");
            qCInfo(otherLog, "nobody needs this");
            qCWarning(otherLog, "Dear diary");
            qCWarning(ownLog).noquote() << QString(5000, u'x');
        }
        qCWarning(ownLog, "after its end");
        const QList<QByteArray> lines = read(u"orvel.log"_s).split('\n');
        QCOMPARE(lines.size(), 4);
        QCOMPARE(lines.at(0), "2026-03-04T05:06:07.008Z info orvel.test first second");
        QVERIFY(lines.at(1).startsWith("2026-03-04T05:06:07.008Z warning somebody.else tst_logfile.cpp:"));
        QVERIFY(!lines.at(1).contains("diary"));
        QVERIFY(lines.at(2).size() < 1100);
    }

    void goesOnWhereItWasAndStaysSmall()
    {
        for (int start = 0; start < 3; ++start) {
            const LogFile log(options(1000));
            for (int line = 0; line < 30; ++line)
                qCInfo(ownLog, "start %d line %d", start, line);
        }
        const QByteArray newer = read(u"orvel.log"_s);
        const QByteArray older = read(u"orvel.1.log"_s);
        QVERIFY(newer.endsWith("start 2 line 29\n"));
        QVERIFY(older.size() >= 1000 && older.size() < 1100);
        QVERIFY(newer.size() < 1100);
        QCOMPARE(QDir(m_folder.filePath(u"log"_s)).entryList(QDir::Files).size(), 2);
    }

    void missesNothingElseWhereItCanNotWrite()
    {
        QFile inTheWay(m_folder.filePath(u"log"_s));
        QVERIFY(inTheWay.open(QIODevice::WriteOnly));
        {
            const LogFile log(options());
            QTest::ignoreMessage(QtWarningMsg, "still shown");
            qCWarning(ownLog, "still shown");
        }
        QVERIFY(inTheWay.remove());
    }
};

QTEST_GUILESS_MAIN(LogFileTest)
#include "tst_logfile.moc"
