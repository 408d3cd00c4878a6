#pragma once

#include "Features/Pages/BlockSelection.h"
#include "Features/Pages/ClipboardReader.h"

#include <QtQml/qqmlregistration.h>

class PageEditorViewModel;

/// The selected blocks of a page: which they are, and what is done with them as one.
class PageSelection : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The editor has it")
    Q_PROPERTY(bool active READ isActive NOTIFY changed FINAL)
    /// Rows; -1 without a selection.
    Q_PROPERTY(int first READ first NOTIFY changed FINAL)
    Q_PROPERTY(int last READ last NOTIFY changed FINAL)
    /// The row of the end that moves.
    Q_PROPERTY(int focusRow READ focusRow NOTIFY changed FINAL)
    /// "3 blocks selected".
    Q_PROPERTY(QString text READ text NOTIFY changed FINAL)

public:
    explicit PageSelection(PageEditorViewModel *editor);

    bool isActive() const { return !m_range.isEmpty(); }
    int first() const { return isActive() ? int(m_range.first) : -1; }
    int last() const { return int(m_range.end()) - 1; }
    int focusRow() const;
    QString text() const;
    QList<Block> blocks() const;

    /// Selects from one block to another.
    Q_INVOKABLE void select(const QUuid &anchor, const QUuid &focus);
    /// Moves the end to this block, or begins with it.
    Q_INVOKABLE void extendTo(const QUuid &blockID);
    /// Moves the end by as many blocks, downwards if positive, up to the edge of the page.
    Q_INVOKABLE void extend(int delta);
    Q_INVOKABLE void selectAll();
    Q_INVOKABLE void clear();
    Q_INVOKABLE bool includes(int row) const { return row >= first() && row <= last() && isActive(); }

    Q_INVOKABLE void copy() const;
    Q_INVOKABLE void cut();
    /// Takes the blocks away; the block after them gets the focus.
    Q_INVOKABLE void remove();
    /// Puts a block of this text in their place, in which the user goes on writing.
    Q_INVOKABLE void typeOver(const QString &text);
    /// Puts what is on the clipboard in their place.
    Q_INVOKABLE void paste(bool plain);
    Q_INVOKABLE void duplicate();
    Q_INVOKABLE void changeType(int type);
    /// Moves the blocks by one place, upwards (-1) or downwards (1).
    Q_INVOKABLE void move(int direction);
    /// Moves the blocks to before this row.
    Q_INVOKABLE void moveTo(int row);

    /// Looks where the blocks stand now.
    void update();

signals:
    void changed();

private:
    void replace(const QString &name, QList<Block> blocks, qsizetype caret);
    void setSelection(const BlockSelection &selection);

    PageEditorViewModel &m_editor;
    BlockSelection m_selection;
    BlockRange m_range;
    ClipboardReader m_clipboard;
};
