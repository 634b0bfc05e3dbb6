// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "tests/WebCertificates.h"

#include <openssl/bio.h>
#include <openssl/ec.h>
#include <openssl/pem.h>
#include <openssl/x509v3.h>

#include <stdexcept>

namespace
{

void require(bool holds)
{
    if (!holds) {
        throw std::runtime_error("a certificate for the tests could not be made");
    }
}

std::shared_ptr<EVP_PKEY> freshKey() { return {EVP_EC_gen("P-256"), EVP_PKEY_free}; }

void extend(X509 *certificate, X509 *issuer, int what, const char *value)
{
    X509V3_CTX context;
    X509V3_set_ctx(&context, issuer, certificate, nullptr, nullptr, 0);
    X509_EXTENSION *extension = X509V3_EXT_conf_nid(nullptr, &context, what, value);
    require(extension != nullptr && X509_add_ext(certificate, extension, -1) == 1);
    X509_EXTENSION_free(extension);
}

void nameIt(X509_NAME *name, const char *commonName)
{
    const auto *bytes = reinterpret_cast<const unsigned char *>(commonName);
    require(X509_NAME_add_entry_by_txt(name, "CN", MBSTRING_ASC, bytes, -1, -1, 0) == 1);
}

std::shared_ptr<X509> freshCertificate(EVP_PKEY *key, const char *name, long serial)
{
    constexpr long kMinute = 60;
    const std::shared_ptr<X509> made{X509_new(), X509_free};
    require(key != nullptr && made != nullptr);
    require(X509_set_version(made.get(), X509_VERSION_3) == 1);
    require(ASN1_INTEGER_set(X509_get_serialNumber(made.get()), serial) == 1);
    X509_gmtime_adj(X509_getm_notBefore(made.get()), -5 * kMinute);
    X509_gmtime_adj(X509_getm_notAfter(made.get()), 60 * kMinute);
    require(X509_set_pubkey(made.get(), key) == 1);
    nameIt(X509_get_subject_name(made.get()), name);
    return made;
}

} // namespace

WebCertificates::WebCertificates()
    : m_authorityKey(freshKey()),
      m_authority(freshCertificate(m_authorityKey.get(), "Authority of the tests", 1)),
      m_key(freshKey()), m_certificate(freshCertificate(m_key.get(), "Server of the tests", 2))
{
    X509_NAME *issuer = X509_get_subject_name(m_authority.get());
    require(X509_set_issuer_name(m_authority.get(), issuer) == 1);
    extend(m_authority.get(), m_authority.get(), NID_basic_constraints, "critical,CA:TRUE");
    require(X509_sign(m_authority.get(), m_authorityKey.get(), EVP_sha256()) > 0);

    require(X509_set_issuer_name(m_certificate.get(), issuer) == 1);
    extend(m_certificate.get(), m_authority.get(), NID_subject_alt_name, "IP:127.0.0.1");
    require(X509_sign(m_certificate.get(), m_authorityKey.get(), EVP_sha256()) > 0);
}

std::string WebCertificates::authority() const
{
    const std::unique_ptr<BIO, int (*)(BIO *)> memory{BIO_new(BIO_s_mem()), BIO_free};
    require(PEM_write_bio_X509(memory.get(), m_authority.get()) == 1);
    char *begin = nullptr;
    const long size = BIO_get_mem_data(memory.get(), &begin);
    return {begin, static_cast<std::size_t>(size)};
}

std::shared_ptr<SSL_CTX> WebCertificates::serverContext() const
{
    std::shared_ptr<SSL_CTX> context{SSL_CTX_new(TLS_server_method()), SSL_CTX_free};
    require(context != nullptr);
    require(SSL_CTX_use_certificate(context.get(), m_certificate.get()) == 1);
    require(SSL_CTX_use_PrivateKey(context.get(), m_key.get()) == 1);
    return context;
}
