#pragma once

#include "Features/Settings/SettingChoice.h"
#include "Foundation/KeyedListModel.h"
#include "Session/ViewModel.h"

/// The values to choose from for one field of the settings, as they would look now. A choice is told by its
/// position.
class SettingChoices : public ViewModel
{
    Q_OBJECT
    QML_ELEMENT
    /// See `SettingRows`.
    Q_PROPERTY(QString field READ field WRITE setField NOTIFY fieldChanged REQUIRED FINAL)
    Q_PROPERTY(QAbstractItemModel *rows READ rows CONSTANT FINAL)
    /// The selected choice; -1 if the setting has a value that is not among them.
    Q_PROPERTY(int currentIndex READ currentIndex NOTIFY currentIndexChanged FINAL)

public:
    explicit SettingChoices(QObject *parent = nullptr);

    const QString &field() const { return m_field; }
    void setField(const QString &field);
    QAbstractItemModel *rows() { return &m_rows; }
    const QList<SettingChoice> &choices() const { return m_rows.rows(); }
    int currentIndex() const { return m_currentIndex; }

    /// Changes the setting at once; of modules it shows or hides the one.
    Q_INVOKABLE void choose(int index);

signals:
    void fieldChanged();
    void currentIndexChanged();

private:
    void refresh(const ChangeSet &changes) override;

    QString m_field;
    KeyedListModel<SettingChoice> m_rows;
    int m_currentIndex = -1;
};
