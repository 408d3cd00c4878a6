#include "Features/Databases/DatabasesViewModel.h"
#include "Features/Databases/RecordsViewModel.h"
#include "Features/Databases/ViewSettingsViewModel.h"
#include "Harness/TestWorkspace.h"
#include "Store/DatabaseOperations.h"

#include <QAbstractItemModelTester>
#include <QClipboard>
#include <QtTest>

using namespace Qt::StringLiterals;

class RecordsViewModelTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void cellsSayHowTheyLook();
    void oneEditIsOneStep();
    void escapeTakesTheTextBack();
    void aRecordKeepsItsPlaceWhileItIsEdited();
    void aNewRecordStaysUntilItIsEdited();
    void typesKeepTheirCharacters();
    void blocksArePastedAsOneStep();
    void blocksComeThroughTheClipboardWhole_data();
    void blocksComeThroughTheClipboardWhole();
    void countsTellOfFilters();
    void goneViewsAndPropertiesDoNoHarm();
    void ownStepsAreShownWhereTheyWere();

private:
    enum Column { item, state, score, done, tags, due };

    QUuid add(const QStringList &values)
    {
        QMap<QString, QString> stored;
        for (qsizetype i = 0; i < values.size(); ++i)
            stored.insert(DBRow::valueKey(m_properties[i].id), values[i]);
        return DatabaseOperations::addRow(m_workspace.store(), m_tableID, stored)->id;
    }
    QString value(const QUuid &record, int column) const
    {
        return m_workspace.store().list<DBRow>().first(record)->value(m_properties[column]);
    }
    QStringList titles() const
    {
        QStringList titles;
        for (int row = 0; row < m_model->rows()->rowCount(); ++row)
            titles.append(value(m_model->recordAt(row), item));
        return titles;
    }
    void changeView(const std::function<void(DBView &)> &edit)
    {
        DatabaseOperations::changeView(m_workspace.store(), m_tableID, m_viewID, u"Change"_s, edit);
        m_model->flush();
    }
    void sortByTitle()
    {
        changeView([&](DBView &view) { view.sorts = {{QUuid::createUuid(), m_properties[item].id, false}}; });
    }
    void filterTitle(FilterOp op, const QString &text)
    {
        changeView(
            [&](DBView &view) { view.filters = {{QUuid::createUuid(), m_properties[item].id, op, text}}; });
    }

    mutable TestWorkspace m_workspace;
    OrvelSession m_session{&m_workspace.store(), &m_workspace.ui()};
    QList<DBProperty> m_properties;
    QUuid m_tableID;
    QUuid m_viewID;
    std::unique_ptr<RecordsViewModel> m_model;
    std::unique_ptr<QAbstractItemModelTester> m_tester;
};

void RecordsViewModelTest::init()
{
    m_workspace.reset();
    using Type = DBPropertyType;
    m_properties = {{QUuid::createUuid(), u"Item"_s, Type::text, {}},
                    {QUuid::createUuid(), u"State"_s, Type::select, {u"Open"_s, u"Done"_s}},
                    {QUuid::createUuid(), u"Score"_s, Type::number, {}},
                    {QUuid::createUuid(), u"Ready"_s, Type::checkbox, {}},
                    {QUuid::createUuid(), u"Tags"_s, Type::multiselect, {u"Low"_s, u"High"_s}},
                    {QUuid::createUuid(), u"Due"_s, Type::date, {}}};
    m_tableID = QUuid::createUuid();
    m_viewID = QUuid::createUuid();
    DatabaseTable table;
    table.id = m_tableID;
    table.properties = m_properties;
    table.views = {DBView{.id = m_viewID}};
    DatabaseOperations::create(m_workspace.store(), table);
    m_model = std::make_unique<RecordsViewModel>();
    m_model->setTableID(m_tableID);
    m_model->setViewID(m_viewID);
    m_model->setSession(&m_session);
    m_tester = std::make_unique<QAbstractItemModelTester>(m_model->rows());
}

void RecordsViewModelTest::cleanup()
{
    m_tester.reset();
    m_model.reset();
}

void RecordsViewModelTest::cellsSayHowTheyLook()
{
    const auto cell = [&](int column, const QString &text) {
        return m_model->cell({{{DBRow::valueKey(m_properties[column].id), text}}}, column);
    };
    QCOMPARE(cell(item, {}).placeholder, u"Untitled"_s);
    QCOMPARE(cell(state, {}).placeholder, u"Empty"_s);
    QCOMPARE(cell(score, {}).placeholder, QString());
    QCOMPARE(cell(state, u"Done"_s).tone, int(BadgeTone::success));
    QCOMPARE(cell(state, u"In progress"_s).tone, int(BadgeTone::info));
    QCOMPARE(cell(state, u"On hold"_s).tone, int(BadgeTone::danger));
    QCOMPARE(cell(state, u"Waiting"_s).tone, int(BadgeTone::warning));
    QCOMPARE(cell(tags, u"High,Gone"_s).chosen, QStringList({u"High"_s, u"Gone"_s}));
    QVERIFY(cell(done, u"YES"_s).isChecked);
    const QString today = m_workspace.clock().today().toString(Qt::ISODate);
    QVERIFY(cell(due, today).isToday);
    QCOMPARE(cell(due, u"2026-03-09"_s).shown, u"Mar 9"_s);
    QCOMPARE(cell(due, u"2024-03-09"_s).shown, u"Mar 9, 2024"_s);
    QCOMPARE(cell(due, u"soon"_s).shown, u"soon"_s);
    QCOMPARE(cell(item, u"two\nlines"_s).shown, u"two lines"_s);
}

