#pragma once

#include "Features/Databases/DBPlace.h"
#include "Features/Databases/RecordCell.h"
#include "Foundation/KeyedListModel.h"
#include "Session/ViewModel.h"

/// The records of one view of a database, as every layout shows and edits them. A cell is told by its record
/// and the place of its column, the title standing first.
///
/// While a cell is edited its record stays where it is, even if its value sorts or filters it elsewhere.
class RecordsViewModel : public ViewModel
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QUuid tableID READ tableID WRITE setTableID NOTIFY placeChanged FINAL)
    Q_PROPERTY(QUuid viewID READ viewID WRITE setViewID NOTIFY placeChanged FINAL)
    /// Raw text of the `DBViewType`.
    Q_PROPERTY(QString layout READ layout NOTIFY layoutChanged FINAL)
    Q_PROPERTY(bool hasView READ hasView NOTIFY layoutChanged FINAL)
    Q_PROPERTY(int columnCount READ columnCount NOTIFY columnsChanged FINAL)
    /// Changes with any change of a column.
    Q_PROPERTY(int columnsRevision READ columnsRevision NOTIFY columnsChanged FINAL)
    /// `RecordRow`s.
    Q_PROPERTY(QAbstractItemModel *rows READ rows CONSTANT FINAL)
    /// `RecordGroup`s of a board; none in other layouts.
    Q_PROPERTY(QAbstractItemModel *groups READ groups CONSTANT FINAL)
    /// The column that makes the groups; -1 for none.
    Q_PROPERTY(int groupColumn READ groupColumn NOTIFY columnsChanged FINAL)
    /// The first column of dates; -1 for none.
    Q_PROPERTY(int dateColumn READ dateColumn NOTIFY columnsChanged FINAL)
    Q_PROPERTY(QString dateName READ dateName NOTIFY columnsChanged FINAL)
    Q_PROPERTY(bool isEmpty READ isEmpty NOTIFY countsChanged FINAL)
    Q_PROPERTY(QString countText READ countText NOTIFY countsChanged FINAL)

public:
    explicit RecordsViewModel(QObject *parent = nullptr);

    QUuid tableID() const { return m_tableID; }
    void setTableID(const QUuid &tableID);
    QUuid viewID() const { return m_viewID; }
    void setViewID(const QUuid &viewID);
    QString layout() const { return enumRawText(m_view.type); }
    bool hasView() const { return !m_view.id.isNull(); }
    int columnCount() const { return int(m_columns.size()); }
    int columnsRevision() const { return m_columnsRevision; }
    QAbstractItemModel *rows() { return &m_rows; }
    QAbstractItemModel *groups() { return &m_groups; }
    int groupColumn() const;
    int dateColumn() const;
    QString dateName() const { return column(dateColumn()).name(); }
    bool isEmpty() const { return m_rows.rows().isEmpty(); }
    QString countText() const;

    Q_INVOKABLE RecordColumn column(int column) const { return m_columns.value(column); }
    /// One value of a record for showing it.
    Q_INVOKABLE RecordCell cell(const RecordValues &values, int column) const;
    /// The place of a record among the rows; -1 for one that is not shown.
    Q_INVOKABLE int rowOf(const QUuid &recordID) const;
    Q_INVOKABLE QUuid recordAt(int row) const;
    /// The place of the group that holds a record, and of the record in it; -1 for none.
    Q_INVOKABLE int groupOf(const QUuid &recordID) const;
    Q_INVOKABLE int placeInGroup(const QUuid &recordID) const;
    Q_INVOKABLE QUuid recordIn(int group, int place) const;
    /// The first character of the record's title.
    Q_INVOKABLE QString glyph(const RecordValues &values) const;
    /// What assistive technology says of a cell.
    Q_INVOKABLE QString describe(int row, int column) const;

    /// The record keeps its place until `endEdit`.
    Q_INVOKABLE void beginEdit(const QUuid &recordID, int column);
    /// Writes a text as it is typed; returns the text that the cell takes.
    Q_INVOKABLE QString write(const QUuid &recordID, int column, const QString &text);
    Q_INVOKABLE void endEdit();
    /// The same if this is the value being edited.
    Q_INVOKABLE void endEditOf(const QUuid &recordID, int column);
    /// Ends the editing with the value as it was before.
    Q_INVOKABLE void cancelEdit();

    Q_INVOKABLE void setValue(const QUuid &recordID, int column, const QString &value);
    Q_INVOKABLE void toggleCheck(const QUuid &recordID, int column);
    Q_INVOKABLE void toggleOption(const QUuid &recordID, int column, const QString &option);
    Q_INVOKABLE void setDay(const QUuid &recordID, int column, const QDateTime &day);

    Q_INVOKABLE void copy(const QUuid &recordID, int column) const;
    /// Writes the cells of the clipboard from this one on to the right and down, adding records where there
    /// are too few.
    Q_INVOKABLE void paste(const QUuid &recordID, int column);

    /// Asks for the form that changes the property of a column.
    Q_INVOKABLE void editProperty(int column);
    /// Sorts by this column before all others.
    Q_INVOKABLE void sortBy(int column, bool descending);
    /// Whether a column can be put so many places further on.
    Q_INVOKABLE bool canMoveColumn(int column, int places) const;
    Q_INVOKABLE void moveColumn(int column, int places);
    /// Takes the property away; the values stay in the records.
    Q_INVOKABLE void removeColumn(int column);

    /// Adds a record at the end, which stays in view until it has been edited.
    /// @param group the label of the group that it is to stand in; else it is empty
    Q_INVOKABLE QUuid addRecord(const QString &group = {});
    Q_INVOKABLE void duplicate(const QUuid &recordID);
    Q_INVOKABLE void remove(const QUuid &recordID);

