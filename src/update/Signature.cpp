#include "update/Signature.h"

#include <sodium.h>

#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstddef>

namespace quillon {

namespace {

static_assert(std::tuple_size_v<PublicKey> == crypto_sign_PUBLICKEYBYTES);
static_assert(std::tuple_size_v<Signature> == crypto_sign_BYTES);

template <typename Bytes>
std::optional<Bytes> decoded(std::string_view base64) {
    Bytes bytes{};
    std::size_t length = 0;
    const int result =
        sodium_base642bin(bytes.data(), bytes.size(), base64.data(), base64.size(), " \t\r\n",
                          &length, nullptr, sodium_base64_VARIANT_ORIGINAL);
    if (result != 0 || length != bytes.size()) return std::nullopt;
    return bytes;
}

/// A regular file's bytes in memory, which the system reads when they are looked at.
class MappedFile {
public:
    explicit MappedFile(const std::filesystem::path& path) {
        const int file = ::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK);
        struct stat status {};
        if (file >= 0 && ::fstat(file, &status) == 0 && S_ISREG(status.st_mode) &&
            status.st_size > 0)
            map(file, static_cast<std::size_t>(status.st_size));
        if (file >= 0) ::close(file);
    }
    MappedFile(const MappedFile&) = delete;
    MappedFile& operator=(const MappedFile&) = delete;
    ~MappedFile() {
        if (bytes_) ::munmap(bytes_, size_);
    }

    /// Null when the file is empty or cannot be read.
    [[nodiscard]] const unsigned char* bytes() const {
        return static_cast<const unsigned char*>(bytes_);
    }
    [[nodiscard]] std::size_t size() const { return size_; }

private:
    void map(int file, std::size_t size) {
        void* bytes = ::mmap(nullptr, size, PROT_READ, MAP_PRIVATE, file, 0);
        if (bytes == MAP_FAILED) return;
        ::madvise(bytes, size, MADV_SEQUENTIAL);
        bytes_ = bytes;
        size_ = size;
    }

    void* bytes_ = nullptr;
    std::size_t size_ = 0;
};

} // namespace

std::optional<PublicKey> parsePublicKey(std::string_view base64) {
    return decoded<PublicKey>(base64);
}

std::optional<Signature> parseSignature(std::string_view base64) {
    return decoded<Signature>(base64);
}

bool isSigned(const std::filesystem::path& file, const Signature& signature, const PublicKey& key) {
    static const bool ready = sodium_init() >= 0;
    const MappedFile mapped{file};
    return ready && mapped.bytes() &&
           crypto_sign_verify_detached(signature.data(), mapped.bytes(), mapped.size(),
                                       key.data()) == 0;
}

} // namespace quillon
