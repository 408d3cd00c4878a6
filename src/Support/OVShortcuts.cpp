#include "Support/OVShortcuts.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace
{
QList<OVShortcuts::Group> group(const QList<ShortcutItem> &items)
{
    QList<OVShortcuts::Group> groups;
    for (const auto &category : enumCases<OVShortcuts::Category>()) {
        OVShortcuts::Group next{category.value, {}};
        std::ranges::copy_if(items, std::back_inserter(next.items),
                             [&](const ShortcutItem &item) { return item.category == category.value; });
        if (!next.items.isEmpty())
            groups.append(next);
    }
    return groups;
}
} // namespace

const QList<ShortcutItem> &OVShortcuts::all()
{
    using enum Category;
    static const QList<ShortcutItem> items{
        {u"palette"_s, QT_TRANSLATE_NOOP("OVShortcuts", "Command palette"), u"⌘K"_s, general,
         u"magnifyingglass"_s},
        {u"settings"_s, QT_TRANSLATE_NOOP("OVShortcuts", "Open settings"), u"⌘,"_s, general, u"gearshape"_s},
        {u"shortcuts"_s, QT_TRANSLATE_NOOP("OVShortcuts", "Keyboard shortcuts"), u"⌘/"_s, general,
         u"keyboard"_s},
        {u"sidebar"_s, QT_TRANSLATE_NOOP("OVShortcuts", "Toggle sidebar"), u"⌘⇧S"_s, general,
         u"sidebar.left"_s},
        {u"theme"_s, QT_TRANSLATE_NOOP("OVShortcuts", "Cycle theme accent"), u"⌘⇧T"_s, general,
         u"paintpalette"_s},
        {u"appearance"_s, QT_TRANSLATE_NOOP("OVShortcuts", "Cycle light / dark"), u"⌘⇧L"_s, general,
         u"circle.lefthalf.filled"_s},
        {u"dashboard"_s, QT_TRANSLATE_NOOP("OVShortcuts", "Dashboard"), u"⌘1"_s, navigate,
         u"square.grid.2x2"_s},
        {u"today"_s, QT_TRANSLATE_NOOP("OVShortcuts", "Today"), u"⌘2"_s, navigate, u"sun.max"_s},
        {u"focus"_s, QT_TRANSLATE_NOOP("OVShortcuts", "Focus"), u"⌘3"_s, navigate, u"timer"_s},
        {u"tasks"_s, QT_TRANSLATE_NOOP("OVShortcuts", "Tasks"), u"⌘4"_s, navigate, u"checkmark.square"_s},
        {u"calendar"_s, QT_TRANSLATE_NOOP("OVShortcuts", "Calendar"), u"⌘5"_s, navigate, u"calendar"_s},
        {u"projects"_s, QT_TRANSLATE_NOOP("OVShortcuts", "Projects"), u"⌘6"_s, navigate, u"target"_s},
        {u"notes"_s, QT_TRANSLATE_NOOP("OVShortcuts", "Notes"), u"⌘7"_s, navigate, u"note.text"_s},
        {u"databases"_s, QT_TRANSLATE_NOOP("OVShortcuts", "Databases"), u"⌘8"_s, navigate,
         u"cylinder.split.1x2"_s},
        {u"habits"_s, QT_TRANSLATE_NOOP("OVShortcuts", "Habits"), u"⌘⇧H"_s, navigate, u"flame"_s},
        {u"insights"_s, QT_TRANSLATE_NOOP("OVShortcuts", "Insights"), u"⌘⇧I"_s, navigate,
         u"chart.line.uptrend.xyaxis"_s},
        {u"relax"_s, QT_TRANSLATE_NOOP("OVShortcuts", "Relax"), u"⌘⇧R"_s, navigate, u"leaf"_s},
        {u"newPage"_s, QT_TRANSLATE_NOOP("OVShortcuts", "New page"), u"⌘N"_s, create, u"doc.badge.plus"_s},
        {u"newNote"_s, QT_TRANSLATE_NOOP("OVShortcuts", "New note"), u"⌘⇧N"_s, create,
         u"note.text.badge.plus"_s},
        {u"newTask"_s, QT_TRANSLATE_NOOP("OVShortcuts", "New task"), u"⌘⇧K"_s, create, u"checkmark.square"_s},
        {u"cycleNav"_s, QT_TRANSLATE_NOOP("OVShortcuts", "Cycle navigation style"), u"⌘⇧D"_s, view,
         u"rectangle.on.rectangle"_s},
        {u"shuffleQuote"_s, QT_TRANSLATE_NOOP("OVShortcuts", "Shuffle daily quote"), u"⌘⇧Q"_s, view,
         u"quote.bubble"_s},
    };
    return items;
}

const QList<OVShortcuts::Group> &OVShortcuts::grouped()
{
    static const QList<Group> groups = group(all());
    return groups;
}

QString OVShortcuts::portableKeys(QStringView id)
{
    const auto found = std::ranges::find(all(), id, &ShortcutItem::id);
    return found == all().end() ? QString() : found->portableKeys();
}

QString ShortcutItem::title() const
{
    return QCoreApplication::translate("OVShortcuts", source);
}

QString ShortcutItem::portableKeys() const
{
    return QString(keys).replace(u"⌘"_s, u"Ctrl+"_s).replace(u"⇧"_s, u"Shift+"_s);
}
