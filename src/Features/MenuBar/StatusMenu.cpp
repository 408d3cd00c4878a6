#include "Features/MenuBar/StatusMenu.h"

#include <QDBusMetaType>
#include <QGuiApplication>

#include <algorithm>

using namespace Qt::StringLiterals;

StatusMenu::StatusMenu(Source entries, QObject *parent)
    : QObject(parent), m_source(std::move(entries)), m_entries(m_source())
{
    qDBusRegisterMetaType<StatusMenuLayout>();
    qDBusRegisterMetaType<StatusMenuProperties>();
    qDBusRegisterMetaType<QList<StatusMenuProperties>>();
    qDBusRegisterMetaType<StatusMenuEvent>();
    qDBusRegisterMetaType<QList<StatusMenuEvent>>();
}

QString StatusMenu::textDirection()
{
    return QGuiApplication::layoutDirection() == Qt::RightToLeft ? u"rtl"_s : u"ltr"_s;
}

uint StatusMenu::GetLayout(int parent, int depth, const QStringList &, StatusMenuLayout &layout)
{
    layout = {.id = parent, .properties = properties(parent)};
    if (parent == 0 && depth != 0)
        for (int id = int(m_entries.size()); id > 0; --id)
            layout.children.append(
                QVariant::fromValue(StatusMenuLayout{.id = id, .properties = properties(id)}));
    return m_revision;
}

QList<StatusMenuProperties> StatusMenu::GetGroupProperties(const QList<int> &ids, const QStringList &)
{
    QList<StatusMenuProperties> answer;
    for (int id = 0; has(id); ++id)
        if (ids.isEmpty() || ids.contains(id))
            answer.append({id, properties(id)});
    return answer;
}

QDBusVariant StatusMenu::GetProperty(int id, const QString &name)
{
    return QDBusVariant(properties(id).value(name, QString()));
}

void StatusMenu::Event(int id, const QString &event, const QDBusVariant &, uint)
{
    if (event != u"clicked" || id < 1 || !has(id))
        return;
    // The action may end the program or change the entries.
    if (const auto action = entry(id).action)
        action();
}

QList<int> StatusMenu::EventGroup(const QList<StatusMenuEvent> &events)
{
    QList<int> unknown;
    for (const StatusMenuEvent &event : events) {
        if (has(event.id))
            Event(event.id, event.event, event.data, event.timestamp);
        else
            unknown.append(event.id);
    }
    return unknown;
}

bool StatusMenu::AboutToShow(int id)
{
    return id == 0 && update();
}

QList<int> StatusMenu::AboutToShowGroup(const QList<int> &ids, QList<int> &unknown)
{
    QList<int> changed;
    for (const int id : ids) {
        if (!has(id))
            unknown.append(id);
        else if (AboutToShow(id))
            changed.append(id);
    }
    return changed;
}

QVariantMap StatusMenu::properties(int id) const
{
    if (id == 0)
        return {{u"children-display"_s, u"submenu"_s}};
    if (!has(id))
        return {};
    const Entry &entry = this->entry(id);
    if (entry.label.isEmpty())
        return {{u"type"_s, u"separator"_s}};
    // A single underscore would mark the key of the entry.
    return {{u"label"_s, QString(entry.label).replace(u'_', "__"_L1)}, {u"enabled"_s, bool(entry.action)}};
}

bool StatusMenu::update()
{
    QList<Entry> next = m_source();
    const bool isSame = std::ranges::equal(next, m_entries, {}, &Entry::label, &Entry::label);
    m_entries = std::move(next);
    if (isSame)
        return false;
    emit LayoutUpdated(++m_revision, 0);
    return true;
}
