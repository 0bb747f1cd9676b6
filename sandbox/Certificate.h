// A freshly made certificate, so that clients can be tested over TLS without a key file that
// anybody could misuse.
#pragma once

#include <boost/asio/ssl/context.hpp>

#include <filesystem>
#include <string>

namespace quillon::sandbox {

/// A TLS server identity for localhost, 127.0.0.1 and ::1, valid for a day from its making; its key
/// lives in memory only. Throws std::runtime_error when OpenSSL fails.
class Certificate {
public:
    Certificate();
    ~Certificate();
    Certificate(const Certificate&) = delete;
    Certificate& operator=(const Certificate&) = delete;

    boost::asio::ssl::context& context() { return context_; }

    /// The certificate as a PEM file, for a client to trust. Removed with this object.
    const std::filesystem::path& file() const { return file_; }

private:
    boost::asio::ssl::context context_;
    std::filesystem::path file_;
};

} // namespace quillon::sandbox
