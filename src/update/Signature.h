#pragma once

#include <array>
#include <optional>
#include <string_view>

namespace quillon {

/// An ed25519 public key.
using PublicKey = std::array<unsigned char, 32>;
/// An ed25519 signature.
using Signature = std::array<unsigned char, 64>;

/// None when the text is not the base64 form of 32 bytes.
[[nodiscard]] std::optional<PublicKey> parsePublicKey(std::string_view base64);

/// None when the text is not the base64 form of 64 bytes.
[[nodiscard]] std::optional<Signature> parseSignature(std::string_view base64);

/// Whether the key's owner has signed exactly these bytes (plain ed25519, RFC 8032). Takes a second
/// per 500 MB or so; not for the main thread.
[[nodiscard]] bool isSigned(std::string_view bytes, const Signature& signature,
                            const PublicKey& key);

} // namespace quillon
