#include "Features/Reader/BookRow.h"

#include "Foundation/LineText.h"

#include <QCoreApplication>

BookRow BookRow::of(const Book &book)
{
    QStringList authors;
    for (const QString &author : book.author.split(u';', Qt::SkipEmptyParts))
        if (const QString name = author.trimmed(); !name.isEmpty())
            authors.append(name);
    return {.id = book.id,
            .title = LineText::shownTitle(book.title),
            .author = authors.isEmpty() ? QCoreApplication::translate("BookRow", "Unknown author")
                                        : authors.join(QStringLiteral(", "))};
}
