#include "HttpServer.h"

#include "Texts.h"

#include <openssl/evp.h>
#include <openssl/ssl.h>
#include <openssl/x509v3.h>
#include <stdexcept>

namespace emulator {
namespace {

constexpr long kSecondsPerYear = 365L * 24 * 60 * 60;

template <typename T, void (*Free)(T*)>
struct Freeing {
    void operator()(T* object) const { Free(object); }
};
using Key = std::unique_ptr<EVP_PKEY, Freeing<EVP_PKEY, EVP_PKEY_free>>;
using Certificate = std::unique_ptr<X509, Freeing<X509, X509_free>>;
using Extension = std::unique_ptr<X509_EXTENSION, Freeing<X509_EXTENSION, X509_EXTENSION_free>>;

void Require(bool done)
{
    if (!done) {
        throw std::runtime_error(Filled(Texts::tr("cannot create the server certificate")));
    }
}

Certificate SelfSigned(EVP_PKEY* key)
{
    Certificate certificate(X509_new());
    X509* const x509 = certificate.get();
    Require(x509 != nullptr && X509_set_version(x509, X509_VERSION_3) == 1 &&
            ASN1_INTEGER_set(X509_get_serialNumber(x509), 1) == 1 && X509_set_pubkey(x509, key) == 1);
    X509_gmtime_adj(X509_getm_notBefore(x509), -kSecondsPerYear);
    X509_gmtime_adj(X509_getm_notAfter(x509), kSecondsPerYear);

    X509_NAME* const name = X509_get_subject_name(x509);
    const std::string commonName = "localhost";
    Require(X509_NAME_add_entry_by_NID(name, NID_commonName, MBSTRING_UTF8,
                                       reinterpret_cast<const unsigned char*>(commonName.c_str()), -1, -1, 0) == 1 &&
            X509_set_issuer_name(x509, name) == 1);
    const Extension names(
        X509V3_EXT_conf_nid(nullptr, nullptr, NID_subject_alt_name, "DNS:localhost,IP:127.0.0.1,IP:::1"));
    Require(names != nullptr && X509_add_ext(x509, names.get(), -1) == 1 && X509_sign(x509, key, EVP_sha256()) > 0);
    return certificate;
}

}  // namespace

std::shared_ptr<ssl_ctx_st> MakeServerTls()
{
    const Key key(EVP_EC_gen("P-256"));
    Require(key != nullptr);
    const Certificate certificate = SelfSigned(key.get());
    std::shared_ptr<SSL_CTX> context(SSL_CTX_new(TLS_server_method()), SSL_CTX_free);
    Require(context != nullptr && SSL_CTX_use_certificate(context.get(), certificate.get()) == 1 &&
            SSL_CTX_use_PrivateKey(context.get(), key.get()) == 1);
    SSL_CTX_set_mode(context.get(), SSL_MODE_AUTO_RETRY);
    return context;
}

}  // namespace emulator
