#include "Features/Transfer/MarkdownFiles.h"

#include "Foundation/LineText.h"

#include <QCollator>
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QStringDecoder>

#include <algorithm>

namespace
{
struct Texts {
    Q_DECLARE_TR_FUNCTIONS(MarkdownFiles)
};

const QString folderSeparator = QStringLiteral(" / ");

class Walk
{
public:
    explicit Walk(const std::function<bool()> &goOn) : m_goOn(goOn)
    {
        m_collator.setNumericMode(true);
        m_collator.setCaseSensitivity(Qt::CaseInsensitive);
    }

    void add(const QString &path, const QString &folder)
    {
        if (!MarkdownFiles::isMarkdown(path))
            ++listing.skipped;
        else if (listing.sources.size() == MarkdownFiles::mostFiles)
            listing.isCut = true;
        else
            listing.sources.append({path, folder});
    }

    void enter(const QString &path, const QString &folder)
    {
        if (listing.isCut || !m_goOn())
            return;
        QFileInfoList entries = QDir(path).entryInfoList(QDir::Files | QDir::Dirs | QDir::NoDotAndDotDot);
        std::ranges::sort(entries, [this](const QFileInfo &a, const QFileInfo &b) {
            return std::pair(a.isDir(), 0) != std::pair(b.isDir(), 0)
                       ? b.isDir()
                       : m_collator.compare(a.fileName(), b.fileName()) < 0;
        });
        for (const QFileInfo &entry : std::as_const(entries)) {
            if (!entry.isDir())
                add(entry.filePath(), folder);
            else if (!entry.isSymLink())
                enter(entry.filePath(), folder + folderSeparator + entry.fileName());
        }
    }

    MarkdownFiles::Listing listing;

private:
    const std::function<bool()> &m_goOn;
    QCollator m_collator{QLocale(QLocale::English)};
};

QString decode(const QByteArray &bytes, bool &wasGuessed)
{
    const auto encoding = QStringConverter::encodingForData(bytes);
    QStringDecoder decoder(encoding.value_or(QStringConverter::Utf8));
    QString text = decoder(bytes);
    wasGuessed = decoder.hasError();
    return LineText::withLineFeeds(wasGuessed ? QString::fromLatin1(bytes) : text);
}

QString unquoted(QString value)
{
    value = value.trimmed();
    const bool isQuoted = value.size() >= 2 && value.front() == value.back() &&
                          (value.front() == u'"' || value.front() == u'\'');
    return isQuoted ? value.sliced(1, value.size() - 2) : value;
}

/// Takes the front matter off the text: what stands between two lines of dashes at its very beginning, of the
/// form "key: value".
QString takeFrontMatter(QString &text, bool &isLost)
{
    if (!text.startsWith(QStringLiteral("---\n")))
        return {};
    qsizetype end = text.indexOf(QStringLiteral("\n---\n"), 3);
    if (end < 0 && text.endsWith(QStringLiteral("\n---")))
        end = text.size() - 4;
    if (end < 0)
        return {};
    const QStringList lines = text.mid(4, end - 3).split(u'\n', Qt::SkipEmptyParts);
    // Otherwise it is a text between two rules.
    static const QRegularExpression entry(QStringLiteral("^(?:[A-Za-z_][\\w-]*:(?:\\s|$)|\\s|#|- )"));
    if (lines.isEmpty() ||
        !std::ranges::all_of(lines, [](const QString &line) { return entry.match(line).hasMatch(); }))
        return {};
    QString title;
    for (const QString &line : lines) {
        if (line.startsWith(QStringLiteral("title:"), Qt::CaseInsensitive))
            title = unquoted(line.mid(6));
        else
            isLost = true;
    }
    text.remove(0, std::min(end + 5, text.size()));
    return title;
}
} // namespace

bool MarkdownFiles::isMarkdown(const QString &path)
{
    static const QStringList endings{QStringLiteral("md"), QStringLiteral("markdown"),
                                     QStringLiteral("mdown"), QStringLiteral("mkd"), QStringLiteral("mkdn")};
    return endings.contains(QFileInfo(path).suffix().toLower());
}

MarkdownFiles::Listing MarkdownFiles::list(const QStringList &places, const std::function<bool()> &goOn)
{
    Walk walk(goOn);
    for (const QString &place : places) {
        const QFileInfo file(place);
        if (file.isDir())
            walk.enter(place, QDir(place).dirName());
        else
            walk.add(place, {});
    }
    return walk.listing;
}

MarkdownFiles::Document MarkdownFiles::parse(const QByteArray &bytes, const QString &name,
                                             const std::function<QUuid()> &makeId)
{
    Document document;
    QString text = decode(bytes, document.wasGuessed);
    document.title = takeFrontMatter(text, document.lostFrontMatter);
    BlockMarkdown::Reading reading = BlockMarkdown::read(text);
    document.losses = reading.losses;
    document.blocks = std::move(reading.blocks);
    const bool beginsWithTitle =
        !document.blocks.isEmpty() && document.blocks.first().type == BlockType::heading1 &&
        (document.title.isEmpty() || document.title == document.blocks.first().text.simplified());
    if (beginsWithTitle)
        document.title = document.blocks.takeFirst().text.simplified();
    if (document.title.isEmpty())
        document.title = name;
    if (document.blocks.isEmpty())
        document.blocks.append(Block());
    for (Block &block : document.blocks)
        block.id = makeId();
    return document;
}

std::expected<MarkdownFiles::Document, QString> MarkdownFiles::read(const QString &path,
                                                                    const std::function<QUuid()> &makeId)
{
    QFile file(path);
    const QFileInfo info(path);
    // A pipe or a device may have no end.
    if (!info.isFile())
        return std::unexpected(Texts::tr("“%1” is not a file.").arg(info.fileName()));
    if (info.size() > mostBytes)
        return std::unexpected(Texts::tr("“%1” is too long.").arg(info.fileName()));
    if (!file.open(QIODevice::ReadOnly))
        return std::unexpected(
            Texts::tr("“%1” could not be opened: %2.").arg(info.fileName(), file.errorString()));
    return parse(file.readAll(), info.completeBaseName(), makeId);
}
