#include "Foundation/HttpTransfer.h"

#include <algorithm>
#include <array>
#include <utility>

using namespace Qt::StringLiterals;

namespace
{
constexpr int maxRedirects = 10;
/// Of all headers of an exchange together.
constexpr qint64 maxHeaderBytes = 256 * 1024;

/// A callback of libcurl; any result but the count ends the transfer.
template <auto Take>
std::size_t forward(char *bytes, std::size_t, std::size_t count, void *transfer)
{
    const QByteArrayView view(bytes, qsizetype(count));
    return (static_cast<HttpTransfer *>(transfer)->*Take)(view) ? count : CURL_WRITEFUNC_ERROR;
}

bool isRedirect(int status)
{
    return status == 301 || status == 302 || status == 303 || status == 307 || status == 308;
}
} // namespace

HttpTransfer::HttpTransfer(Method method, HttpRequest request, const HttpLimits &limits, HttpSink sink)
    : m_method(method), m_limits(limits), m_sink(std::move(sink)), m_request(std::move(request))
{
}

HttpResult HttpTransfer::run(const std::stop_token &stop)
{
    if (!Http::isWebAddress(m_request.url))
        return std::unexpected(tr("%1 is not a web address.").arg(m_request.url.toString()));
    const auto &curl = Curl::library();
    if (!curl)
        return std::unexpected(curl.error());
    m_curl = &*curl;
    const std::unique_ptr<CURLM, decltype(curl->multiCleanup)> multi(curl->multiInit(), curl->multiCleanup);
    const std::stop_callback wakeUp(stop, [&] { curl->multiWakeup(multi.get()); });
    m_deadline = Clock::now() + m_limits.totalTimeout;
    return followRedirects(multi.get(), stop);
}

HttpResult HttpTransfer::followRedirects(CURLM *multi, const std::stop_token &stop)
{
    curl_slist *lines = nullptr;
    if (m_method == Method::get)
        lines = m_curl->slistAppend(lines, "Accept-Encoding: gzip");
    const std::unique_ptr<curl_slist, decltype(m_curl->slistFreeAll)> headers(lines, m_curl->slistFreeAll);
    do {
        const std::unique_ptr<CURL, decltype(m_curl->easyCleanup)> easy(m_curl->easyInit(),
                                                                        m_curl->easyCleanup);
        configure(easy.get(), headers.get());
        exchange(easy.get(), multi, stop);
    } while (m_isRedirected);
    // A refusal is a response, however badly its page arrives.
    if (m_failure && m_response.status < 300)
        return std::unexpected(*m_failure);
    return std::move(m_response);
}

void HttpTransfer::configure(CURL *easy, const curl_slist *headers)
{
    const auto set = [&](CURLoption option, auto value) { m_curl->easySetopt(easy, option, value); };
    set(CURLOPT_URL, m_request.url.toEncoded().constData());
    set(CURLOPT_PROTOCOLS_STR, "http,https");
    // One response a connection, and none of the later version's compressed headers.
    set(CURLOPT_HTTP_VERSION, long(CURL_HTTP_VERSION_1_1));
    set(CURLOPT_HTTPHEADER, headers);
    if (!m_request.userAgent.isEmpty())
        set(CURLOPT_USERAGENT, m_request.userAgent.constData());
    set(CURLOPT_NOBODY, long(m_method == Method::head));
    set(CURLOPT_SUPPRESS_CONNECT_HEADERS, 1L);
    set(CURLOPT_NOSIGNAL, 1L);
    // The end of an exchange doesn't wait for the resolver of names.
    set(CURLOPT_QUICK_EXIT, 1L);
    if (const QByteArray certificates = qgetenv("SSL_CERT_FILE"); !certificates.isEmpty())
        set(CURLOPT_CAINFO, certificates.constData());

    set(CURLOPT_HEADERDATA, this);
    set(CURLOPT_HEADERFUNCTION, &forward<&HttpTransfer::takeHeaderLine>);
    set(CURLOPT_WRITEDATA, this);
    set(CURLOPT_WRITEFUNCTION, &forward<&HttpTransfer::takeBody>);
}

void HttpTransfer::exchange(CURL *easy, CURLM *multi, const std::stop_token &stop)
{
    std::array<char, CURL_ERROR_SIZE> details = {};
    m_curl->easySetopt(easy, CURLOPT_ERRORBUFFER, details.data());
    m_easy = easy;
    m_isRedirected = false;
    m_response = {};
    m_lastProgress = Clock::now();
    m_curl->multiAddHandle(multi, easy);
    transfer(multi, stop);
    int waiting = 0;
    const CURLMsg *const message = m_curl->multiInfoRead(multi, &waiting);
    if (!m_isRedirected)
        takeResult(message ? message->data.result : CURLE_FAILED_INIT, details.data());
    m_curl->multiRemoveHandle(multi, easy);
}

