#pragma once

#include "Foundation/EnumTable.h"

#include <QList>
#include <QString>

struct ShortcutItem;

/// The keyboard shortcuts that the program tells of. The keys themselves are bound by the commands.
namespace OVShortcuts
{
enum class Category { general, navigate, create, view };

struct Group {
    Category category;
    QList<ShortcutItem> items;
};

/// All shortcuts in the order in which they are shown.
const QList<ShortcutItem> &all();
/// The shortcuts by category; one without shortcuts is left out.
const QList<Group> &grouped();
/// The keys of the shortcut with this id in portable form, such as "Ctrl+Shift+K"; empty for an unknown id.
QString portableKeys(QStringView id);
} // namespace OVShortcuts

template <>
struct EnumTable<OVShortcuts::Category> {
    using Category = OVShortcuts::Category;
    static constexpr auto cases = std::to_array<EnumCase<Category>>({
        {Category::general, "general", u"General"},
        {Category::navigate, "navigate", u"Navigate"},
        {Category::create, "create", u"Create"},
        {Category::view, "view", u"View"},
    });
};

struct ShortcutItem {
    QString id;
    QString title;
    /// The main modifier as "⌘", Shift as "⇧", then the key.
    QString keys;
    OVShortcuts::Category category = OVShortcuts::Category::general;
    /// Name of the product's own symbol set.
    QString systemImage;

    bool operator==(const ShortcutItem &) const = default;

    /// The keys in portable form, such as "Ctrl+Shift+K".
    QString portableKeys() const;
};
