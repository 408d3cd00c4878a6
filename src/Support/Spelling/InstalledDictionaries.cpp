#include "Support/Spelling/InstalledDictionaries.h"

#include <QDir>
#include <QLocale>
#include <QSet>
#include <QStandardPaths>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace
{
QLocale localeOf(const QString &name)
{
    const QLocale locale(name);
    return locale.language() == QLocale::C ? QLocale(QLocale::English, QLocale::UnitedStates) : locale;
}

QString capitalized(QString text)
{
    if (!text.isEmpty())
        text[0] = text[0].toUpper();
    return text;
}

/// "frami" of "de_DE_frami", which no locale knows.
QString variantIn(const QString &code)
{
    return code.section(u'_', 2);
}

QString titleOf(const QString &code)
{
    const QLocale locale(code);
    if (locale.language() == QLocale::C)
        return code;
    QString title = capitalized(locale.nativeLanguageName());
    // Some names tell the country already, as "American English" does.
    const bool tellsCountry = locale.nativeLanguageName() != QLocale(locale.language()).nativeLanguageName();
    QStringList details;
    if (code.contains(u'_') && !tellsCountry && locale.language() != QLocale::English)
        details.append(locale.nativeTerritoryName());
    if (!variantIn(code).isEmpty())
        details.append(variantIn(code));
    return details.isEmpty() ? title : u"%1 (%2)"_s.arg(title, details.join(u", "_s));
}

/// The script of the name that the language gives itself is the one that it is written in.
QChar::Script scriptOf(const QString &code)
{
    const QList<uint> name = QLocale(code).nativeLanguageName().toUcs4();
    return name.isEmpty() ? QChar::Script_Latin : QChar::script(name.first());
}

int suitability(const QString &code, const QLocale &locale)
{
    const QLocale other(code);
    if (other.language() != locale.language() || other.language() == QLocale::C)
        return 0;
    const bool isPlain = variantIn(code).isEmpty();
    if (code.contains(u'_') && other.territory() == locale.territory())
        return isPlain ? 5 : 4;
    if (!code.contains(u'_'))
        return 3;
    return other.territory() == QLocale(locale.language()).territory() ? 2 : 1;
}
} // namespace

QStringList InstalledDictionaries::folders()
{
    QStringList folders = qEnvironmentVariable("DICPATH").split(u':', Qt::SkipEmptyParts);
    for (const QString &name : {u"hunspell"_s, u"myspell/dicts"_s, u"myspell"_s})
        folders += QStandardPaths::locateAll(QStandardPaths::GenericDataLocation, name,
                                             QStandardPaths::LocateDirectory);
    return folders;
}

QList<InstalledDictionary> InstalledDictionaries::in(const QStringList &folders)
{
    QList<InstalledDictionary> found;
    QSet<QString> known;
    for (const QString &folder : folders) {
        QFileInfoList files =
            QDir(folder).entryInfoList({u"*.dic"_s}, QDir::Files | QDir::Readable, QDir::Name);
        // A link comes after what it leads to.
        std::ranges::stable_partition(files, [](const QFileInfo &file) { return !file.isSymLink(); });
        for (const QFileInfo &file : std::as_const(files)) {
            const QString code = file.completeBaseName();
            const bool hasRules = QFileInfo(file.path() + u'/' + code + u".aff"_s).isReadable();
            if (!hasRules || file.size() == 0 || known.contains(code) ||
                known.contains(file.canonicalFilePath()))
                continue;
            known << code << file.canonicalFilePath();
            found.append({code, file.filePath(), titleOf(code), scriptOf(code)});
        }
    }
    std::ranges::stable_sort(found, [](const InstalledDictionary &a, const InstalledDictionary &b) {
        return a.title.localeAwareCompare(b.title) < 0;
    });
    return found;
}

QString InstalledDictionaries::codeFor(const QString &localeName,
                                       const QList<InstalledDictionary> &dictionaries)
{
    const QLocale locale = localeOf(localeName);
    QString best;
    int bestSuitability = 0;
    for (const InstalledDictionary &each : dictionaries) {
        const int suits = suitability(each.code, locale);
        if (suits > bestSuitability) {
            bestSuitability = suits;
            best = each.code;
        }
    }
    return best;
}

QString InstalledDictionaries::languageTitle(const QString &localeName)
{
    return capitalized(QLocale(localeOf(localeName).language()).nativeLanguageName());
}
