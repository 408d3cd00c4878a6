#include "DesignSystem/OVTheme.h"
#include "Features/Settings/SettingChoices.h"
#include "Features/Settings/SettingsViewModel.h"
#include "Harness/TestWorkspace.h"
#include "Session/Setting.h"
#include "Store/StarterContent.h"

#include <QtTest>

using namespace Qt::StringLiterals;

class SettingsViewModelTest : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void everyFieldHasItsChoices_data();
    void everyFieldHasItsChoices();
    void scalesAreSelectedWithinAHundredth();
    void aPresetLeavesOtherChoices();
    void picturesShowTheChoices();
    void modulesAreShownAndHidden();
    void aSettingFollowsAndRefuses();
    void countsFollowTheWorkspace();
    void examplesGoInOneStep();
    void theFirstRunCanBeRepeated();
    void theMenuBarIsOfThisMachine();

private:
    const AppSettings &settings() const { return m_workspace->store().settings(); }
    QString selected(const SettingChoices &choices) const
    {
        return choices.currentIndex() < 0 ? QString() : choices.choices().at(choices.currentIndex()).label;
    }
    std::unique_ptr<SettingChoices> choicesOf(const QString &field)
    {
        auto choices = std::make_unique<SettingChoices>();
        choices->setSession(m_session.get());
        choices->setField(field);
        return choices;
    }

    std::unique_ptr<TestWorkspace> m_workspace;
    std::unique_ptr<OrvelSession> m_session;
};

void SettingsViewModelTest::init()
{
    m_session.reset();
    m_workspace = std::make_unique<TestWorkspace>();
    m_workspace->reset();
    m_session =
        std::make_unique<OrvelSession>(&m_workspace->store(), &m_workspace->ui(), &m_workspace->updates());
}

void SettingsViewModelTest::everyFieldHasItsChoices_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<QString>("first");
    QTest::addColumn<QString>("current");
    QTest::newRow("theme.preset") << 8 << u"Paper"_s << u"Paper"_s;
    QTest::newRow("theme.accent") << 13 << u"Mono"_s << u"Mono"_s;
    QTest::newRow("theme.canvas") << 13 << u"None"_s << u"Mist"_s;
    QTest::newRow("theme.font") << 4 << u"System"_s << u"System"_s;
    QTest::newRow("theme.fontScale") << 4 << u"Small"_s << u"Default"_s;
    QTest::newRow("theme.navigation") << 4 << u"Sidebar"_s << u"Sidebar"_s;
    QTest::newRow("theme.density") << 3 << u"cozy"_s << u"comfortable"_s;
    QTest::newRow("theme.corner") << 3 << u"sharp"_s << u"soft"_s;
    QTest::newRow("theme.animation") << 3 << u"subtle"_s << u"normal"_s;
    QTest::newRow("appearance") << 3 << u"System"_s << u"System"_s;
    QTest::newRow("defaultFocusMinutes") << 4 << u"15 min"_s << u"25 min"_s;
    QTest::newRow("readerFontScale") << 4 << u"Small"_s << u"Medium"_s;
}

/// Each choice is made in turn and is the current one then, and only it.
void SettingsViewModelTest::everyFieldHasItsChoices()
{
    QFETCH(int, count);
    QFETCH(QString, first);
    QFETCH(QString, current);
    const auto choices = choicesOf(QString::fromLatin1(QTest::currentDataTag()));
    QCOMPARE(choices->choices().size(), count);
    QCOMPARE(choices->choices().first().label, first);
    QCOMPARE(selected(*choices), current);
    for (int i = count - 1; i >= 0; --i) {
        const AppSettings before = settings();
        choices->choose(i);
        QVERIFY(i == 0 || !(settings() == before) || i == count - 1);
        QCOMPARE(choices->currentIndex(), i);
        QCOMPARE(std::ranges::count(choices->choices(), true, &SettingChoice::isSelected), 1);
    }
    choices->choose(count);
    choices->choose(-1);
    QCOMPARE(choices->currentIndex(), 0);
}

