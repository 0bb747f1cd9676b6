// A certificate made on the spot, so that a client can be tried over TLS without a key in a file
// that anybody could misuse.
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

    /// The certificate in PEM form, for a client to trust; removed with this object.
    const std::filesystem::path& file() const { return file_; }

private:
    boost::asio::ssl::context context_;
    std::filesystem::path file_;
};

} // namespace quillon::sandbox
