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
} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    const SystemClock clock;
    WorkspaceStore store({.filePath = u"/nowhere/workspace.json"_s, .clock = &clock});
    for (const Page &page : WorkspaceGenerator::longPages(pageCount, pageLength))
        store.add(page);

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
    return comparison.exitCode();
}
