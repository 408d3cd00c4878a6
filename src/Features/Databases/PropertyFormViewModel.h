#pragma once

#include "Foundation/Choice.h"
#include "Foundation/KeyedListModel.h"
#include "Models/DatabaseTable.h"
#include "Session/ViewModel.h"

/// An option of a property as the form edits it.
struct OptionRow {
    Q_GADGET
    Q_PROPERTY(int optionID MEMBER id FINAL)
    Q_PROPERTY(QString text MEMBER text FINAL)
    /// A `BadgeTone`.
    Q_PROPERTY(int tone MEMBER tone FINAL)

public:
    int id = 0;
    QString text;
    int tone = 0;
    /// The text that records hold so far; empty for a new option.
    QString stored;

    bool operator==(const OptionRow &) const = default;
};

/// The form that changes the name, the type and the options of a property. Nothing changes before `apply`;
/// then records that hold an option with a new name hold the new name.
class PropertyFormViewModel : public ViewModel
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString name READ name WRITE setName NOTIFY changed FINAL)
    /// Raw text of the `DBPropertyType`.
    Q_PROPERTY(QString type READ type WRITE setType NOTIFY changed FINAL)
    Q_PROPERTY(QString typeLabel READ typeLabel NOTIFY changed FINAL)
    Q_PROPERTY(bool hasOptions READ hasOptions NOTIFY changed FINAL)
    Q_PROPERTY(bool canApply READ canApply NOTIFY changed FINAL)
    /// `OptionRow`s.
    Q_PROPERTY(QAbstractItemModel *options READ options CONSTANT FINAL)

public:
    explicit PropertyFormViewModel(QObject *parent = nullptr) : ViewModel(parent) {}

    const QString &name() const { return m_property.name; }
    void setName(const QString &name);
    QString type() const { return enumRawText(m_property.type); }
    /// A type with options that has none yet gets those that the records hold. Unknown texts are ignored.
    void setType(const QString &type);
    QString typeLabel() const { return enumLabel(m_property.type); }
    bool hasOptions() const { return supportsOptions(m_property.type); }
    bool canApply() const { return !m_property.name.trimmed().isEmpty(); }
    QAbstractItemModel *options() { return &m_options; }

    /// Fills the form; false for a property that is gone.
    Q_INVOKABLE bool load(const QUuid &tableID, const QUuid &propertyID);
    /// Adds the options that stand between commas.
    Q_INVOKABLE void addOptions(const QString &text);
    /// A blank text leaves the option its name.
    Q_INVOKABLE void renameOption(int optionID, const QString &text);
    /// Puts the option so many places further down.
    Q_INVOKABLE void moveOption(int optionID, int places);
    /// The records that hold the option keep it.
    Q_INVOKABLE void removeOption(int optionID);
    Q_INVOKABLE void apply();

signals:
    void changed();

protected:
    void refresh(const ChangeSet &) override {}

private:
    void append(QList<OptionRow> &rows, const QString &text, const QString &stored);
    /// The different values that the records of the table hold.
    QStringList storedOptions() const;

    QUuid m_tableID;
    DBProperty m_property;
    KeyedListModel<OptionRow> m_options;
    int m_lastID = 0;
};
