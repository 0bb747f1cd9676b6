#pragma once

#include <curl/curl.h>

/// The functions of libcurl that are used here, without "curl_" before their names.
#define QUILLON_CURL_FUNCTIONS(each)                                                               \
    each(easy_cleanup) each(easy_getinfo) each(easy_init) each(easy_setopt) each(free)             \
        each(getdate) each(global_init) each(multi_add_handle) each(multi_cleanup)                 \
            each(multi_info_read) each(multi_init) each(multi_perform) each(multi_poll)            \
                each(multi_remove_handle) each(multi_wakeup) each(slist_append)                    \
                    each(slist_free_all) each(url) each(url_cleanup) each(url_get) each(url_set)   \
                        each(version_info)

namespace quillon {

/// libcurl, loaded when the first request is made. It depends on thirty libraries, TLS and
/// directory services among them, which would take a third of the program's start-up time and a
/// fifth of its memory, although most of the time it has nothing to send.
struct LibCurl {
// A declared name takes no parentheses. NOLINTNEXTLINE(bugprone-macro-parentheses)
#define QUILLON_DECLARE(name) decltype(&::curl_##name) name;
    QUILLON_CURL_FUNCTIONS(QUILLON_DECLARE)
#undef QUILLON_DECLARE
};

/// Loads and initialises libcurl; false if it is missing or too old. Takes about 10 ms the first
/// time. Thread-safe.
[[nodiscard]] bool loadCurl();

/// Valid only after loadCurl() has returned true.
[[nodiscard]] const LibCurl& curl();

} // namespace quillon
