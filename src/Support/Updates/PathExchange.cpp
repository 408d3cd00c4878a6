#include "Support/Updates/PathExchange.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <cstdio>
#include <cstring>
#include <fcntl.h>

using namespace Qt::StringLiterals;

std::expected<void, QString> PathExchange::exchange(const QString &first, const QString &second)
{
    if (::renameat2(AT_FDCWD, QFile::encodeName(first).constData(), AT_FDCWD,
                    QFile::encodeName(second).constData(), RENAME_EXCHANGE) == 0)
        return {};
    return std::unexpected(qt_error_string());
}

bool PathExchange::isPossibleIn(const QString &folder)
{
    const QTemporaryDir scratch(folder + "/.orvel-update-XXXXXX"_L1);
    const QDir places(scratch.path());
    return scratch.isValid() && places.mkdir(u"first"_s) && places.mkdir(u"second"_s) &&
           exchange(places.filePath(u"first"_s), places.filePath(u"second"_s));
}

std::optional<int> PathExchange::serve(int argc, char *argv[])
{
    if (argc != 4 || std::strcmp(argv[1], "--exchange") != 0)
        return {};
    const auto exchanged = exchange(QFile::decodeName(argv[2]), QFile::decodeName(argv[3]));
    if (exchanged)
        return EXIT_SUCCESS;
    std::fprintf(stderr, "%s\n", qUtf8Printable(exchanged.error()));
    return EXIT_FAILURE;
}
