#pragma once

#include "Features/Palette/ShortcutRow.h"

#include <QtQml/qqmlregistration.h>

/// What the sheet of keyboard shortcuts shows.
class ShortcutsViewModel : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    /// A part of a title or of keys. Keys are found as they are named on this machine, in any order and
    /// unfinished ("ctrl sh"), and as they are written with signs ("⌘⇧").
    Q_PROPERTY(QString query READ query WRITE setQuery NOTIFY queryChanged FINAL)
    /// The shortcuts that the query leaves.
    Q_PROPERTY(QList<ShortcutRowGroup> groups READ groups NOTIFY groupsChanged FINAL)

public:
    explicit ShortcutsViewModel(QObject *parent = nullptr);

    const QString &query() const { return m_query; }
    void setQuery(const QString &query);
    const QList<ShortcutRowGroup> &groups() const { return m_groups; }

signals:
    void queryChanged();
    void groupsChanged();

private:
    QString m_query;
    QList<ShortcutRowGroup> m_groups;
};
