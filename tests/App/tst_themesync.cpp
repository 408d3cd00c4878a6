#include "App/ThemeSync.h"
#include "DesignSystem/OVTheme.h"
#include "DesignSystem/ThemeRevision.h"
#include "Harness/ManualClock.h"

#include <QGuiApplication>
#include <QPalette>
#include <QTemporaryDir>
#include <QtTest>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

class ThemeSyncTest : public QObject
{
    Q_OBJECT

private slots:
    void followsTheSettingsAndTheDesktop()
    {
        const QTemporaryDir folder;
        const ManualClock clock;
        WorkspaceStore store({folder.filePath(u"workspace.json"_s), &clock, 1h});
        store.changeSettings([](AppSettings &settings) { settings.theme.accent = AccentPalette::teal; });
        const SystemAppearance desktop;
        const ThemeSync sync(&store, &desktop);
        QCOMPARE(OVTheme::current().accent, AccentPalette::teal);
        QVERIFY(!OVTheme::current().dark);

        const auto appearance = [&](AppearanceMode mode) {
            store.changeSettings([&](AppSettings &settings) { settings.appearance = mode; });
            return OVTheme::current().dark;
        };
        QVERIFY(appearance(AppearanceMode::dark));
        QVERIFY(!appearance(AppearanceMode::system));

        QPalette darkPalette;
        darkPalette.setColor(QPalette::Window, Qt::black);
        darkPalette.setColor(QPalette::WindowText, Qt::white);
        QGuiApplication::setPalette(darkPalette);
        QTRY_VERIFY(OVTheme::current().dark);
        QVERIFY(!appearance(AppearanceMode::light));
        QVERIFY(appearance(AppearanceMode::system));

        store.changeSettings([](AppSettings &settings) { settings.inkMode = true; });
        QVERIFY(!OVTheme::current().dark);
        QVERIFY(!appearance(AppearanceMode::dark));
        store.changeSettings([](AppSettings &settings) { settings.inkMode = false; });
        QVERIFY(OVTheme::current().dark);

        QVERIFY(OVTheme::current().motionEnabled);
        store.changeSettings([](AppSettings &settings) { settings.reducedMotion = true; });
        QVERIFY(!OVTheme::current().motionEnabled);

        const int revision = ThemeRevision::shared().value();
        store.changeSettings([](AppSettings &settings) { settings.userName = u"Ada"_s; });
        QCOMPARE(ThemeRevision::shared().value(), revision);
    }
};

QTEST_MAIN(ThemeSyncTest)
#include "tst_themesync.moc"
