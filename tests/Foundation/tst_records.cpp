#include "Foundation/RecordDecoder.h"
#include "Foundation/RecordEncoder.h"

#include <QtTest>

namespace
{
enum class Shade { light, dark };

struct Point {
    qint64 x = 7;
    qint64 y = 8;
    bool operator==(const Point &) const = default;
    static constexpr auto fields() { return std::tuple{Field{"x", &Point::x}, Field{"y", &Point::y}}; }
};

struct Style {
    Shade shade = Shade::dark;
    double scale = 1.5;
    QList<Point> points;
    bool operator==(const Style &) const = default;
    static constexpr bool isTolerant = true;
    static constexpr auto fields()
    {
        return std::tuple{Field{"shade", &Style::shade}, Field{"scale", &Style::scale},
                          Field{"points", &Style::points}};
    }
};

struct Label {
    QUuid id;
    QString text = QStringLiteral("none");
    bool operator==(const Label &) const = default;
    static Label fresh(const QUuid &id) { return {id, QStringLiteral("fresh")}; }
    static constexpr bool isTolerant = true;
    static constexpr bool acceptsAnything = true;
    static constexpr auto fields()
    {
        return std::tuple{Field{"id", &Label::id}, Field{"text", &Label::text}};
    }
};

/// One field of every kind.
struct Sample {
    QUuid id;
    QString text;
    bool flag = false;
    qint64 count = 0;
    double share = 0;
    Timestamp date;
    Shade shade = Shade::light;
    QStringList words;
    std::set<QString> keys;
    QMap<QString, QString> values;
    Point point;
    std::optional<qint64> minutes;
    std::optional<QString> note;
    bool operator==(const Sample &) const = default;
    static constexpr auto fields()
    {
        return std::tuple{Field{"id", &Sample::id},       Field{"text", &Sample::text},
                          Field{"flag", &Sample::flag},   Field{"count", &Sample::count},
                          Field{"share", &Sample::share}, Field{"date", &Sample::date},
                          Field{"shade", &Sample::shade}, Field{"words", &Sample::words},
                          Field{"keys", &Sample::keys},   Field{"values", &Sample::values},
                          Field{"point", &Sample::point}, Field{"minutes", &Sample::minutes},
                          Field{"note", &Sample::note}};
    }
};

struct Holder {
    Style style;
    Label label;
    QList<Label> labels;
    std::optional<qint64> count;
    bool operator==(const Holder &) const = default;
    static constexpr bool isTolerant = true;
    static constexpr auto fields()
    {
        return std::tuple{Field{"style", &Holder::style}, Field{"label", &Holder::label},
                          Field{"labels", &Holder::labels}, Field{"count", &Holder::count}};
    }
};

const QUuid madeId(QStringLiteral("11111111-2222-3333-4444-555555555555"));

template <typename T>
std::optional<T> decoded(const QByteArray &json)
{
    simdjson::dom::parser parser;
    simdjson::dom::element element;
    if (parser.parse(json.constData(), std::size_t(json.size())).get(element) != simdjson::SUCCESS)
        return std::nullopt;
    T value{};
    const DecodeContext context{Timestamp(), [] { return madeId; }};
    if (!RecordDecoder::read(element, value, context))
        return std::nullopt;
    return value;
}

template <typename T>
QByteArray encoded(const T &value)
{
    JsonWriter json;
    RecordEncoder::write(json, value);
    return json.take();
}
} // namespace

template <>
struct EnumTable<Shade> {
    static constexpr auto cases =
        std::to_array<EnumCase<Shade>>({{Shade::light, "pale"}, {Shade::dark, "dark"}});
};

/// The fields of `Sample` as the encoder writes them, one a line.
static QByteArrayList sampleFields()
{
    return {R"("id":"0F8FAD5B-D9CB-469F-A165-70867728950E")",
            R"("text":"a\/b")",
            R"("flag":true)",
            R"("count":-3)",
            R"("share":0.25)",
            R"("date":"2026-03-13T09:30:00Z")",
            R"("shade":"dark")",
            R"("words":["one","two"])",
            R"("keys":["2026-03-09","2026-03-10"])",
            R"("values":{"A":"1","B":""})",
            R"("point":{"x":1,"y":2})",
            R"("minutes":570)",
            R"("note":"x")"};
}

static QByteArray object(const QByteArrayList &fields)
{
    return '{' + fields.join(',') + '}';
}

class RecordsTest : public QObject
{
    Q_OBJECT

private slots:
    void roundTrip();
    void leavesOutWhatHoldsNothing();
    void ordersAndUnknownKeysDoNotMatter();
    void strictRecordsNeedEveryField_data();
    void strictRecordsNeedEveryField();
    void strictRecordsRefuseOtherTypes_data();
    void strictRecordsRefuseOtherTypes();
    void takesWhatIsTheSameNumber_data();
    void takesWhatIsTheSameNumber();
    void theLastOfTwoEqualKeysCounts();
    void oneBadElementFailsItsList();
    void tolerantRecordsKeepTheDefaults_data();
    void tolerantRecordsKeepTheDefaults();
    void tolerantRecordsInsideOthers();
};

