// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include <openssl/ssl.h>

#include <memory>
#include <string>

// A certificate authority of this run's own, and a certificate of it for 127.0.0.1, but not for
// localhost, valid for an hour.
class WebCertificates
{
public:
    WebCertificates();

    // The authority's certificate as PEM, for a client that is to trust it.
    std::string authority() const;
    // A server's context with the certificate and its key.
    std::shared_ptr<SSL_CTX> serverContext() const;

private:
    std::shared_ptr<EVP_PKEY> m_authorityKey;
    std::shared_ptr<X509> m_authority;
    std::shared_ptr<EVP_PKEY> m_key;
    std::shared_ptr<X509> m_certificate;
};