void HttpTransfer::transfer(CURLM *multi, const std::stop_token &stop)
{
    for (int running = 1;;) {
        if (m_curl->multiPerform(multi, &running) != CURLM_OK || running == 0)
            return;
        const auto left = std::min(m_deadline, m_lastProgress + m_limits.idleTimeout) - Clock::now();
        if (stop.stop_requested() || left <= Clock::duration::zero()) {
            fail(tr("The server took too long to respond."));
            return;
        }
        const auto milliseconds = std::chrono::ceil<std::chrono::milliseconds>(left).count();
        m_curl->multiPoll(multi, nullptr, 0, int(std::min<qint64>(milliseconds, 60'000)), nullptr);
    }
}

void HttpTransfer::takeResult(CURLcode code, const char *details)
{
    switch (code) {
    case CURLE_OK:
        if (m_gzip && !m_gzip->isComplete())
            fail(tr("The response ended early."));
        break;
    case CURLE_PARTIAL_FILE:
    case CURLE_GOT_NOTHING:
        fail(tr("The response ended early."));
        break;
    case CURLE_COULDNT_RESOLVE_HOST:
        fail(tr("The server %1 couldn't be found.").arg(m_request.url.host()));
        break;
    case CURLE_COULDNT_CONNECT:
        fail(tr("The server %1 couldn't be reached.").arg(m_request.url.host()));
        break;
    case CURLE_PEER_FAILED_VERIFICATION:
        fail(tr("The certificate of the server %1 isn't trusted.").arg(m_request.url.host()));
        break;
    default:
        fail(QString::fromUtf8(*details ? details : m_curl->easyStrerror(code)));
    }
}

bool HttpTransfer::takeHeaderLine(QByteArrayView line)
{
    m_headerBytes += line.size();
    m_lastProgress = Clock::now();
    if (m_headerBytes > maxHeaderBytes)
        return fail(tr("The header of the response is longer than %1 bytes.").arg(maxHeaderBytes));
    // A trailer after the body looks like this, too.
    const bool isEnd = line == "\r\n" || line == "\n";
    return !isEnd || m_response.status != 0 || takeHeader();
}

bool HttpTransfer::takeHeader()
{
    long status = 0;
    m_curl->easyGetinfo(m_easy, CURLINFO_RESPONSE_CODE, &status);
    if (status < 200)
        return true;
    m_response.status = int(status);
    m_response.contentType = header("Content-Type").toLower();
    if (isRedirect(m_response.status) && follow(header("Location")))
        return false;
    if (m_method == Method::head)
        return true;

    const QByteArray coding = header("Transfer-Encoding").toLower();
    const QByteArray packing = header("Content-Encoding").toLower();
    // Nested packing costs time without bounds to unpack.
    if ((!coding.isEmpty() && coding != "chunked") ||
        (!packing.isEmpty() && packing != "gzip" && packing != "x-gzip" && packing != "identity"))
        return fail(tr("The response is packed in an unknown way."));
    if (packing.endsWith("gzip"))
        m_gzip.emplace();
    bool isNumber = false;
    const qint64 length = header("Content-Length").toLongLong(&isNumber);
    if (coding.isEmpty() && isNumber && length > m_limits.maxBytes)
        return failForLength();
    m_contentLength = coding.isEmpty() && !m_gzip && isNumber ? length : -1;
    return !m_sink || takeUnpacked({});
}

bool HttpTransfer::follow(const QByteArray &location)
{
    const QUrl target = m_request.url.resolved(QUrl::fromEncoded(location));
    const bool isLessSafe = m_request.url.scheme() == u"https" && target.scheme() != u"https";
    if (location.isEmpty() || !Http::isWebAddress(target) || isLessSafe || m_redirects == maxRedirects)
        return false;
    ++m_redirects;
    m_request.url = target;
    m_isRedirected = true;
    return true;
}

bool HttpTransfer::takeBody(QByteArrayView bytes)
{
    m_bodyBytes += bytes.size();
    m_lastProgress = Clock::now();
    if (m_bodyBytes > m_limits.maxBytes)
        return failForLength();
    if (!m_gzip)
        return takeUnpacked(bytes);
    return m_gzip->read(bytes, [this](QByteArrayView unpacked) { return takeUnpacked(unpacked); }) ||
           fail(tr("The response is packed badly."));
}

bool HttpTransfer::takeUnpacked(QByteArrayView bytes)
{
    m_unpackedBytes += bytes.size();
    if (m_unpackedBytes > m_limits.maxBytes)
        return failForLength();
    if (!m_sink)
        m_response.body += bytes;
    else if (m_response.isSuccess())
        if (const auto taken = m_sink(bytes, m_contentLength); !taken)
            return fail(taken.error());
    return true;
}

QByteArray HttpTransfer::header(const char *name) const
{
    curl_header *found = nullptr;
    QByteArrayList values;
    for (std::size_t i = 0; m_curl->easyHeader(m_easy, name, i, CURLH_HEADER, -1, &found) == CURLHE_OK; ++i)
        values.append(found->value);
    return values.join(',');
}

bool HttpTransfer::fail(const QString &reason)
{
    if (!m_failure)
        m_failure = reason;
    return false;
}

bool HttpTransfer::failForLength()
{
    return fail(tr("The response is longer than %1 bytes.").arg(m_limits.maxBytes));
}
