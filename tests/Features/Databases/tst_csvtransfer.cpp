#include "Features/Databases/CsvTransfer.h"
#include "Harness/TestWorkspace.h"
#include "Store/DatabaseOperations.h"

#include <QFile>
#include <QSignalSpy>
#include <QtTest>

using namespace Qt::StringLiterals;

/// What becomes of files in the workspace, and of records in files.
class CsvTransferTest : public QObject
{
    Q_OBJECT

private:
    WorkspaceStore &store() { return m_workspace.store(); }
    qsizetype count() { return store().list<DBRow>().size(); }
    QString put(const QByteArray &bytes)
    {
        QFile file(m_folder.filePath(u"Works of 2026.csv"_s));
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
            return {};
        return file.fileName();
    }
    static QList<DBRow> records(const QUuid &tableID, qsizetype count)
    {
        return QList<DBRow>(count, DBRow{.tableID = tableID});
    }
    static DatabaseTable table()
    {
        return {.id = QUuid::createUuid(),
                .properties = {{QUuid::createUuid(), u"Title"_s, DBPropertyType::text, {}}},
                .views = {DBView{.id = QUuid::createUuid()}}};
    }

    QTemporaryDir m_folder;
    TestWorkspace m_workspace;
    OrvelSession m_session{&m_workspace.store(), &m_workspace.ui()};

private slots:
    void initTestCase()
    {
        // There is no dialog, so files go into the folder of downloads.
        qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nowhere");
        qputenv("HOME", m_folder.path().toLocal8Bit());
        qputenv("XDG_CONFIG_HOME", m_folder.filePath(u"config"_s).toLocal8Bit());
    }
    void init() { m_workspace.reset(); }

    void aFileBecomesADatabase()
    {
        CsvTransfer transfer;
        transfer.setSession(&m_session);
        transfer.read(put("Title,Pages,State\nTea,\"12\",Open\nSea,7,Done\nKey,x,Open\nLee,9,Done,more\n"));
        QTRY_VERIFY(transfer.isRead());
        QVERIFY(transfer.summary().startsWith(u"4 records, 3 columns"_s));
        QVERIFY(transfer.summary().contains(u"; 1 rows"_s));
        transfer.setType(1, u"number"_s);
        const QSignalSpy finished(&transfer, &CsvTransfer::finished);
        transfer.createDatabase();
        QTRY_COMPARE(finished.size(), 1);
        QVERIFY(!transfer.isRead() && !transfer.isBusy());
        const DatabaseTable made = *store().list<DatabaseTable>().first(finished[0][0].toUuid());
        QCOMPARE(made.name, u"Works of 2026"_s);
        QCOMPARE(made.properties[1].type, DBPropertyType::number);
        QCOMPARE(made.properties[2].options, QStringList({u"Open"_s, u"Done"_s}));
        const QList<DBRow> rows = store().list<DBRow>().all();
        QCOMPARE(rows.size(), 4);
        QCOMPARE(rows[3].value(made.properties[0]), u"Lee"_s);
        QCOMPARE(rows[3].value(made.properties[1]), u"9"_s);

        // The same file again goes to the properties of its names.
        transfer.read(put("state,Unknown,title\ndone,1,Pea\n"));
        QTRY_VERIFY(transfer.isRead());
        QCOMPARE(transfer.matchCount(made.id), 2);
        transfer.addTo(made.id);
        QTRY_COMPARE(finished.size(), 2);
        QCOMPARE(count(), 5);
        const DBRow added = store().list<DBRow>().at(4);
        QCOMPARE(added.value(made.properties[0]), u"Pea"_s);
        QCOMPARE(added.value(made.properties[2]), u"Done"_s);
        store().undo();
        QCOMPARE(count(), 4);
        store().undo();
        QVERIFY(store().list<DatabaseTable>().isEmpty());
    }

    void manyRecordsAreOneStep()
    {
        const DatabaseTable table = CsvTransferTest::table();
        RecordsAdder adder;
        const QSignalSpy finished(&adder, &RecordsAdder::finished);
        adder.start(store(), table, records(table.id, 12'000));
        QVERIFY(adder.isBusy() && adder.progress() < 1);
        QTRY_COMPARE(finished.size(), 1);
        QCOMPARE(count(), 12'000);
        store().undo();
        QCOMPARE(count(), 0);
        QVERIFY(store().list<DatabaseTable>().isEmpty());
        store().redo();
        QCOMPARE(count(), 12'000);
    }

    void whatIsCanceledLeavesNothing()
    {
        const DatabaseTable table = CsvTransferTest::table();
        DatabaseOperations::create(store(), table);
        auto adder = std::make_unique<RecordsAdder>();
        adder->start(store(), std::nullopt, records(table.id, 12'000));
        QVERIFY(count() > 0 && count() < 12'000);
        adder->cancel();
        QCOMPARE(count(), 0);
        QVERIFY(store().list<DatabaseTable>().contains(table.id));

        // What the user does in the meantime stays.
        adder->start(store(), std::nullopt, records(table.id, 12'000));
        DatabaseOperations::typeName(store(), table.id, u"Works"_s);
        adder.reset();
        QCOMPARE(count(), 0);
        QCOMPARE(store().list<DatabaseTable>().first(table.id)->name, u"Works"_s);
    }

    void whatIsUndoneMeanwhileIsNotAddedTo()
    {
        for (const bool isNew : {true, false}) {
            DatabaseTable table = CsvTransferTest::table();
            table.id = QUuid::createUuid();
            if (!isNew)
                DatabaseOperations::create(store(), table);
            RecordsAdder adder;
            const QSignalSpy finished(&adder, &RecordsAdder::finished);
            adder.start(store(), isNew ? std::optional(table) : std::nullopt, records(table.id, 12'000));
            QVERIFY(adder.isBusy());
            store().undo();
            QTRY_VERIFY(!adder.isBusy());
            QCOMPARE(count(), 0);
            QCOMPARE(finished.size(), 0);
        }
    }

    void anExportOutlivesItsScreen()
    {
        DatabaseTable table = CsvTransferTest::table();
        table.name = u"Works"_s;
        DatabaseOperations::create(store(), table);
        for (int i = 0; i < 3'000; ++i)
            DatabaseOperations::addRow(store(), table.id,
                                       {{DBRow::valueKey(table.properties[0].id), QString::number(i)}});
        auto *const transfer = new CsvTransfer;
        transfer->setSession(&m_session);
        connect(transfer, &CsvTransfer::stateChanged, transfer, [transfer] { transfer->deleteLater(); });
        transfer->saveAll(table.id);
        QTRY_VERIFY(m_session.undo()->message().startsWith(u"Saved to "_s));
        QFile file(m_session.undo()->message().mid(9));
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(file.readAll().count('\n'), 3'001);
    }
};

QTEST_MAIN(CsvTransferTest)
#include "tst_csvtransfer.moc"
