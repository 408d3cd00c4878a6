#include "Features/Databases/RecordsViewModel.h"
#include "Harness/TestWorkspace.h"
#include "Store/DatabaseOperations.h"
#include "Support/OVDate.h"

#include <QAbstractItemModelTester>
#include <QtTest>

#include <random>

using namespace Qt::StringLiterals;

/// Whatever changes, a view shows what applying it afresh would show: over every operator on every type, in
/// each layout that orders records.
class IncrementalViewTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        for (const auto &type : enumCases<DBPropertyType>())
            m_properties.append(
                {QUuid::createUuid(), enumLabel(type.value), type.value,
                 supportsOptions(type.value) ? QStringList{u"Open"_s, u"Done"_s} : QStringList()});
    }

    void changesGiveWhatApplyingTheViewAfreshGives_data()
    {
        QTest::addColumn<int>("property");
        QTest::addColumn<FilterOp>("op");
        for (int property = 0; property < m_properties.size(); ++property)
            for (const auto &op : enumCases<FilterOp>())
                QTest::addRow("%s, %s", qPrintable(enumRawText(m_properties[property].type)),
                              qPrintable(enumRawText(op.value)))
                    << property << op.value;
    }

    void changesGiveWhatApplyingTheViewAfreshGives()
    {
        QFETCH(int, property);
        QFETCH(FilterOp, op);
        m_random.seed(unsigned(property * 7 + int(op)));
        for (const DBViewType layout : {DBViewType::table, DBViewType::board, DBViewType::calendar}) {
            prepare(layout, property, op);
            RecordsViewModel records;
            records.setTableID(m_table);
            records.setViewID(m_view);
            records.setSession(&m_session);
            const QAbstractItemModelTester rows(records.rows()), groups(records.groups());
            for (int step = 0; step < 25; ++step) {
                change(records, below(2) ? property : below(m_properties.size()));
                records.flush();
                compare(records, layout);
                if (QTest::currentTestFailed())
                    return;
            }
        }
    }

