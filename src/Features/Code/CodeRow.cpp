#include "Features/Code/CodeRow.h"

#include <QCoreApplication>

CodeRow CodeRow::of(const CodeDocument &document)
{
    const QString title = document.title.trimmed();
    return {.id = document.id,
            .title = title.isEmpty() ? QCoreApplication::translate("CodeRow", "Untitled") : title,
            .detail =
                enumLabel(document.language) + QStringLiteral(" · ") + lineCountText(document.lineCount())};
}

QString CodeRow::lineCountText(qsizetype count)
{
    return count == 1 ? QCoreApplication::translate("CodeRow", "1 line")
                      : QCoreApplication::translate("CodeRow", "%L1 lines").arg(count);
}

bool CodeRow::matches(const CodeDocument &document, const QString &query)
{
    return document.title.contains(query, Qt::CaseInsensitive) || languageMatches(document, query) ||
           document.source.contains(query, Qt::CaseInsensitive);
}

bool CodeRow::languageMatches(const CodeDocument &document, const QString &query)
{
    return enumLabel(document.language).contains(query, Qt::CaseInsensitive);
}
