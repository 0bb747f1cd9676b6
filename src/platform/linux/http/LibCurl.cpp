#include "platform/linux/http/LibCurl.h"

#include <QLibrary>

namespace quillon {

namespace {

constexpr int soVersion = 4; // libcurl.so.4, since 2006
/// 7.87, in the form of curl_version_info_data. Older versions ignore which protocols are allowed.
constexpr unsigned oldestVersion = 0x075700;

LibCurl functions{};

template <typename Function>
bool find(QLibrary& library, const char* name, Function& function) {
    function = reinterpret_cast<Function>(library.resolve(name));
    return function != nullptr;
}

bool load() {
    QLibrary library{QStringLiteral("curl"), soVersion};
#if !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__)
    // Its thousands of symbols are then looked for in it and in what it needs, not in each library
    // of this program first. Sanitizers refuse that, since their own functions would be passed by.
    library.setLoadHints(QLibrary::DeepBindHint);
#endif
    bool found = true;
#define QUILLON_FIND(name) found = find(library, "curl_" #name, functions.name) && found;
    QUILLON_CURL_FUNCTIONS(QUILLON_FIND)
#undef QUILLON_FIND
    return found && functions.version_info(CURLVERSION_NOW)->version_num >= oldestVersion &&
           functions.global_init(CURL_GLOBAL_DEFAULT) == CURLE_OK;
}

} // namespace

bool loadCurl() {
    static const bool loaded = load();
    return loaded;
}

const LibCurl& curl() {
    return functions;
}

} // namespace quillon
