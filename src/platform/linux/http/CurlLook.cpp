#include "platform/linux/http/CurlLook.h"

#include <algorithm>
#include <array>
#include <ctime>
#include <string>
#include <string_view>
#include <utility>

namespace quillon {

namespace {

using Outcome = HttpLook::Outcome;

/// Lines of a reply's header that are longer are passed over, in bytes.
constexpr std::size_t longestLine = 200;

/// How a look ends, by libcurl's code.
constexpr std::array<std::pair<CURLcode, Outcome>, 15> outcomes{{
    {CURLE_FAILED_INIT, Outcome::noLibrary},
    {CURLE_UNSUPPORTED_PROTOCOL, Outcome::badAddress},
    {CURLE_URL_MALFORMAT, Outcome::badAddress},
    {CURLE_COULDNT_RESOLVE_PROXY, Outcome::noProxyName},
    {CURLE_COULDNT_RESOLVE_HOST, Outcome::noName},
    {CURLE_PROXY, Outcome::noProxy},
    {CURLE_COULDNT_CONNECT, Outcome::noWay},
    {CURLE_SEND_ERROR, Outcome::noWay},
    {CURLE_RECV_ERROR, Outcome::noWay},
    {CURLE_GOT_NOTHING, Outcome::noWay},
    {CURLE_SSL_CONNECT_ERROR, Outcome::noTls},
    {CURLE_SSL_CACERT_BADFILE, Outcome::untrusted},
    {CURLE_PEER_FAILED_VERIFICATION, Outcome::untrusted},
    {CURLE_SSL_CERTPROBLEM, Outcome::noTls},
    {CURLE_OPERATION_TIMEDOUT, Outcome::silent},
}};

// OpenSSL's numbers for certificates out of their time, from x509_vfy.h.
constexpr long notYetValid = 9;
constexpr long expired = 10;

/// The HTTP statuses from here on say no.
constexpr long proxyRefusal = 300;

} // namespace

CurlLook::CurlLook(Request request, std::uint64_t listener, std::function<void()> wake)
    : CurlTransfer{std::move(request.url), request.limit, listener, {}, std::move(wake)},
      limit_{request.limit} {
    promise_.start();
}

bool CurlLook::describe(const CurlTransportOptions& /*options*/) {
    // Each look goes the whole way: it would tell nothing of a name or a connection that is kept.
    curl().easy_setopt(handle(), CURLOPT_FRESH_CONNECT, 1L);
    curl().easy_setopt(handle(), CURLOPT_FORBID_REUSE, 1L);
    curl().easy_setopt(handle(), CURLOPT_DNS_CACHE_TIMEOUT, 0L);
    curl().easy_setopt(handle(), CURLOPT_TIMEOUT_MS, static_cast<long>(limit_.count()));
    const auto drop = [](char*, size_t, size_t count, void*) -> size_t { return count; };
    curl().easy_setopt(handle(), CURLOPT_WRITEFUNCTION, +drop);
    curl().easy_setopt(handle(), CURLOPT_HEADERFUNCTION, &CurlLook::takeHeader);
    curl().easy_setopt(handle(), CURLOPT_HEADERDATA, this);
    // The answer of a proxy, which may have a time of its own, is not the server's.
    curl().easy_setopt(handle(), CURLOPT_SUPPRESS_CONNECT_HEADERS, 1L);
    return true;
}

size_t CurlLook::takeHeader(char* bytes, size_t /*one*/, size_t count, void* self) {
    if (count > longestLine) return count;
    std::string line{bytes, count};
    constexpr std::string_view name = "date:";
    std::ranges::transform(line, line.begin(),
                           [](char c) { return c >= 'A' && c <= 'Z' ? char(c + 32) : c; });
    if (!line.starts_with(name)) return count;
    const std::time_t time = curl().getdate(line.c_str() + name.size(), nullptr);
    if (time > 0)
        static_cast<CurlLook*>(self)->time_ = std::chrono::system_clock::from_time_t(time);
    return count;
}

HttpLook::Outcome CurlLook::outcome(CURLcode code) const {
    // A reply is an answer, even one that broke off.
    if (code == CURLE_OK || status() != 0) return Outcome::answers;
    long verdict = 0;
    if (handle()) curl().easy_getinfo(handle(), CURLINFO_SSL_VERIFYRESULT, &verdict);
    if (code == CURLE_PEER_FAILED_VERIFICATION && (verdict == notYetValid || verdict == expired))
        return Outcome::wrongTime;
    long proxyStatus = 0;
    if (handle()) curl().easy_getinfo(handle(), CURLINFO_HTTP_CONNECTCODE, &proxyStatus);
    if (proxyStatus >= proxyRefusal) return Outcome::noProxy;
    const auto row = std::ranges::find(outcomes, code, &std::pair<CURLcode, Outcome>::first);
    return row == outcomes.end() ? Outcome::unknown : row->second;
}

void CurlLook::finish(CURLcode code) {
    promise_.addResult(HttpLook{.outcome = outcome(code), .time = time_});
    promise_.finish();
}

} // namespace quillon