private:
    int below(qsizetype end) { return int(m_random() % std::size_t(end)); }

    QString valueFor(int property)
    {
        // What agrees with the type more often than not; the last ones do not.
        static const QHash<DBPropertyType, QStringList> pools{
            {DBPropertyType::date, {u"2026-03-01"_s, u"2026-03-02"_s, u"2026-04-01"_s, u"soon"_s}},
            {DBPropertyType::number, {u"9"_s, u"10"_s, u"-1"_s, u"9.0"_s, u"1e3"_s, u"5x"_s}},
            {DBPropertyType::progress, {u"9"_s, u"10"_s, u"100"_s, u"x"_s}},
            {DBPropertyType::checkbox, {u"true"_s, u"1"_s, u"false"_s}},
            {DBPropertyType::multiselect, {u"Open"_s, u"Done"_s, u"Open,Done"_s, u"Done,Open"_s}},
            {DBPropertyType::select, {u"Open"_s, u"Done"_s, u"open"_s, u"Gone"_s}},
            {DBPropertyType::status, {u"Open"_s, u"Done"_s, u"No value"_s}}};
        static const QStringList texts{u"a"_s,          u"A"_s,  u"b 2"_s, u"b 10"_s, u"caf\u00e9"_s,
                                       u"cafe\u0301"_s, u"5x"_s, u"1e3"_s, u"9"_s,    u" "_s};
        const QStringList pool = pools.value(m_properties[property].type, texts);
        return below(5) ? pool[below(pool.size())] : QString();
    }

    void add()
    {
        QMap<QString, QString> values;
        for (int property = 0; property < m_properties.size(); ++property)
            values.insert(DBRow::valueKey(m_properties[property].id), valueFor(property));
        DatabaseOperations::addRow(m_workspace.store(), m_table, values);
    }

    void prepare(DBViewType layout, int property, FilterOp op)
    {
        m_workspace.reset();
        m_table = QUuid::createUuid();
        m_view = QUuid::createUuid();
        DBView view{.id = m_view, .type = layout};
        view.filters = {{QUuid::createUuid(), m_properties[property].id, op, valueFor(property)}};
        for (int i = below(3); i > 0; --i)
            view.sorts.append(
                {QUuid::createUuid(), m_properties[below(m_properties.size())].id, below(2) == 0});
        if (below(2))
            view.sorts.append({QUuid::createUuid(), m_properties[property].id, below(2) == 0});
        if (below(2))
            view.groupBy = m_properties[below(m_properties.size())].id;
        DatabaseTable table;
        table.id = m_table;
        table.properties = m_properties;
        table.views = {view};
        DatabaseOperations::create(m_workspace.store(), table);
        for (int i = 0; i < 14; ++i)
            add();
    }

    void change(RecordsViewModel &records, int property)
    {
        WorkspaceStore &store = m_workspace.store();
        const auto &all = store.list<DBRow>();
        if (all.isEmpty())
            return add();
        const QUuid record = all.at(below(all.size())).id;
        const QUuid id = m_properties[property].id;
        switch (below(8)) {
        case 0:
            return add();
        case 1:
            return DatabaseOperations::removeRow(store, record);
        case 2:
            store.undo();
            return;
        case 3: {
            const Action action(store, u"Several"_s);
            for (int i = 0; i < 3; ++i)
                DatabaseOperations::setValue(store, valueFor(property), id, all.at(below(all.size())).id);
            return;
        }
        case 4:
        case 5:
            for (int column = 0; column < records.columnCount(); ++column) {
                if (records.column(column).property.id != id)
                    continue;
                records.beginEdit(record, column);
                records.write(record, column, valueFor(property));
                records.flush();
                records.endEdit();
            }
            return;
        default:
            DatabaseOperations::setValue(store, valueFor(property), id, record);
        }
    }

    /// The records as they have to stand, with an empty id after each group or day.
    QList<QUuid> fresh(DBViewType layout)
    {
        const DatabaseTable table = *m_workspace.store().list<DatabaseTable>().first(m_table);
        const auto visible =
            DBEngine::applyView(DatabaseOperations::rows(m_workspace.store(), m_table), table.properties,
                                table.views[0], m_workspace.clock().timeZone());
        QList<QUuid> ids;
        if (layout == DBViewType::board) {
            const QUuid by = table.views[0].groupBy.value_or(m_properties[1].id);
            const auto property = std::ranges::find(m_properties, by, &DBProperty::id);
            for (const DBGroup &group : DBEngine::groupRows(visible, &*property)) {
                for (const DBRow *const row : group.rows)
                    ids.append(row->id);
                ids.append(QUuid());
            }
            return ids;
        }
        if (layout == DBViewType::table) {
            for (const DBRow *const row : visible)
                ids.append(row->id);
            return ids;
        }
        std::map<QDate, QList<QUuid>> days;
        QList<QUuid> undated;
        for (const DBRow *const row : visible) {
            const auto day = OVDate::parseDayKey(row->value(m_properties[4]));
            (day ? days[*day] : undated).append(row->id);
        }
        for (const auto &[day, records] : days)
            ids += records;
        return ids + undated;
    }

    void compare(RecordsViewModel &records, DBViewType layout)
    {
        QList<QUuid> shown;
        if (layout == DBViewType::board) {
            for (int group = 0; group < records.groups()->rowCount(); ++group) {
                for (int place = 0; !records.recordIn(group, place).isNull(); ++place)
                    shown.append(records.recordIn(group, place));
                shown.append(QUuid());
            }
        } else {
            for (int row = 0; row < records.rows()->rowCount(); ++row)
                shown.append(records.recordAt(row));
        }
        QCOMPARE(shown, fresh(layout));
        // The values that a layout draws are those of the store.
        const QHash<int, QByteArray> roles = records.rows()->roleNames();
        for (int row = 0; row < records.rows()->rowCount(); ++row) {
            const auto values = records.rows()->index(row, 0).data(roles.key("values")).value<RecordValues>();
            QCOMPARE(values.values, m_workspace.store().list<DBRow>().first(records.recordAt(row))->values);
        }
    }

    TestWorkspace m_workspace;
    OrvelSession m_session{&m_workspace.store(), &m_workspace.ui()};
    std::mt19937 m_random;
    QList<DBProperty> m_properties;
    QUuid m_table;
    QUuid m_view;
};

QTEST_MAIN(IncrementalViewTest)
#include "tst_incrementalview.moc"
