#include "Features/Reader/GutenbergText.h"

#include "Foundation/Utf8.h"

using namespace Qt::StringLiterals;

QString GutenbergText::decode(QByteArrayView bytes)
{
    QString text = Utf8::decode(bytes).value_or(QString::fromLatin1(bytes));
    return text.replace("\r\n"_L1, "\n"_L1);
}

bool GutenbergText::isWebPage(const QString &text)
{
    const QStringView start = QStringView(text).trimmed();
    return start.startsWith("<!doctype html"_L1, Qt::CaseInsensitive) ||
           start.startsWith("<html"_L1, Qt::CaseInsensitive);
}
