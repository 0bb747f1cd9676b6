#pragma once

#include <filesystem>

namespace quillon {

/// Where a system keeps the certificates that it trusts.
struct CertificatePlaces {
    /// All of them in one PEM file.
    std::filesystem::path bundle;
    /// One file for each, which OpenSSL finds by the hash of its subject.
    std::filesystem::path folder;
};

/// Whether `folder` alone trusts all that the system does: it has each of the system's hashed
/// certificates, and these are as many as the bundle holds. OpenSSL reads the one certificate of a
/// folder that it needs, but all of a bundle, which takes some 30 ms.
[[nodiscard]] bool replacesBundle(const std::filesystem::path& folder,
                                  const CertificatePlaces& system);

} // namespace quillon
