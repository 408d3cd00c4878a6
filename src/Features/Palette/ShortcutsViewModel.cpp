#include "Features/Palette/ShortcutsViewModel.h"

#include "DesignSystem/KeyText.h"
#include "Support/OVShortcuts.h"

#include <QRegularExpression>

#include <algorithm>
#include <functional>

namespace
{
/// Whether each word of the query begins the name of a key of its own.
bool namesKeys(QStringList caps, const QString &query)
{
    static const QRegularExpression between(QStringLiteral("[+\\s]+"));
    QStringList words = query.split(between, Qt::SkipEmptyParts);
    // What "shift" begins, "s" begins as well: the longer word has less to choose from.
    std::ranges::stable_sort(words, std::greater(), &QString::size);
    return !words.isEmpty() && std::ranges::all_of(words, [&caps](const QString &word) {
        const auto key = std::ranges::find_if(
            caps, [&word](const QString &cap) { return cap.startsWith(word, Qt::CaseInsensitive); });
        if (key == caps.end())
            return false;
        caps.erase(key);
        return true;
    });
}

bool matches(const ShortcutItem &item, const QStringList &caps, const QString &query)
{
    return item.title().toLower().contains(query) || item.keys.toLower().contains(query) ||
           namesKeys(caps, query);
}

QList<ShortcutRowGroup> groupsFor(const QString &query)
{
    QList<ShortcutRowGroup> groups;
    for (const OVShortcuts::Group &group : OVShortcuts::grouped()) {
        ShortcutRowGroup next{enumLabel(group.category), {}};
        for (const ShortcutItem &item : group.items) {
            const QStringList caps = KeyText::caps(item.portableKeys());
            if (matches(item, caps, query))
                next.rows.append({item.title(), item.systemImage, caps, KeyText::of(item.portableKeys())});
        }
        if (!next.rows.isEmpty())
            groups.append(next);
    }
    return groups;
}
} // namespace

ShortcutsViewModel::ShortcutsViewModel(QObject *parent) : QObject(parent), m_groups(groupsFor({})) {}

void ShortcutsViewModel::setQuery(const QString &query)
{
    if (m_query == query)
        return;
    m_query = query;
    emit queryChanged();
    if (auto next = groupsFor(query.trimmed().toLower()); next != m_groups) {
        m_groups = std::move(next);
        emit groupsChanged();
    }
}
