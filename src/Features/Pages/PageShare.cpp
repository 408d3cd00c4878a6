#include "Features/Pages/PageShare.h"

#include "Foundation/AtomicFile.h"
#include "Foundation/Graphemes.h"
#include "Support/PageText.h"

#include <QCoreApplication>

#include <algorithm>
#include <ranges>

namespace
{
struct Texts {
    Q_DECLARE_TR_FUNCTIONS(PageShare)
};

QString untitled()
{
    return Texts::tr("Untitled");
}

bool isUnfit(QChar character)
{
    return character.category() == QChar::Other_Control || QStringView(u"/\\:*?\"<>|").contains(character);
}
} // namespace

QString PageShare::fileName(const QString &title)
{
    // Most file systems take 255 bytes; that leaves room for the ending and for a number.
    static constexpr qsizetype mostBytes = 200;
    QString name = title;
    for (QChar &character : name)
        if (isUnfit(character))
            character = character.isSpace() ? u' ' : u'-';
    name = name.simplified();
    for (qsizetype most = mostBytes; name.toUtf8().size() > mostBytes; --most)
        name = Graphemes::left(name, most);
    // A file with a leading dot is hidden, and some systems drop a dot at the end.
    const auto counts = [](QChar character) { return character != u'.' && character != u' '; };
    const auto begin = std::ranges::find_if(name, counts);
    const auto end = std::ranges::find_if(name | std::views::reverse, counts).base();
    name = begin < end ? QString(begin, end - begin) : QString();
    return (name.isEmpty() ? untitled() : name) + QStringLiteral(".md");
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
