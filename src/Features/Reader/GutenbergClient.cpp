#include "Features/Reader/GutenbergClient.h"

#include "Features/Reader/GutenbergText.h"
#include "Foundation/RecordDecoder.h"

#include <QTimer>

#include <atomic>
#include <memory>

using namespace Qt::StringLiterals;

namespace
{
std::optional<GutendexResponse> decodeResponse(const QByteArray &body)
{
    simdjson::dom::parser parser;
    simdjson::dom::element document;
    GutendexResponse response;
    if (parser.parse(body.constData(), std::size_t(body.size())).get(document) != simdjson::SUCCESS ||
        !RecordDecoder::read(document, response, DecodeContext{}))
        return std::nullopt;
    return response;
}

/// What has come of a book so far. The thread of the exchange writes it.
struct Received {
    QByteArray bytes;
    std::atomic<qint64> count = 0;
    std::atomic<qint64> total = -1;
};

std::expected<QString, QString> bookText(const HttpResult &result, const QByteArray &bytes)
{
    // Any other success has no body, or a part of it.
    if (result && result->status == 200 && !result->contentType.startsWith("text/html")) {
        const QString text = GutenbergText::decode(bytes);
        if (!GutenbergText::isWebPage(text))
            return GutenbergClient::stripBoilerplate(text);
    }
    return std::unexpected(QCoreApplication::translate(
        "GutenbergClient", "Couldn't download that book. Check your connection and try again."));
}
} // namespace

GutenbergClient::GutenbergClient(Options options, QObject *parent)
    : QObject(parent), m_options(std::move(options))
{
}

std::optional<QUrl> GutenbergClient::searchURL(const QString &query) const
{
    QUrl url = m_options.catalogue;
    if (!url.isValid() || url.host().isEmpty())
        return std::nullopt;
    url.setPath(url.path() + (url.path().endsWith(u'/') ? u"books"_s : u"/books"_s));
    url.setQuery(u"search="_s + QString::fromLatin1(QUrl::toPercentEncoding(query)) + u"&languages=en"_s,
                 QUrl::StrictMode);
    return url;
}

void GutenbergClient::search(const QString &query)
{
    const QString wanted = query.trimmed();
    // An answer to an earlier query, which may come late, says nothing of this one.
    m_search.reset();
    if (wanted.isEmpty()) {
        setResults({});
        setPhase(Phase::idle);
        return;
    }
    setPhase(Phase::loading);
    const auto url = searchURL(wanted);
    if (!url) {
        setPhase(Phase::failed,
                 QCoreApplication::translate("GutenbergClient", "That search couldn't be built."));
        return;
    }
    m_search = std::make_unique<QObject>();
    Http::get({.url = *url}, m_options.searchLimits, m_search.get(), [this](const HttpResult &result) {
        const auto response = result ? decodeResponse(result->body) : std::nullopt;
        if (!response) {
            setPhase(Phase::failed, QCoreApplication::translate(
                                        "GutenbergClient",
                                        "Couldn't reach the library. Check your connection and try again."));
            return;
        }
        setResults(response->results);
        setPhase(Phase::loaded);
    });
}

void GutenbergClient::download(const GutenbergBook &book, QObject *owner, Progress progress,
                               Downloaded done) const
{
    const auto received = std::make_shared<Received>();
    auto *const reports = new QTimer(owner);
    const auto report = [received, progress = std::move(progress)] {
        if (progress)
            progress(received->count, received->total);
    };
    QObject::connect(reports, &QTimer::timeout, owner, report);
    reports->start(std::chrono::milliseconds(100));

    const auto sink = [received](QByteArrayView bytes, qint64 length) -> std::expected<void, QString> {
        received->total = length;
        received->bytes += bytes;
        received->count = received->bytes.size();
        return {};
    };
    // A book without a text has an address that can't be asked, and so fails like any other.
    const QUrl url = book.plainTextURL().value_or(QUrl());
    Http::download({.url = url}, m_options.downloadLimits, sink, owner,
                   [reports, report, received, done = std::move(done)](const HttpResult &result) {
                       delete reports;
                       report();
                       done(bookText(result, received->bytes));
                   });
}

QString GutenbergClient::stripBoilerplate(const QString &text)
{
    QStringView book = text;
    if (const qsizetype start = book.indexOf("*** START OF THE PROJECT GUTENBERG"_L1); start >= 0)
        if (const qsizetype lineEnd = book.indexOf(u'\n', start); lineEnd >= 0)
            book = book.sliced(lineEnd + 1);
    if (const qsizetype end = book.indexOf("*** END OF THE PROJECT GUTENBERG"_L1); end >= 0)
        book.truncate(end);
    return book.trimmed().toString();
}

void GutenbergClient::setPhase(Phase phase, const QString &failure)
{
    if (m_phase == phase && m_failure == failure)
        return;
    m_phase = phase;
    m_failure = failure;
    emit phaseChanged();
}

void GutenbergClient::setResults(const QList<GutenbergBook> &results)
{
    if (m_results == results)
        return;
    m_results = results;
    emit resultsChanged();
}