void RecordsTest::roundTrip()
{
    const QByteArray json = object(sampleFields());
    const auto sample = decoded<Sample>(json);
    QVERIFY(sample);
    QCOMPARE(encoded(*sample), json);
    QCOMPARE(sample->text, QStringLiteral("a/b"));
    QCOMPARE(sample->shade, Shade::dark);
    QCOMPARE(sample->date, Timestamp(std::chrono::milliseconds(1773394200000)));
    QCOMPARE(sample->point, (Point{1, 2}));
    QCOMPARE(sample->minutes, 570);
}

void RecordsTest::leavesOutWhatHoldsNothing()
{
    const QByteArray json = object(sampleFields().first(11));
    const auto sample = decoded<Sample>(json);
    QVERIFY(sample);
    QCOMPARE(sample->minutes, std::nullopt);
    QCOMPARE(sample->note, std::nullopt);
    QCOMPARE(encoded(*sample), json);
    QCOMPARE(decoded<Sample>(object(sampleFields().first(11) << R"("minutes":null)" << R"("note":null)")),
             sample);
}

void RecordsTest::ordersAndUnknownKeysDoNotMatter()
{
    QByteArrayList fields = sampleFields();
    const auto sample = decoded<Sample>(object(fields));
    std::reverse(fields.begin(), fields.end());
    QCOMPARE(decoded<Sample>(object(fields)), sample);
    fields.insert(4, R"("later":{"id":[1,null]})");
    fields.append(R"("ID":3)");
    QCOMPARE(decoded<Sample>(object(fields)), sample);
}

void RecordsTest::strictRecordsNeedEveryField_data()
{
    QTest::addColumn<int>("index");
    for (int i = 0; i < sampleFields().size(); ++i)
        QTest::newRow(sampleFields().at(i).constData()) << i;
}

void RecordsTest::strictRecordsNeedEveryField()
{
    QFETCH(int, index);
    const bool isOptional = index >= 11;
    QByteArrayList fields = sampleFields();
    const QByteArray name = fields.takeAt(index).split(':').first();
    QCOMPARE(decoded<Sample>(object(fields)).has_value(), isOptional);
    QCOMPARE(decoded<Sample>(object(fields << name + ":null")).has_value(), isOptional);
}

void RecordsTest::strictRecordsRefuseOtherTypes_data()
{
    QTest::addColumn<QByteArray>("field");
    for (const char *field : {R"("id":"")",
                              R"("id":7)",
                              R"("id":"{0F8FAD5B-D9CB-469F-A165-70867728950E}")",
                              R"("id":"0F8FAD5BD9CB469FA16570867728950E")",
                              R"("id":"0F8FAD5B-D9CB-469F-A165-70867728950G")",
                              R"("text":1)",
                              R"("text":["a"])",
                              R"("flag":0)",
                              R"("flag":"true")",
                              R"("count":1.5)",
                              R"("count":"1")",
                              R"("count":true)",
                              R"("count":9223372036854775808)",
                              R"("count":1e19)",
                              R"("count":9.223372036854775808e18)",
                              R"("count":-9.3e18)",
                              R"("share":"0.5")",
                              R"("share":false)",
                              R"("date":1773394200)",
                              R"("date":"2026-03-13")",
                              R"("date":"2026-03-13T09:30:00.5Z")",
                              R"("shade":"light")",
                              R"("shade":"Dark")",
                              R"("shade":"")",
                              R"("shade":1)",
                              R"("words":"one")",
                              R"("words":["one",2])",
                              R"("words":[null])",
                              R"("words":{})",
                              R"("keys":{})",
                              R"("keys":[1])",
                              R"("values":[])",
                              R"("values":{"A":1})",
                              R"("values":{"A":null})",
                              R"("point":{"x":1})",
                              R"("point":[1,2])",
                              R"("point":null)",
                              R"("minutes":"570")",
                              R"("minutes":570.5)",
                              R"("note":5)"})
        QTest::newRow(field) << QByteArray(field);
}

void RecordsTest::strictRecordsRefuseOtherTypes()
{
    QFETCH(QByteArray, field);
    const QByteArray name = field.split(':').first();
    QByteArrayList fields = sampleFields();
    fields.removeIf([&name](const QByteArray &other) { return other.startsWith(name + ':'); });
    QCOMPARE(fields.size(), sampleFields().size() - 1);
    QCOMPARE(decoded<Sample>(object(fields << field)), std::nullopt);
}

