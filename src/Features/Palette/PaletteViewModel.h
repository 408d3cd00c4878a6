#pragma once

#include "Features/Palette/PaletteRow.h"
#include "Foundation/KeyedListModel.h"
#include "Session/OrvelSession.h"

#include <QtQml/qqmlregistration.h>

/// What the command palette shows and does.
class PaletteViewModel : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(WorkspaceStore *store MEMBER m_store NOTIFY sourcesChanged REQUIRED FINAL)
    Q_PROPERTY(UIState *ui READ ui WRITE setUi NOTIFY sourcesChanged REQUIRED FINAL)
    /// Knows the places visited and the commands; null for none of them.
    Q_PROPERTY(OrvelSession *session MEMBER m_session NOTIFY sourcesChanged FINAL)
    Q_PROPERTY(PreparedSearch *search MEMBER m_search NOTIFY sourcesChanged REQUIRED FINAL)

    Q_PROPERTY(QString query READ query WRITE setQuery NOTIFY queryChanged FINAL)
    Q_PROPERTY(QAbstractItemModel *rows READ rows CONSTANT FINAL)
    Q_PROPERTY(int count READ count NOTIFY rowsChanged FINAL)
    /// How many of the rows have a header.
    Q_PROPERTY(int groupCount READ groupCount NOTIFY rowsChanged FINAL)
    /// Whether the query matches nothing, and what is said then.
    Q_PROPERTY(bool isNothingFound READ isNothingFound NOTIFY rowsChanged FINAL)
    Q_PROPERTY(QString nothingFoundText READ nothingFoundText NOTIFY rowsChanged FINAL)
    /// The row that Return opens; -1 where there is none.
    Q_PROPERTY(int highlighted READ highlighted WRITE setHighlighted NOTIFY highlightedChanged FINAL)
    /// That row as it is read out.
    Q_PROPERTY(QString highlightedText READ highlightedText NOTIFY highlightedChanged FINAL)

public:
    using QObject::QObject;

    UIState *ui() const { return m_ui; }
    void setUi(UIState *ui);

    const QString &query() const { return m_query; }
    void setQuery(const QString &query);
    QAbstractItemModel *rows() { return &m_rows; }
    const QList<PaletteRow> &rowList() const { return m_rows.rows(); }
    int count() const { return int(rowList().size()); }
    int groupCount() const;
    bool isNothingFound() const;
    QString nothingFoundText() const;
    int highlighted() const { return m_highlighted; }
    /// A place without a row changes nothing.
    void setHighlighted(int row);
    QString highlightedText() const;

    /// Begins afresh, with no query.
    Q_INVOKABLE void begin();
    /// Moves the highlight by this many rows, from the last on to the first and back.
    Q_INVOKABLE void step(int rows);
    /// The same, but no further than to the first and the last.
    Q_INVOKABLE void jump(int rows);
    /// Shows or does what the row stands for and closes the palette; without such a row it does nothing.
    Q_INVOKABLE void open(int row);
    Q_INVOKABLE void openHighlighted() { open(m_highlighted); }

signals:
    void sourcesChanged();
    void queryChanged();
    /// There are other rows, and the first is highlighted.
    void rowsChanged();
    void highlightedChanged();

private:
    QList<NamedCommand> commands() const;
    void runLater(const QString &command);
    void refresh();

    WorkspaceStore *m_store = nullptr;
    UIState *m_ui = nullptr;
    OrvelSession *m_session = nullptr;
    PreparedSearch *m_search = nullptr;
    QString m_query;
    int m_highlighted = -1;
    KeyedListModel<PaletteRow> m_rows;
};