void SettingsViewModelTest::scalesAreSelectedWithinAHundredth()
{
    const auto sizes = choicesOf(u"theme.fontScale"_s);
    const auto shows = [&](double scale) {
        m_workspace->store().changeSettings(
            [scale](AppSettings &settings) { settings.theme.fontScale = scale; });
        QCoreApplication::sendPostedEvents();
        return selected(*sizes);
    };
    QCOMPARE(shows(1.25), u"Huge"_s);
    QCOMPARE(shows(1.259), u"Huge"_s);
    QCOMPARE(shows(1.05), QString());
    QCOMPARE(shows(0.891), u"Small"_s);
}

void SettingsViewModelTest::aPresetLeavesOtherChoices()
{
    m_workspace->store().changeSettings([](AppSettings &settings) {
        settings.theme.navigation = NavigationStyle::glassDock;
        settings.theme.fontScale = 1.1;
    });
    choicesOf(u"theme.preset"_s)->choose(int(ThemePreset::graphite));
    QCOMPARE(settings().theme.preset, ThemePreset::graphite);
    QCOMPARE(settings().theme.font, FontChoice::monospaced);
    QCOMPARE(settings().theme.corner, CornerStyle::sharp);
    QCOMPARE(settings().theme.navigation, NavigationStyle::glassDock);
    QCOMPARE(settings().theme.fontScale, 1.1);
}

void SettingsViewModelTest::picturesShowTheChoices()
{
    const auto presets = choicesOf(u"theme.preset"_s);
    const auto accents = choicesOf(u"theme.accent"_s);
    const auto picture = [&presets] { return presets->choices().at(int(ThemePreset::aurora)).looks.first(); };
    const OVLook light = picture();
    const OVLook paper = presets->choices().first().looks.first();
    QVERIFY(light != paper);
    // In a dark window they are dark, and ink mode, which makes all windows alike, leaves them as they are.
    m_workspace->store().changeSettings(
        [](AppSettings &settings) { settings.appearance = AppearanceMode::dark; });
    OVTheme::apply(settings());
    QCoreApplication::sendPostedEvents();
    QVERIFY(picture() != light);
    const QColor violet = accents->choices().at(int(AccentPalette::violet)).color;
    QCOMPARE(picture().accent, violet);
    m_workspace->store().changeSettings([](AppSettings &settings) { settings.inkMode = true; });
    OVTheme::apply(settings());
    QCoreApplication::sendPostedEvents();
    QCOMPARE(picture().accent, light.accent);
    QVERIFY(picture() != presets->choices().first().looks.first());
    accents->choose(int(AccentPalette::rose));
    QCOMPARE(settings().theme.accent, AccentPalette::rose);
    OVTheme::apply(AppSettings());
}

void SettingsViewModelTest::modulesAreShownAndHidden()
{
    const auto modules = choicesOf(u"hiddenModules"_s);
    QCOMPARE(modules->choices().size(), 14);
    m_workspace->store().changeSettings(
        [](AppSettings &settings) { settings.hiddenModules = {u"gallery"_s}; });
    QCoreApplication::sendPostedEvents();
    modules->choose(int(OrvelModule::tasks));
    QCOMPARE(settings().hiddenModules, QStringList({u"gallery"_s, u"tasks"_s}));
    QVERIFY(!modules->choices().at(int(OrvelModule::tasks)).isSelected);
    modules->choose(int(OrvelModule::tasks));
    QCOMPARE(settings().hiddenModules, QStringList{u"gallery"_s});
}

