#include "Certificate.h"

#include <openssl/ec.h>
#include <openssl/evp.h>
#include <openssl/pem.h>
#include <openssl/x509.h>

#include <memory>

namespace testing_support {

namespace {

template <typename Write>
QByteArray Pem(Write write)
{
    const std::unique_ptr<BIO, decltype(&BIO_free_all)> memory(BIO_new(BIO_s_mem()), &BIO_free_all);
    write(memory.get());
    char* pData = nullptr;
    const long nSize = BIO_get_mem_data(memory.get(), &pData);
    return {pData, int(nSize)};
}

}  // namespace

Certificate MakeCertificate(const CertificateSubject& subject)
{
    const std::unique_ptr<EVP_PKEY, decltype(&EVP_PKEY_free)> key(EVP_EC_gen("P-256"), &EVP_PKEY_free);
    const std::unique_ptr<X509, decltype(&X509_free)> certificate(X509_new(), &X509_free);
    constexpr long kDay = 24L * 60 * 60;
    ASN1_INTEGER_set(X509_get_serialNumber(certificate.get()), 1);
    X509_gmtime_adj(X509_getm_notBefore(certificate.get()), subject.fromDay * kDay);
    X509_gmtime_adj(X509_getm_notAfter(certificate.get()), subject.toDay * kDay);
    X509_set_pubkey(certificate.get(), key.get());
    X509_NAME* pName = X509_get_subject_name(certificate.get());
    X509_NAME_add_entry_by_txt(pName, "CN", MBSTRING_ASC,
                               reinterpret_cast<const unsigned char*>(subject.name.constData()), subject.name.size(),
                               -1, 0);
    X509_set_issuer_name(certificate.get(), pName);
    X509_sign(certificate.get(), key.get(), EVP_sha256());

    const QByteArray keyPem =
        Pem([&](BIO* pBio) { PEM_write_bio_PrivateKey(pBio, key.get(), nullptr, nullptr, 0, nullptr, nullptr); });
    const QByteArray certificatePem = Pem([&](BIO* pBio) { PEM_write_bio_X509(pBio, certificate.get()); });
    return {QSslCertificate(certificatePem), QSslKey(keyPem, QSsl::Ec)};
}

}  // namespace testing_support
