#include "DesignSystem/AccentColors.h"
#include "DesignSystem/CanvasDescriptor.h"
#include "DesignSystem/Contrast.h"
#include "DesignSystem/OVColors.h"
#include "DesignSystem/OVTheme.h"
#include "DesignSystem/ThemePresets.h"
#include "DesignSystem/ThemeRevision.h"

#include <QTest>

#include <functional>

using Change = std::function<void(AppSettings &)>;
using Expectation = std::function<void(OVThemeSnapshot &)>;
Q_DECLARE_METATYPE(Change)
Q_DECLARE_METATYPE(Expectation)

class TestTheme : public QObject
{
    Q_OBJECT

private slots:
    void startsWithTheInitialSnapshot();
    void resolvesSettings_data();
    void resolvesSettings();
    void countsOnlyRealChanges();
    void presetsWriteTheirSixFieldsOnly();
    void namedColours_data();
    void namedColours();
    void inksAreReadable_data();
    void inksAreReadable();
    void knownContrasts();
};

namespace
{

OVThemeSnapshot ofDefaults()
{
    OVThemeSnapshot snapshot;
    snapshot.canvas = CanvasStyle::mist;
    return snapshot;
}

void addRow(const char *name, bool systemDark, const Change &change, const Expectation &expectation)
{
    QTest::newRow(name) << systemDark << change << expectation;
}

} // namespace

// Runs first: nothing has been applied yet.
void TestTheme::startsWithTheInitialSnapshot()
{
    QCOMPARE(OVTheme::current(), OVThemeSnapshot{});
    QCOMPARE(OVTheme::current().accentColor, accentColors(AccentPalette::mono).light);
}

void TestTheme::resolvesSettings_data()
{
    QTest::addColumn<bool>("systemDark");
    QTest::addColumn<Change>("change");
    QTest::addColumn<Expectation>("expectation");

    const auto dark = [](OVThemeSnapshot &snapshot) {
        snapshot.dark = true;
        snapshot.accentColor = QColor(0xF1, 0xF1, 0xF1);
        snapshot.onAccent = QColor(0x1A, 0x1A, 0x1A);
    };
    const auto nothing = [](auto &) {};
    const auto ink = [](OVThemeSnapshot &snapshot) {
        snapshot.canvas = CanvasStyle::none;
        snapshot.fontDesign = FontChoice::serif;
        snapshot.fontScale = 1.06;
        snapshot.cornerScale = 0.5;
        snapshot.glassySurfaces = snapshot.animatedBackground = snapshot.motionEnabled = false;
        snapshot.inkMode = true;
    };

    addRow("defaults", false, nothing, nothing);
    addRow("follows a dark system", true, nothing, dark);
    addRow(
        "light on a dark system", true, [](AppSettings &s) { s.appearance = AppearanceMode::light; },
        nothing);
    addRow(
        "dark on a light system", false, [](AppSettings &s) { s.appearance = AppearanceMode::dark; }, dark);
    addRow(
        "every choice", false,
        [](AppSettings &s) {
            s.reducedMotion = true;
            s.theme = {.accent = AccentPalette::violet,
                       .canvas = CanvasStyle::ember,
                       .font = FontChoice::rounded,
                       .fontScale = 1.2,
                       .corner = CornerStyle::round,
                       .density = DensityStyle::cozy,
                       .navigation = NavigationStyle::glassDock,
                       .animation = AnimationLevel::lively,
                       .accentIcons = true,
                       .glassySurfaces = false,
                       .animatedBackground = false,
                       .showQuote = false,
                       .compactSidebar = true,
                       .tabBarLabels = false};
        },
        [](OVThemeSnapshot &snapshot) {
            snapshot = {.accent = AccentPalette::violet,
                        .canvas = CanvasStyle::ember,
                        .fontDesign = FontChoice::rounded,
                        .fontScale = 1.2,
                        .cornerScale = 1.75,
                        .densityScale = 0.88,
                        .navigation = NavigationStyle::glassDock,
                        .accentIcons = true,
                        .glassySurfaces = false,
                        .animatedBackground = false,
                        .showQuote = false,
                        .tabBarLabels = false,
                        .compactSidebar = true,
                        .motionEnabled = false,
                        .animation = AnimationLevel::lively,
                        .accentColor = QColor(0x7C, 0x5C, 0xFC)};
        });
    addRow(
        "huge text is limited", false, [](AppSettings &s) { s.theme.fontScale = 2; },
        [](OVThemeSnapshot &snapshot) { snapshot.fontScale = 1.4; });
    addRow(
        "tiny text is limited", false, [](AppSettings &s) { s.theme.fontScale = 0.1; },
        [](OVThemeSnapshot &snapshot) { snapshot.fontScale = 0.8; });
    addRow("ink mode is light on a dark system", true, [](AppSettings &s) { s.inkMode = true; }, ink);
    addRow(
        "ink mode overrides", false,
        [](AppSettings &s) {
            s.inkMode = true;
            s.appearance = AppearanceMode::dark;
            s.theme.accent = AccentPalette::rose;
            s.theme.fontScale = 2;
            s.theme.density = DensityStyle::cozy;
            s.theme.corner = CornerStyle::round;
        },
        [ink](OVThemeSnapshot &snapshot) {
            ink(snapshot);
            snapshot.fontScale = 1.4 * 1.06;
        });
}

