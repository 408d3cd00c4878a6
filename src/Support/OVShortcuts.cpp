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
        {u"palette"_s, u"Command palette"_s, u"⌘K"_s, general, u"magnifyingglass"_s},
        {u"settings"_s, u"Open settings"_s, u"⌘,"_s, general, u"gearshape"_s},
        {u"shortcuts"_s, u"Keyboard shortcuts"_s, u"⌘/"_s, general, u"keyboard"_s},
        {u"sidebar"_s, u"Toggle sidebar"_s, u"⌘⇧S"_s, general, u"sidebar.left"_s},
        {u"theme"_s, u"Cycle theme accent"_s, u"⌘⇧T"_s, general, u"paintpalette"_s},
        {u"appearance"_s, u"Cycle light / dark"_s, u"⌘⇧L"_s, general, u"circle.lefthalf.filled"_s},
        {u"dashboard"_s, u"Dashboard"_s, u"⌘1"_s, navigate, u"square.grid.2x2"_s},
        {u"today"_s, u"Today"_s, u"⌘2"_s, navigate, u"sun.max"_s},
        {u"focus"_s, u"Focus"_s, u"⌘3"_s, navigate, u"timer"_s},
        {u"tasks"_s, u"Tasks"_s, u"⌘4"_s, navigate, u"checkmark.square"_s},
        {u"calendar"_s, u"Calendar"_s, u"⌘5"_s, navigate, u"calendar"_s},
        {u"projects"_s, u"Projects"_s, u"⌘6"_s, navigate, u"target"_s},
        {u"notes"_s, u"Notes"_s, u"⌘7"_s, navigate, u"note.text"_s},
        {u"databases"_s, u"Databases"_s, u"⌘8"_s, navigate, u"cylinder.split.1x2"_s},
        {u"habits"_s, u"Habits"_s, u"⌘⇧H"_s, navigate, u"flame"_s},
        {u"insights"_s, u"Insights"_s, u"⌘⇧I"_s, navigate, u"chart.line.uptrend.xyaxis"_s},
        {u"relax"_s, u"Relax"_s, u"⌘⇧R"_s, navigate, u"leaf"_s},
        {u"newPage"_s, u"New page"_s, u"⌘N"_s, create, u"doc.badge.plus"_s},
        {u"newNote"_s, u"New note"_s, u"⌘⇧N"_s, create, u"note.text.badge.plus"_s},
        {u"newTask"_s, u"New task"_s, u"⌘⇧K"_s, create, u"checkmark.square"_s},
        {u"cycleNav"_s, u"Cycle navigation style"_s, u"⌘⇧D"_s, view, u"rectangle.on.rectangle"_s},
        {u"shuffleQuote"_s, u"Shuffle daily quote"_s, u"⌘⇧Q"_s, view, u"quote.bubble"_s},
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

QString ShortcutItem::portableKeys() const
{
    return QString(keys).replace(u"⌘"_s, u"Ctrl+"_s).replace(u"⇧"_s, u"Shift+"_s);
}
