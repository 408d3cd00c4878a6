#pragma once

#include "Foundation/CoalescedCall.h"
#include "Support/Spelling/InstalledDictionaries.h"
#include "Support/Spelling/SpellingWorker.h"

#include <QHash>
#include <QSet>
#include <QThread>
#include <QTimer>

class Preferences;

/// Tells which words are misspelt. The dictionaries are loaded and asked on a thread of its own, which starts
/// with the first question; what they have answered is kept. The user's choices and own words lie in the
/// preferences.
class SpellChecker : public QObject
{
    Q_OBJECT
    Q_PROPERTY(bool isEnabled READ isEnabled WRITE setEnabled NOTIFY changed FINAL)
    /// The titles of the installed dictionaries.
    Q_PROPERTY(QStringList languages READ languages NOTIFY changed FINAL)
    /// Whether each of them is asked: a word is right if one of them has it.
    Q_PROPERTY(QList<bool> chosenLanguages READ chosenLanguages NOTIFY changed FINAL)
    /// Why nothing can be checked; empty if something can.
    Q_PROPERTY(QString problem READ problem NOTIFY changed FINAL)

public:
    /// What the preferences are called.
    static constexpr QLatin1StringView enabledKey{"orvel.spelling.enabled"};
    static constexpr QLatin1StringView languagesKey{"orvel.spelling.languages"};
    static constexpr QLatin1StringView wordsKey{"orvel.spelling.words"};
    static constexpr int maxSuggestions = 5;
    /// How long a menu waits for suggestions by default, in milliseconds.
    static constexpr int suggestionWait = 400;

    /// @param folders where dictionaries are looked for, when they are first needed
    /// @param localeName the language of a user who has chosen none
    SpellChecker(Preferences &preferences, const QStringList &folders, const QString &localeName,
                 QObject *parent = nullptr);
    ~SpellChecker() override;

    bool isEnabled() const;
    void setEnabled(bool enabled);
    QStringList languages();
    QList<bool> chosenLanguages();
    /// Adds the dictionary to those that are asked, or takes it away.
    Q_INVOKABLE void toggleLanguage(int index);
    QString problem();
    /// Looks for dictionaries in these folders instead.
    Q_INVOKABLE void setFolders(const QStringList &folders);

    /// Whether words can be checked at all.
    bool isActive();
    /// Whether a word is known to be misspelt. One that has not been asked for yet is asked for:
    /// `answered` follows.
    enum class Verdict { unknown, right, wrong };
    Verdict verdict(const QString &word);

    /// Sends `suggested` once, also if there is nothing to suggest.
    Q_INVOKABLE void suggest(const QString &word);
    Q_INVOKABLE void setSuggestionWait(int milliseconds) { m_suggestionLimit.setInterval(milliseconds); }
    /// Keeps a word as one of the user's own.
    Q_INVOKABLE void add(const QString &word);
    Q_INVOKABLE void remove(const QString &word);
    Q_INVOKABLE bool isOwn(const QString &word) const { return m_ownWords.contains(word); }
    /// Takes a word as right until the program ends.
    Q_INVOKABLE void ignore(const QString &word);

signals:
    /// The choices have changed.
    void changed();
    /// What is known of the words has changed.
    void verdictsChanged();
    /// Words that were unknown are known.
    void answered();
    void suggested(const QString &word, const QStringList &suggestions);

private:
    const QList<InstalledDictionary> &dictionaries();
    QStringList chosenCodes();
    void readPreference(const QString &key);
    void readOwnWords();
    void writeOwnWords();
    /// Whether the user has said that the word is right.
    bool isAccepted(const QString &word) const;
    bool isInScript(const QString &word);
    /// All answers so far are void: other dictionaries are asked from now on.
    void forget();
    /// Has the worker load the chosen dictionaries, unless it has.
    void load();
    void askNext();
    void takeAnswer(const QStringList &words, const QList<bool> &right);
    void endSuggesting(const QStringList &suggestions);

    Preferences &m_preferences;
    QStringList m_folders;
    QString m_localeName;
    std::optional<QList<InstalledDictionary>> m_dictionaries;
    QSet<QString> m_ownWords;
    QSet<QString> m_ignoredWords{QStringLiteral("Orvel")};
    QHash<QString, bool> m_isRight;
    QSet<QChar::Script> m_scripts;

    QSet<QString> m_unasked;
    CoalescedCall m_ask;
    bool m_isAsking = false;
    bool m_isLoaded = false;
    /// Counts the loads, so that late answers are known as such.
    int m_generation = 0;

    QString m_suggestedWord;
    QTimer m_suggestionLimit;
    QThread m_thread;
    SpellingWorker m_worker;
};
