#include "Foundation/Sha256.h"

#include "Foundation/LazyLibrary.h"

#include <openssl/evp.h>

namespace
{
/// The functions of OpenSSL that are called here.
struct Digests {
    decltype(&::EVP_MD_CTX_new) newContext;
    decltype(&::EVP_MD_CTX_free) freeContext;
    decltype(&::EVP_sha256) sha256;
    decltype(&::EVP_DigestInit_ex) init;
    decltype(&::EVP_DigestUpdate) update;
    decltype(&::EVP_DigestFinal_ex) finish;
};

const Digests &digests()
{
    static const Digests loaded = [] {
        LazyLibrary library(QStringLiteral("crypto"), OPENSSL_VERSION_MAJOR);
        Digests digests = {};
        library.resolve(digests.newContext, "EVP_MD_CTX_new");
        library.resolve(digests.freeContext, "EVP_MD_CTX_free");
        library.resolve(digests.sha256, "EVP_sha256");
        library.resolve(digests.init, "EVP_DigestInit_ex");
        library.resolve(digests.update, "EVP_DigestUpdate");
        library.resolve(digests.finish, "EVP_DigestFinal_ex");
        if (const auto state = library.state(); !state)
            qFatal("OpenSSL can't be loaded: %s", qUtf8Printable(state.error()));
        return digests;
    }();
    return loaded;
}
} // namespace

void Sha256::Free::operator()(evp_md_ctx_st *context) const
{
    digests().freeContext(context);
}

Sha256::Sha256() : m_context(digests().newContext())
{
    if (!m_context || !digests().init(m_context.get(), digests().sha256(), nullptr))
        qFatal("OpenSSL has no SHA-256");
}

Sha256::~Sha256() = default;
Sha256::Sha256(Sha256 &&) noexcept = default;
Sha256 &Sha256::operator=(Sha256 &&) noexcept = default;

void Sha256::add(QByteArrayView bytes)
{
    digests().update(m_context.get(), bytes.data(), std::size_t(bytes.size()));
}

QByteArray Sha256::hex()
{
    QByteArray digest(32, '\0');
    digests().finish(m_context.get(), reinterpret_cast<unsigned char *>(digest.data()), nullptr);
    return digest.toHex();
}
