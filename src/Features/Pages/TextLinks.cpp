#include "Features/Pages/TextLinks.h"

#include <QRegularExpression>

namespace
{
/// How much of an address belongs to it: not the signs that end a sentence, nor a bracket that opens before
/// it.
qsizetype lengthOf(QStringView address)
{
    static constexpr QStringView ends = u".,;:!?'\"*_…»”’";
    while (!address.isEmpty()) {
        const QChar last = address.back();
        const bool closes = (last == u')' && address.count(u')') > address.count(u'(')) ||
                            (last == u']' && address.count(u']') > address.count(u'['));
        if (!closes && !ends.contains(last))
            break;
        address.chop(1);
    }
    return address.size();
}
} // namespace

bool TextLinks::mayHaveLinks(QStringView text)
{
    return text.contains(u"://") || text.contains(u"www.", Qt::CaseInsensitive) ||
           text.contains(u"mailto:", Qt::CaseInsensitive);
}

QList<TextLinks::Link> TextLinks::in(QStringView text)
{
    static const QRegularExpression address(
        QStringLiteral("(?<![\\w@/.])(?:https?://|www\\.(?=\\w)|mailto:(?=[^\\s@]+@\\w))[^\\s<>\"`|]+"),
        QRegularExpression::CaseInsensitiveOption | QRegularExpression::UseUnicodePropertiesOption);
    QList<Link> links;
    if (!mayHaveLinks(text))
        return links;
    for (auto matches = address.globalMatch(text); matches.hasNext();) {
        const QRegularExpressionMatch match = matches.next();
        const qsizetype begin = match.capturedStart();
        const QString found = text.sliced(begin, lengthOf(match.capturedView())).toString();
        const bool isBare = found.startsWith(u"www.", Qt::CaseInsensitive);
        const QUrl url(isBare ? QStringLiteral("https://") + found : found, QUrl::TolerantMode);
        if (isSafe(url))
            links.append({begin, begin + found.size(), url});
    }
    return links;
}

QUrl TextLinks::at(QStringView text, qsizetype position)
{
    for (const Link &link : in(text))
        if (position >= link.begin && position <= link.end)
            return link.url;
    return {};
}

bool TextLinks::isSafe(const QUrl &url)
{
    const QString scheme = url.scheme().toLower();
    const bool isWeb = (scheme == u"http" || scheme == u"https") && !url.host().isEmpty();
    return url.isValid() && (isWeb || (scheme == u"mailto" && !url.path().isEmpty()));
}
