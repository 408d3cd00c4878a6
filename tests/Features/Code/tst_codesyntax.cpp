#include "Features/Code/CodeSyntax.h"
#include "Harness/RegexTokenizer.h"
#include "RandomSource.h"

#include <QTest>

using namespace Qt::StringLiterals;

class CodeSyntaxTest : public QObject
{
    Q_OBJECT

private:
    /// The tokens as "kind:text", one after the other.
    static QString described(const QString &text, CodeLanguage language)
    {
        static const QStringList names{u"keyword"_s, u"type"_s, u"string"_s, u"comment"_s, u"number"_s};
        QStringList found;
        for (const CodeToken &token : CodeSyntax::tokens(text, language))
            found += names.at(int(token.kind)) + u':' + text.mid(token.location, token.length);
        return found.join(u" | "_s);
    }

private slots:
    void theFirstConstructWins_data()
    {
        QTest::addColumn<CodeLanguage>("language");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("tokens");
        using enum CodeLanguage;
        const auto row = [](const char *name, CodeLanguage language, const QString &text,
                            const QString &tokens) { QTest::newRow(name) << language << text << tokens; };
        row("nothing", swift, u""_s, u""_s);
        row("plain text", plain, u"let \"a\" // 1"_s, u""_s);
        row("an escaped quote", swift, u"\"a\\\"b\" c"_s, u"string:\"a\\\"b\""_s);
        row("an open string ends with its line", swift, u"\"a\nlet"_s, u"string:\"a | keyword:let"_s);
        row("a carriage return ends it too", swift, u"'a\rlet"_s, u"string:'a | keyword:let"_s);
        row("an escaped line end goes on", swift, u"\"a\\\nb\" let"_s, u"string:\"a\\\nb\" | keyword:let"_s);
        row("an escape at the very end", swift, u"\"a\\"_s, u"string:\"a\\"_s);
        row("an open backtick string", javascript, u"`a\nlet"_s, u"string:`a\nlet"_s);
        row("a backtick elsewhere", swift, u"`a`"_s, u""_s);
        row("an open comment", swift, u"1 /* \"a\"\nlet"_s, u"number:1 | comment:/* \"a\"\nlet"_s);
        row("a comment needs both stars", css, u"/*/ a */ b"_s, u"comment:/*/ a */"_s);
        row("comments don't nest", swift, u"/* /* */ let */"_s, u"comment:/* /* */ | keyword:let"_s);
        row("other languages' comments", python, u"-- // in"_s, u"keyword:in"_s);
        row("a hash is no comment there", javascript, u"# in"_s, u""_s);
        row("no line comments", css, u"// none"_s, u"keyword:none"_s);
        row("a hash in a string", python, u"'#' # '"_s, u"string:'#' | comment:# '"_s);
        row("three quotes", python, u"'''a\n\"\"\"''' \"\"\"'\n"_s,
            u"string:'''a\n\"\"\"''' | string:\"\"\"'\n"_s);
        row("one kind of three quotes", swift, u"'''a"_s, u"string:'' | string:'a"_s);
        row("escapes don't count in three quotes", swift, u"\"\"\"\\\"\"\" let"_s,
            u"string:\"\"\"\\\"\"\" | keyword:let"_s);
        row("case of keywords", sql, u"Select SELECT select -- a"_s,
            u"type:Select | keyword:SELECT | keyword:select | comment:-- a"_s);
        row("double quotes", sql, u"\"a' 'b"_s, u"string:' ' "_s.trimmed());
        row("numbers", swift, u"0xFF 1_000 1.2.3 12abc 12xyz 1e5 12px"_s,
            u"number:0xFF | number:1_000 | number:1.2.3 | number:12abc | number:12x | number:1e5 | number:12"_s);
        row("digits in words", swift, u"a1 $2 _3 Int32"_s, u"type:Int32"_s);
        row("part of a word", swift, u"letter let_ $let let"_s, u"keyword:let"_s);
        row("prose", markdown, u"A fine Day 1"_s, u"type:A | type:Day | number:1"_s);
        row("tags", html, u"div \"b\" Div"_s, u"keyword:div | type:Div"_s);
        row("values", json, u"{\"true\": true}"_s, u"string:\"true\" | keyword:true"_s);
        row("beyond ASCII", swift, u"\U0001F600let \u00c9let \u0661"_s, u"keyword:let | keyword:let"_s);
    }
    void theFirstConstructWins()
    {
        QFETCH(CodeLanguage, language);
        QFETCH(QString, text);
        QTEST(described(text, language), "tokens");
    }

    void allWaysToScanAgree()
    {
        RandomSource source(7);
        for (const auto &entry : enumCases<CodeLanguage>()) {
            if (entry.value == CodeLanguage::plain)
                continue;
            const RegexTokenizer regex(entry.value);
            for (int round = 0; round < 400; ++round) {
                const QString text = source.text(source.below(120), entry.value);
                QCOMPARE(CodeSyntax::tokens(text, entry.value), regex.tokens(text));
            }
        }
    }

    void quotes()
    {
        QVERIFY(CodeSyntax::isQuote(u'`', CodeLanguage::typescript));
        QVERIFY(!CodeSyntax::isQuote(u'`', CodeLanguage::swift));
        QVERIFY(!CodeSyntax::isQuote(u'"', CodeLanguage::sql));
        QVERIFY(!CodeSyntax::isQuote(u'"', CodeLanguage::html));
    }
};

QTEST_APPLESS_MAIN(CodeSyntaxTest)
#include "tst_codesyntax.moc"