void TestTheme::resolvesSettings()
{
    QFETCH(bool, systemDark);
    QFETCH(Change, change);
    QFETCH(Expectation, expectation);
    AppSettings settings;
    change(settings);
    OVThemeSnapshot expected = ofDefaults();
    expectation(expected);
    QCOMPARE(OVThemeSnapshot::resolved(settings, systemDark), expected);
}

void TestTheme::countsOnlyRealChanges()
{
    const int start = ThemeRevision::shared().value();
    const auto changes = [start] { return ThemeRevision::shared().value() - start; };
    AppSettings settings;
    OVTheme::apply(settings);
    OVTheme::apply(settings);
    QCOMPARE(changes(), 1);

    settings.userName = QStringLiteral("Zoë");
    OVTheme::apply(settings);
    QCOMPARE(changes(), 1);

    OVTheme::setSystemDark(true);
    QCOMPARE(changes(), 2);
    QVERIFY(OVTheme::current().dark);

    settings.appearance = AppearanceMode::light;
    OVTheme::apply(settings);
    QCOMPARE(changes(), 3);
    OVTheme::setSystemDark(false);
    QCOMPARE(changes(), 3);

    const OVThemeSnapshot before = OVTheme::current();
    settings.inkMode = true;
    OVTheme::apply(settings);
    settings.inkMode = false;
    OVTheme::apply(settings);
    QCOMPARE(OVTheme::current(), before);
}

void TestTheme::presetsWriteTheirSixFieldsOnly()
{
    ThemeSettings settings{
        .fontScale = 1.3, .navigation = NavigationStyle::tabsTop, .accentIcons = true, .showQuote = false};
    ThemeSettings expected = settings;
    expected.accent = AccentPalette::graphite;
    expected.canvas = CanvasStyle::paper;
    expected.font = FontChoice::monospaced;
    expected.corner = CornerStyle::sharp;
    expected.density = DensityStyle::cozy;
    expected.animation = AnimationLevel::subtle;
    expected.preset = ThemePreset::graphite;
    applyThemePreset(ThemePreset::graphite, settings);
    QCOMPARE(settings, expected);

    applyThemePreset(ThemePreset::forest, settings);
    QCOMPARE(settings.accent, AccentPalette::green);
    QCOMPARE(settings.font, FontChoice::serif);
    QCOMPARE(settings.density, DensityStyle::spacious);
}

