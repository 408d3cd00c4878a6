#include "Foundation/JsonWriter.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QtTest>

#include <bit>
#include <limits>
#include <random>
#include <simdjson.h>

namespace
{
/// Units that the writer escapes in one go.
constexpr int pieceLength = 4096;

QByteArray written(const QString &text)
{
    JsonWriter json;
    json.text(text);
    return json.take();
}

QByteArray written(double value)
{
    JsonWriter json;
    json.number(value);
    return json.take();
}

/// The text without halves of surrogate pairs standing alone.
QString repaired(const QString &text)
{
    QString result;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const bool isPair = text[i].isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate();
        if (isPair)
            result += text[i++];
        result += text[i].isSurrogate() && !isPair ? QChar(QChar::ReplacementCharacter) : text[i];
    }
    return result;
}

/// The form of a text, found character by character.
QByteArray expectedForm(const QString &text)
{
    QString form;
    for (const QChar unit : repaired(text)) {
        switch (unit.unicode()) {
        case '"':
        case '/':
        case '\\':
            form += u'\\' + QString(unit);
            break;
        case '\b':
            form += QLatin1String("\\b");
            break;
        case '\f':
            form += QLatin1String("\\f");
            break;
        case '\n':
            form += QLatin1String("\\n");
            break;
        case '\r':
            form += QLatin1String("\\r");
            break;
        case '\t':
            form += QLatin1String("\\t");
            break;
        default:
            form += unit.unicode() < 0x20
                        ? QStringLiteral("\\u%1").arg(int(unit.unicode()), 4, 16, QLatin1Char('0'))
                        : QString(unit);
        }
    }
    return '"' + form.toUtf8() + '"';
}

void checkText(const QString &text)
{
    const QByteArray form = written(text);
    QCOMPARE(form, expectedForm(text));
    QCOMPARE(QJsonDocument::fromJson('[' + form + ']').array().first().toString(), repaired(text));
}
} // namespace

class JsonWriterTest : public QObject
{
    Q_OBJECT

private slots:
    void separatesAndNests();
    void takesTheDocumentOnce();
    void escapes();
    void keepsEveryPlainCharacterAtEveryPlace();
    void surrogatesAtTheEndsOfPieces();
    void randomTexts();
    void integers();
    void numbersReadBackTheSame();
    void numbersThatJsonHasNot();
    void idsAndMoments();
};

void JsonWriterTest::separatesAndNests()
{
    JsonWriter json;
    json.beginObject();
    json.fieldName("a");
    json.beginArray();
    json.endArray();
    json.fieldName("b");
    json.beginArray();
    json.boolean(true);
    json.boolean(false);
    json.beginObject();
    json.endObject();
    json.beginObject();
    json.key(u"x/\"é");
    json.text(u"");
    json.key(u"y");
    json.plainText("plain");
    json.endObject();
    json.integer(1);
    json.endArray();
    json.fieldName("c");
    json.number(1.5);
    json.endObject();
    QCOMPARE(json.take(), QByteArray(R"({"a":[],"b":[true,false,{},{"x\/\"é":"","y":"plain"},1],"c":1.5})"));
}

void JsonWriterTest::takesTheDocumentOnce()
{
    JsonWriter json(0);
    for (int round = 0; round < 2; ++round) {
        json.beginArray();
        for (int i = 0; i < 1000; ++i)
            json.integer(i);
        json.endArray();
        const auto array = QJsonDocument::fromJson(json.take()).array();
        QCOMPARE(array.size(), 1000);
        QCOMPARE(array.last().toInt(), 999);
    }
    QCOMPARE(json.take(), QByteArray());
}

