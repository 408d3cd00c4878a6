#include "Features/Reader/BookRows.h"

void BookRows::setContents(SharedBookContents contents)
{
    beginResetModel();
    m_contents = std::move(contents);
    endResetModel();
}

int BookRows::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() || !m_contents ? 0 : m_contents->rowCount();
}

QVariant BookRows::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
        return {};
    const BookContents::Row &row = m_contents->rows()[index.row()];
    switch (role) {
    case textRole:
        return m_contents->rowText(index.row()).toString();
    case headingRole:
        return row.isHeading;
    case continuesRole:
        return row.continues;
    default:
        return {};
    }
}

QHash<int, QByteArray> BookRows::roleNames() const
{
    return {{textRole, "text"}, {headingRole, "isHeading"}, {continuesRole, "continues"}};
}
