#include "DesignSystem/OVColors.h"
#include "Features/Onboarding/OnboardingViewModel.h"
#include "Harness/TestWorkspace.h"
#include "Store/StarterContent.h"

#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

class OnboardingViewModelTest : public QObject
{
    Q_OBJECT

private:
    TestWorkspace m_workspace;
    OrvelSession m_session{&m_workspace.store(), &m_workspace.ui()};
    std::unique_ptr<OnboardingViewModel> m_onboarding;

    const AppSettings &settings() { return m_workspace.store().settings(); }
    /// The positions of the modules that are to be hidden.
    QList<int> hidden() const
    {
        QList<int> positions;
        for (int i = 0; i < m_onboarding->moduleList().size(); ++i)
            if (!m_onboarding->moduleList().at(i).isSelected)
                positions.append(i);
        return positions;
    }
    /// The values of the summary from top to bottom.
    QStringList summary() const
    {
        QStringList values;
        for (const OnboardingSummaryRow &row : m_onboarding->summary())
            values.append(row.value);
        return values;
    }

private slots:
    void init()
    {
        m_workspace.resetToFirstRun();
        m_onboarding = std::make_unique<OnboardingViewModel>();
        m_onboarding->setSession(&m_session);
    }

    void stepsLieInALine()
    {
        const QSignalSpy changed(m_onboarding.get(), &OnboardingViewModel::stepChanged);
        m_onboarding->goBack();
        QCOMPARE(changed.count(), 0);
        QStringList lines;
        for (int i = 0; i < 8; ++i) {
            lines.append(m_onboarding->progressText() + u": "_s + m_onboarding->title() + u", "_s +
                         m_onboarding->primaryText());
            m_onboarding->goNext();
        }
        QCOMPARE(lines, (QStringList{
                            u"Step 1 of 6: Welcome to Orvel, Get started"_s,
                            u"Step 2 of 6: Make it yours, Continue"_s,
                            u"Step 3 of 6: Choose your tools, Continue"_s,
                            u"Step 4 of 6: Start with a little content, Continue"_s,
                            u"Step 5 of 6: Pick a look, Continue"_s,
                            u"Step 6 of 6: You're all set, Enter workspace"_s,
                            u"Step 6 of 6: You're all set, Enter workspace"_s,
                            u"Step 6 of 6: You're all set, Enter workspace"_s,
                        }));
        QCOMPARE(changed.count(), 5);
    }

    void skippingKeepsTheValuesAndTheWayBack()
    {
        m_onboarding->setProperty("name", u"Ada"_s);
        m_onboarding->jumpToReady();
        QVERIFY(m_onboarding->isLast());
        QCOMPARE(summary().first(), u"Ada"_s);
        m_onboarding->goBack();
        QCOMPARE(m_onboarding->title(), u"Pick a look"_s);
    }

    void theSummarySaysWhatWasChosen()
    {
        QCOMPARE(summary(), (QStringList{u"Not set"_s, u"My Workspace"_s, u"14 enabled"_s, u"Blank slate"_s,
                                         u"System"_s}));
        m_onboarding->setProperty("name", u" \n"_s);
        m_onboarding->setProperty("workspaceName", u"  "_s);
        QCOMPARE(summary().first(2), (QStringList{u"Not set"_s, u"My Workspace"_s}));

        m_onboarding->setProperty("name", u" Ada "_s);
        m_onboarding->setProperty("workspaceName", u"Studio"_s);
        m_onboarding->clearModules();
        m_onboarding->setProperty("includeSamples", true);
        m_onboarding->setAppearance(2);
        QCOMPARE(summary(), (QStringList{u"Ada"_s, u"Studio"_s, u"None"_s, u"Included"_s, u"Dark"_s}));
        for (const int outside : {-1, 3})
            m_onboarding->setAppearance(outside);
        QCOMPARE(m_onboarding->appearance(), 2);
    }

