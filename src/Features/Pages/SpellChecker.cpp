#include "Features/Pages/SpellChecker.h"

#include "Support/Preferences.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace
{
/// So few that a suggestion never waits long behind them.
constexpr qsizetype wordsAtOnce = 200;
/// About 10 MB; more words than a user writes in a day.
constexpr qsizetype maxKept = 100'000;
} // namespace

SpellChecker::SpellChecker(Preferences &preferences, const QStringList &folders, const QString &localeName,
                           QObject *parent)
    : QObject(parent),
      m_preferences(preferences),
      m_folders(folders),
      m_localeName(localeName),
      m_ask([this] { askNext(); })
{
    m_suggestionLimit.setSingleShot(true);
    m_suggestionLimit.setInterval(suggestionWait);
    connect(&m_suggestionLimit, &QTimer::timeout, this, [this] { endSuggesting({}); });
    connect(&preferences, &Preferences::changed, this, &SpellChecker::readPreference);
    m_worker.moveToThread(&m_thread);
    readOwnWords();
}

SpellChecker::~SpellChecker()
{
    m_thread.quit();
    m_thread.wait();
}

bool SpellChecker::isEnabled() const
{
    return m_preferences.value(enabledKey, true).toBool();
}

void SpellChecker::setEnabled(bool enabled)
{
    m_preferences.setValue(enabledKey, enabled);
}

QStringList SpellChecker::languages()
{
    QStringList titles;
    for (const InstalledDictionary &each : dictionaries())
        titles.append(each.title);
    return titles;
}

QList<bool> SpellChecker::chosenLanguages()
{
    const QStringList codes = chosenCodes();
    QList<bool> chosen;
    for (const InstalledDictionary &each : dictionaries())
        chosen.append(codes.contains(each.code));
    return chosen;
}

void SpellChecker::toggleLanguage(int index)
{
    if (index < 0 || index >= dictionaries().size())
        return;
    QStringList codes = chosenCodes();
    const QString &code = dictionaries()[index].code;
    if (!codes.removeOne(code))
        codes.append(code);
    m_preferences.setValue(languagesKey, codes.join(u','));
}

QString SpellChecker::problem()
{
    if (dictionaries().isEmpty())
        return tr("No dictionary is installed");
    if (!chosenCodes().isEmpty())
        return {};
    if (m_preferences.value(languagesKey).isValid())
        return tr("No language is chosen");
    return tr("No dictionary for %1 is installed").arg(InstalledDictionaries::languageTitle(m_localeName));
}

void SpellChecker::setFolders(const QStringList &folders)
{
    m_folders = folders;
    m_dictionaries.reset();
    forget();
    emit changed();
    emit verdictsChanged();
}

bool SpellChecker::isActive()
{
    return isEnabled() && !chosenCodes().isEmpty();
}

SpellChecker::Verdict SpellChecker::verdict(const QString &word)
{
    if (const auto known = m_isRight.constFind(word); known != m_isRight.cend())
        return *known || isAccepted(word) ? Verdict::right : Verdict::wrong;
    if (isAccepted(word))
        return Verdict::right;
    m_unasked.insert(word);
    m_ask.request();
    return Verdict::unknown;
}

void SpellChecker::suggest(const QString &word)
{
    m_suggestedWord = word;
    m_suggestionLimit.start();
    load();
    QString asked = word;
    asked.replace(u'’', u'\'');
    const bool isCurly = asked != word;
    QMetaObject::invokeMethod(&m_worker, [this, word, asked, isCurly] {
        QStringList found = m_worker.suggestions(asked, maxSuggestions);
        if (isCurly)
            found.replaceInStrings(u"'"_s, u"’"_s);
        QMetaObject::invokeMethod(this, [this, word, found] {
            if (word == m_suggestedWord)
                endSuggesting(found);
        });
    });
}

void SpellChecker::endSuggesting(const QStringList &suggestions)
{
    if (m_suggestedWord.isEmpty())
        return;
    m_suggestionLimit.stop();
    emit suggested(std::exchange(m_suggestedWord, {}), suggestions);
}

void SpellChecker::add(const QString &word)
{
    m_ownWords.insert(word);
    writeOwnWords();
}

