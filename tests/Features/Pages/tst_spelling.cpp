#include "Features/Pages/SpellChecker.h"
#include "Features/Pages/SpellingWords.h"
#include "Support/Preferences.h"

#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;
using Verdict = SpellChecker::Verdict;

/// The spell checker with small dictionaries of its own.
class SpellingTest : public QObject
{
    Q_OBJECT

private:
    const QStringList m_folders{QStringLiteral(TEST_DICTIONARIES)};

    static QStringList words(const QString &text)
    {
        QStringList words;
        for (const SpellingWords::Word &word : SpellingWords::in(text))
            words.append(text.sliced(word.begin, word.end - word.begin));
        return words;
    }

    /// Waits for the answer of the dictionaries.
    static bool isRight(SpellChecker &checker, const QString &word)
    {
        QSignalSpy answered(&checker, &SpellChecker::answered);
        while (checker.verdict(word) == Verdict::unknown)
            if (!answered.wait())
                return false;
        return checker.verdict(word) == Verdict::right;
    }

private slots:
    void findsTheWordsOfProse_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QStringList>("expected");
        QTest::newRow("signs") << u"“Don’t—stop,” (she) said. *Well*-known!"_s
                               << QStringList{u"Don’t"_s, u"stop"_s, u"she"_s,
                                              u"said"_s,  u"Well"_s, u"known"_s};
        QTest::newRow("links") << u"see https://exmaple.org/befor, www.exmaple.org or a@exmaple.org now"_s
                               << QStringList{u"see"_s, u"or"_s, u"now"_s};
        QTest::newRow("code") << u"run `mispelt thing` and `open"_s
                              << QStringList{u"run"_s, u"and"_s, u"open"_s};
        QTest::newRow("names")
            << u"README.md /usr/lib #tag @me fooBar snake_case NASA v2 2nd --flag x std::move"_s
            << QStringList{};
        QTest::newRow("either") << u"and/or"_s << QStringList{u"and"_s, u"or"_s};
        QTest::newRow("scripts") << u"Grüße naïve 𝒳𝒴 שלום"_s
                                 << QStringList{u"Grüße"_s, u"naïve"_s, u"𝒳𝒴"_s, u"שלום"_s};
    }

    void findsTheWordsOfProse()
    {
        QFETCH(QString, text);
        QTEST(words(text), "expected");
    }

    void choosesDictionariesByLocale()
    {
        Preferences preferences;
        SpellChecker german(preferences, m_folders, u"de_CH"_s);
        QCOMPARE(german.languages(), (QStringList{u"British English"_s, u"Deutsch (Deutschland)"_s}));
        QCOMPARE(german.chosenLanguages(), (QList<bool>{false, true}));
        QVERIFY(isRight(german, u"Grüße"_s));
        QVERIFY(!isRight(german, u"Grüsse"_s));
        QVERIFY(!isRight(german, u"harbour"_s));
        // What another script writes is not for this dictionary to judge.
        QVERIFY(isRight(german, u"гавань"_s));

        QSignalSpy changed(&german, &SpellChecker::verdictsChanged);
        german.toggleLanguage(0);
        QCOMPARE(changed.size(), 1);
        QVERIFY(isRight(german, u"harbours"_s));
        QVERIFY(isRight(german, u"Hafen"_s));
        german.toggleLanguage(0);
        german.toggleLanguage(1);
        QVERIFY(!german.isActive());
        QVERIFY(!german.problem().isEmpty());

        Preferences others;
        SpellChecker french(others, m_folders, u"fr_FR"_s);
        QVERIFY(!french.isActive());
        QCOMPARE(french.problem(), u"No dictionary for Français is installed"_s);
        SpellChecker none(others, {}, u"en_GB"_s);
        QCOMPARE(none.problem(), u"No dictionary is installed"_s);
        QVERIFY(none.languages().isEmpty());
    }

    void keepsOwnWordsInTheFile()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath(u"preferences.ini"_s);
        Preferences preferences(path);
        SpellChecker checker(preferences, m_folders, u"C"_s);
        QVERIFY(!isRight(checker, u"orvel"_s));
        checker.add(u"orvel"_s);
        checker.add(u"Ølberg"_s);
        QVERIFY(isRight(checker, u"Orvel"_s));
        QVERIFY(isRight(checker, u"orvel’s"_s));
        checker.ignore(u"befor"_s);
        QVERIFY(isRight(checker, u"Befor"_s));
        checker.setEnabled(false);

        Preferences later(path);
        SpellChecker next(later, m_folders, u"C"_s);
        QVERIFY(!next.isEnabled() && !next.isActive());
        next.setEnabled(true);
        QVERIFY(next.isOwn(u"orvel"_s) && next.isOwn(u"Ølberg"_s));
        QVERIFY(!isRight(next, u"befor"_s));
        next.remove(u"orvel"_s);
        QVERIFY(!isRight(next, u"orvel"_s));
    }

    void suggests()
    {
        Preferences preferences;
        SpellChecker checker(preferences, m_folders, u"en_GB"_s);
        checker.setSuggestionWait(30'000);
        QSignalSpy suggested(&checker, &SpellChecker::suggested);
        QSignalSpy answered(&checker, &SpellChecker::answered);
        // It comes in time behind a long list of words.
        for (int i = 0; i < 5'000; ++i)
            checker.verdict(u"word%1"_s.arg(QString(i % 50 + 1, u'x') + QString::number(i)));
        QVERIFY(answered.wait());
        checker.suggest(u"befor"_s);
        QVERIFY(suggested.wait());
        QCOMPARE(suggested.first().at(0).toString(), u"befor"_s);
        QVERIFY(suggested.first().at(1).toStringList().contains(u"before"_s));
        checker.suggest(u"dont"_s);
        QVERIFY(suggested.wait());
        QVERIFY(suggested.last().at(1).toStringList().contains(u"don't"_s));
        checker.suggest(u"qqqqqq"_s);
        QVERIFY(suggested.wait());
        QVERIFY(suggested.last().at(1).toStringList().isEmpty());
    }

    void bearsDamagedDictionaries()
    {
        const QTemporaryDir folder;
        const auto write = [&](const QString &name, const QByteArray &bytes) {
            QFile file(folder.filePath(name));
            QVERIFY(file.open(QFile::WriteOnly));
            file.write(bytes);
        };
        write(u"en_US.dic"_s, "not a count\n\xff\xfe\n");
        write(u"en_US.aff"_s, "SET KLINGON-1\nSFX A Y 9999\n");
        write(u"fr_FR.dic"_s, "1\nmer\n");
        Preferences preferences;
        SpellChecker checker(preferences, {folder.path()}, u"en_US"_s);
        // The French one lacks its rules, and what can't be read judges nothing.
        QCOMPARE(checker.languages().size(), 1);
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"Spelling: .*"_s));
        QVERIFY(isRight(checker, u"befor"_s));
    }
};

QTEST_GUILESS_MAIN(SpellingTest)
#include "tst_spelling.moc"
