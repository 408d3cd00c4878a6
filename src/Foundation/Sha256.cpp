#include "Foundation/Sha256.h"

#include <openssl/evp.h>

void Sha256::Free::operator()(evp_md_ctx_st *context) const
{
    EVP_MD_CTX_free(context);
}

Sha256::Sha256() : m_context(EVP_MD_CTX_new())
{
    if (!m_context || !EVP_DigestInit_ex(m_context.get(), EVP_sha256(), nullptr))
        qFatal("OpenSSL has no SHA-256");
}

Sha256::~Sha256() = default;
Sha256::Sha256(Sha256 &&) noexcept = default;
Sha256 &Sha256::operator=(Sha256 &&) noexcept = default;

void Sha256::add(QByteArrayView bytes)
{
    EVP_DigestUpdate(m_context.get(), bytes.data(), std::size_t(bytes.size()));
}

QByteArray Sha256::hex()
{
    QByteArray digest(32, '\0');
    EVP_DigestFinal_ex(m_context.get(), reinterpret_cast<unsigned char *>(digest.data()), nullptr);
    return digest.toHex();
}
