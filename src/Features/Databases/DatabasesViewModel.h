#pragma once

#include "Features/Databases/DatabaseRows.h"
#include "Foundation/Choice.h"
#include "Foundation/KeyedListModel.h"
#include "Session/ViewModel.h"

/// The frame of the databases screen: the rail of databases, the header of the open one and the tabs of its
/// views. Kinds of views and properties are told by their raw texts.
class DatabasesViewModel : public ViewModel
{
    Q_OBJECT
    QML_ELEMENT
    /// `DatabaseRailRow`s.
    Q_PROPERTY(QAbstractItemModel *databases READ databases CONSTANT FINAL)
    /// The place of the open database among them; -1 for none.
    Q_PROPERTY(int selectedRow READ selectedRow NOTIFY selectedRowChanged FINAL)
    Q_PROPERTY(QVariant selectedID READ selectedVariant NOTIFY selectionChanged FINAL)
    Q_PROPERTY(bool hasSelection READ hasSelection NOTIFY selectionChanged FINAL)
    Q_PROPERTY(QString name READ name NOTIFY headerChanged FINAL)
    Q_PROPERTY(QString details READ details NOTIFY headerChanged FINAL)
    Q_PROPERTY(QString icon READ icon NOTIFY headerChanged FINAL)
    Q_PROPERTY(bool isStarred READ isStarred NOTIFY headerChanged FINAL)
    Q_PROPERTY(QList<QString> icons READ icons CONSTANT FINAL)
    /// `ViewTabRow`s.
    Q_PROPERTY(QAbstractItemModel *views READ views CONSTANT FINAL)
    Q_PROPERTY(QVariant viewID READ viewVariant NOTIFY viewChanged FINAL)
    Q_PROPERTY(int viewRow READ viewRow NOTIFY viewChanged FINAL)
    Q_PROPERTY(QString footnote READ footnote NOTIFY viewChanged FINAL)

    Q_PROPERTY(QList<Choice> templates READ templates CONSTANT FINAL)
    Q_PROPERTY(QList<Choice> viewTypes READ viewTypes CONSTANT FINAL)
    Q_PROPERTY(QList<Choice> propertyTypes READ propertyTypes CONSTANT FINAL)

public:
    explicit DatabasesViewModel(QObject *parent = nullptr);

    QAbstractItemModel *databases() { return &m_databases; }
    int selectedRow() const { return m_selectedRow; }
    QVariant selectedVariant() const { return m_table.id; }
    bool hasSelection() const { return !m_table.id.isNull(); }
    const QString &name() const { return m_table.name; }
    const QString &details() const { return m_table.details; }
    const QString &icon() const { return m_table.icon; }
    bool isStarred() const { return m_table.isTemplate; }
    static QList<QString> icons();
    QAbstractItemModel *views() { return &m_views; }
    QVariant viewVariant() const;
    int viewRow() const;
    QString footnote() const;
    static QList<Choice> templates();
    static QList<Choice> viewTypes() { return Choice::all<DBViewType>(); }
    static QList<Choice> propertyTypes() { return Choice::all<DBPropertyType>(); }

    Q_INVOKABLE void select(const QUuid &tableID);
    /// Opens the database so many rows further down, or the one at that end; the first one if none is open.
    Q_INVOKABLE void selectBy(int rows);
    /// Makes a database and opens it.
    Q_INVOKABLE void newDatabase();
    Q_INVOKABLE void newFromTemplate(const QString &templateID);
    /// Deletes the database with its records. If it is open, nothing is open afterwards.
    Q_INVOKABLE void remove(const QUuid &tableID);

    /// Take the texts as they are typed, on one line.
    Q_INVOKABLE void setName(const QString &name);
    Q_INVOKABLE void setDetails(const QString &details);
    Q_INVOKABLE void setIcon(const QString &icon);
    Q_INVOKABLE void toggleStar();

    Q_INVOKABLE void selectView(const QUuid &viewID);
    /// Opens the view so many tabs further on; at the ends it does nothing.
    Q_INVOKABLE void selectViewBy(int tabs);
    /// Adds a view of this type, named after it, and opens it.
    Q_INVOKABLE void addView(const QString &type);
    /// A blank name changes nothing.
    Q_INVOKABLE void renameView(const QUuid &viewID, const QString &name);
    /// The last view stays.
    Q_INVOKABLE void removeView(const QUuid &viewID);

    Q_INVOKABLE static bool supportsOptions(const QString &type);
    /// Whether the name of a new property is more than blanks.
    Q_INVOKABLE static bool isName(const QString &name) { return !name.trimmed().isEmpty(); }
    /// @param options separated by commas; only types with options keep them
    Q_INVOKABLE void addProperty(const QString &name, const QString &type, const QString &options);

signals:
    void selectedRowChanged();
    /// Another database is open, or none.
    void selectionChanged();
    void headerChanged();
    void viewChanged();

protected:
    void refresh(const ChangeSet &changes) override;
    bool reveal(const UndoPlace &place) override;

private:
    const DBView *view() const;
    void open(const DatabaseTable &table);
    void layOutRail();
    void showTable();
    void showSelectedRow();
    /// @param message what the window tells of it; empty for nothing
    void change(const QString &name, const std::function<void(DatabaseTable &)> &edit,
                const QString &message = {});

    KeyedListModel<DatabaseRailRow> m_databases;
    KeyedListModel<ViewTabRow> m_views;
    /// What is shown of the open database; without an id for none.
    DatabaseTable m_table;
    QUuid m_wantedView;
    int m_selectedRow = -1;
};
