#include "update/Signature.h"

#include "base/LateLibrary.h"

#include <sodium.h>

#include <cstddef>

namespace quillon {

namespace {

/// Needed once for each update.
constinit const LateLibrary libsodium{QUILLON_SODIUM};

QUILLON_LATE(libsodium, crypto_sign_verify_detached);
QUILLON_LATE(libsodium, sodium_base642bin);
QUILLON_LATE(libsodium, sodium_init);

static_assert(std::tuple_size_v<PublicKey> == crypto_sign_PUBLICKEYBYTES);
static_assert(std::tuple_size_v<Signature> == crypto_sign_BYTES);

template <typename Bytes>
std::optional<Bytes> decoded(std::string_view base64) {
    if (!libsodium.load()) return std::nullopt;
    Bytes bytes{};
    std::size_t length = 0;
    const int result =
        sodium_base642bin(bytes.data(), bytes.size(), base64.data(), base64.size(), " \t\r\n",
                          &length, nullptr, sodium_base64_VARIANT_ORIGINAL);
    if (result != 0 || length != bytes.size()) return std::nullopt;
    return bytes;
}

} // namespace

std::optional<PublicKey> parsePublicKey(std::string_view base64) {
    return decoded<PublicKey>(base64);
}

std::optional<Signature> parseSignature(std::string_view base64) {
    return decoded<Signature>(base64);
}

bool isSigned(std::string_view bytes, const Signature& signature, const PublicKey& key) {
    static const bool ready = libsodium.load() && sodium_init() >= 0;
    return ready && crypto_sign_verify_detached(
                        signature.data(), reinterpret_cast<const unsigned char*>(bytes.data()),
                        bytes.size(), key.data()) == 0;
}

} // namespace quillon
