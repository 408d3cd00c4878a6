#pragma once

#include "Foundation/EnumTable.h"
#include "Foundation/FieldList.h"

#include <QList>
#include <QUuid>

#include <optional>

/// How a view lays its rows out.
enum class DBViewType { table, board, list, gallery, calendar };

template <>
struct EnumTable<DBViewType> {
    static constexpr auto cases = std::to_array<EnumCase<DBViewType>>({
        {DBViewType::table, "table", QT_TRANSLATE_NOOP("EnumLabel", "Table"), "tablecells"},
        {DBViewType::board, "board", QT_TRANSLATE_NOOP("EnumLabel", "Board"), "rectangle.split.3x1"},
        {DBViewType::list, "list", QT_TRANSLATE_NOOP("EnumLabel", "List"), "list.bullet.indent"},
        {DBViewType::gallery, "gallery", QT_TRANSLATE_NOOP("EnumLabel", "Gallery"), "square.grid.2x2"},
        {DBViewType::calendar, "calendar", QT_TRANSLATE_NOOP("EnumLabel", "Calendar"), "calendar"},
    });
};

enum class FilterOp { isExactly, isNot, contains, isEmpty, isNotEmpty, before, after };

template <>
struct EnumTable<FilterOp> {
    static constexpr auto cases = std::to_array<EnumCase<FilterOp>>({
        {FilterOp::isExactly, "is", QT_TRANSLATE_NOOP("EnumLabel", "is")},
        {FilterOp::isNot, "isNot", QT_TRANSLATE_NOOP("EnumLabel", "is not")},
        {FilterOp::contains, "contains", QT_TRANSLATE_NOOP("EnumLabel", "contains")},
        {FilterOp::isEmpty, "isEmpty", QT_TRANSLATE_NOOP("EnumLabel", "is empty")},
        {FilterOp::isNotEmpty, "isNotEmpty", QT_TRANSLATE_NOOP("EnumLabel", "is not empty")},
        {FilterOp::before, "before", QT_TRANSLATE_NOOP("EnumLabel", "is before")},
        {FilterOp::after, "after", QT_TRANSLATE_NOOP("EnumLabel", "is after")},
    });
};

struct DBFilter {
    QUuid id;
    QUuid propID;
    FilterOp op = FilterOp::isExactly;
    QString value;

    bool operator==(const DBFilter &) const = default;

    static constexpr auto fields()
    {
        return std::tuple{Field{"id", &DBFilter::id}, Field{"propID", &DBFilter::propID},
                          Field{"op", &DBFilter::op}, Field{"value", &DBFilter::value}};
    }
};

struct DBSort {
    QUuid id;
    QUuid propID;
    bool descending = false;

    bool operator==(const DBSort &) const = default;

    static constexpr auto fields()
    {
        return std::tuple{Field{"id", &DBSort::id}, Field{"propID", &DBSort::propID},
                          Field{"descending", &DBSort::descending}};
    }
};

/// A saved lens on the rows of a database.
struct DBView {
    QUuid id;
    QString name = QStringLiteral("All");
    DBViewType type = DBViewType::table;
    /// All have to match.
    QList<DBFilter> filters;
    /// The first is the primary key.
    QList<DBSort> sorts;
    /// The property whose values make the groups.
    std::optional<QUuid> groupBy;

    bool operator==(const DBView &) const = default;

    static constexpr auto fields()
    {
        return std::tuple{Field{"id", &DBView::id},       Field{"name", &DBView::name},
                          Field{"type", &DBView::type},   Field{"filters", &DBView::filters},
                          Field{"sorts", &DBView::sorts}, Field{"groupBy", &DBView::groupBy}};
    }
};