void TestTheme::namedColours_data()
{
    QTest::addColumn<bool>("inkMode");
    QTest::addColumn<bool>("dark");
    QTest::addColumn<QStringList>("expected");
    const auto row = [](const char *name, bool inkMode, bool dark, const char *colors) {
        QTest::newRow(name) << inkMode << dark << QString::fromLatin1(colors).split(u' ');
    };
    row("light", false, false,
        "ffffff fafaf9 ffffff f7f7f5 f1f1ef e9e9e7 d9d9d6 37352f 73726e a5a29b 2383e2 e03e3e cb912f 2e9e5b "
        "337ea9");
    row("dark", false, true,
        "191919 1f1f1f 252525 2a2a2a 2e2e2e 303030 3c3c3c ededed 9b9b9b 6f6f6f 5b9ee8 eb6c6c e0a458 63be8a "
        "6fb3d6");
    row("ink mode", true, false,
        "f4f1e7 ede9dc fbf9f1 ebe6d7 e2dcc9 cfc8b4 b3ab92 1b1a16 4c4738 736c58 2383e2 e03e3e cb912f 2e9e5b "
        "337ea9");
}

void TestTheme::namedColours()
{
    QFETCH(bool, inkMode);
    QFETCH(bool, dark);
    QFETCH(QStringList, expected);
    const OVColors c = OVColors::of(inkMode, dark);
    QStringList names;
    for (const QColor &color :
         {c.canvas, c.sidebar, c.surface, c.subtle, c.hover, c.border, c.borderStrong, c.ink, c.inkSecondary,
          c.inkTertiary, c.link, c.danger, c.warning, c.success, c.info})
        names.append(color.name().mid(1));
    QCOMPARE(names, expected);
}

void TestTheme::inksAreReadable_data()
{
    QTest::addColumn<bool>("inkMode");
    QTest::addColumn<bool>("dark");
    QTest::newRow("light") << false << false;
    QTest::newRow("dark") << false << true;
    QTest::newRow("ink mode") << true << false;
}

void TestTheme::inksAreReadable()
{
    QFETCH(bool, inkMode);
    QFETCH(bool, dark);
    const OVColors colors = OVColors::of(inkMode, dark);
    for (const QColor &ground : {colors.canvas, colors.sidebar, colors.surface}) {
        QVERIFY2(Contrast::ratio(colors.ink, ground) >= 7, qPrintable(ground.name()));
        QVERIFY2(Contrast::ratio(colors.inkSecondary, ground) >= 4.5, qPrintable(ground.name()));
    }
    if (inkMode)
        return;
    for (const auto &entry : enumCases<CanvasStyle>()) {
        const CanvasDescriptor canvas = canvasDescriptor(entry.value);
        const QList<QColor> grounds = dark ? canvas.dark : canvas.light;
        const QColor ink = Contrast::readableInk(colors.inkSecondary, grounds);
        for (const QColor &ground : grounds)
            QVERIFY2(Contrast::ratio(ink, ground) >= 4.5, qPrintable(ground.name()));
        // Only a shade from the named colour.
        QVERIFY(std::abs(ink.lightness() - colors.inkSecondary.lightness()) <= 12);
    }
}

void TestTheme::knownContrasts()
{
    QCOMPARE(Contrast::ratio(Qt::black, Qt::white), 21.0);
    QCOMPARE(Contrast::ratio(Qt::white, Qt::black), 21.0);
    QCOMPARE(Contrast::ratio(Qt::red, Qt::red), 1.0);
    QCOMPARE(Contrast::readableInk(Qt::black, {Qt::white}), QColor(Qt::black));
    QVERIFY(Contrast::ratio(Contrast::readableInk(QColor(0x60, 0x60, 0x60), {Qt::black}), Qt::black) >= 4.5);
}

QTEST_GUILESS_MAIN(TestTheme)
#include "tst_theme.moc"
