#include "Features/Databases/RecordCell.h"

#include "Features/Databases/DBValue.h"
#include "Foundation/LineText.h"
#include "Support/OVDate.h"

#include <QCoreApplication>

namespace
{
using enum RecordCell::Kind;

struct CellText {
    Q_DECLARE_TR_FUNCTIONS(RecordCell)
};

RecordCell::Kind kindOf(const DBProperty &property)
{
    switch (property.type) {
    case DBPropertyType::text:
        return field;
    case DBPropertyType::url:
        return link;
    case DBPropertyType::number:
        return number;
    case DBPropertyType::progress:
        return RecordCell::Kind::progress;
    case DBPropertyType::checkbox:
        return check;
    case DBPropertyType::date:
        return date;
    case DBPropertyType::select:
    case DBPropertyType::status:
        return property.options.isEmpty() ? none : choice;
    case DBPropertyType::multiselect:
        return property.options.isEmpty() ? none : choices;
    }
    return none;
}

void showDate(RecordCell &cell, QDate today)
{
    const auto day = DBValue::date(cell.text);
    if (!day)
        return;
    cell.day = QDateTime(*day, QTime(12, 0));
    cell.isToday = *day == today;
    cell.shown = day->year() == today.year() ? OVDate::medium(*day) : OVDate::mediumYear(*day);
}
} // namespace

QString RecordColumn::name() const
{
    return LineText::shownTitle(property.name);
}

RecordCell RecordCell::of(const RecordColumn &column, const RecordValues &values, QDate today)
{
    RecordCell cell{.kind = kindOf(column.property),
                    .text = values.values.value(column.key),
                    .name = column.name(),
                    .isTitle = column.isTitle};
    cell.shown = LineText::shown(cell.text);
    switch (cell.kind) {
    case choice:
        cell.tone = int(DBValue::tone(cell.text));
        break;
    case choices:
        cell.chosen = DBValue::options(cell.text);
        break;
    case check:
        cell.isChecked = DBValue::isChecked(cell.text);
        break;
    case date:
        showDate(cell, today);
        break;
    case Kind::progress:
        cell.progress = DBValue::progress(cell.text);
        break;
    default:
        break;
    }
    if (cell.isTitle && (cell.kind == field || cell.kind == none))
        cell.placeholder = CellText::tr("Untitled");
    else if (cell.kind == choice || cell.kind == choices || cell.kind == date ||
             column.property.type == DBPropertyType::multiselect)
        cell.placeholder = CellText::tr("Empty");
    return cell;
}
