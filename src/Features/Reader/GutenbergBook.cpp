#include "Features/Reader/GutenbergBook.h"

#include <QCoreApplication>

#include <array>

using namespace Qt::StringLiterals;

namespace
{
constexpr qsizetype mostSubjects = 6;

/// The address of a file, moved from http to https; nothing if it is no address.
std::optional<QUrl> secureURL(QString address)
{
    constexpr QLatin1StringView insecure("http://");
    if (address.startsWith(insecure, Qt::CaseInsensitive))
        address.replace(0, insecure.size(), u"https://"_s);
    const QUrl url(address);
    return url.isValid() ? std::optional(url) : std::nullopt;
}
} // namespace

QString GutenbergBook::authorLine() const
{
    if (authors.isEmpty())
        return QCoreApplication::translate("GutenbergBook", "Unknown author");
    QStringList names;
    for (const Author &author : authors)
        names.append(author.name);
    return names.join(u", "_s);
}

std::optional<QUrl> GutenbergBook::plainTextURL() const
{
    for (const QString &type :
         {u"text/plain; charset=utf-8"_s, u"text/plain; charset=us-ascii"_s, u"text/plain"_s})
        if (const auto url = secureURL(formats.value(type)))
            return url;
    for (const auto &[type, address] : formats.asKeyValueRange())
        if (const auto url = secureURL(address); url && type.startsWith(u"text/plain"))
            return url;
    return std::nullopt;
}

Book GutenbergBook::makeBook(const QUuid &bookID, Timestamp now) const
{
    return {.id = bookID,
            .gutenbergID = id,
            .title = title,
            .author = authorLine(),
            .language = languages.value(0, u"en"_s),
            .subjects = subjects.first(std::min(subjects.size(), mostSubjects)),
            .downloadURL = plainTextURL().value_or(QUrl()).toString(QUrl::FullyEncoded),
            .createdDate = now,
            .updatedDate = now};
}
