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
    row.showsText = true;
    return row;
}

/// Nothing for a place whose record is gone.
std::optional<PaletteRow> rowOf(const WorkspaceStore &store, const Destination &place)
{
    const auto named = [&](const QString &title, const QString &symbol, const QString &emoji = {}) {
        const QString trimmed = title.trimmed();
        PaletteRow row =
            rowOf(trimmed.isEmpty() ? QCoreApplication::translate("PaletteRows", "Untitled") : trimmed);
        row.symbol = symbol;
        row.emoji = emoji;
        row.destination = place;
        return row;
    };
    if (const auto module = OrvelNavigation::module(place))
        return rowOf(*module);
    if (place.kind == Destination::Kind::settings)
        return named(QCoreApplication::translate("PaletteRows", "Settings"), u"gearshape"_s);
    if (const Page *const page = store.list<Page>().first(place.id))
        return rowOf(*page);
    if (const Project *const project = store.list<Project>().first(place.id))
        return named(project->name, enumSymbol(SearchResultKind::project), project->icon);
    if (const CodeDocument *const document = store.list<CodeDocument>().first(place.id))
        return named(document->title, enumSymbol(SearchResultKind::code));
    if (const Deck *const deck = store.list<Deck>().first(place.id))
        return named(deck->title, enumSymbol(SearchResultKind::deck));
    return std::nullopt;
}

PaletteRow rowOf(const NamedCommand &command, const QString &query)
{
    PaletteRow row = rowOf(command.title, query);
    row.keys = command.keys;
    row.symbol = u"command"_s;
    row.command = command.id;
    return row;
}

/// The newest pages of the kind `page`; of equally new ones those that come first in the workspace. One walk
/// without a list of all pages, as there may be very many.
QList<const Page *> recentPages(const WorkspaceStore &store)
{
    QList<const Page *> newest;
    for (const Page &page : store.pages()) {
        const bool isFull = newest.size() == PaletteRows::mostRecent;
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

QList<PaletteRow> PaletteRows::start(const WorkspaceStore &store, const Destination &present,
                                     const QList<Destination> &visited)
{
    QList<PaletteRow> rows;
    const auto isListed = [&rows](const Destination &place) {
        return std::ranges::find(rows, place, &PaletteRow::destination) != rows.end();
    };
    for (const Destination &place : visited)
        if (const auto row = rowOf(store, place); row && rows.size() < mostRecent)
            rows.append(*row);
    for (const Page *const page : recentPages(store))
        if (const auto place = Destination::page(page->id);
            rows.size() < mostRecent && place != present && !isListed(place))
            rows.append(rowOf(*page));
    if (!rows.isEmpty())
        rows.first().header = QCoreApplication::translate("PaletteRows", "RECENT");
    const qsizetype recent = rows.size();
    for (const OrvelNavigation::Group &group : OrvelNavigation::visibleGroups(store.settings()))
        for (const OrvelModule module : group.modules)
            if (rows.size() < recent + mostLinks && !isListed(OrvelNavigation::destination(module)))
                rows.append(rowOf(module));
    if (rows.size() > recent)
        rows[recent].header = QCoreApplication::translate("PaletteRows", "QUICK LINKS");
    numberRows(rows);
    return rows;
}

QList<PaletteRow> PaletteRows::found(const QList<SearchResult> &results, const QList<NamedCommand> &commands,
                                     const QString &query)
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
    const qsizetype start = rows.size();
    for (const NamedCommand &command : commands)
        if (command.title.contains(query, Qt::CaseInsensitive))
            rows.append(rowOf(command, query));
    if (rows.size() > start)
        rows[start].header = QCoreApplication::translate("PaletteRows", "COMMANDS");
    numberRows(rows);
    return rows;
}
