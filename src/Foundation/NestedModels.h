#pragma once

#include <QAbstractItemModel>
#include <QHash>

#include <functional>

/// What tells the rows of a list apart: their `id`, a member or a function without arguments, of any type
/// that QHash takes as a key.
template <typename Row>
using RowKey = std::remove_cvref_t<std::invoke_result_t<decltype(&Row::id), const Row &>>;

/// A row of a list as a screen shows it: a gadget whose properties are the roles, with an id and
/// `operator==`.
template <typename Row>
concept KeyedRow = std::default_initializable<Row> && requires(const Row &row, const RowKey<Row> &key) {
    Row::staticMetaObject;
    { key == key } -> std::convertible_to<bool>;
    { row == row } -> std::convertible_to<bool>;
};

/// The list that a row owns, such as the cards of a column, and the role through which a view gets it as a
/// model: `static constexpr NestedList nestedList{"cards", &BoardColumn::cards};`
template <typename Owner, typename Row>
struct NestedList {
    const char *role;
    QList<Row> Owner::*rows;

    using RowType = Row;
};
template <typename Owner, typename Row>
NestedList(const char *, QList<Row> Owner::*) -> NestedList<Owner, Row>;

template <typename Row>
concept OwnsList = requires { Row::nestedList; };

template <KeyedRow Row>
class KeyedListModel;

/// The models of the lists that the rows of a model own; nothing for rows that own none.
template <typename Row>
class NestedModels
{
};

template <OwnsList Row>
class NestedModels<Row>
{
    using Model = KeyedListModel<typename decltype(Row::nestedList)::RowType>;

public:
    /// The model of the row's list, made when a view first asks for it.
    QAbstractItemModel *modelOf(const Row &row) const
    {
        Model *&model = m_models[std::invoke(&Row::id, row)];
        if (!model) {
            model = new Model(&m_owner);
            model->setRows(row.*Row::nestedList.rows);
        }
        return model;
    }

    /// Takes over the row's list where a view has asked for it.
    void update(const Row &row)
    {
        if (Model *const model = m_models.value(std::invoke(&Row::id, row)))
            model->setRows(row.*Row::nestedList.rows);
    }

    /// Lets go of the model of a row that is removed.
    void forget(const Row &row)
    {
        // Delegates on their way out still show the list.
        if (Model *const model = m_models.take(std::invoke(&Row::id, row)))
            model->deleteLater();
    }

private:
    mutable QHash<RowKey<Row>, Model *> m_models;
    mutable QObject m_owner;
};
