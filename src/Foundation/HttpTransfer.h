#pragma once

#include "Foundation/Curl.h"
#include "Foundation/GzipReader.h"
#include "Foundation/Http.h"

#include <QCoreApplication>

#include <memory>
#include <optional>
#include <stop_token>

/// One exchange with a server, redirects included, on the thread that runs it.
class HttpTransfer
{
    Q_DECLARE_TR_FUNCTIONS(HttpTransfer)

public:
    enum class Method { get, head };

    /// Without a sink the body becomes part of the response.
    HttpTransfer(Method method, HttpRequest request, const HttpLimits &limits, HttpSink sink);

    /// Blocks until the exchange has ended. A stop request ends it at once.
    HttpResult run(const std::stop_token &stop);

private:
    using Clock = std::chrono::steady_clock;

    HttpResult followRedirects(CURLM *multi, const std::stop_token &stop);
    void configure(CURL *easy, const curl_slist *headers);
    /// One request and its response, without redirects.
    void exchange(CURL *easy, CURLM *multi, const std::stop_token &stop);
    void transfer(CURLM *multi, const std::stop_token &stop);
    void takeResult(CURLcode code, const char *details);
    bool follow(const QByteArray &location);

    /// These answer whether the exchange may go on.
    bool takeHeaderLine(QByteArrayView line);
    bool takeHeader();
    bool takeBody(QByteArrayView bytes);
    bool takeUnpacked(QByteArrayView bytes);
    bool fail(const QString &reason);
    bool failForLength();

    /// Of the header under way; empty if the server sent none.
    QByteArray header(const char *name) const;

    const Method m_method;
    const HttpLimits m_limits;
    const HttpSink m_sink;
    HttpRequest m_request;
    const Curl *m_curl = nullptr;
    CURL *m_easy = nullptr;
    Clock::time_point m_deadline;
    Clock::time_point m_lastProgress;
    int m_redirects = 0;
    bool m_isRedirected = false;
    qint64 m_headerBytes = 0;
    qint64 m_bodyBytes = 0;
    qint64 m_unpackedBytes = 0;
    qint64 m_contentLength = -1;
    std::optional<GzipReader> m_gzip;
    /// The first reason why the exchange can't go on.
    std::optional<QString> m_failure;
    HttpResponse m_response;
};
