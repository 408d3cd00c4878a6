#pragma once

#include "Store/Snapshot.h"

/// A workspace with one record of each kind, every field of it set to something that shows when it is lost.
namespace SampleSnapshot
{
inline QUuid id(int number)
{
    return QUuid(0xabcdef00u + uint(number), 0x1234, 0x4abc, 0x8d, 0xef, 0, 0, 0, 0, 0, 1);
}

inline Timestamp moment(int day)
{
    return std::chrono::sys_days(std::chrono::year(2026) / 3 / day) + std::chrono::hours(9) +
           std::chrono::minutes(30);
}

inline DatabaseTable table()
{
    const DBView view{id(22),
                      QStringLiteral("By day"),
                      DBViewType::calendar,
                      {{id(23), id(21), FilterOp::isExactly, QStringLiteral("Done")}},
                      {{id(24), id(21), true}},
                      id(21)};
    const DBProperty property{id(21),
                              QStringLiteral("State"),
                              DBPropertyType::select,
                              {QStringLiteral("Open"), QStringLiteral("Done")}};
    return {id(20),
            QStringLiteral("Sources"),
            QStringLiteral("🔬"),
            QStringLiteral("a/b"),
            {property},
            {view},
            true,
            20.25,
            moment(1),
            moment(2)};
}

inline Snapshot make()
{
    Snapshot sample;
    sample.settings.userName = QStringLiteral("Zoë");
    sample.settings.appearance = AppearanceMode::dark;
    sample.settings.hiddenModules = {QStringLiteral("relax")};
    sample.settings.hasCompletedOnboarding = true;
    sample.settings.theme.preset = ThemePreset::ember;
    sample.settings.relaxLinks = {
        {id(1), QStringLiteral("Rain"), QStringLiteral("https://example.org/rain")}};
    sample.list<Folder>() = {
        {id(2), QStringLiteral("Work"), QStringLiteral("📁"), 1.5, moment(1), moment(2)}};
    sample.list<Page>() = {{id(3),
                            QStringLiteral("Tabs\tand \"quotes\" \\ /"),
                            QStringLiteral("📄"),
                            PageKind::note,
                            {{id(4), BlockType::checklist, QStringLiteral("Line\nbreak"), true,
                              CalloutTone::tip, QStringLiteral("python")}},
                            true,
                            id(2),
                            1772357400.25,
                            moment(3),
                            moment(4)}};
    sample.list<TaskItem>() = {
        {id(5), QStringLiteral("Letter"), TaskStatus::done, TaskPriority::high, moment(5), id(7),
         QStringLiteral("n"), moment(1), moment(2), moment(3)},
        {.id = id(6), .title = QStringLiteral("Bare"), .createdDate = moment(1), .updatedDate = moment(1)}};
    sample.list<CalendarEvent>() = {
        {id(8), QStringLiteral("Call"), moment(6), 570, EventKind::reminder, QStringLiteral("x"), moment(1)}};
    sample.list<Project>() = {{id(7),
                               QStringLiteral("Book"),
                               QStringLiteral("🎯"),
                               QStringLiteral("d"),
                               ProjectStatus::onHold,
                               moment(9),
                               true,
                               QStringLiteral("dawn"),
                               {{id(9), QStringLiteral("Draft"), true}},
                               moment(1),
                               moment(2)}};
    sample.list<Activity>() = {{id(10), id(7), QStringLiteral("Began"), QStringLiteral("status"), moment(2)}};
    sample.list<DatabaseTable>() = {table()};
    sample.list<DBRow>() = {
        {id(25), id(20), {{DBRow::valueKey(id(21)), QStringLiteral("Done")}}, 2, moment(1), moment(2)}};
    sample.list<Habit>() = {{id(11),
                             QStringLiteral("Read"),
                             QStringLiteral("📚"),
                             AccentPalette::teal,
                             5,
                             {QStringLiteral("2026-03-01"), QStringLiteral("2026-03-02")},
                             3,
                             moment(1)}};
    sample.list<CodeDocument>() = {{id(12), QStringLiteral("hello"), CodeLanguage::python,
                                    QStringLiteral("print(1)\n"), true, 4, moment(1), moment(2)}};
    Deck deck = Deck::fresh(moment(1), id(13));
    deck.theme = SlideTheme::catalog().at(3);
    Slide slide = Slide::fresh(id(14));
    slide.kind = SlideKind::stats;
    slide.body = QStringLiteral("72 | Rate");
    deck.slides = {slide};
    deck.showNumbers = false;
    sample.list<Deck>() = {deck};
    sample.list<Book>() = {{id(15),
                            1342,
                            QStringLiteral("P & P"),
                            QStringLiteral("Austen, Jane"),
                            QStringLiteral("en"),
                            {QStringLiteral("Fiction")},
                            QStringLiteral("https://example.org/1342.txt"),
                            0.5,
                            12,
                            moment(1),
                            moment(2)}};
    return sample;
}
} // namespace SampleSnapshot
