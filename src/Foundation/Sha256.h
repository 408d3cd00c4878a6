#pragma once

#include <QByteArray>
#include <QByteArrayView>

#include <memory>

struct evp_md_ctx_st;

/// The SHA-256 of bytes that come in pieces.
class Sha256
{
public:
    Sha256();
    ~Sha256();
    Sha256(Sha256 &&) noexcept;
    Sha256 &operator=(Sha256 &&) noexcept;

    void add(QByteArrayView bytes);
    /// In 64 lower-case hexadecimal digits. Takes no more bytes after this.
    QByteArray hex();

private:
    struct Free {
        void operator()(evp_md_ctx_st *context) const;
    };
    std::unique_ptr<evp_md_ctx_st, Free> m_context;
};
