#include "Features/Databases/PropertyFormViewModel.h"
#include "Features/Databases/RecordsViewModel.h"
#include "Harness/TestWorkspace.h"
#include "Store/DatabaseOperations.h"

#include <QtTest>

using namespace Qt::StringLiterals;

class PropertyFormTest : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_workspace.reset();
        m_table.id = QUuid::createUuid();
        m_table.properties = {
            {QUuid::createUuid(), u"State"_s, DBPropertyType::select, {u"Open"_s, u"Done"_s, u"Late"_s}},
            {QUuid::createUuid(), u"Name"_s, DBPropertyType::text, {}},
            {QUuid::createUuid(), u"Tags"_s, DBPropertyType::multiselect, {u"Low"_s, u"High"_s}},
            {QUuid::createUuid(), u"Note"_s, DBPropertyType::text, {}}};
        m_table.views = {DBView{.id = QUuid::createUuid()}};
        DatabaseOperations::create(m_workspace.store(), m_table);
    }

    void recordsAndFiltersFollowRenamedOptions()
    {
        const QUuid open = add({u"Open"_s, u"a"_s, u"Low,High"_s}), done = add({u"Done"_s, u"b"_s, {}});
        const QUuid other = add({u"Else"_s, {}, {}});
        DatabaseOperations::changeView(m_workspace.store(), m_table.id, m_table.views[0].id, u"Filter"_s,
                                       [&](DBView &view) {
                                           view.filters = {{QUuid::createUuid(), m_table.properties[0].id,
                                                            FilterOp::isExactly, u"Done"_s}};
                                       });
        const auto steps = m_workspace.store().history().size();

        // The two names change places; nothing of the one may end up in the other.
        PropertyFormViewModel form;
        fill(form, 0);
        form.setName(u" Condition "_s);
        form.renameOption(optionID(form, 0), u"Done"_s);
        form.renameOption(optionID(form, 1), u"Op,en"_s);
        form.moveOption(optionID(form, 2), -2);
        form.addOptions(u"New, Done ,"_s);
        form.apply();
        const DatabaseTable changed = *m_workspace.store().list<DatabaseTable>().first(m_table.id);
        QCOMPARE(changed.properties[0].name, u"Condition"_s);
        QCOMPARE(changed.properties[0].options, (QStringList{u"Late"_s, u"Done"_s, u"Open"_s, u"New"_s}));
        QCOMPARE(changed.views[0].filters[0].value, u"Open"_s);
        QCOMPARE(value(open, 0), u"Done"_s);
        QCOMPARE(value(done, 0), u"Open"_s);
        QCOMPARE(value(other, 0), u"Else"_s);
        QCOMPARE(m_workspace.store().history().size(), steps + 1);

        PropertyFormViewModel tags;
        fill(tags, 2);
        tags.renameOption(optionID(tags, 1), u"Top"_s);
        tags.renameOption(optionID(tags, 0), u"  "_s);
        tags.apply();
        QCOMPARE(value(open, 2), u"Low,Top"_s);
        m_workspace.store().undo();
        m_workspace.store().undo();
        QCOMPARE(value(open, 0), u"Open"_s);
        QCOMPARE(value(open, 2), u"Low,High"_s);
        QCOMPARE(*m_workspace.store().list<DatabaseTable>().first(m_table.id)->properties.begin(),
                 m_table.properties[0]);
    }

    void aTypeWithOptionsBeginsWithWhatRecordsHold()
    {
        const QUuid record = add({{}, {}, {}, u"Tea"_s});
        const QUuid both = add({{}, {}, {}, u"Milk, Tea"_s});
        PropertyFormViewModel form;
        fill(form, 3);
        form.setType(u"multiselect"_s);
        form.apply();
        const auto property = [&] {
            return m_workspace.store().list<DatabaseTable>().first(m_table.id)->properties[3];
        };
        QCOMPARE(property().options, (QStringList{u"Tea"_s, u"Milk"_s}));
        QCOMPARE(value(record, 3), u"Tea"_s);
        PropertyFormViewModel renamed;
        fill(renamed, 3);
        renamed.renameOption(optionID(renamed, 0), u"Chai"_s);
        renamed.setType(u"select"_s);
        renamed.apply();
        QCOMPARE(value(record, 3), u"Chai"_s);
        QCOMPARE(value(both, 3), u"Milk,Chai"_s);
        DatabaseOperations::setValue(m_workspace.store(), u"Tea"_s, property().id, record);
        PropertyFormViewModel back;
        fill(back, 3);
        back.setType(u"number"_s);
        back.apply();
        QCOMPARE(property().options, QStringList());
        QCOMPARE(value(record, 3), u"Tea"_s);
    }

    void columnsMoveBesideTheTitle()
    {
        RecordsViewModel records;
        records.setTableID(m_table.id);
        records.setViewID(m_table.views[0].id);
        records.setSession(&m_session);
        const auto names = [&records] {
            QStringList names;
            for (int column = 0; column < records.columnCount(); ++column)
                names.append(records.column(column).name());
            return names.join(u' ');
        };
        QCOMPARE(names(), u"Name State Tags Note"_s);
        // Another text in front of all must not become the title.
        records.moveColumn(3, -1);
        records.moveColumn(2, -1);
        QCOMPARE(names(), u"Name Note State Tags"_s);
        records.moveColumn(1, -1);
        records.moveColumn(0, 1);
        records.moveColumn(3, 1);
        QCOMPARE(names(), u"Name Note State Tags"_s);

        records.sortBy(2, false);
        records.sortBy(1, true);
        records.sortBy(2, true);
        const auto sorts = m_workspace.store().list<DatabaseTable>().first(m_table.id)->views[0].sorts;
        QCOMPARE(sorts.size(), 2);
        QCOMPARE(sorts[0].propID, m_table.properties[0].id);
        QVERIFY(sorts[0].descending);
    }

private:
    QUuid add(const QStringList &values)
    {
        QMap<QString, QString> stored;
        for (qsizetype i = 0; i < values.size(); ++i)
            stored.insert(DBRow::valueKey(m_table.properties[i].id), values[i]);
        return DatabaseOperations::addRow(m_workspace.store(), m_table.id, stored)->id;
    }
    QString value(const QUuid &record, int property)
    {
        return m_workspace.store().list<DBRow>().first(record)->value(m_table.properties[property]);
    }
    void fill(PropertyFormViewModel &form, int property)
    {
        form.setSession(&m_session);
        QVERIFY(form.load(m_table.id, m_table.properties[property].id));
    }
    static int optionID(PropertyFormViewModel &form, int row)
    {
        QAbstractItemModel *const options = form.options();
        return options->index(row, 0).data(options->roleNames().key("optionID")).toInt();
    }

    TestWorkspace m_workspace;
    OrvelSession m_session{&m_workspace.store(), &m_workspace.ui()};
    DatabaseTable m_table;
};

QTEST_MAIN(PropertyFormTest)
#include "tst_propertyform.moc"
