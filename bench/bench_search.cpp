#include "Foundation/SystemClock.h"
#include "Harness/Comparison.h"
#include "Harness/WorkspaceGenerator.h"
#include "Store/WorkspaceSearch.h"

#include <QCoreApplication>

#include <cstdio>

using namespace Qt::StringLiterals;

namespace
{
constexpr int pageCount = 100'000;
constexpr qsizetype pageLength = 1024;

qsizetype plainScan(const WorkspaceStore &store, const QString &query)
{
    const QString wanted = query.toLower();
    qsizetype found = 0;
    for (const Page &page : store.pages()) {
        if (page.title.toLower().contains(wanted) || page.previewText().toLower().contains(wanted))
            ++found;
        if (found == WorkspaceSearch::mostResults)
            break;
    }
    return found;
}
/// As many records again of each other kind. Few are found, and of the last kind, so that all are looked at.
void measureEveryKind(Comparison &comparison)
{
    const SystemClock clock;
    WorkspaceStore many({.filePath = u"/nowhere/workspace.json"_s, .clock = &clock});
    WorkspaceStore few({.filePath = u"/nowhere/few.json"_s, .clock = &clock});
    WorkspaceGenerator::addTo(many, WorkspaceGenerator::ofEveryKind(pageCount, 64));
    WorkspaceGenerator::addTo(few, WorkspaceGenerator::ofEveryKind(10, 64));
    WorkspaceSearch search(many), searchOfFew(few);
    search.prepare(std::chrono::hours(1));
    for (const QString &query : {u"zzz"_s, u"deck 99999"_s, u"author 9999"_s, u"database"_s, u"k 12"_s}) {
        const auto times = Comparison::alternate(
            9, [&] { return timed([&] { search.search(query); }); },
            [&] { return timed([&] { searchOfFew.search(query); }); });
        comparison.timeUnder(
            u"search \"%1\" in 100,000 records of each of nine kinds, against 10"_s.arg(query),
            Comparison::quantile(times.ours, 0.95), Comparison::quantile(times.baseline, 0.95),
            Comparison::Duration(16));
    }
}
} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    const SystemClock clock;
    WorkspaceStore store({.filePath = u"/nowhere/workspace.json"_s, .clock = &clock});
    Snapshot pages;
    pages.list<Page>() = WorkspaceGenerator::longPages(pageCount, pageLength);
    WorkspaceGenerator::addTo(store, pages);

    Comparison comparison;
    WorkspaceSearch search(store);
    const auto prepared = timed([&] { search.prepare(std::chrono::hours(1)); });
    std::fprintf(stderr, "signatures of %d pages made in %.0f ms\n", pageCount, prepared.count());
    for (const QString &query :
         {u"zzz"_s, u"ZZ top"_s, u"page 99999"_s, u"river of paper moon"_s, u"q"_s, u"meeting no"_s}) {
        const auto times = Comparison::alternate(
            3, [&] { return timed([&] { search.search(query); }); },
            [&] { return timed([&] { plainScan(store, query); }); });
        if (search.search(query).size() != plainScan(store, query))
            std::exit(2);
        comparison.timeUnder(u"search \"%1\" in 100,000 pages, against a plain scan"_s.arg(query),
                             Comparison::best(times.ours), Comparison::best(times.baseline),
                             Comparison::Duration(16));
        // A common word fills the list of results from the first pages, which no search can do faster.
        if (Comparison::best(times.baseline) > Comparison::Duration(16))
            comparison.timeAtMost(u"search \"%1\", as a share of a plain scan"_s.arg(query),
                                  Comparison::best(times.ours), Comparison::best(times.baseline), 0.2);
    }
    measureEveryKind(comparison);
    return comparison.exitCode();
}
