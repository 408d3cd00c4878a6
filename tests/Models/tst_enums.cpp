#include "Models/AppSettings.h"
#include "Models/CalendarEvent.h"
#include "Models/CodeLanguage.h"
#include "Models/DatabaseTable.h"
#include "Models/Deck.h"
#include "Models/Page.h"
#include "Models/Project.h"
#include "Support/Destination.h"

#include <QtTest>

namespace
{
/// The raw texts are what files hold, so none of them may ever change.
template <TabledEnum Enum>
void check(const char *rawTexts, bool hasLabels = true)
{
    QStringList found;
    for (const auto &entry : enumCases<Enum>()) {
        const QString raw = enumRawText(entry.value);
        QCOMPARE(int(entry.value), int(found.size()));
        QCOMPARE(enumFromRaw<Enum>(raw), entry.value);
        QCOMPARE(&enumCase(entry.value), &entry);
        QCOMPARE(enumLabel(entry.value).isEmpty(), !hasLabels);
        found.append(raw);
    }
    QCOMPARE(found.join(u' '), QString::fromLatin1(rawTexts));
    QCOMPARE(enumFromRaw<Enum>(QString()), std::nullopt);
    QCOMPARE(enumFromRaw<Enum>(found.first().toUpper()), std::nullopt);

    Enum value = enumCases<Enum>().front().value;
    for (std::size_t step = 0; step < enumCases<Enum>().size(); ++step)
        value = nextCase(value);
    QCOMPARE(value, enumCases<Enum>().front().value);
}

template <TabledEnum Enum>
QString labels()
{
    QStringList all;
    for (const auto &entry : enumCases<Enum>())
        all.append(enumLabel(entry.value));
    return all.join(u'|');
}
} // namespace

class EnumsTest : public QObject
{
    Q_OBJECT

private slots:
    void pages();
    void planning();
    void databases();
    void decks();
    void settings();
    void places();
    void labelsAsMenusShowThem();
};

void EnumsTest::pages()
{
    check<PageKind>("page note");
    check<BlockType>("paragraph heading1 heading2 heading3 bulleted numbered checklist quote callout code "
                     "divider");
    check<CalloutTone>("info tip warning danger");
    check<CodeLanguage>("swift python javascript typescript json html css sql shell markdown plain");
}

void EnumsTest::planning()
{
    check<TaskStatus>("todo inProgress done");
    check<TaskPriority>("low medium high");
    check<EventKind>("event deadline reminder");
    check<ProjectStatus>("notStarted planning inProgress onHold completed");
}

void EnumsTest::databases()
{
    check<DBPropertyType>("text select status multiselect date number checkbox url progress");
    check<DBViewType>("table board list gallery calendar");
    check<FilterOp>("is isNot contains isEmpty isNotEmpty before after");
    for (const auto &entry : enumCases<DBPropertyType>())
        QCOMPARE(supportsOptions(entry.value),
                 entry.raw.find("select") != std::string_view::npos || entry.value == DBPropertyType::status);
}

void EnumsTest::decks()
{
    check<SlideKind>("title section statement bullets twoColumn quote stats closing");
    check<SlideTheme::Decoration>("plain rule band edge");
    check<SlideTheme::FontKind>("system serif rounded monospaced");
    check<SlideTheme::Weight>("regular medium semibold bold heavy black");
    check<SlideTheme::Marker>("bar square dot dash number");
    QVERIFY(!SlideTheme::isBold(SlideTheme::Weight::medium));
    QVERIFY(SlideTheme::isBold(SlideTheme::Weight::semibold));
}

void EnumsTest::settings()
{
    check<AppearanceMode>("system light dark");
    check<AccentPalette>("mono graphite blue indigo violet teal green amber orange rose pink cyan red");
    check<CanvasStyle>("none paper mist dawn dusk aurora sunset forest ocean blossom candy midnight ember");
    check<FontChoice>("system rounded serif monospaced");
    check<CornerStyle>("sharp soft round");
    check<DensityStyle>("cozy comfortable spacious");
    check<NavigationStyle>("sidebar tabsTop tabsBottom glassDock");
    check<AnimationLevel>("subtle normal lively");
    check<ThemePreset>("paper mist graphite aurora dusk forest ocean ember");
}

void EnumsTest::places()
{
    check<OrvelModule>("dashboard today focus tasks calendar projects notes databases code decks habits "
                       "insights relax reader");
    check<Destination::Kind>("page project codeDocument deck dashboard today focus tasks calendar projects "
                             "notes databases code decks habits insights relax reader settings",
                             false);
    QCOMPARE(moduleBlurb(OrvelModule::tasks), u"Everything you need to get done.");
    QCOMPARE(moduleBlurb(OrvelModule::reader), u"Read free classics, styled like paper.");
}

void EnumsTest::labelsAsMenusShowThem()
{
    QCOMPARE(labels<BlockType>(), QStringLiteral("Text|Heading 1|Heading 2|Heading 3|Bulleted list|Numbered "
                                                 "list|To-do|Quote|Callout|Code|Divider"));
    QCOMPARE(labels<TaskStatus>(), QStringLiteral("To do|In progress|Done"));
    QCOMPARE(labels<ProjectStatus>(), QStringLiteral("Not started|Planning|In progress|On hold|Completed"));
    QCOMPARE(labels<DBPropertyType>(),
             QStringLiteral("Text|Select|Status|Multi-select|Date|Number|Checkbox|URL|Progress"));
    QCOMPARE(labels<FilterOp>(),
             QStringLiteral("is|is not|contains|is empty|is not empty|is before|is after"));
    QCOMPARE(
        labels<CodeLanguage>(),
        QStringLiteral("Swift|Python|JavaScript|TypeScript|JSON|HTML|CSS|SQL|Shell|Markdown|Plain text"));
    QCOMPARE(labels<OrvelModule>(),
             QStringLiteral("Dashboard|Today|Focus|Tasks|Calendar|Projects|Notes|Databases|Code|Decks|Habits|"
                            "Insights|Relax|Reader"));
}

QTEST_GUILESS_MAIN(EnumsTest)
#include "tst_enums.moc"
