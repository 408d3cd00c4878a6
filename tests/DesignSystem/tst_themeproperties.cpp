#include "DesignSystem/OVTheme.h"
#include "DesignSystem/Theme.h"

#include <QMetaProperty>
#include <QQmlEngine>
#include <QSignalSpy>
#include <QTest>

#include <array>
#include <functional>
#include <map>
#include <memory>

using Change = std::function<void(AppSettings &)>;

class ThemePropertiesTest : public QObject
{
    Q_OBJECT

private slots:
    void tellsOfEveryChangedProperty();
};

void ThemePropertiesTest::tellsOfEveryChangedProperty()
{
    QQmlEngine engine;
    const std::unique_ptr<Theme> theme(Theme::create(&engine, nullptr));
    AppSettings settings;
    OVTheme::apply(settings);
    const std::array changes{Change([](AppSettings &s) { s.theme.accent = AccentPalette::rose; }),
                             Change([](AppSettings &s) { s.theme.canvas = CanvasStyle::aurora; }),
                             Change([](AppSettings &s) { s.theme.font = FontChoice::rounded; }),
                             Change([](AppSettings &s) { s.theme.fontScale = 1.25; }),
                             Change([](AppSettings &s) { s.theme.corner = CornerStyle::round; }),
                             Change([](AppSettings &s) { s.theme.density = DensityStyle::spacious; }),
                             Change([](AppSettings &s) { s.theme.animation = AnimationLevel::lively; }),
                             Change([](AppSettings &s) { s.appearance = AppearanceMode::dark; }),
                             Change([](AppSettings &s) { s.inkMode = true; }),
                             Change([](AppSettings &s) { s.theme.navigation = NavigationStyle::glassDock; })};
    const QMetaObject &type = *theme->metaObject();
    for (const Change &change : changes) {
        std::map<int, std::pair<QVariant, std::unique_ptr<QSignalSpy>>> properties;
        for (int i = 0; i < type.propertyCount(); ++i)
            if (const QMetaProperty property = type.property(i); property.hasNotifySignal())
                properties[i] = {property.read(theme.get()),
                                 std::make_unique<QSignalSpy>(theme.get(), property.notifySignal())};
        change(settings);
        OVTheme::apply(settings);
        int changed = 0;
        for (const auto &[i, before] : properties) {
            const QMetaProperty property = type.property(i);
            if (property.read(theme.get()) == before.first)
                continue;
            ++changed;
            QVERIFY2(before.second->size() > 0, property.name());
        }
        QVERIFY(changed > 0);
    }
}

QTEST_MAIN(ThemePropertiesTest)
#include "tst_themeproperties.moc"
