#include "Support/SettingFields.h"

#include <QtTest>

using namespace Qt::StringLiterals;

class SettingFieldsTest : public QObject
{
    Q_OBJECT

private slots:
    void fieldsTakeTheirValues_data();
    void fieldsTakeTheirValues();
    void otherValuesAreRefused_data();
    void otherValuesAreRefused();
};

void SettingFieldsTest::fieldsTakeTheirValues_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::newRow("inkMode") << QVariant(true);
    QTest::newRow("userName") << QVariant(u" Ada"_s);
    QTest::newRow("workspaceName") << QVariant(QString());
    QTest::newRow("appearance") << QVariant(u"dark"_s);
    QTest::newRow("defaultFocusMinutes") << QVariant(qint64(45));
    QTest::newRow("readerFontScale") << QVariant(1.45);
    QTest::newRow("theme.accent") << QVariant(u"violet"_s);
    QTest::newRow("theme.fontScale") << QVariant(1.25);
    QTest::newRow("theme.showQuote") << QVariant(false);
}

void SettingFieldsTest::fieldsTakeTheirValues()
{
    const QString field = QString::fromLatin1(QTest::currentDataTag());
    QFETCH(QVariant, value);
    AppSettings settings;
    const AppSettings before;
    QVERIFY(SettingFields::value(settings, field) != value);
    QVERIFY(SettingFields::set(settings, field, value));
    QCOMPARE(SettingFields::value(settings, field), value);
    QVERIFY(SettingFields::set(settings, field, SettingFields::value(before, field)));
    QVERIFY2(settings == before, "nothing else has changed");
}

void SettingFieldsTest::otherValuesAreRefused_data()
{
    QTest::addColumn<QString>("field");
    QTest::addColumn<QVariant>("value");
    QTest::newRow("no field") << u"theme.colour"_s << QVariant(true);
    QTest::newRow("a field's name goes on") << u"themes.accent"_s << QVariant(u"violet"_s);
    QTest::newRow("a record") << u"theme"_s << QVariant(u"violet"_s);
    QTest::newRow("a list") << u"hiddenModules"_s << QVariant(QStringList{u"tasks"_s});
    QTest::newRow("no case") << u"theme.accent"_s << QVariant(u"plaid"_s);
    QTest::newRow("a position for a case") << u"theme.accent"_s << QVariant(1);
    QTest::newRow("text for a switch") << u"inkMode"_s << QVariant(u"true"_s);
    QTest::newRow("a switch for a number") << u"theme.fontScale"_s << QVariant(true);
    QTest::newRow("no number") << u"theme.fontScale"_s << QVariant(qQNaN());
    QTest::newRow("a size of 0") << u"theme.fontScale"_s << QVariant(0.0);
    QTest::newRow("half a minute") << u"defaultFocusMinutes"_s << QVariant(25.5);
    QTest::newRow("endless minutes") << u"defaultFocusMinutes"_s << QVariant(qInf());
    QTest::newRow("nothing") << u"userName"_s << QVariant();
}

void SettingFieldsTest::otherValuesAreRefused()
{
    QFETCH(QString, field);
    QFETCH(QVariant, value);
    AppSettings settings;
    QVERIFY(!SettingFields::set(settings, field, value));
    QVERIFY(settings == AppSettings());
}

QTEST_GUILESS_MAIN(SettingFieldsTest)
#include "tst_settingfields.moc"
