#include "Foundation/RecordDecoder.h"
#include "Foundation/RecordEncoder.h"
#include "Models/Activity.h"
#include "Models/AppSettings.h"
#include "Models/Book.h"
#include "Models/CalendarEvent.h"
#include "Models/CodeDocument.h"
#include "Models/DBRow.h"
#include "Models/Deck.h"
#include "Models/Folder.h"
#include "Models/Habit.h"
#include "Models/Page.h"
#include "Models/Project.h"

#include <QtTest>

namespace
{
const QUuid madeId(QStringLiteral("11111111-2222-3333-4444-555555555555"));
const Timestamp now(std::chrono::milliseconds(1773394200000));

template <typename T>
std::optional<T> decoded(const QByteArray &json)
{
    simdjson::dom::parser parser;
    simdjson::dom::element element;
    if (parser.parse(json.constData(), std::size_t(json.size())).get(element) != simdjson::SUCCESS)
        return std::nullopt;
    T value{};
    if (!RecordDecoder::read(element, value, DecodeContext{now, [] { return madeId; }}))
        return std::nullopt;
    return value;
}

template <typename T>
QByteArray encoded(const T &value)
{
    JsonWriter json;
    RecordEncoder::write(json, value);
    return json.take();
}

template <typename Record>
QString keys()
{
    QStringList names;
    std::apply([&names](const auto &...field) { (names.append(QLatin1String(field.name.data())), ...); },
               Record::fields());
    return names.join(u' ');
}

TaskItem task(TaskStatus status)
{
    TaskItem item;
    item.status = status;
    return item;
}
} // namespace

class ModelsTest : public QObject
{
    Q_OBJECT

private slots:
    void keysAsFilesHoldThem();
    void recordsRoundTrip();
    void greeting_data();
    void greeting();
    void hiddenModules();
    void settingsKeepWhatTheyCanRead();
    void projectProgress_data();
    void projectProgress();
    void lineCount();
    void previewText();
    void rowValues();
    void bodyLines();
    void slidePlaceholders();
    void starterDeck();
    void deckMatches();
    void decksReadWhateverTheyCan();
};

void ModelsTest::keysAsFilesHoldThem()
{
    QCOMPARE(keys<Folder>(), QStringLiteral("id name icon sortOrder createdDate updatedDate"));
    QCOMPARE(keys<Page>(), QStringLiteral("id title icon kind content isFavorite folderID sortOrder "
                                          "createdDate updatedDate"));
    QCOMPARE(keys<Block>(), QStringLiteral("id type text checked tone language"));
    QCOMPARE(keys<TaskItem>(), QStringLiteral("id title status priority dueDate projectID notes createdDate "
                                              "updatedDate completedDate"));
    QCOMPARE(keys<CalendarEvent>(), QStringLiteral("id title date timeMinutes kind notes createdDate"));
    QCOMPARE(keys<Project>(), QStringLiteral("id name icon details status dueDate isTemplate cover "
                                             "milestones createdDate updatedDate"));
    QCOMPARE(keys<Milestone>(), QStringLiteral("id title done"));
    QCOMPARE(keys<Activity>(), QStringLiteral("id projectID text kind date"));
    QCOMPARE(keys<Habit>(), QStringLiteral("id name emoji accent targetPerWeek completions sortOrder "
                                           "createdDate"));
    QCOMPARE(keys<CodeDocument>(), QStringLiteral("id title language source isFavorite sortOrder "
                                                  "createdDate updatedDate"));
    QCOMPARE(keys<Book>(), QStringLiteral("id gutenbergID title author language subjects downloadURL "
                                          "progress lastLocation createdDate updatedDate"));
    QCOMPARE(keys<DatabaseTable>(), QStringLiteral("id name icon details properties views isTemplate "
                                                   "sortOrder createdDate updatedDate"));
    QCOMPARE(keys<DBRow>(), QStringLiteral("id tableID values sortOrder createdDate updatedDate"));
    QCOMPARE(keys<DBProperty>(), QStringLiteral("id name type options"));
    QCOMPARE(keys<DBView>(), QStringLiteral("id name type filters sorts groupBy"));
    QCOMPARE(keys<DBFilter>(), QStringLiteral("id propID op value"));
    QCOMPARE(keys<DBSort>(), QStringLiteral("id propID descending"));
    QCOMPARE(keys<Deck>(), QStringLiteral("id title summary author theme slides showNumbers isFavorite "
                                          "sortOrder createdDate updatedDate"));
    QCOMPARE(keys<Slide>(), QStringLiteral("id kind kicker title subtitle body bodyB notes"));
    QCOMPARE(keys<SlideTheme>(), QStringLiteral("id name background ink soft accent wash band decoration "
                                                "fontKind titleWeight uppercaseTitle tracking marker"));
    QCOMPARE(keys<RelaxLink>(), QStringLiteral("id name url"));
    QCOMPARE(keys<AppSettings>(),
             QStringLiteral("userName workspaceName workspaceIcon appearance sidebarShowsIcons "
                            "reducedMotion defaultFocusMinutes hiddenModules hasCompletedOnboarding theme "
                            "menuBarEnabled menuBarShowsTasks relaxLinks relaxLastURL inkMode readerSerif "
                            "readerFontScale"));
    QCOMPARE(keys<ThemeSettings>(),
             QStringLiteral("accent canvas font fontScale corner density navigation animation accentIcons "
                            "glassySurfaces animatedBackground showQuote compactSidebar tabBarLabels "
                            "preset"));
}

