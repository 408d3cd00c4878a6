#include "Features/Code/ConsoleExcerpt.h"

#include <QCoreApplication>
#include <QLocale>

QString ConsoleExcerpt::of(const QString &output, qsizetype limit)
{
    if (output.size() <= limit)
        return output;
    qsizetype head = limit / 2, tail = output.size() - limit / 2;
    // Whole lines where there are any nearby.
    if (const qsizetype line = output.lastIndexOf(u'\n', head - 1); line > head / 2)
        head = line + 1;
    else if (output.at(head).isLowSurrogate())
        --head;
    if (const qsizetype line = output.indexOf(u'\n', tail); line >= 0 && line < output.size() - limit / 4)
        tail = line + 1;
    else if (output.at(tail).isLowSurrogate())
        ++tail;
    const QString end = output.at(head - 1) == u'\n' ? QString() : QStringLiteral("\n");
    return output.first(head) + end + gap(tail - head) + output.sliced(tail);
}

QString ConsoleExcerpt::gap(qint64 omitted)
{
    return u'\n' +
           QCoreApplication::translate("ConsoleExcerpt",
                                       "… %1 characters are left out here; Copy takes them all …")
               .arg(QLocale(QLocale::English).toString(omitted)) +
           QStringLiteral("\n\n");
}