signals:
    void placeChanged();
    void layoutChanged();
    void columnsChanged();
    void countsChanged();
    void propertyEditRequested(const QUuid &propertyID);
    /// The database has a new property.
    void columnAdded(int column);
    /// A step was undone in this row.
    void revealed(int row, int column);
    /// Records have come, gone or moved.
    void laidOut();

protected:
    void refresh(const ChangeSet &changes) override;
    bool reveal(const UndoPlace &place) override;

private:
    /// Whether the records have to be laid out anew.
    bool showTable();
    void requestLayout();
    void layOut();
    /// The records of the table in the order of their creation.
    DBEngine::Rows allRows() const;
    void showRows(const DBEngine::Rows &visible);
    /// Moves one record to where it belongs among the others; false if all of them have to be laid out for
    /// that.
    bool place(const DBRow &record);
    void showCounts(std::pair<qsizetype, qsizetype> counts, bool wasEmpty);
    void showGroups(const DBEngine::Rows &visible);
    void showValues(const DBRow &record);
    const DBProperty *groupProperty() const;
    QStringList placeKeys() const;
    /// Whether a record with these values may stand elsewhere than with those.
    bool mayMove(const QMap<QString, QString> &before, const QMap<QString, QString> &after) const;
    int columnOf(const QUuid &propertyID) const;
    /// Puts the days in their order, and records without one last.
    void sortByDay(DBEngine::Rows &visible) const;
    /// Puts the record that is edited where it stood.
    void keepHeldRow(DBEngine::Rows &visible) const;
    /// Shows the changed values; false if records have to come, go or move for that.
    bool updateRows(const QSet<QUuid> &changed);
    QString valueOf(const QUuid &recordID, int column) const;

    QUuid m_tableID;
    QUuid m_viewID;
    /// The database whose columns are known.
    QUuid m_shownTable;
    DBView m_view;
    QList<RecordColumn> m_columns;
    QList<DBProperty> m_properties;
    /// The keys of the values that decide where a record stands.
    QStringList m_placeKeys;
    int m_columnsRevision = 0;
    KeyedListModel<RecordRow> m_rows;
    KeyedListModel<RecordGroup> m_groups;
    /// Made when a record is first placed by itself.
    std::unique_ptr<DBPlace> m_place;
    /// The group of each record of a board.
    QHash<QUuid, QString> m_groupOf;
    /// Of the records that the view shows, and of all.
    std::pair<qsizetype, qsizetype> m_counts{0, 0};
    bool m_isFiltered = false;
    bool m_needsLayout = false;

    /// What is being edited.
    struct Edit {
        /// The record that keeps its place.
        QUuid record;
        int column = -1;
        QString before;
        /// The values by which the record found its place.
        QMap<QString, QString> values;
        /// Of the undo history when it began.
        std::size_t steps = 0;
        /// Whether the record has only its place because it is edited.
        bool isNew = false;
    };
    Edit m_edit;
};
