#include "Features/Palette/PaletteRows.h"

#include "DesignSystem/KeyText.h"
#include "Foundation/Graphemes.h"
#include "Foundation/TextMatches.h"
#include "Store/SearchResult.h"
#include "Support/OVShortcuts.h"
#include "Support/OrvelNavigation.h"
#include "Support/RecordIcon.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace
{
/// More of a title than this never fits on a line.
constexpr qsizetype longestTitle = 300;

PaletteRow rowOf(const QString &title, const QString &query = {})
{
    const QString shown = Graphemes::left(title, longestTitle);
    return {.title = TextMatches::emphasized(shown, TextMatches::find(shown, query)), .name = shown};
}

PaletteRow rowOf(OrvelModule module)
{
    PaletteRow row = rowOf(enumLabel(module));
    row.symbol = enumSymbol(module);
    row.keys = KeyText::of(OVShortcuts::portableKeys(enumRawText(module)));
    row.destination = OrvelNavigation::destination(module);
    return row;
}

PaletteRow rowOf(const Page &page)
{
    const QString title = page.title.trimmed();
    PaletteRow row = rowOf(title.isEmpty() ? QCoreApplication::translate("PaletteRows", "Untitled") : title);
    const RecordIcon icon = RecordIcon::of(page);
    row.symbol = icon.symbol;
    row.emoji = icon.emoji;
    row.destination = Destination::page(page.id);
    return row;
}

PaletteRow rowOf(const SearchResult &result, const QString &query)
{
    PaletteRow row = rowOf(result.title, query);
    row.subtitle = result.subtitle;
    row.symbol = enumSymbol(result.kind);
    row.emoji = result.emoji;
    if (result.kind == SearchResultKind::page || result.kind == SearchResultKind::note) {
        const PageKind kind = result.kind == SearchResultKind::note ? PageKind::note : PageKind::page;
        row.emoji = RecordIcon::of(Page{.icon = result.emoji, .kind = kind}).emoji;
    }
    row.destination = result.destination;
    return row;
}

/// The newest pages of the kind `page`; of equally new ones those that come first in the workspace. One walk
/// without a list of all pages, as there may be very many.
QList<const Page *> recentPages(const WorkspaceStore &store)
{
    QList<const Page *> newest;
    for (const Page &page : store.pages()) {
        const bool isFull = newest.size() == PaletteRows::mostRecentPages;
        if (page.kind != PageKind::page || (isFull && page.updatedDate <= newest.last()->updatedDate))
            continue;
        if (isFull)
            newest.removeLast();
        const auto place = std::ranges::find_if(
            newest, [&page](const Page *other) { return other->updatedDate < page.updatedDate; });
        newest.insert(place, &page);
    }
    return newest;
}

void numberRows(QList<PaletteRow> &rows)
{
    for (qsizetype i = 0; i < rows.size(); ++i)
        rows[i].id = QUuid(uint(i + 1), 0, 0, 0, 0, 0, 0, 0, 0, 0, 0);
}
} // namespace

QList<PaletteRow> PaletteRows::start(const WorkspaceStore &store)
{
    QList<PaletteRow> rows;
    QList<OrvelModule> modules;
    for (const OrvelNavigation::Group &group : OrvelNavigation::visibleGroups(store.settings()))
        modules += group.modules;
    for (const OrvelModule module : modules.first(std::min(mostLinks, modules.size())))
        rows.append(rowOf(module));
    if (!rows.isEmpty())
        rows.first().header = QCoreApplication::translate("PaletteRows", "QUICK LINKS");
    const qsizetype links = rows.size();
    for (const Page *const page : recentPages(store))
        rows.append(rowOf(*page));
    if (rows.size() > links)
        rows[links].header = u"RECENT"_s;
    numberRows(rows);
    return rows;
}

QList<PaletteRow> PaletteRows::found(const QList<SearchResult> &results, const QString &query)
{
    QList<SearchResultKind> kinds;
    for (const SearchResult &result : results)
        if (!kinds.contains(result.kind))
            kinds.append(result.kind);
    QList<PaletteRow> rows;
    for (const SearchResultKind kind : kinds) {
        const qsizetype start = rows.size();
        for (const SearchResult &result : results)
            if (result.kind == kind)
                rows.append(rowOf(result, query));
        rows[start].header = enumRawText(kind).toUpper();
    }
    numberRows(rows);
    return rows;
}
