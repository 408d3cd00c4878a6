#pragma once

#include <QAbstractItemModel>
#include <QCoreApplication>

/// What a model of a screen shows, as tests compare it.
namespace ShownRows
{
/// Ends the turn of the event loop, at which view models refresh.
inline void finishTurn()
{
    QCoreApplication::sendPostedEvents();
}

/// The role with this name of a row.
inline QVariant role(const QAbstractItemModel *model, int row, const QByteArray &name)
{
    return model->index(row, 0).data(model->roleNames().key(name));
}

/// The texts of a role in all rows, with "|" between them.
inline QString texts(const QAbstractItemModel *model, const QByteArray &name)
{
    QStringList texts;
    for (int row = 0; row < model->rowCount(); ++row)
        texts.append(role(model, row, name).toString());
    return texts.join(u'|');
}
} // namespace ShownRows
