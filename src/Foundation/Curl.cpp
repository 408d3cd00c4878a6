#include "Foundation/Curl.h"

#include "Foundation/LazyLibrary.h"

namespace
{
std::expected<Curl, QString> load()
{
    LazyLibrary library(QStringLiteral("curl"), 4);
    Curl curl = {};
    library.resolve(curl.globalInit, "curl_global_init");
    library.resolve(curl.easyInit, "curl_easy_init");
    library.resolve(curl.easySetopt, "curl_easy_setopt");
    library.resolve(curl.easyGetinfo, "curl_easy_getinfo");
    library.resolve(curl.easyHeader, "curl_easy_header");
    library.resolve(curl.easyStrerror, "curl_easy_strerror");
    library.resolve(curl.easyCleanup, "curl_easy_cleanup");
    library.resolve(curl.multiInit, "curl_multi_init");
    library.resolve(curl.multiAddHandle, "curl_multi_add_handle");
    library.resolve(curl.multiRemoveHandle, "curl_multi_remove_handle");
    library.resolve(curl.multiPerform, "curl_multi_perform");
    library.resolve(curl.multiPoll, "curl_multi_poll");
    library.resolve(curl.multiWakeup, "curl_multi_wakeup");
    library.resolve(curl.multiInfoRead, "curl_multi_info_read");
    library.resolve(curl.multiCleanup, "curl_multi_cleanup");
    library.resolve(curl.slistAppend, "curl_slist_append");
    library.resolve(curl.slistFreeAll, "curl_slist_free_all");
    if (const auto state = library.state(); !state)
        return std::unexpected(state.error());
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
