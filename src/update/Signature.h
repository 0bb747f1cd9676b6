#pragma once

#include <array>
#include <filesystem>
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

/// Whether the key's owner has signed exactly the bytes of this file (plain ed25519, RFC 8032).
/// Reads the whole file, which is mapped and not loaded; not for the main thread.
[[nodiscard]] bool isSigned(const std::filesystem::path& file, const Signature& signature,
                            const PublicKey& key);

} // namespace quillon
