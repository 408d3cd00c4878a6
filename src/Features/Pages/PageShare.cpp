#include "Features/Pages/PageShare.h"

#include "Foundation/AtomicFile.h"
#include "Support/FileNames.h"
#include "Support/PageText.h"

#include <QCoreApplication>

namespace
{
struct Texts {
    Q_DECLARE_TR_FUNCTIONS(PageShare)
};

QString untitled()
{
    return Texts::tr("Untitled");
}
} // namespace

QString PageShare::fileName(const QString &title)
{
    return FileNames::fit(title, untitled()) + QStringLiteral(".md");
}

std::expected<void, QString> PageShare::write(const Page &page, const QString &path)
{
    const auto written =
        AtomicFile::write(path, PageText::markdownExport(page).toUtf8(), AtomicFile::Access::umask);
    if (!written)
        return std::unexpected(Texts::tr("The page could not be saved: %1").arg(written.error()));
    return {};
}

std::expected<QUrl, QString> PageShare::mailLink(const Page &page)
{
    const QString subject = page.title.trimmed().isEmpty() ? untitled() : page.title.simplified();
    const QString body = PageText::markdownExport(page).replace(u'\n', QStringLiteral("\r\n"));
    const QByteArray link =
        "mailto:?subject=" + QUrl::toPercentEncoding(subject) + "&body=" + QUrl::toPercentEncoding(body);
    if (link.size() > mostMailBytes)
        return std::unexpected(
            Texts::tr("The page is too long to be written into a mail. Save it as a file and attach that."));
    return QUrl::fromEncoded(link, QUrl::StrictMode);
}