void RecordsViewModelTest::oneEditIsOneStep()
{
    const QUuid record = add({u"Tea"_s});
    m_model->beginEdit(record, item);
    for (const QString &text : {u"Tea f"_s, u"Tea for"_s, u"Tea for tw"_s, u"Tea for t"_s, u"Tea for two"_s})
        m_model->write(record, item, text);
    m_model->endEdit();
    m_model->beginEdit(record, item);
    m_model->write(record, item, u"Tea for two!"_s);
    m_model->endEdit();
    m_workspace.store().undo();
    QCOMPARE(value(record, item), u"Tea for two"_s);
    m_workspace.store().undo();
    QCOMPARE(value(record, item), u"Tea"_s);
    m_workspace.store().redo();
    QCOMPARE(value(record, item), u"Tea for two"_s);
}

void RecordsViewModelTest::escapeTakesTheTextBack()
{
    const QUuid record = add({u"Tea"_s});
    const DBRow before = *m_workspace.store().list<DBRow>().first(record);
    const auto steps = m_workspace.store().history().size();
    m_workspace.advanceHours(1);
    m_model->beginEdit(record, item);
    m_model->write(record, item, u"Coffee"_s);
    m_model->write(record, item, u"Coffee with milk"_s);
    m_model->cancelEdit();
    QCOMPARE(*m_workspace.store().list<DBRow>().first(record), before);
    QCOMPARE(m_workspace.store().history().size(), steps);

    // What was typed and undone by the user needs no taking back; the edit before it stays.
    m_model->beginEdit(record, item);
    m_model->write(record, item, u"Cocoa"_s);
    m_model->endEdit();
    m_model->beginEdit(record, item);
    m_model->write(record, item, u"Cocoa!"_s);
    m_workspace.store().undo();
    m_model->cancelEdit();
    QCOMPARE(value(record, item), u"Cocoa"_s);
}

void RecordsViewModelTest::aRecordKeepsItsPlaceWhileItIsEdited()
{
    add({u"B"_s});
    const QUuid record = add({u"C"_s});
    add({u"D"_s});
    sortByTitle();
    filterTitle(FilterOp::isNot, u"Z"_s);
    m_model->beginEdit(record, item);
    for (const QString &text : {u"A"_s, u"Z"_s, u"E"_s}) {
        m_model->write(record, item, text);
        m_model->flush();
        QCOMPARE(titles(), QStringList({u"B"_s, text, u"D"_s}));
    }
    // Other changes are shown around it.
    add({u"A"_s});
    m_model->flush();
    QCOMPARE(titles(), QStringList({u"A"_s, u"E"_s, u"B"_s, u"D"_s}));
    m_model->endEdit();
    QCOMPARE(titles(), QStringList({u"A"_s, u"B"_s, u"D"_s, u"E"_s}));
    m_model->setValue(record, item, u"Z"_s);
    m_model->flush();
    QCOMPARE(titles(), QStringList({u"A"_s, u"B"_s, u"D"_s}));
}

void RecordsViewModelTest::aNewRecordStaysUntilItIsEdited()
{
    add({u"Plan"_s});
    filterTitle(FilterOp::contains, u"pl"_s);
    const QUuid record = m_model->addRecord();
    QCOMPARE(titles(), QStringList({u"Plan"_s, QString()}));
    m_model->beginEdit(record, item);
    QCOMPARE(titles(), QStringList({u"Plan"_s, QString()}));
    m_model->write(record, item, u"Other"_s);
    m_model->endEdit();
    QCOMPARE(titles(), QStringList({u"Plan"_s}));
}

void RecordsViewModelTest::typesKeepTheirCharacters()
{
    const QUuid record = add({});
    QCOMPARE(m_model->write(record, score, u"-12a.5 €"_s), u"-12.5"_s);
    QCOMPARE(value(record, score), u"-12.5"_s);
    m_model->toggleCheck(record, done);
    QCOMPARE(value(record, done), u"true"_s);
    m_model->toggleCheck(record, done);
    QCOMPARE(value(record, done), QString());
    m_model->toggleOption(record, tags, u"High"_s);
    m_model->toggleOption(record, tags, u"Low"_s);
    QCOMPARE(value(record, tags), u"High,Low"_s);
    m_model->toggleOption(record, tags, u"High"_s);
    QCOMPARE(value(record, tags), u"Low"_s);
    m_model->setDay(record, due, QDateTime(QDate(2026, 3, 9), QTime(23, 59)));
    QCOMPARE(value(record, due), u"2026-03-09"_s);
}