void SpellChecker::remove(const QString &word)
{
    if (m_ownWords.remove(word))
        writeOwnWords();
}

void SpellChecker::ignore(const QString &word)
{
    m_ignoredWords.insert(word);
    emit verdictsChanged();
}

const QList<InstalledDictionary> &SpellChecker::dictionaries()
{
    if (!m_dictionaries)
        m_dictionaries = InstalledDictionaries::in(m_folders);
    return *m_dictionaries;
}

QStringList SpellChecker::chosenCodes()
{
    const QVariant chosen = m_preferences.value(languagesKey);
    QStringList codes = chosen.toString().split(u',', Qt::SkipEmptyParts);
    if (!chosen.isValid())
        codes.append(InstalledDictionaries::codeFor(m_localeName, dictionaries()));
    codes.removeIf([this](const QString &code) {
        return std::ranges::find(dictionaries(), code, &InstalledDictionary::code) == dictionaries().end();
    });
    return codes;
}

void SpellChecker::readPreference(const QString &key)
{
    if (key == languagesKey)
        forget();
    else if (key == wordsKey)
        readOwnWords();
    else if (key != enabledKey)
        return;
    emit changed();
    emit verdictsChanged();
}

void SpellChecker::readOwnWords()
{
    const QStringList words = m_preferences.value(wordsKey).toString().split(u'\n', Qt::SkipEmptyParts);
    m_ownWords = QSet(words.begin(), words.end());
}

void SpellChecker::writeOwnWords()
{
    QStringList words(m_ownWords.begin(), m_ownWords.end());
    words.sort();
    m_preferences.setValue(wordsKey, words.join(u'\n'));
}

bool SpellChecker::isAccepted(const QString &word) const
{
    if (m_ownWords.isEmpty() && m_ignoredWords.isEmpty())
        return false;
    const auto isKept = [this](const QString &form) {
        return m_ownWords.contains(form) || m_ignoredWords.contains(form);
    };
    // A word at the beginning of a sentence, and the possessive of a name.
    const bool isPossessive = word.endsWith("'s"_L1) || word.endsWith(u"’s");
    return isKept(word) || isKept(word.toLower()) || (isPossessive && isAccepted(word.chopped(2)));
}

bool SpellChecker::isInScript(const QString &word)
{
    const QList<uint> letters = word.left(2).toUcs4();
    return !letters.isEmpty() && m_scripts.contains(QChar::script(letters.first()));
}

void SpellChecker::forget()
{
    ++m_generation;
    m_isAsking = false;
    m_isLoaded = false;
    m_isRight.clear();
    m_unasked.clear();
}

void SpellChecker::load()
{
    if (std::exchange(m_isLoaded, true))
        return;
    const QStringList codes = chosenCodes();
    QStringList paths;
    m_scripts.clear();
    for (const InstalledDictionary &each : dictionaries()) {
        if (!codes.contains(each.code))
            continue;
        paths.append(each.path);
        m_scripts.insert(each.script);
    }
    m_thread.start(QThread::LowPriority);
    QMetaObject::invokeMethod(&m_worker, [this, paths] { m_worker.load(paths); });
}

void SpellChecker::askNext()
{
    if (m_isAsking || m_unasked.isEmpty())
        return;
    load();
    QStringList words;
    for (auto word = m_unasked.begin(); word != m_unasked.end() && words.size() < wordsAtOnce;) {
        words.append(*word);
        word = m_unasked.erase(word);
    }
    m_isAsking = true;
    QMetaObject::invokeMethod(&m_worker, [this, words, generation = m_generation] {
        QStringList asked = words;
        asked.replaceInStrings(u"’"_s, u"'"_s);
        QMetaObject::invokeMethod(this, [this, words, generation, right = m_worker.check(asked)] {
            if (generation == m_generation)
                takeAnswer(words, right);
        });
    });
}

void SpellChecker::takeAnswer(const QStringList &words, const QList<bool> &right)
{
    if (m_isRight.size() > maxKept)
        m_isRight.clear();
    for (qsizetype i = 0; i < words.size(); ++i)
        m_isRight.insert(words[i], right[i] || !isInScript(words[i]));
    m_isAsking = false;
    emit answered();
    askNext();
}
