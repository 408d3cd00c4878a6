#pragma once

#include <QChar>
#include <QList>
#include <QString>
#include <QStringList>

/// A spelling dictionary that lies on the machine: a ".dic" file with the ".aff" file beside it.
struct InstalledDictionary {
    /// The name of its files without their endings, such as "en_US".
    QString code;
    /// The ".dic" file.
    QString path;
    /// What the language calls itself, such as "American English".
    QString title;
    /// The script that the language is written in.
    QChar::Script script = QChar::Script_Latin;
};

namespace InstalledDictionaries
{
/// Where the desktop keeps dictionaries, the user's own folder first.
QStringList folders();

/// The dictionaries in these folders, by their titles. One that stands under several names is given once.
QList<InstalledDictionary> in(const QStringList &folders);

/// The code of the dictionary that suits a locale best, such as "de_DE" for "de_AT"; empty if there is none
/// for its language.
/// @param localeName such as "de_AT"; "C" stands for the English that the program speaks
QString codeFor(const QString &localeName, const QList<InstalledDictionary> &dictionaries);

/// What the language of a locale calls itself, such as "Deutsch".
QString languageTitle(const QString &localeName);
} // namespace InstalledDictionaries
