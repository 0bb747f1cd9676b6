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

/// The bundle of this system: `usual`, which libcurl was built for, or where that is missing, as on
/// another distribution than the one it was built on, the first that is there of those that
/// distributions have. These are looked for below `root`.
[[nodiscard]] std::filesystem::path systemBundle(const std::filesystem::path& usual,
                                                 const std::filesystem::path& root = "/");

} // namespace quillon