void ModelsTest::recordsRoundTrip()
{
    Page page;
    page.id = madeId;
    page.folderID = madeId;
    page.createdDate = now;
    page.content = {Block(), Block()};
    page.content.first().tone = CalloutTone::danger;
    QCOMPARE(decoded<Page>(encoded(page)), page);
    QCOMPARE(decoded<Page>(encoded(page).replace(R"("kind":"page",)", "")), std::nullopt);

    Habit habit;
    habit.accent = AccentPalette::rose;
    habit.completions = {QStringLiteral("2026-03-09"), QStringLiteral("2026-03-10")};
    QCOMPARE(decoded<Habit>(encoded(habit)), habit);

    Project project;
    project.dueDate = now;
    project.cover = QStringLiteral("dusk");
    project.milestones = {{madeId, QStringLiteral("First"), true}};
    QCOMPARE(decoded<Project>(encoded(project)), project);

    DatabaseTable table;
    table.properties = {{madeId, QStringLiteral("Status"), DBPropertyType::status, {QStringLiteral("Done")}}};
    table.views = {DBView()};
    table.views.first().groupBy = madeId;
    table.views.first().filters = {{madeId, madeId, FilterOp::isNot, QStringLiteral("x")}};
    QCOMPARE(decoded<DatabaseTable>(encoded(table)), table);

    Deck deck = Deck::starter(QStringLiteral("Talk"), SlideTheme::catalog().last(), QStringLiteral("Me"), now,
                              &QUuid::createUuid);
    deck.theme.id = QStringLiteral("of-my-own");
    deck.theme.accent = QStringLiteral("ABCDEF");
    QCOMPARE(decoded<Deck>(encoded(deck)), deck);

    AppSettings settings;
    settings.relaxLinks = {{madeId, QStringLiteral("Rain"), QStringLiteral("https://example.org/rain")}};
    settings.theme.navigation = NavigationStyle::glassDock;
    QCOMPARE(decoded<AppSettings>(encoded(settings)), settings);
}

void ModelsTest::greeting_data()
{
    QTest::addColumn<int>("hour");
    QTest::addColumn<QString>("words");
    QTest::newRow("midnight") << 0 << "Still up";
    QTest::newRow("04:59") << 4 << "Still up";
    QTest::newRow("05:00") << 5 << "Good morning";
    QTest::newRow("11:59") << 11 << "Good morning";
    QTest::newRow("12:00") << 12 << "Good afternoon";
    QTest::newRow("17:59") << 17 << "Good afternoon";
    QTest::newRow("18:00") << 18 << "Good evening";
    QTest::newRow("23:59") << 23 << "Good evening";
}

void ModelsTest::greeting()
{
    QFETCH(int, hour);
    QFETCH(QString, words);
    AppSettings settings;
    QCOMPARE(settings.greeting(hour), words);
    settings.userName = QStringLiteral("  ");
    QCOMPARE(settings.greeting(hour), words);
    settings.userName = QStringLiteral(" Ada Lovelace\n");
    QCOMPARE(settings.greeting(hour), words + QStringLiteral(", Ada Lovelace"));
}

void ModelsTest::hiddenModules()
{
    AppSettings settings;
    QCOMPARE(settings.visibleModules().size(), 14);
    settings.hiddenModules = {QStringLiteral("later"), QStringLiteral("tasks")};
    settings.setModule(OrvelModule::tasks, false);
    QCOMPARE(settings.hiddenModules, (QStringList{QStringLiteral("later"), QStringLiteral("tasks")}));
    QCOMPARE(settings.visibleModules().size(), 13);
    QVERIFY(!settings.visibleModules().contains(OrvelModule::tasks));

    settings.hiddenModules.append(QStringLiteral("tasks"));
    settings.setModule(OrvelModule::tasks, true);
    QCOMPARE(settings.hiddenModules, QStringList{QStringLiteral("later")});

    for (const auto &entry : enumCases<OrvelModule>())
        settings.setModule(entry.value, false);
    QVERIFY(settings.visibleModules().isEmpty());
}

