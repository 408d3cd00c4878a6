#include "Support/Updates/VersionFile.h"

#include "Foundation/Http.h"
#include "Foundation/RecordDecoder.h"

std::optional<VersionFile> VersionFile::read(const QByteArray &json)
{
    const simdjson::padded_string bytes(json.data(), std::size_t(json.size()));
    simdjson::dom::parser parser;
    simdjson::dom::element document;
    VersionFile file;
    if (parser.parse(bytes).get(document) != simdjson::SUCCESS ||
        !RecordDecoder::read(document, file, DecodeContext{.now = {}}))
        return std::nullopt;
    return file;
}

AvailableUpdate VersionFile::offer(const QUrl &site) const
{
    const Asset asset = linuxAsset ? *linuxAsset : macAsset ? *macAsset : Asset{download, sha256};
    const QUrl pageURL = site.resolved(QUrl(page.value_or(QStringLiteral("/"))));
    const QString package = asset.download.value_or(QString());
    const QUrl downloadURL = package.isEmpty() ? QUrl() : site.resolved(QUrl(package));
    const QString checksum = asset.sha256.value_or(QString());
    // Over plain http without a checksum, anybody on the way could put in a program of their own.
    const bool isLessSafe =
        site.scheme() == u"https" && downloadURL.scheme() != u"https" && checksum.trimmed().isEmpty();
    return {
        .version = version,
        .build = buildOrZero(),
        .notes = notes.value_or(QString()),
        .downloadURL = Http::isWebAddress(downloadURL) && !isLessSafe ? downloadURL : QUrl(),
        .sha256 = checksum,
        .pageURL = Http::isWebAddress(pageURL) ? pageURL : site,
    };
}
