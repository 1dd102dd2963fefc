#include "TapCertificate.h"

#include <openssl/evp.h>
#include <openssl/pem.h>
#include <openssl/x509.h>

#include <memory>

namespace explorer {
namespace {

template <typename Write>
QByteArray ToPem(const Write& write)
{
    const std::unique_ptr<BIO, decltype(&BIO_free_all)> memory(BIO_new(BIO_s_mem()), &BIO_free_all);
    write(memory.get());
    char* data = nullptr;
    const auto size = BIO_get_mem_data(memory.get(), &data);
    return {data, static_cast<int>(size)};
}

}  // namespace

TapCertificate TapCertificate::Make()
{
    constexpr long kDay = 24L * 60 * 60;
    constexpr long kYear = 365 * kDay;
    const std::unique_ptr<EVP_PKEY, decltype(&EVP_PKEY_free)> key(EVP_EC_gen("P-256"), &EVP_PKEY_free);
    const std::unique_ptr<X509, decltype(&X509_free)> x509(X509_new(), &X509_free);
    X509_set_version(x509.get(), X509_VERSION_3);
    ASN1_INTEGER_set(X509_get_serialNumber(x509.get()), 1);
    X509_gmtime_adj(X509_getm_notBefore(x509.get()), -kDay);
    X509_gmtime_adj(X509_getm_notAfter(x509.get()), kYear);
    X509_set_pubkey(x509.get(), key.get());
    X509_sign(x509.get(), key.get(), EVP_sha256());
    return {QSslCertificate(ToPem([&x509](BIO* memory) { PEM_write_bio_X509(memory, x509.get()); })),
            QSslKey(ToPem([&key](BIO* memory) {
                        PEM_write_bio_PrivateKey(memory, key.get(), nullptr, nullptr, 0, nullptr, nullptr);
                    }),
                    QSsl::Ec)};
}

}  // namespace explorer
