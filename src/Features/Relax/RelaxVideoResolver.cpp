#include "Features/Relax/RelaxVideoResolver.h"

#include "Foundation/Http.h"

#include <QFileInfo>
#include <QTimer>
#include <QUrlQuery>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace
{
constexpr std::array mediaExtensions{"mp4"_L1,  "m4v"_L1, "mov"_L1, "qt"_L1,  "3gp"_L1, "3gpp"_L1,
                                     "m3u8"_L1, "ts"_L1,  "mp3"_L1, "m4a"_L1, "aac"_L1, "aif"_L1,
                                     "aiff"_L1, "wav"_L1, "caf"_L1, "mp2"_L1};

constexpr auto youTubeShortHost = "youtu.be"_L1;
constexpr std::array youTubeLongHosts{"youtube.com"_L1, "m.youtube.com"_L1, "music.youtube.com"_L1,
                                      "youtube-nocookie.com"_L1};
constexpr std::array youTubePaths{"shorts"_L1, "embed"_L1, "live"_L1, "v"_L1};
constexpr auto youTubePlayerHost = "www.youtube-nocookie.com"_L1;
constexpr auto streamableDomain = "streamable.com"_L1;
constexpr auto vimeoDomain = "vimeo.com"_L1;
constexpr auto vimeoPlayerHost = "player.vimeo.com"_L1;

/// Players by their hosts, which need no asking.
constexpr std::array playerHosts{"youtube"_L1, youTubeShortHost, "youtube-nocookie"_L1, "streamable"_L1,
                                 "vimeo"_L1};

bool isOneOf(const auto &known, const QString &text)
{
    return std::ranges::any_of(known, [&text](QLatin1StringView each) { return each == text; });
}

QStringList pathParts(const QUrl &url)
{
    return url.path(QUrl::FullyDecoded).split(u'/', Qt::SkipEmptyParts);
}

/// An empty id stands for none.
QString youTubeID(QString host, const QUrl &url)
{
    if (host.startsWith("www."_L1))
        host.remove(0, 4);
    const QStringList parts = pathParts(url);
    if (host == youTubeShortHost)
        return parts.value(0);
    if (!isOneOf(youTubeLongHosts, host))
        return {};
    const QString video = QUrlQuery(url).queryItemValue(u"v"_s, QUrl::FullyDecoded);
    if (!video.isEmpty())
        return video;
    return isOneOf(youTubePaths, parts.value(0)) ? parts.value(1) : QString();
}

/// The id in a path that either names the player first or ends with the id.
QString idAfter(QLatin1StringView player, const QUrl &url)
{
    const QStringList parts = pathParts(url);
    if (parts.isEmpty())
        return {};
    return parts.first() == player ? parts.value(1) : parts.last();
}

QUrl playerURL(QLatin1StringView host, const QString &path, const QString &query)
{
    QUrl url;
    url.setScheme(u"https"_s);
    url.setHost(host);
    url.setPath(path, QUrl::DecodedMode);
    url.setQuery(query, QUrl::StrictMode);
    return url;
}

QUrl youTubeEmbed(const QString &id)
{
    const QString playlist = QString::fromLatin1(QUrl::toPercentEncoding(id));
    return playerURL(youTubePlayerHost, u"/embed/"_s + id,
                     u"autoplay=1&mute=1&controls=0&loop=1&playlist="_s + playlist +
                         u"&playsinline=1&modestbranding=1&rel=0&iv_load_policy=3&disablekb=1"_s);
}

bool isMediaFile(const QUrl &url)
{
    const QStringList parts = pathParts(url);
    const QString extension = QFileInfo(parts.isEmpty() ? QString() : parts.last()).suffix().toLower();
    return url.isLocalFile() || isOneOf(mediaExtensions, extension);
}

bool isKnownPlayer(const QUrl &url)
{
    const QString host = url.host().toLower();
    return host.isEmpty() || url.path().contains("/embed"_L1) ||
           std::ranges::any_of(playerHosts, [&host](QLatin1StringView part) { return host.contains(part); });
}
} // namespace

std::optional<QUrl> RelaxVideoResolver::normalizedURL(const QString &text)
{
    const QString link = text.trimmed();
    if (link.isEmpty())
        return std::nullopt;
    const QUrl url(link);
    const bool isWeb = url.scheme() == "http"_L1 || url.scheme() == "https"_L1;
    if (url.isValid() && (url.scheme() == "file"_L1 || (isWeb && !url.host().isEmpty())))
        return url;
    const QUrl completed(u"https://"_s + link);
    return completed.isValid() && !completed.host().isEmpty() ? std::optional(completed) : std::nullopt;
}

RelaxVideoSource RelaxVideoResolver::resolve(const QUrl &url)
{
    const QString host = url.host().toLower();
    if (const QString id = youTubeID(host, url); !id.isEmpty())
        return RelaxVideoSource::embed(youTubeEmbed(id));
    if (host.contains(streamableDomain)) {
        const QString id = idAfter("e"_L1, url);
        return RelaxVideoSource::embed(id.isEmpty() ? url
                                                    : playerURL(streamableDomain, u"/e/"_s + id,
                                                                u"autoplay=1&loop=1&muted=1&nocontrols=1"_s));
    }
    if (host.contains(vimeoDomain)) {
        const QString id = idAfter("video"_L1, url);
        return RelaxVideoSource::embed(
            id.isEmpty() ? url
                         : playerURL(vimeoPlayerHost, u"/video/"_s + id,
                                     u"autoplay=1&muted=1&loop=1&background=1&autopause=0"_s));
    }
    return isMediaFile(url) ? RelaxVideoSource::media(url) : RelaxVideoSource::embed(url);
}

void RelaxVideoResolver::refine(const RelaxVideoSource &source, QObject *owner,
                                std::function<void(std::optional<RelaxVideoSource>)> done,
                                std::chrono::milliseconds patience)
{
    if (source.kind != RelaxVideoSource::Kind::embed || isKnownPlayer(source.url)) {
        QTimer::singleShot(0, owner, [done = std::move(done)] { done(std::nullopt); });
        return;
    }
    const HttpRequest request{source.url, "Mozilla/5.0 (Macintosh; Intel Mac OS X) Orvel"};
    Http::head(request, HttpLimits{patience, patience, 0}, owner,
               [done = std::move(done), url = source.url](const HttpResult &result) {
                   const bool isRefusedRedirect = result && result->status / 100 == 3;
                   const bool isMedia =
                       result && !isRefusedRedirect &&
                       (result->contentType.startsWith("video/") || result->contentType.startsWith("audio/"));
                   done(isMedia ? std::optional(RelaxVideoSource::media(url)) : std::nullopt);
               });
}