void SettingsViewModelTest::aSettingFollowsAndRefuses()
{
    Setting setting;
    setting.setField(u"theme.glassySurfaces"_s);
    setting.setSession(m_session.get());
    QSignalSpy changes(&setting, &Setting::valueChanged);
    QCOMPARE(setting.value(), QVariant(true));
    QVERIFY(setting.set(false));
    QCOMPARE(settings().theme.glassySurfaces, false);
    m_workspace->setAccent(u"rose"_s);
    QCOMPARE(changes.count(), 1);
    QTest::ignoreMessage(QtWarningMsg, "The setting theme.glassySurfaces can't hold yes");
    QVERIFY(!setting.set(u"yes"_s));
    QCOMPARE(setting.value(), QVariant(false));
    m_workspace->store().resetEverything(false);
    QCOMPARE(setting.value(), QVariant(true));
}

void SettingsViewModelTest::countsFollowTheWorkspace()
{
    SettingsViewModel model;
    model.setSession(m_session.get());
    const auto counts = [&model] {
        QStringList texts;
        for (const SettingsCount &count : model.countList())
            texts.append(count.label + u' ' + count.count);
        return texts.join(u", ");
    };
    QCOMPARE(counts(), u"Pages 0, Tasks 0, Projects 0, Habits 0, Databases 0"_s);
    m_workspace->addTasks(1200);
    m_workspace->addPage(u"One"_s);
    m_workspace->store().add(Habit{.id = QUuid::createUuid()});
    m_workspace->store().add(DatabaseTable{.id = QUuid::createUuid()});
    QCoreApplication::sendPostedEvents();
    QCOMPARE(counts(), u"Pages 1, Tasks 1,200, Projects 0, Habits 1, Databases 1"_s);
}

void SettingsViewModelTest::examplesGoInOneStep()
{
    SettingsViewModel model;
    model.setSession(m_session.get());
    QVERIFY(!model.hasExampleContent());
    StarterContent::seed(m_workspace->store(), {OrvelModule::tasks, OrvelModule::projects}, true);
    QCoreApplication::sendPostedEvents();
    QVERIFY(model.hasExampleContent());
    model.removeExampleContent();
    model.flush();
    QVERIFY(!model.hasExampleContent());
    QVERIFY(m_workspace->store().tasks().isEmpty());
    QCOMPARE(m_session->undo()->message(), u"Example content removed"_s);
    m_session->undo()->undo();
    model.flush();
    QVERIFY(model.hasExampleContent());
}

void SettingsViewModelTest::theFirstRunCanBeRepeated()
{
    SettingsViewModel model;
    model.setSession(m_session.get());
    m_workspace->addTasks(3);
    m_workspace->ui().select(u"settings"_s);
    m_workspace->setAccent(u"rose"_s);
    model.rerunOnboarding();
    QCOMPARE(m_workspace->ui().selection(), Destination());
    QVERIFY(!settings().hasCompletedOnboarding);
    QCOMPARE(settings().theme.accent, AccentPalette::rose);
    QCOMPARE(m_workspace->store().tasks().size(), 3);

    m_workspace->ui().select(u"settings"_s);
    model.resetWorkspace();
    QCOMPARE(m_workspace->ui().selection(), Destination());
    QVERIFY(m_workspace->store().tasks().isEmpty());
    QVERIFY(settings() == AppSettings());
}

void SettingsViewModelTest::theMenuBarIsOfThisMachine()
{
    SettingsViewModel model;
    QSignalSpy changes(&model, &SettingsViewModel::menuBarEnabledChanged);
    model.setSession(m_session.get());
    QCOMPARE(changes.size(), 1);
    QVERIFY(model.menuBarEnabled());
    model.setMenuBarEnabled(false);
    QVERIFY(!model.menuBarEnabled());
    QVERIFY(!settings().menuBarEnabled);
    QCOMPARE(m_session->preferences().value(u"orvel.menuBarEnabled"_s), QVariant(false));
    // A workspace from elsewhere does not decide it.
    m_workspace->store().resetEverything(false);
    QVERIFY(!model.menuBarEnabled());
    QCOMPARE(changes.count(), 2);
}

QTEST_MAIN(SettingsViewModelTest)
#include "tst_settingsviewmodel.moc"
