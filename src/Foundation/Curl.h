#pragma once

#include <QString>

#include <curl/curl.h>
#include <expected>

/// The functions of libcurl that this program calls. It brings some thirty other libraries along.
struct Curl {
    decltype(&::curl_global_init) globalInit;
    decltype(&::curl_easy_init) easyInit;
    decltype(&::curl_easy_setopt) easySetopt;
    decltype(&::curl_easy_getinfo) easyGetinfo;
    decltype(&::curl_easy_header) easyHeader;
    decltype(&::curl_easy_strerror) easyStrerror;
    decltype(&::curl_easy_cleanup) easyCleanup;
    decltype(&::curl_multi_init) multiInit;
    decltype(&::curl_multi_add_handle) multiAddHandle;
    decltype(&::curl_multi_remove_handle) multiRemoveHandle;
    decltype(&::curl_multi_perform) multiPerform;
    decltype(&::curl_multi_poll) multiPoll;
    decltype(&::curl_multi_wakeup) multiWakeup;
    decltype(&::curl_multi_info_read) multiInfoRead;
    decltype(&::curl_multi_cleanup) multiCleanup;
    decltype(&::curl_slist_append) slistAppend;
    decltype(&::curl_slist_free_all) slistFreeAll;

    /// The loaded library, or why it can't be loaded. May be called from any thread.
    static const std::expected<Curl, QString> &library();
};
