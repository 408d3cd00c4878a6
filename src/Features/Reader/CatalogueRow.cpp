#include "Features/Reader/CatalogueRow.h"

#include "Foundation/LineText.h"

#include <QCoreApplication>
#include <QLocale>

CatalogueRow CatalogueRow::of(const GutenbergBook &book)
{
    return {.id = book.id,
            .title = LineText::shownTitle(book.title),
            .author = LineText::shown(book.authorLine()),
            .hasText = book.plainTextURL().has_value()};
}

QString CatalogueRow::progressOf(qint64 received, qint64 total)
{
    if (received <= 0)
        return {};
    if (total > 0)
        return QCoreApplication::translate("CatalogueRow", "%1 %").arg(100 * received / total);
    return QLocale::c().formattedDataSize(received, 0, QLocale::DataSizeTraditionalFormat);
}