void RecordsTest::takesWhatIsTheSameNumber_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<qint64>("value");
    QTest::newRow("1.0") << QByteArray("1.0") << qint64(1);
    QTest::newRow("1e3") << QByteArray("1e3") << qint64(1000);
    QTest::newRow("-0.0") << QByteArray("-0.0") << qint64(0);
    QTest::newRow("largest") << QByteArray("9223372036854775807") << std::numeric_limits<qint64>::max();
    QTest::newRow("smallest") << QByteArray("-9223372036854775808") << std::numeric_limits<qint64>::min();
    QTest::newRow("smallest with exponent")
        << QByteArray("-9.223372036854775808e18") << std::numeric_limits<qint64>::min();
}

void RecordsTest::takesWhatIsTheSameNumber()
{
    QFETCH(QByteArray, json);
    QFETCH(qint64, value);
    QCOMPARE(decoded<qint64>(json), value);
    QCOMPARE(decoded<double>(json), double(value));
}

void RecordsTest::theLastOfTwoEqualKeysCounts()
{
    QCOMPARE(decoded<Point>(R"({"x":1,"y":2,"x":3})"), (Point{3, 2}));
    QCOMPARE(decoded<Point>(R"({"x":"bad","y":2,"x":3})"), (Point{3, 2}));
    QCOMPARE(decoded<Point>(R"({"x":1,"y":2,"x":"bad"})"), std::nullopt);
    QCOMPARE(decoded<Style>(R"({"scale":2,"scale":3})")->scale, 3);
    QCOMPARE(decoded<Style>(R"({"scale":2,"scale":"bad"})")->scale, 1.5);
    QCOMPARE(decoded<Style>(R"({"scale":2,"scale":null})")->scale, 1.5);
}

void RecordsTest::oneBadElementFailsItsList()
{
    QCOMPARE(decoded<QList<Point>>(R"([{"x":1,"y":2},{"x":1}])"), std::nullopt);
    QCOMPARE(decoded<QList<Point>>(R"([{"x":1,"y":2},{"x":3,"y":4}])"), (QList<Point>{{1, 2}, {3, 4}}));
    QCOMPARE(decoded<QList<Point>>("[]"), QList<Point>());
    QCOMPARE(decoded<QList<Point>>("{}"), std::nullopt);
}

void RecordsTest::tolerantRecordsKeepTheDefaults_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<QByteArray>("same");
    const QByteArray fresh = R"({"shade":"dark","scale":1.5,"points":[]})";
    const QByteArray scaled = R"({"shade":"dark","scale":2,"points":[]})";
    QTest::newRow("nothing") << QByteArray("{}") << fresh;
    QTest::newRow("null") << QByteArray(R"({"scale":2,"shade":null})") << scaled;
    QTest::newRow("wrong type") << QByteArray(R"({"scale":"1","points":3})") << fresh;
    QTest::newRow("unknown case") << QByteArray(R"({"shade":"grey","scale":2})") << scaled;
    QTest::newRow("bad element") << QByteArray(R"({"points":[{"x":1,"y":1},{"x":1}],"scale":2})") << scaled;
    QTest::newRow("unknown key") << QByteArray(R"({"size":3,"scale":2})") << scaled;
    QTest::newRow("all") << QByteArray(R"({"points":[{"x":1,"y":1}],"scale":2,"shade":"pale"})")
                         << QByteArray(R"({"shade":"pale","scale":2,"points":[{"x":1,"y":1}]})");
}

void RecordsTest::tolerantRecordsKeepTheDefaults()
{
    QFETCH(QByteArray, json);
    QFETCH(QByteArray, same);
    const auto style = decoded<Style>(json);
    QVERIFY(style);
    QCOMPARE(encoded(*style), same);
}

void RecordsTest::tolerantRecordsInsideOthers()
{
    QCOMPARE(decoded<Style>("[]"), std::nullopt);
    QCOMPARE(decoded<Label>("[]"), Label::fresh(madeId));
    QCOMPARE(decoded<Label>(R"({"text":"x"})"), (Label{madeId, QStringLiteral("x")}));

    QCOMPARE(decoded<Holder>("{}"), Holder());
    QCOMPARE(decoded<Holder>(R"({"style":5,"count":4})")->style, Style());
    QCOMPARE(decoded<Holder>(R"({"style":5,"count":4})")->count, 4);
    QCOMPARE(decoded<Holder>(R"({"count":"4"})")->count, std::nullopt);
    QCOMPARE(decoded<Holder>(R"({"label":5})")->label, Label::fresh(madeId));
    QCOMPARE(decoded<Holder>(R"({"label":null})")->label, Label());
    QCOMPARE(decoded<Holder>(R"({"labels":[{"text":"x"},7,null]})")->labels,
             (QList<Label>{{madeId, QStringLiteral("x")}, Label::fresh(madeId), Label::fresh(madeId)}));
}

QTEST_GUILESS_MAIN(RecordsTest)
#include "tst_records.moc"
