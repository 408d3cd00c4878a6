#include "Features/Code/JsonText.h"

#include <QJsonDocument>
#include <QTest>

#include <random>
#include <simdjson.h>

using namespace Qt::StringLiterals;

class JsonTextTest : public QObject
{
    Q_OBJECT

private slots:
    void valuesAreLaidOut_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("pretty");
        QTest::newRow("bare") << u" null\n"_s << u"null"_s;
        QTest::newRow("empty") << u"[{ }, [ ]]"_s << u"[\n  {},\n  []\n]"_s;
        QTest::newRow("sorted")
            << u"{\"b\":1,\"a\":{\"d\":[true],\"c\":\"x/y\"}}"_s
            << u"{\n  \"a\": {\n    \"c\": \"x/y\",\n    \"d\": [\n      true\n    ]\n  },\n"
               "  \"b\": 1\n}"_s;
        QTest::newRow("as written") << u"[1.50, 1e+2, -0, 123456789012345678901234567890, \"\\u00e9\\n\"]"_s
                                    << u"[\n  1.50,\n  1e+2,\n  -0,\n  123456789012345678901234567890,\n"
                                       "  \"\\u00e9\\n\"\n]"_s;
        QTest::newRow("equal keys") << u"{\"b\":0,\"a\":2,\"a\":1}"_s
                                    << u"{\n  \"a\": 2,\n  \"a\": 1,\n  \"b\": 0\n}"_s;
    }
    void valuesAreLaidOut()
    {
        QFETCH(QString, text);
        QTEST(JsonText::pretty(text).value_or(u"?"_s), "pretty");
    }

    void mistakesHaveAPlace_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("error");
        QTest::newRow("nothing") << u" "_s << u"the text ends too early, at line 1, column 2."_s;
        QTest::newRow("comma") << u"[1,\n 2,]"_s << u"unexpected \u201c]\u201d at line 2, column 4."_s;
        QTest::newRow("string") << u"[\"a\n\"]"_s
                                << u"a string has to end in its line, at line 1, column 4."_s;
        QTest::newRow("open string") << u"\"a"_s << u"the text ends too early, at line 1, column 3."_s;
        QTest::newRow("quotes") << u"{'a': 1}"_s << u"unexpected \u201c'\u201d at line 1, column 2."_s;
        QTest::newRow("two values") << u"1 \U0001F600"_s
                                    << u"unexpected \u201c\U0001F600\u201d at line 1, column 3."_s;
        QTest::newRow("zeros") << u"01"_s << u"unexpected \u201c1\u201d at line 1, column 2."_s;
        QTest::newRow("deep") << u"["_s.repeated(100'000)
                              << u"too many brackets within each other, at line 1, column 514."_s;
    }
    void mistakesHaveAPlace()
    {
        QFETCH(QString, text);
        const auto pretty = JsonText::pretty(text);
        QVERIFY(!pretty);
        QTEST(pretty.error(), "error");
    }

    /// Another parser says the same of many half-broken texts, and reads the same from what is laid out.
    void anotherParserAgrees()
    {
        std::mt19937 random(5);
        const QString units = u"{}[],:\"\\eE.-+01tfn u\u00e9"_s;
        simdjson::dom::parser parser;
        int valid = 0;
        for (int round = 0; round < 30'000; ++round) {
            QString text = u"[{\"a\":[1.5e3,-0,true,null],\"b\\n\":{\"c\":\"\\u00e9\"}},\"\",false]"_s;
            for (int edits = int(random() % 3); edits >= 0; --edits) {
                const int at = int(random() % unsigned(text.size() - 2)) + 1;
                const QChar unit = units.at(int(random() % unsigned(units.size())));
                text.replace(at, int(random() % 2), unit);
            }
            const auto pretty = JsonText::pretty(text);
            const std::string bytes = text.toUtf8().toStdString();
            const bool isValid = parser.parse(bytes).error() == simdjson::SUCCESS;
            if (bool(pretty) != isValid)
                qInfo() << text << (pretty ? u"valid"_s : pretty.error());
            QCOMPARE(bool(pretty), isValid);
            if (pretty) {
                ++valid;
                QCOMPARE(QJsonDocument::fromJson(pretty->toUtf8()), QJsonDocument::fromJson(text.toUtf8()));
            }
        }
        QVERIFY(valid > 1000);
    }
};

QTEST_APPLESS_MAIN(JsonTextTest)
#include "tst_jsontext.moc"
