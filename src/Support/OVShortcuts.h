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
        {Category::general, "general", QT_TRANSLATE_NOOP("EnumLabel", "General")},
        {Category::navigate, "navigate", QT_TRANSLATE_NOOP("EnumLabel", "Navigate")},
        {Category::create, "create", QT_TRANSLATE_NOOP("EnumLabel", "Create")},
        {Category::view, "view", QT_TRANSLATE_NOOP("EnumLabel", "View")},
    });
};

struct ShortcutItem {
    QString id;
    /// The title in English.
    const char *source = "";
    /// The main modifier as "⌘", Shift as "⇧", then the key.
    QString keys;
    OVShortcuts::Category category = OVShortcuts::Category::general;
    /// Name of the product's own symbol set.
    QString systemImage;

    /// The title in the user's language.
    QString title() const;
    /// The keys in portable form, such as "Ctrl+Shift+K".
    QString portableKeys() const;
};