void RecordsViewModelTest::blocksArePastedAsOneStep()
{
    const QUuid first = add({u"A"_s, u"Open"_s, u"1"_s});
    const QUuid second = add({u"B"_s, u"Open"_s, u"2"_s});
    m_model->flush();
    const auto steps = m_workspace.store().history().size();
    QGuiApplication::clipboard()->setText(u"done\t7 kg\tyes\r\nDone\t8\tno\nOpen\t9\t1\n"_s);
    m_model->paste(second, state);
    m_model->flush();
    QCOMPARE(m_model->rows()->rowCount(), 4);
    QCOMPARE(value(first, state), u"Open"_s);
    QCOMPARE(value(second, state), u"Done"_s);
    QCOMPARE(value(second, score), u"7"_s);
    QCOMPARE(value(second, done), u"true"_s);
    QCOMPARE(value(m_model->recordAt(2), done), QString());
    QCOMPARE(value(m_model->recordAt(3), score), u"9"_s);
    QCOMPARE(m_workspace.store().history().size(), steps + 1);
    m_workspace.store().undo();
    m_model->flush();
    QCOMPARE(m_model->rows()->rowCount(), 2);
    QCOMPARE(value(second, score), u"2"_s);
}

void RecordsViewModelTest::blocksComeThroughTheClipboardWhole_data()
{
    QTest::addColumn<QString>("text");
    for (const QString &text :
         {u"plain"_s, u"a\tb"_s, u"two\nlines"_s, u"\"quoted\""_s, u"5\" wide"_s, u""_s})
        QTest::newRow(qPrintable(text)) << text;
}

void RecordsViewModelTest::blocksComeThroughTheClipboardWhole()
{
    QFETCH(QString, text);
    const QUuid from = add({text}), to = add({u"x"_s});
    m_model->flush();
    m_model->copy(from, item);
    m_model->paste(to, item);
    QCOMPARE(value(to, item), text.isEmpty() ? u"x"_s : text);
}

void RecordsViewModelTest::countsTellOfFilters()
{
    for (const QString &title : {u"A"_s, u"B"_s, u"AB"_s})
        add({title});
    m_model->flush();
    QCOMPARE(m_model->countText(), u"3 records"_s);
    filterTitle(FilterOp::contains, u"a"_s);
    QCOMPARE(m_model->countText(), u"2 of 3 records"_s);
}

void RecordsViewModelTest::goneViewsAndPropertiesDoNoHarm()
{
    DatabasesViewModel frame;
    frame.setSession(&m_session);
    frame.select(m_tableID);
    ViewSettingsViewModel settings;
    settings.setTableID(m_tableID);
    settings.setViewID(m_viewID);
    settings.setSession(&m_session);
    settings.setFilterProperty(m_properties[item].id.toString());
    settings.setFilterValue(u"x"_s);
    settings.addFilter();
    add({u"A"_s});
    m_model->flush();
    QCOMPARE(m_model->rows()->rowCount(), 0);
    m_model->removeColumn(0);
    settings.flush();
    m_model->flush();
    QCOMPARE(
        settings.filters()->index(0, 0).data(settings.filters()->roleNames().key("propertyName")).toString(),
        u"?"_s);
    QCOMPARE(m_model->rows()->rowCount(), 1);
    // Without a text, the first property names the records.
    QCOMPARE(m_model->column(0).property.id, m_properties[state].id);

    frame.addView(u"board"_s);
    const QUuid board = frame.viewVariant().toUuid();
    QCOMPARE(frame.viewRow(), 1);
    frame.removeView(board);
    QCOMPARE(frame.viewVariant().toUuid(), m_viewID);
    frame.removeView(m_viewID);
    QCOMPARE(frame.viewVariant().toUuid(), m_viewID);
    frame.remove(m_tableID);
    QVERIFY(!frame.hasSelection());
    QCOMPARE(m_workspace.store().list<DBRow>().size(), 0);
    QCOMPARE(frame.viewRow(), -1);
}

void RecordsViewModelTest::ownStepsAreShownWhereTheyWere()
{
    add({u"A"_s});
    const QUuid record = add({u"B"_s});
    m_model->flush();
    m_model->beginEdit(record, score);
    m_model->write(record, score, u"5"_s);
    m_model->endEdit();
    QSignalSpy revealed(m_model.get(), &RecordsViewModel::revealed);
    m_session.undo()->undo();
    QTRY_COMPARE(revealed.size(), 1);
    QCOMPARE(revealed[0], QVariantList({1, int(score)}));
}

QTEST_MAIN(RecordsViewModelTest)
#include "tst_recordsviewmodel.moc"