    void modulesAreFlippedOneByOneAndTogether()
    {
        const int habits = int(OrvelModule::habits);
        QVERIFY(hidden().isEmpty());
        m_onboarding->toggleModule(habits);
        QCOMPARE(hidden(), QList{habits});
        QCOMPARE(summary().at(2), u"13 enabled"_s);
        m_onboarding->toggleModule(habits);
        QVERIFY(hidden().isEmpty());
        m_onboarding->clearModules();
        QVERIFY(m_onboarding->hidesEveryModule());
        QCOMPARE(hidden().size(), 14);
        m_onboarding->toggleModule(habits);
        QVERIFY(!m_onboarding->hidesEveryModule());
        m_onboarding->selectAllModules();

        const QSignalSpy changed(m_onboarding.get(), &OnboardingViewModel::choicesChanged);
        m_onboarding->selectAllModules();
        for (const int outside : {-1, 14})
            m_onboarding->toggleModule(outside);
        QCOMPARE(changed.count(), 0);
    }

    void looksAreThoseOfTheTheme()
    {
        const auto light = OVColors::of(false, false);
        const auto dark = OVColors::of(false, true);
        const auto appearances = m_onboarding->appearanceList();
        QCOMPARE(appearances.size(), 3);
        QCOMPARE(appearances[0].looks.size(), 2);
        QCOMPARE(appearances[0].looks, appearances[1].looks + appearances[2].looks);
        QCOMPARE(appearances[1].looks.first().sidebar, light.sidebar);
        QCOMPARE(appearances[2].looks.first().sidebar, dark.sidebar);

        m_workspace.setAccent(u"teal"_s);
        m_onboarding->flush();
        const auto teal = m_onboarding->appearanceList();
        QVERIFY(teal[1].looks.first().accent != appearances[1].looks.first().accent);
        QVERIFY(teal[1].looks.first().accent != teal[2].looks.first().accent);
    }

    void nothingIsWrittenBeforeTheEnd()
    {
        const Snapshot before = m_workspace.store().snapshot();
        m_onboarding->setProperty("name", u"Ada"_s);
        m_onboarding->setProperty("workspaceIcon", u"🚀"_s);
        m_onboarding->clearModules();
        m_onboarding->setProperty("includeSamples", true);
        m_onboarding->setAppearance(1);
        m_onboarding->jumpToReady();
        QCOMPARE(m_workspace.store().snapshot(), before);
    }

    void finishingHandsEverythingOverOnce()
    {
        m_workspace.ui().select(u"settings"_s);
        m_onboarding->setProperty("name", u" Ada "_s);
        m_onboarding->setProperty("workspaceName", u"Studio"_s);
        m_onboarding->setProperty("workspaceIcon", u"🚀"_s);
        m_onboarding->toggleModule(int(OrvelModule::relax));
        m_onboarding->setProperty("includeSamples", true);
        m_onboarding->setAppearance(2);
        m_onboarding->finish();
        const Snapshot done = m_workspace.store().snapshot();
        AppSettings expected;
        expected.userName = u"Ada"_s;
        expected.workspaceName = u"Studio"_s;
        expected.workspaceIcon = u"🚀"_s;
        expected.appearance = AppearanceMode::dark;
        expected.hiddenModules = {u"relax"_s};
        expected.hasCompletedOnboarding = true;
        QCOMPARE(settings(), expected);
        QVERIFY(StarterContent::hasExampleContent(m_workspace.store()));
        QCOMPARE(m_workspace.ui().selection().text(), u"dashboard"_s);

        m_onboarding->finish();
        QCOMPARE(m_workspace.store().snapshot(), done);
    }

    void skippedSetupEndsWithTheDefaults()
    {
        m_onboarding->jumpToReady();
        m_onboarding->finish();
        AppSettings expected;
        expected.hasCompletedOnboarding = true;
        QCOMPARE(settings(), expected);
        QCOMPARE(m_workspace.store().pages().size(), 1);
        QCOMPARE(m_workspace.store().tasks().size(), 0);
    }
};

QTEST_GUILESS_MAIN(OnboardingViewModelTest)
#include "tst_onboardingviewmodel.moc"