void JsonWriterTest::escapes()
{
    QCOMPARE(written(QStringLiteral("a/b\\c\"d")), QByteArray(R"("a\/b\\c\"d")"));
    QCOMPARE(written(QStringLiteral("\b\f\n\r\t")), QByteArray(R"("\b\f\n\r\t")"));
    QCOMPARE(written(QString(QChar(u'\0')) + QChar(0x1f) + QChar(0x7f)),
             QByteArray("\"\\u0000\\u001f\x7f\""));
    QCOMPARE(written(QStringLiteral("é€😀")), QByteArray("\"é€😀\""));
    QCOMPARE(written(QString()), QByteArray("\"\""));
}

void JsonWriterTest::keepsEveryPlainCharacterAtEveryPlace()
{
    // Eight units are looked at together: each unit has to be judged alike at each of the eight places.
    for (int unit = 0; unit < 0x10000; unit = unit < 0x100 ? unit + 1 : unit + 0x35) {
        for (int place = 0; place < 8; ++place) {
            QString text(16, u'x');
            text[place] = QChar(unit);
            QCOMPARE(written(text), expectedForm(text));
        }
    }
}

void JsonWriterTest::surrogatesAtTheEndsOfPieces()
{
    const QString face = QStringLiteral("😀");
    for (int before = pieceLength - 9; before <= pieceLength + 2; ++before) {
        const QString filling(before, u'x');
        checkText(filling + face);
        checkText(filling + face + filling + face + face);
        checkText(filling + face.first(1));
        checkText(filling + face.last(1));
        checkText(filling + face.first(1) + u'y');
        checkText(filling + face.first(1) + face);
        checkText(filling + face.last(1) + face.first(1));
        checkText(filling + u'/' + QString(before, u'"') + face);
    }
}

void JsonWriterTest::randomTexts()
{
    std::mt19937 random(20260313);
    const auto below = [&random](unsigned limit) { return int(random() % limit); };
    for (int round = 0; round < 3000 && !QTest::currentTestFailed(); ++round) {
        const bool isLong = round % 100 == 0;
        QString text;
        const qsizetype length = isLong ? pieceLength * 2 - 20 + below(40) : below(40);
        while (text.size() < length) {
            switch (below(8)) {
            case 0:
                text += QChar(below(0x20));
                break;
            case 1:
                text += QStringLiteral("\"/\\")[below(3)];
                break;
            case 2:
                text += QChar(0x80 + below(0xff80));
                break;
            case 3:
                text += QString::fromUcs4(std::array{char32_t(0x10000 + below(0x100000))}.data(), 1);
                break;
            case 4:
                text += QChar(0xd800 + below(0x800));
                break;
            default:
                text += QString(below(20), QChar(0x20 + below(0x60)));
            }
        }
        checkText(text);
    }
}

void JsonWriterTest::integers()
{
    JsonWriter json;
    json.beginArray();
    for (const qint64 value :
         {qint64(0), qint64(-1), std::numeric_limits<qint64>::min(), std::numeric_limits<qint64>::max()})
        json.integer(value);
    json.endArray();
    QCOMPARE(json.take(), QByteArray("[0,-1,-9223372036854775808,9223372036854775807]"));
}

void JsonWriterTest::numbersReadBackTheSame()
{
    QCOMPARE(written(1.0), QByteArray("1"));
    QCOMPARE(written(-0.5), QByteArray("-0.5"));
    QCOMPARE(written(0.1), QByteArray("0.1"));
    QCOMPARE(written(1773394200.123), QByteArray("1773394200.123"));

    std::mt19937_64 random(7);
    using Limits = std::numeric_limits<double>;
    QList<double> values{Limits::max(), Limits::lowest(),
                         Limits::min(), Limits::denorm_min(),
                         0x1p63,        -0x1p63,
                         0x1p64,        -0x1.0000000000001p63,
                         1e19,          1e20,
                         0x1p53 + 2};
    while (values.size() < 20000) {
        const double value = std::bit_cast<double>(random());
        if (std::isfinite(value))
            values.append(value);
        values.append(std::ldexp(double(random()), int(random() % 140) - 70));
    }
    simdjson::dom::parser parser;
    for (const double value : std::as_const(values)) {
        const QByteArray form = '[' + written(value) + ']';
        double found = 0;
        const auto error = parser.parse(form.constData(), std::size_t(form.size())).at(0).get(found);
        QVERIFY2(error == simdjson::SUCCESS, form.constData());
        QVERIFY2(found == value, form.constData());
    }
}

void JsonWriterTest::numbersThatJsonHasNot()
{
    using Limits = std::numeric_limits<double>;
    for (const double value : {Limits::quiet_NaN(), Limits::infinity(), -Limits::infinity()})
        QCOMPARE(written(value), QByteArray("0"));
}

void JsonWriterTest::idsAndMoments()
{
    JsonWriter json;
    json.beginArray();
    json.uuid(QUuid(QStringLiteral("{0f8fad5b-d9cb-469f-a165-70867728950e}")));
    json.uuid(QUuid());
    json.timestamp(Timestamp(std::chrono::milliseconds(1773394200999)));
    json.endArray();
    QCOMPARE(json.take(),
             QByteArray(R"(["0F8FAD5B-D9CB-469F-A165-70867728950E","00000000-0000-0000-0000-000000000000",)"
                        R"("2026-03-13T09:30:00Z"])"));
    for (int i = 0; i < 100; ++i) {
        const QUuid id = QUuid::createUuid();
        json.uuid(id);
        QCOMPARE(QString::fromLatin1(json.take()), u'"' + id.toString(QUuid::WithoutBraces).toUpper() + u'"');
    }
}

QTEST_GUILESS_MAIN(JsonWriterTest)
#include "tst_jsonwriter.moc"