void ModelsTest::settingsKeepWhatTheyCanRead()
{
    QCOMPARE(decoded<AppSettings>("{}"), AppSettings());
    QCOMPARE(decoded<AppSettings>("[]"), std::nullopt);
    const auto settings = decoded<AppSettings>(
        R"({"userName":5,"appearance":"sepia","hiddenModules":["nowhere"],"relaxLinks":[{"name":"x"}],)"
        R"("defaultFocusMinutes":50,"theme":{"accent":"teal","fontScale":"big","canvas":null}})");
    AppSettings expected;
    expected.hiddenModules = {QStringLiteral("nowhere")};
    expected.defaultFocusMinutes = 50;
    expected.theme.accent = AccentPalette::teal;
    QCOMPARE(settings, expected);
    QCOMPARE(decoded<AppSettings>(R"({"theme":3,"userName":"Ada"})")->userName, QStringLiteral("Ada"));
}

void ModelsTest::projectProgress_data()
{
    QTest::addColumn<int>("total");
    QTest::addColumn<int>("done");
    QTest::addColumn<int>("percent");
    QTest::newRow("no tasks") << 0 << 0 << 0;
    QTest::newRow("1 of 3") << 3 << 1 << 33;
    QTest::newRow("2 of 3") << 3 << 2 << 67;
    QTest::newRow("1 of 2") << 2 << 1 << 50;
    QTest::newRow("1 of 8, a half") << 8 << 1 << 13;
    QTest::newRow("1 of 201") << 201 << 1 << 0;
    QTest::newRow("1 of 200, a half") << 200 << 1 << 1;
    QTest::newRow("all") << 7 << 7 << 100;
}

void ModelsTest::projectProgress()
{
    QFETCH(int, total);
    QFETCH(int, done);
    QFETCH(int, percent);
    QList<TaskItem> tasks(done, task(TaskStatus::done));
    while (tasks.size() < total)
        tasks.prepend(task(tasks.size() % 2 ? TaskStatus::todo : TaskStatus::inProgress));
    const ProjectProgress progress(tasks);
    QCOMPARE(progress.total, total);
    QCOMPARE(progress.done, done);
    QCOMPARE(progress.percent, percent);
}

void ModelsTest::lineCount()
{
    CodeDocument document;
    QCOMPARE(document.lineCount(), 1);
    document.source = QStringLiteral("a\n");
    QCOMPARE(document.lineCount(), 2);
    document.source = QStringLiteral("\n\na\r\n");
    QCOMPARE(document.lineCount(), 4);
}

void ModelsTest::previewText()
{
    Page page;
    QCOMPARE(page.previewText(), QString());
    for (const char *text : {"\n ", "First  line", "", "second\n"}) {
        page.content.emplaceBack();
        page.content.last().text = QString::fromLatin1(text);
    }
    page.content[2].type = BlockType::divider;
    QCOMPARE(page.previewText(), QStringLiteral("First  line  second"));
}

void ModelsTest::rowValues()
{
    const DBProperty property{QUuid(QStringLiteral("0f8fad5b-d9cb-469f-a165-70867728950e")), {}, {}, {}};
    DBRow row;
    QCOMPARE(row.value(property), QString());
    row.values = {{QStringLiteral("0F8FAD5B-D9CB-469F-A165-70867728950E"), QStringLiteral("x")}};
    QCOMPARE(row.value(property), QStringLiteral("x"));
}

void ModelsTest::bodyLines()
{
    Slide slide;
    QCOMPARE(slide.bodyLines(), QStringList{QString()});
    slide.body = QStringLiteral("a\n\nb\r\n");
    slide.bodyB = QStringLiteral("\n");
    QCOMPARE(slide.bodyLines(),
             (QStringList{QStringLiteral("a"), QString(), QStringLiteral("b\r"), QString()}));
    QCOMPARE(slide.bodyBLines(), (QStringList{QString(), QString()}));
}

void ModelsTest::slidePlaceholders()
{
    const QStringList expected{
        QStringLiteral("title;Eyebrow text;Presentation title;Subtitle, date or occasion;;"),
        QStringLiteral("section;01;Section name;One line about this section;;"),
        QStringLiteral("statement;;The single idea;Supporting line;;"),
        QStringLiteral("bullets;;Heading;;One point per line;"),
        QStringLiteral("twoColumn;;Heading;;Left column — one point per line;"
                       "Right column — one point per line"),
        QStringLiteral("quote;;;Who said it;The quotation;"),
        QStringLiteral("stats;;Heading;;72 | Conversion rate\n1.4s | Median load\n98 | Lighthouse;"),
        QStringLiteral("closing;;Thank you;How to reach you;;"),
    };
    QStringList found;
    for (const auto &entry : enumCases<SlideKind>()) {
        QStringList prompts{enumRawText(entry.value)};
        for (const auto field : {SlideField::kicker, SlideField::title, SlideField::subtitle,
                                 SlideField::body, SlideField::bodyB})
            prompts.append(slidePlaceholder(entry.value, field));
        found.append(prompts.join(u';'));
    }
    QCOMPARE(found, expected);
}

