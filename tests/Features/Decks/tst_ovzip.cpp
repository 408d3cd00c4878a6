#include "Features/Decks/OVZip.h"

#include <QDateTime>
#include <QFile>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

class OVZipTest : public QObject
{
    Q_OBJECT

private:
    const QDateTime m_moment = QDateTime(QDate(2026, 3, 1), QTime(12, 0, 59));

private slots:
    void emptyArchiveIsTheEndRecord()
    {
        QCOMPARE(OVZip::pack({}, m_moment).value(), QByteArray::fromHex("504b0506"
                                                                        "0000000000000000"
                                                                        "0000000000000000"
                                                                        "0000"));
    }

    void writesEveryByteOfTheFormat()
    {
        const QByteArray fields = "1400"
                                  "0008"
                                  "0000"
                                  "1d60"
                                  "615c"
                                  "2470a4dd"
                                  "05000000"
                                  "05000000"
                                  "0300"
                                  "0000";
        const QByteArray name = "c3a961";
        const QByteArray data = QByteArray("01234").toHex();
        const QByteArray expected = "504b0304" + fields + name + data +
                                    "504b0102"
                                    "1400" +
                                    fields +
                                    "0000"
                                    "0000"
                                    "0000"
                                    "00000000"
                                    "00000000" +
                                    name +
                                    "504b0506"
                                    "0000"
                                    "0000"
                                    "0100"
                                    "0100"
                                    "31000000"
                                    "26000000"
                                    "0000";
        QCOMPARE(OVZip::pack({{u"éa"_s, "01234"}}, m_moment).value().toHex(), expected);
    }

    void stampsHalveTheSeconds_data()
    {
        QTest::addColumn<QDateTime>("moment");
        QTest::addColumn<int>("time");
        QTest::addColumn<int>("date");
        QTest::newRow("odd second") << m_moment << (12 << 11 | 29) << (46 << 9 | 3 << 5 | 1);
        QTest::newRow("before 1980") << QDateTime(QDate(1975, 12, 31), QTime(23, 59, 58))
                                     << (23 << 11 | 59 << 5 | 29) << (12 << 5 | 31);
    }
    void stampsHalveTheSeconds()
    {
        QFETCH(QDateTime, moment);
        QFETCH(int, time);
        QFETCH(int, date);
        QCOMPARE(OVZip::dosDateTime(moment), (OVZip::DosDateTime{quint16(time), quint16(date)}));
    }

    void refusesWhatTheFormatCannotHold()
    {
        QVERIFY(OVZip::pack({{QString(65535, u'n'), {}}}, m_moment));
        QVERIFY(!OVZip::pack({{QString(65536, u'n'), {}}}, m_moment));
        QVERIFY(!OVZip::pack({{QString(40000, u'é'), {}}}, m_moment));
        QList<OVZip::Entry> entries(65535, {u"n"_s, {}});
        QVERIFY(OVZip::pack(entries, m_moment));
        entries.append({u"n"_s, {}});
        QVERIFY(!OVZip::pack(entries, m_moment).error().isEmpty());
    }

    void unzipToolsAgree()
    {
        if (QStandardPaths::findExecutable(u"unzip"_s).isEmpty())
            QSKIP("unzip is not installed");
        QTemporaryDir folder;
        QFile file(folder.filePath(u"a.zip"_s));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(
            OVZip::pack({{u"a/é 1.txt"_s, "one"}, {u"empty"_s, {}}, {u"big"_s, QByteArray(100000, 'x')}},
                        m_moment)
                .value());
        file.close();
        QProcess unzip;
        unzip.start(u"unzip"_s, {u"-t"_s, file.fileName()});
        QVERIFY(unzip.waitForFinished());
        QVERIFY2(unzip.exitCode() == 0, unzip.readAll().constData());
    }
};

QTEST_GUILESS_MAIN(OVZipTest)
#include "tst_ovzip.moc"
