#pragma once

#include <QObject>
#include <QtQml/qqmlregistration.h>

/// A shortcut as the sheet shows it.
struct ShortcutRow {
    Q_GADGET
    QML_ANONYMOUS
    Q_PROPERTY(QString title MEMBER title FINAL)
    Q_PROPERTY(QString symbol MEMBER symbol FINAL)
    Q_PROPERTY(QList<QString> caps MEMBER caps FINAL)
    Q_PROPERTY(QString keys MEMBER keys FINAL)

public:
    QString title;
    QString symbol;
    /// One text for each key of this machine.
    QList<QString> caps;
    /// The same on one line.
    QString keys;

    bool operator==(const ShortcutRow &) const = default;
};

/// The shortcuts of one category.
struct ShortcutRowGroup {
    Q_GADGET
    QML_ANONYMOUS
    Q_PROPERTY(QString title MEMBER title FINAL)
    Q_PROPERTY(QList<ShortcutRow> rows MEMBER rows FINAL)

public:
    QString title;
    QList<ShortcutRow> rows;

    bool operator==(const ShortcutRowGroup &) const = default;
};
