#pragma once

#include "Foundation/KeyedListModel.h"
#include "Models/DatabaseTable.h"

#include <QDateTime>
#include <QMap>
#include <QObject>

/// The values of a record as layouts pass them on, shared with the record itself.
struct RecordValues {
    Q_GADGET

public:
    QMap<QString, QString> values;

    bool operator==(const RecordValues &) const = default;
};

/// A record in a layout.
struct RecordRow {
    Q_GADGET
    Q_PROPERTY(QUuid recordID MEMBER id FINAL)
    Q_PROPERTY(RecordValues values MEMBER values FINAL)
    /// What stands over the records of one day in a calendar; empty elsewhere.
    Q_PROPERTY(QString section MEMBER section FINAL)

public:
    QUuid id;
    RecordValues values;
    QString section;

    bool operator==(const RecordRow &) const = default;
};

/// The records of a board that share a value.
struct RecordGroup {
    Q_GADGET
    Q_PROPERTY(QString label MEMBER id FINAL)
    Q_PROPERTY(int count READ count FINAL)
    /// A `BadgeTone`.
    Q_PROPERTY(int tone MEMBER tone FINAL)

public:
    QString id;
    QList<RecordRow> records;
    int tone = 0;

    static constexpr NestedList nestedList{"cards", &RecordGroup::records};

    bool operator==(const RecordGroup &) const = default;
    int count() const { return int(records.size()); }
};

/// A property as layouts show it.
struct RecordColumn {
    Q_GADGET
    Q_PROPERTY(QUuid propertyID READ propertyID FINAL)
    Q_PROPERTY(QString name READ name FINAL)
    Q_PROPERTY(QString symbol READ symbol FINAL)
    Q_PROPERTY(QStringList options READ options FINAL)
    Q_PROPERTY(bool isTitle MEMBER isTitle FINAL)

public:
    DBProperty property;
    /// The key of its values.
    QString key;
    bool isTitle = false;

    bool operator==(const RecordColumn &) const = default;

    QUuid propertyID() const { return property.id; }
    /// "Untitled" for a blank one.
    QString name() const;
    QString symbol() const { return enumSymbol(property.type); }
    const QStringList &options() const { return property.options; }
};

/// One value as a cell shows and edits it.
struct RecordCell {
    Q_GADGET
    /// A `Kind`, as the value display of the view names them.
    Q_PROPERTY(int kind READ kindIndex FINAL)
    Q_PROPERTY(QString text MEMBER text FINAL)
    Q_PROPERTY(QString shown MEMBER shown FINAL)
    Q_PROPERTY(QString name MEMBER name FINAL)
    Q_PROPERTY(QString placeholder MEMBER placeholder FINAL)
    Q_PROPERTY(QStringList chosen MEMBER chosen FINAL)
    Q_PROPERTY(int tone MEMBER tone FINAL)
    Q_PROPERTY(double progress MEMBER progress FINAL)
    Q_PROPERTY(bool isChecked MEMBER isChecked FINAL)
    Q_PROPERTY(bool isTitle MEMBER isTitle FINAL)
    Q_PROPERTY(bool isToday MEMBER isToday FINAL)
    Q_PROPERTY(QDateTime day MEMBER day FINAL)

public:
    /// How the value is shown and edited.
    enum class Kind { none, field, link, number, progress, check, choice, choices, date };

    Kind kind = Kind::none;
    /// The value as it is stored.
    QString text;
    /// The value on one line; empty for what is shown by other means than words.
    QString shown;
    /// The name of the property.
    QString name;
    /// What stands in place of an empty value.
    QString placeholder;
    /// The options that are chosen.
    QStringList chosen;
    /// A `BadgeTone`.
    int tone = 0;
    /// From 0 to 1.
    double progress = 0;
    bool isChecked = false;
    bool isTitle = false;
    bool isToday = false;
    /// Invalid for a value that is no date.
    QDateTime day;

    int kindIndex() const { return int(kind); }

    static RecordCell of(const RecordColumn &column, const RecordValues &values, QDate today);
};
