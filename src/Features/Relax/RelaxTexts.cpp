#include "Features/Relax/RelaxTexts.h"

#include "Features/Relax/RelaxVideoResolver.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace
{
struct Service {
    QLatin1StringView word;
    QLatin1StringView name;
};
constexpr std::array services{Service{"youtube"_L1, "YouTube"_L1}, Service{"streamable"_L1, "Streamable"_L1},
                              Service{"vimeo"_L1, "Vimeo"_L1}};

/// Empty for none.
QString serviceOf(const QUrl &url)
{
    const QString host = url.host().toLower();
    const auto found = std::ranges::find_if(
        services, [&host](const Service &service) { return host.contains(service.word); });
    return found == services.end() ? QString() : QString(found->name);
}

QString text(const char *source)
{
    return QCoreApplication::translate("RelaxTexts", source);
}
} // namespace

QString RelaxTexts::notice(const RelaxVideoSource &source)
{
    if (source.kind == RelaxVideoSource::Kind::media || !serviceOf(source.url).isEmpty())
        return {};
    return text(QT_TRANSLATE_NOOP("RelaxTexts", "This link plays in a small web player."));
}

QString RelaxTexts::defaultLinkName(const QString &address)
{
    const QString fallback = text(QT_TRANSLATE_NOOP("RelaxTexts", "Saved link"));
    const auto url = RelaxVideoResolver::normalizedURL(address);
    if (!url)
        return fallback;
    const RelaxVideoSource source = RelaxVideoResolver::resolve(*url);
    if (source.kind == RelaxVideoSource::Kind::media) {
        const QString file =
            source.url.path(QUrl::FullyDecoded).section(u'/', -1, -1, QString::SectionSkipEmpty);
        return file.isEmpty() ? text(QT_TRANSLATE_NOOP("RelaxTexts", "Video file")) : file;
    }
    if (const QString service = serviceOf(source.url); !service.isEmpty())
        return service;
    return source.url.host().isEmpty() ? fallback : source.url.host();
}

QString RelaxTexts::clockString(int seconds)
{
    return u"%1:%2"_s.arg(seconds / 60).arg(seconds % 60, 2, 10, QChar(u'0'));
}
