#include "sandbox/Certificate.h"

#include <openssl/evp.h>
#include <openssl/pem.h>
#include <openssl/ssl.h>
#include <openssl/x509v3.h>

#include <unistd.h>

#include <array>
#include <memory>
#include <stdexcept>

namespace quillon::sandbox {

namespace {

template <auto Free>
struct Freer {
    template <typename T>
    void operator()(T* object) const {
        Free(object);
    }
};

using Key = std::unique_ptr<EVP_PKEY, Freer<EVP_PKEY_free>>;
using Certified = std::unique_ptr<X509, Freer<X509_free>>;
using Extension = std::unique_ptr<X509_EXTENSION, Freer<X509_EXTENSION_free>>;

void require(bool success) {
    if (!success) throw std::runtime_error{"cannot make a certificate"};
}

void extend(X509* certificate, int kind, const char* value) {
    X509V3_CTX context;
    X509V3_set_ctx_nodb(&context);
    X509V3_set_ctx(&context, certificate, certificate, nullptr, nullptr, 0);
    const Extension extension{X509V3_EXT_conf_nid(nullptr, &context, kind, value)};
    require(extension && X509_add_ext(certificate, extension.get(), -1) == 1);
}

Certified certify(EVP_PKEY* key) {
    constexpr long day = 24L * 60 * 60;
    Certified certificate{X509_new()};
    require(certificate != nullptr);
    X509* const raw = certificate.get();
    X509_set_version(raw, X509_VERSION_3);
    ASN1_INTEGER_set(X509_get_serialNumber(raw), 1);
    X509_gmtime_adj(X509_getm_notBefore(raw), -60);
    X509_gmtime_adj(X509_getm_notAfter(raw), day);
    X509_NAME* const name = X509_get_subject_name(raw);
    const std::array<unsigned char, 10> host{"localhost"};
    require(X509_NAME_add_entry_by_txt(name, "CN", MBSTRING_ASC, host.data(), -1, -1, 0) == 1);
    X509_set_issuer_name(raw, name);
    X509_set_pubkey(raw, key);
    extend(raw, NID_basic_constraints, "critical,CA:TRUE");
    extend(raw, NID_subject_alt_name, "DNS:localhost,IP:127.0.0.1,IP:::1");
    require(X509_sign(raw, key, EVP_sha256()) > 0);
    return certificate;
}

std::filesystem::path writePem(X509* certificate) {
    std::string name = (std::filesystem::temp_directory_path() / "quillon-sandbox-XXXXXX").string();
    const int descriptor = mkstemp(name.data());
    require(descriptor >= 0);
    FILE* const file = fdopen(descriptor, "w");
    const bool written = PEM_write_X509(file, certificate) == 1;
    require(std::fclose(file) == 0 && written);
    return name;
}

} // namespace

Certificate::Certificate() : context_{boost::asio::ssl::context::tls_server} {
    const Key key{EVP_EC_gen("P-256")};
    require(key != nullptr);
    const Certified certificate = certify(key.get());
    SSL_CTX* const raw = context_.native_handle();
    require(SSL_CTX_use_certificate(raw, certificate.get()) == 1 &&
            SSL_CTX_use_PrivateKey(raw, key.get()) == 1);
    file_ = writePem(certificate.get());
}

Certificate::~Certificate() {
    std::error_code ignored;
    std::filesystem::remove(file_, ignored);
}

} // namespace quillon::sandbox
