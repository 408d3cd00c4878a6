#pragma once

#include "Features/Databases/DatabaseRows.h"
#include "Foundation/Choice.h"
#include "Foundation/KeyedListModel.h"
#include "Session/ViewModel.h"

/// The filters, sorts and grouping of one view, with the form for a new filter. Properties are told by the
/// texts of their ids, operators by their raw texts.
class ViewSettingsViewModel : public ViewModel
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QUuid tableID READ tableID WRITE setTableID NOTIFY placeChanged FINAL)
    Q_PROPERTY(QUuid viewID READ viewID WRITE setViewID NOTIFY placeChanged FINAL)
    /// `ViewRuleRow`s.
    Q_PROPERTY(QAbstractItemModel *filters READ filters CONSTANT FINAL)
    Q_PROPERTY(QAbstractItemModel *sorts READ sorts CONSTANT FINAL)
    Q_PROPERTY(QList<Choice> properties READ properties NOTIFY propertiesChanged FINAL)
    Q_PROPERTY(QList<Choice> operators READ operators CONSTANT FINAL)
    /// What the records are grouped by; empty for nothing.
    Q_PROPERTY(QString group READ group WRITE setGroup NOTIFY viewChanged FINAL)
    Q_PROPERTY(QString groupName READ groupName NOTIFY viewChanged FINAL)
    Q_PROPERTY(int ruleCount READ ruleCount NOTIFY viewChanged FINAL)

    Q_PROPERTY(QString filterProperty READ filterProperty WRITE setFilterProperty NOTIFY formChanged FINAL)
    Q_PROPERTY(QString filterPropertyName READ filterPropertyName NOTIFY formChanged FINAL)
    Q_PROPERTY(QString filterOp READ filterOp WRITE setFilterOp NOTIFY formChanged FINAL)
    Q_PROPERTY(QString filterOpLabel READ filterOpLabel NOTIFY formChanged FINAL)
    Q_PROPERTY(QString filterValue READ filterValue WRITE setFilterValue NOTIFY formChanged FINAL)
    Q_PROPERTY(bool takesValue READ takesValue NOTIFY formChanged FINAL)
    Q_PROPERTY(bool canAddFilter READ canAddFilter NOTIFY formChanged FINAL)

public:
    explicit ViewSettingsViewModel(QObject *parent = nullptr);

    QUuid tableID() const { return m_tableID; }
    void setTableID(const QUuid &tableID);
    QUuid viewID() const { return m_viewID; }
    void setViewID(const QUuid &viewID);
    QAbstractItemModel *filters() { return &m_filters; }
    QAbstractItemModel *sorts() { return &m_sorts; }
    const QList<Choice> &properties() const { return m_properties; }
    static QList<Choice> operators() { return Choice::all<FilterOp>(); }
    const QString &group() const { return m_group; }
    void setGroup(const QString &property);
    QString groupName() const;
    int ruleCount() const { return int(m_filters.rows().size() + m_sorts.rows().size()); }

    const QString &filterProperty() const { return m_filterProperty; }
    void setFilterProperty(const QString &property);
    QString filterPropertyName() const { return propertyName(m_filterProperty); }
    QString filterOp() const { return enumRawText(m_filterOp); }
    /// Unknown texts are ignored.
    void setFilterOp(const QString &op);
    QString filterOpLabel() const { return enumLabel(m_filterOp); }
    const QString &filterValue() const { return m_filterValue; }
    void setFilterValue(const QString &value);
    /// Whether the operator compares with a value.
    bool takesValue() const;
    bool canAddFilter() const { return !filterPropertyName().isEmpty(); }

    /// Adds the filter of the form and empties its value.
    Q_INVOKABLE void addFilter();
    Q_INVOKABLE void removeFilter(const QUuid &filterID);
    /// Adds an ascending sort.
    Q_INVOKABLE void addSort(const QString &property);
    Q_INVOKABLE void toggleSort(const QUuid &sortID);
    Q_INVOKABLE void removeSort(const QUuid &sortID);

signals:
    void placeChanged();
    void propertiesChanged();
    void viewChanged();
    void formChanged();

protected:
    void refresh(const ChangeSet &changes) override;

private:
    /// Empty for a property that is gone.
    QString propertyName(const QString &property) const;
    QString ruleName(const QUuid &property) const;
    void mutate(const QString &name, const std::function<void(DBView &)> &edit);

    QUuid m_tableID;
    QUuid m_viewID;
    QList<Choice> m_properties;
    KeyedListModel<ViewRuleRow> m_filters;
    KeyedListModel<ViewRuleRow> m_sorts;
    QString m_group;
    QString m_filterProperty;
    FilterOp m_filterOp = FilterOp::isExactly;
    QString m_filterValue;
};
