#include "Support/FileNames.h"

#include "Foundation/Graphemes.h"

#include <QStringList>

#include <algorithm>
#include <ranges>

namespace
{
bool isUnfit(QChar character)
{
    return character.category() == QChar::Other_Control || QStringView(u"/\\:*?\"<>|").contains(character);
}

/// Names that stand for devices on some systems, whatever follows a dot in them.
bool isReserved(const QString &name)
{
    static const QStringList devices{QStringLiteral("CON"), QStringLiteral("PRN"), QStringLiteral("AUX"),
                                     QStringLiteral("NUL")};
    const QString stem = name.section(u'.', 0, 0).trimmed().toUpper();
    const bool isPort = stem.size() == 4 &&
                        (stem.startsWith(QStringLiteral("COM")) || stem.startsWith(QStringLiteral("LPT"))) &&
                        stem.back().isDigit();
    return isPort || devices.contains(stem);
}
} // namespace

QString FileNames::fit(const QString &title, const QString &otherwise)
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
    name = begin < end ? QString(begin, end - begin) : otherwise;
    return isReserved(name) ? name + u'-' : name;
}

QString FileNames::Unique::take(const QString &name)
{
    const auto key = [](const QString &text) {
        return text.normalized(QString::NormalizationForm_C).toCaseFolded();
    };
    QString unique = name;
    for (int number = 2; m_taken.contains(key(unique)); ++number)
        unique = name + u' ' + QString::number(number);
    m_taken.insert(key(unique));
    return unique;
}