void ModelsTest::starterDeck()
{
    const Deck deck = Deck::starter(QStringLiteral("Talk"), SlideTheme::catalog().at(2), QStringLiteral("Me"),
                                    now, &QUuid::createUuid);
    QCOMPARE(deck.title, QStringLiteral("Talk"));
    QCOMPARE(deck.theme.id, QStringLiteral("noir"));
    QCOMPARE(deck.author, QStringLiteral("Me"));
    QCOMPARE(deck.sortOrder, 1773394200.0);
    QCOMPARE(deck.createdDate, now);
    QCOMPARE(deck.updatedDate, now);
    QVERIFY(deck.showNumbers && !deck.isFavorite && deck.summary.isEmpty());

    QStringList slides;
    QSet<QUuid> ids{deck.id};
    for (const Slide &slide : deck.slides) {
        ids.insert(slide.id);
        slides.append(QStringList{enumRawText(slide.kind), slide.kicker, slide.title, slide.subtitle,
                                  slide.body, slide.bodyB, slide.notes}
                          .join(u';'));
    }
    QCOMPARE(ids.size(), 5);
    QCOMPARE(slides,
             (QStringList{QStringLiteral("title;;Talk;;;;"),
                          QStringLiteral("section;01;Overview;What this deck covers;;;"),
                          QStringLiteral("bullets;;Three things to remember;;Keep it short\nShow, don't "
                                         "tell\nEnd with a clear ask;;"),
                          QStringLiteral("closing;;Thank you;Questions?;;;")}));
}

void ModelsTest::deckMatches()
{
    Deck deck;
    deck.title = QStringLiteral("Quarterly Übersicht");
    deck.summary = QStringLiteral("For the board");
    deck.author = QStringLiteral("Nobody");
    Slide slide;
    slide.kicker = QStringLiteral("eyebrow");
    slide.title = QStringLiteral("Where we");
    slide.subtitle = QStringLiteral("stand");
    slide.body = QStringLiteral("Growth\n");
    slide.bodyB = QStringLiteral("second column");
    slide.notes = QStringLiteral("whispered");
    deck.slides = {Slide(), slide};
    for (const char *query : {"quarter", "BOARD", "we stand", "stand grow", "growth"})
        QVERIFY2(deck.matches(QString::fromLatin1(query)), query);
    QVERIFY(deck.matches(QStringLiteral("über")));
    for (const char *query : {"nobody", "eyebrow", "second", "whispered", "growth\n", "board where"})
        QVERIFY2(!deck.matches(QString::fromLatin1(query)), query);
}

void ModelsTest::decksReadWhateverTheyCan()
{
    for (const char *json : {"{}", "[]", "null", "7"}) {
        const auto deck = decoded<Deck>(json);
        QVERIFY2(deck, json);
        QCOMPARE(*deck, Deck::fresh(now, madeId));
    }
    QCOMPARE(Deck::fresh(now, madeId).title, QStringLiteral("Untitled"));
    QCOMPARE(Deck::fresh(now, madeId).theme, SlideTheme::catalog().first());

    const auto odd = decoded<Deck>(R"({"showNumbers":"no","isFavorite":1,"sortOrder":"x","title":"Talk"})");
    QVERIFY(odd->showNumbers && !odd->isFavorite);
    QCOMPARE(odd->sortOrder, 1773394200.0);
    QCOMPARE(odd->title, QStringLiteral("Talk"));

    const auto slides =
        decoded<Deck>(R"({"slides":[7,{"kind":"hologram","title":"x"},{"kind":"stats","body":2}]})")->slides;
    QCOMPARE(slides.size(), 3);
    QCOMPARE(slides.at(0), Slide::fresh(madeId));
    QCOMPARE(slides.at(1).kind, SlideKind::title);
    QCOMPARE(slides.at(1).title, QStringLiteral("x"));
    QCOMPARE(slides.at(2).kind, SlideKind::stats);

    const auto theme = decoded<Deck>(R"({"theme":{"id":"mine","accent":"ABCDEF","decoration":"glow",)"
                                     R"("titleWeight":"thin","marker":"star"}})")
                           ->theme;
    SlideTheme expected;
    expected.id = QStringLiteral("mine");
    expected.accent = QStringLiteral("ABCDEF");
    QCOMPARE(theme, expected);
    QCOMPARE(decoded<Deck>(R"({"theme":7})")->theme, SlideTheme());
    QCOMPARE(decoded<Deck>(R"({"theme":null})")->theme, SlideTheme::inkTheme());
}

QTEST_GUILESS_MAIN(ModelsTest)
#include "tst_models.moc"
