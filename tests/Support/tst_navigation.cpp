#include "Support/OrvelNavigation.h"
#include "Support/UIState.h"

#include <QSignalSpy>
#include <QtTest>

class NavigationTest : public QObject
{
    Q_OBJECT

private slots:
    void destinationsKeepTheirText();
    void otherTextIsNoDestination_data();
    void otherTextIsNoDestination();
    void modulesAndDestinationsMatch();
    void groupsHoldEveryModuleInOrder();
    void emptyGroupsAreNotShown();
    void tabsAreSplit_data();
    void tabsAreSplit();
    void windowTitle();
    void stateAnnouncesRealChangesOnly();
    void selectTakesTextsOfDestinations();
};

void NavigationTest::destinationsKeepTheirText()
{
    const QUuid id(QStringLiteral("0f8fad5b-d9cb-469f-a165-70867728950e"));
    for (const auto &entry : enumCases<Destination::Kind>()) {
        const Destination place{entry.value, Destination::showsRecord(entry.value) ? id : QUuid()};
        QCOMPARE(Destination::fromText(place.text()), place);
    }
    QCOMPARE(Destination::page(id).text(), QStringLiteral("page/0F8FAD5B-D9CB-469F-A165-70867728950E"));
    QCOMPARE(Destination::to(Destination::Kind::settings).text(), QStringLiteral("settings"));
}

void NavigationTest::otherTextIsNoDestination_data()
{
    QTest::addColumn<QString>("text");
    for (const char *text :
         {"", "/", "page", "page/", "page/7", "Dashboard", "dashboard/", "nowhere",
          "tasks/0F8FAD5B-D9CB-469F-A165-70867728950E", "page/{0F8FAD5B-D9CB-469F-A165-70867728950E}"})
        QTest::newRow(text) << QString::fromLatin1(text);
}

void NavigationTest::otherTextIsNoDestination()
{
    QFETCH(QString, text);
    QCOMPARE(Destination::fromText(text), std::nullopt);
}

void NavigationTest::modulesAndDestinationsMatch()
{
    for (const auto &entry : enumCases<OrvelModule>()) {
        const Destination place = OrvelNavigation::destination(entry.value);
        QCOMPARE(place.text(), enumRawText(entry.value));
        QCOMPARE(OrvelNavigation::module(place), entry.value);
    }
    QCOMPARE(OrvelNavigation::module(Destination::to(Destination::Kind::settings)), std::nullopt);
    QCOMPARE(OrvelNavigation::module(Destination::deck(QUuid::createUuid())), std::nullopt);
}

void NavigationTest::groupsHoldEveryModuleInOrder()
{
    QList<OrvelModule> all;
    QStringList labels;
    for (const auto &group : OrvelNavigation::groups()) {
        all += group.modules;
        labels += group.id + u':' + group.label.value_or(QStringLiteral("none"));
    }
    QCOMPARE(all, AppSettings().visibleModules());
    QCOMPARE(labels, (QStringList{QStringLiteral("home:none"), QStringLiteral("workspaces:Workspaces"),
                                  QStringLiteral("explore:Explore")}));
}

void NavigationTest::emptyGroupsAreNotShown()
{
    AppSettings settings;
    QCOMPARE(OrvelNavigation::visibleGroups(settings), OrvelNavigation::groups());

    const auto groups = OrvelNavigation::groups();
    for (const OrvelModule module : groups.last().modules)
        settings.setModule(module, false);
    settings.setModule(OrvelModule::today, false);
    const auto shown = OrvelNavigation::visibleGroups(settings);
    QCOMPARE(shown.size(), 2);
    QCOMPARE(shown.first().modules, (QList{OrvelModule::dashboard, OrvelModule::focus}));
    QCOMPARE(shown.last(), OrvelNavigation::groups().at(1));
}

void NavigationTest::tabsAreSplit_data()
{
    QTest::addColumn<int>("visible");
    QTest::addColumn<int>("inlineCount");
    QTest::newRow("none") << 0 << 0;
    QTest::newRow("three") << 3 << 3;
    QTest::newRow("four") << 4 << 4;
    QTest::newRow("five") << 5 << 4;
    QTest::newRow("all") << 14 << 4;
}

void NavigationTest::tabsAreSplit()
{
    QFETCH(int, visible);
    QFETCH(int, inlineCount);
    const auto modules = AppSettings().visibleModules().first(visible);
    const auto split = OrvelNavigation::splitTabs(modules);
    QCOMPARE(split.inlineModules.size(), inlineCount);
    QCOMPARE(split.inlineModules + split.overflow, modules);
}

void NavigationTest::windowTitle()
{
    AppSettings settings;
    QCOMPARE(OrvelNavigation::windowTitle(settings), QStringLiteral("My Workspace"));
    settings.workspaceName = QStringLiteral(" \n\t ");
    QCOMPARE(OrvelNavigation::windowTitle(settings), QStringLiteral("Orvel"));
}

void NavigationTest::stateAnnouncesRealChangesOnly()
{
    const QVariantHash others{
        {QStringLiteral("selection"), QVariant::fromValue(Destination::page(QUuid::createUuid()))},
        {QStringLiteral("isSearchPresented"), true},
        {QStringLiteral("isShortcutsPresented"), true},
        {QStringLiteral("isSidebarVisible"), false},
        {QStringLiteral("randomQuote"),
         QVariant::fromValue(std::optional(Quote{QStringLiteral("q1"), QStringLiteral("Rest."), {}}))},
        {QStringLiteral("codeDocumentID"), QUuid::createUuid()},
        {QStringLiteral("bookID"), QUuid::createUuid()},
        {QStringLiteral("deckID"), QUuid::createUuid()},
        {QStringLiteral("presentingDeckID"), QUuid::createUuid()},
    };
    UIState state;
    const QMetaObject &meta = UIState::staticMetaObject;
    QCOMPARE(meta.propertyCount() - meta.propertyOffset(), others.size());
    for (int i = meta.propertyOffset(); i < meta.propertyCount(); ++i) {
        const QMetaProperty property = meta.property(i);
        QSignalSpy spy(&state, property.notifySignal());
        const QVariant other = others.value(QString::fromLatin1(property.name()));
        property.write(&state, property.read(&state));
        QCOMPARE(spy.count(), 0);
        QVERIFY2(property.write(&state, other), property.name());
        property.write(&state, other);
        QCOMPARE(spy.count(), 1);
    }
    QCOMPARE(state.randomQuote()->id, QStringLiteral("q1"));
}

void NavigationTest::selectTakesTextsOfDestinations()
{
    UIState state;
    QCOMPARE(state.selection().text(), QStringLiteral("dashboard"));
    state.select(QStringLiteral("settings"));
    QCOMPARE(state.selection().text(), QStringLiteral("settings"));
    state.select(QStringLiteral("nowhere"));
    QCOMPARE(state.selection().text(), QStringLiteral("settings"));
}

QTEST_GUILESS_MAIN(NavigationTest)
#include "tst_navigation.moc"
