#pragma once

#include "Features/Reader/BookContents.h"

#include <QAbstractListModel>

/// The rows of the open book for a view. They never change, only the book as a whole does.
class BookRows : public QAbstractListModel
{
    Q_OBJECT

public:
    enum Role { textRole = Qt::UserRole + 1, headingRole, continuesRole };

    using QAbstractListModel::QAbstractListModel;

    /// Null for no book.
    void setContents(SharedBookContents contents);

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

private:
    SharedBookContents m_contents;
};
