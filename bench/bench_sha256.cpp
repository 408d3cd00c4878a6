#include "Foundation/Sha256.h"
#include "Harness/Comparison.h"

#include <cstdio>
#include <openssl/sha.h>

int main()
{
    // A package, as it comes from the network: in pieces.
    const QByteArray package = QByteArray("the bytes of a package ").repeated(3'000'000);
    constexpr qsizetype piece = 64 * 1024;
    QByteArray ours, baseline(SHA256_DIGEST_LENGTH, '\0');
    const auto times = Comparison::alternate(
        11,
        [&] {
            return timed([&] {
                Sha256 hash;
                for (qsizetype at = 0; at < package.size(); at += piece)
                    hash.add(QByteArrayView(package).sliced(at, qMin(piece, package.size() - at)));
                ours = hash.hex();
            });
        },
        [&] {
            return timed([&] {
                SHA256(reinterpret_cast<const unsigned char *>(package.constData()),
                       std::size_t(package.size()), reinterpret_cast<unsigned char *>(baseline.data()));
            });
        });
    if (ours != baseline.toHex()) {
        std::fprintf(stderr, "bench_sha256: the two don't agree\n");
        return 2;
    }
    Comparison comparison;
    comparison.throughputAtLeast(QStringLiteral("SHA-256 of a package, against OpenSSL in one call"),
                                 Comparison::best(times.ours), Comparison::best(times.baseline), 0.9);
    return comparison.exitCode();
}
