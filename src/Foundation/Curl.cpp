#include "Foundation/Curl.h"

#include <QLibrary>

namespace
{
std::expected<Curl, QString> load()
{
    QLibrary library(QStringLiteral("curl"), 4);
    bool isComplete = true;
    const auto resolve = [&](auto &function, const char *name) {
        function = reinterpret_cast<std::remove_reference_t<decltype(function)>>(library.resolve(name));
        isComplete = isComplete && function;
    };
    Curl curl = {};
    resolve(curl.globalInit, "curl_global_init");
    resolve(curl.easyInit, "curl_easy_init");
    resolve(curl.easySetopt, "curl_easy_setopt");
    resolve(curl.easyGetinfo, "curl_easy_getinfo");
    resolve(curl.easyHeader, "curl_easy_header");
    resolve(curl.easyStrerror, "curl_easy_strerror");
    resolve(curl.easyCleanup, "curl_easy_cleanup");
    resolve(curl.multiInit, "curl_multi_init");
    resolve(curl.multiAddHandle, "curl_multi_add_handle");
    resolve(curl.multiRemoveHandle, "curl_multi_remove_handle");
    resolve(curl.multiPerform, "curl_multi_perform");
    resolve(curl.multiPoll, "curl_multi_poll");
    resolve(curl.multiWakeup, "curl_multi_wakeup");
    resolve(curl.multiInfoRead, "curl_multi_info_read");
    resolve(curl.multiCleanup, "curl_multi_cleanup");
    resolve(curl.slistAppend, "curl_slist_append");
    resolve(curl.slistFreeAll, "curl_slist_free_all");
    if (!isComplete)
        return std::unexpected(library.errorString());
    if (curl.globalInit(CURL_GLOBAL_DEFAULT) != CURLE_OK)
        return std::unexpected(QStringLiteral("libcurl can't be initialized."));
    return curl;
}
} // namespace

const std::expected<Curl, QString> &Curl::library()
{
    static const std::expected<Curl, QString> loaded = load();
    return loaded;
}
