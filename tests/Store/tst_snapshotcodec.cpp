#include "SampleSnapshot.h"
#include "Store/SnapshotCodec.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QtTest>

#include <random>

using namespace Qt::StringLiterals;

class SnapshotCodecTest : public QObject
{
    Q_OBJECT

private:
    static constexpr Timestamp now = Timestamp(std::chrono::milliseconds(1773394200000));
    static QUuid freshId() { return SampleSnapshot::id(99); }

    static std::expected<Snapshot, QString> decode(const QByteArray &json)
    {
        return SnapshotCodec::decode(json, now, &freshId);
    }
    static Snapshot decoded(const QByteArray &json) { return decode(json).value(); }

    /// The sample with one change made to its JSON: at the place named by these keys, the value is set, or
    /// removed where it is undefined.
    static QByteArray sampleWith(const QStringList &path, const QJsonValue &value)
    {
        const QJsonObject document =
            QJsonDocument::fromJson(SnapshotCodec::encode(SampleSnapshot::make())).object();
        return QJsonDocument(changed(document, path, value).toObject()).toJson(QJsonDocument::Compact);
    }
    static QJsonValue changed(const QJsonValue &at, const QStringList &path, const QJsonValue &value)
    {
        if (path.isEmpty())
            return value;
        bool isIndex = false;
        const int index = path.first().toInt(&isIndex);
        if (isIndex) {
            QJsonArray array = at.toArray();
            array[index] = changed(array[index], path.mid(1), value);
            return array;
        }
        QJsonObject object = at.toObject();
        const QJsonValue next = changed(object.value(path.first()), path.mid(1), value);
        if (next.isUndefined())
            object.remove(path.first());
        else
            object.insert(path.first(), next);
        return object;
    }

private slots:
    /// Every byte of the file form: key order, `\/`, upper-case ids, whole seconds in UTC, what is left out.
    void writesTheFileForm()
    {
        QFile golden(QFINDTESTDATA("golden-workspace.json"));
        QVERIFY(golden.open(QIODevice::ReadOnly));
        const QByteArray expected = golden.readAll().trimmed();
        const QByteArray written = SnapshotCodec::encode(SampleSnapshot::make());
        if (written != expected)
            qWarning().noquote() << written;
        QCOMPARE(written, expected);
    }

    void readsBackWhatItWrites()
    {
        const Snapshot sample = SampleSnapshot::make();
        QCOMPARE(decoded(SnapshotCodec::encode(sample)), sample);
        QCOMPARE(decoded(SnapshotCodec::encode(Snapshot())), Snapshot());
    }

    void losesFractionsOfASecondOnly()
    {
        Snapshot sample = SampleSnapshot::make();
        sample.list<TaskItem>()[0].createdDate += std::chrono::milliseconds(987);
        QCOMPARE(decoded(SnapshotCodec::encode(sample)), SampleSnapshot::make());
    }

    void failsOnlyWithoutATopLevelObject_data()
    {
        QTest::addColumn<QByteArray>("json");
        QTest::addColumn<bool>("reads");
        QTest::newRow("empty object") << "{}"_ba << true;
        QTest::newRow("unknown keys") << R"({"version":3,"x":{"y":[1]}})"_ba << true;
        QTest::newRow("nothing") << ""_ba << false;
        QTest::newRow("array") << "[]"_ba << false;
        QTest::newRow("null") << "null"_ba << false;
        QTest::newRow("cut off") << R"({"tasks":[)"_ba << false;
        QTest::newRow("text behind") << "{} x"_ba << false;
        QTest::newRow("raw NUL") << QByteArray("{\"x\":\"a\0b\"}", 11) << false;
        QTest::newRow("nesting bomb") << R"({"x":)"_ba + QByteArray(200000, '[') << false;
    }
    void failsOnlyWithoutATopLevelObject()
    {
        QFETCH(QByteArray, json);
        QFETCH(bool, reads);
        const auto snapshot = decode(json);
        QCOMPARE(snapshot.has_value(), reads);
        if (snapshot)
            QCOMPARE(*snapshot, Snapshot());
        else
            QVERIFY(!snapshot.error().isEmpty());
    }

    /// One damaged place empties its own list, or gives its own default, and touches nothing else.
    void damageStaysWhereItIs_data()
    {
        QTest::addColumn<QStringList>("path");
        QTest::addColumn<QJsonValue>("value");
        QTest::addColumn<QString>("emptied");
        const QJsonValue gone(QJsonValue::Undefined), null;
        QTest::newRow("list missing") << QStringList{u"tasks"_s} << gone << u"tasks"_s;
        QTest::newRow("list null") << QStringList{u"habits"_s} << null << u"habits"_s;
        QTest::newRow("list of another type") << QStringList{u"rows"_s} << QJsonValue(5) << u"rows"_s;
        QTest::newRow("page without a title")
            << QStringList{u"pages"_s, u"0"_s, u"title"_s} << gone << u"pages"_s;
        QTest::newRow("page without a kind")
            << QStringList{u"pages"_s, u"0"_s, u"kind"_s} << gone << u"pages"_s;
        QTest::newRow("block of an unknown type")
            << QStringList{u"pages"_s, u"0"_s, u"content"_s, u"0"_s, u"type"_s} << QJsonValue(u"poem"_s)
            << u"pages"_s;
        QTest::newRow("required field null")
            << QStringList{u"tasks"_s, u"1"_s, u"notes"_s} << null << u"tasks"_s;
        QTest::newRow("date with a fraction") << QStringList{u"events"_s, u"0"_s, u"date"_s}
                                              << QJsonValue(u"2026-03-01T09:30:00.5Z"_s) << u"events"_s;
        QTest::newRow("fraction in an integer")
            << QStringList{u"books"_s, u"0"_s, u"lastLocation"_s} << QJsonValue(1.5) << u"books"_s;
        QTest::newRow("bad id") << QStringList{u"folders"_s, u"0"_s, u"id"_s} << QJsonValue(u"nope"_s)
                                << u"folders"_s;
        QTest::newRow("filter with an unknown operator")
            << QStringList{u"databases"_s, u"0"_s, u"views"_s, u"0"_s, u"filters"_s, u"0"_s, u"op"_s}
            << QJsonValue(u"isExactly"_s) << u"databases"_s;
        QTest::newRow("value that is no text")
            << QStringList{u"rows"_s, u"0"_s, u"values"_s, u"k"_s} << QJsonValue(1) << u"rows"_s;
        QTest::newRow("optional left out")
            << QStringList{u"projects"_s, u"0"_s, u"status"_s} << gone << u"projects"_s;
    }
    void damageStaysWhereItIs()
    {
        QFETCH(QStringList, path);
        QFETCH(QJsonValue, value);
        QFETCH(QString, emptied);
        const Snapshot whole = SampleSnapshot::make();
        Snapshot expected = whole;
        const Snapshot empty;
        std::apply(
            [&](const auto &...field) {
                ((QString::fromLatin1(field.name.data(), qsizetype(field.name.size())) == emptied
                      ? void(expected.*field.member = empty.*field.member)
                      : void()),
                 ...);
            },
            Snapshot::fields());
        QVERIFY(expected != whole);
        QCOMPARE(decoded(sampleWith(path, value)), expected);
    }

    /// What power cuts, other programs and other versions leave. Each costs at most what it touches.
    void smallDamageCostsLittle_data()
    {
        QTest::addColumn<QByteArray>("json");
        QTest::addColumn<QByteArray>("readAs");
        QTest::addColumn<bool>("isLossy");
        const QByteArray sample = SnapshotCodec::encode(SampleSnapshot::make());
        const auto with = [&](const QByteArray &from, const QByteArray &to) {
            QByteArray bytes = sample;
            bytes.replace(from, to);
            return bytes != sample ? bytes : QByteArray("the sample has changed");
        };
        const auto utf16 = [&](QStringConverter::Encoding encoding) -> QByteArray {
            return QStringEncoder(encoding, QStringConverter::Flag::WriteBom)(QString::fromUtf8(sample));
        };
        const auto unknown = [&](const QByteArray &value) {
            return "{\"later\":" + value + ',' + sample.sliced(1);
        };
        QTest::newRow("mark") << "\xef\xbb\xbf" + sample << sample << false;
        QTest::newRow("NULs and blanks")
            << " \r\n" + sample + QByteArray(5000, '\0') + "\n " << sample << false;
        QTest::newRow("UTF-16, little endian") << utf16(QStringConverter::Utf16LE) << sample << false;
        QTest::newRow("UTF-16, big endian") << utf16(QStringConverter::Utf16BE) << sample << false;
        QTest::newRow("bad UTF-8") << with("Letter", "L\xfftter") << with("Letter", "L\xef\xbf\xbdtter")
                                   << true;
        QTest::newRow("cut UTF-8") << with("Letter", "Letter\xe2\x82")
                                   << with("Letter", "Letter\xef\xbf\xbd\xef\xbf\xbd") << true;
        QTest::newRow("half a pair") << with("Letter", "L\\ud83dr") << with("Letter", "L\xef\xbf\xbdr")
                                     << true;
        QTest::newRow("large integer nobody knows") << unknown("[123456789012345678901]") << sample << true;
        QTest::newRow("large negative one") << unknown("-9223372036854775809") << sample << true;
        QTest::newRow("number beyond all") << unknown("{\"x\":-1e400}") << sample << true;
        QTest::newRow("integer of 400 digits") << unknown(QByteArray(400, '7')) << sample << true;
        QTest::newRow("depth nobody knows")
            << unknown(QByteArray(1100, '[') + QByteArray(1100, ']')) << sample << true;
        QTest::newRow("large integer for a double")
            << with("\"progress\":0.5", "\"progress\":300000000000000000000")
            << with("\"progress\":0.5", "\"progress\":3e20") << true;
        QTest::newRow("number beyond all for a double")
            << with("\"progress\":0.5", "\"progress\":1e400")
            << with("\"progress\":0.5", "\"progress\":1.7976931348623157e308") << true;
        QTest::newRow("large integer for an integer")
            << with("\"lastLocation\":12", "\"lastLocation\":12345678901234567890123")
            << with("\"lastLocation\":12", "\"lastLocation\":null") << true;
        QTest::newRow("largest integer beside bad UTF-8")
            << with("\"lastLocation\":12", "\"lastLocation\":9223372036854775807,\"x\":\"\xff\"")
            << with("\"lastLocation\":12", "\"lastLocation\":9223372036854775807") << true;
    }
    void smallDamageCostsLittle()
    {
        QFETCH(QByteArray, json);
        QFETCH(QByteArray, readAs);
        QFETCH(bool, isLossy);
        SnapshotCodec::Buffer buffer(std::size_t(json.size()));
        std::ranges::copy(json, buffer.data());
        const auto read = SnapshotCodec::decode(buffer, now, &freshId);
        QVERIFY2(read, qPrintable(read ? QString() : read.error()));
        QCOMPARE(read->snapshot, decoded(readAs));
        QCOMPARE(read->isLossy(), isLossy);
    }

    /// U+FEFF begins a text like any other character; only the file's own mark is none of its text.
    void aMarkWithinATextIsText()
    {
        Snapshot sample = SampleSnapshot::make();
        const QChar mark(QChar::ByteOrderMark);
        sample.list<TaskItem>()[0].title = mark + u"short"_s;
        sample.list<TaskItem>()[0].notes =
            QString(2, mark) + u"a text that is too long to be shared with others"_s;
        sample.list<TaskItem>()[1].title = mark;
        sample.list<DBRow>()[0].values.insert(mark + u"key"_s, mark + u"value"_s);
        QCOMPARE(decoded(SnapshotCodec::encode(sample)), sample);
    }

    /// In pieces come the same bytes as whole, whatever lies across the ends of pieces.
    void pieces()
    {
        Snapshot large = SampleSnapshot::make();
        for (int i = 0; i < 3000; ++i) {
            large.list<TaskItem>().append(large.list<TaskItem>().first());
            large.list<TaskItem>().last().notes = u"a/\"é€😀\n"_s.repeated(i % 97 == 0 ? 20'000 : i % 50);
        }
        QByteArray joined;
        qsizetype longest = 0, pieces = 0;
        SnapshotCodec::encode(large, [&](QByteArrayView piece) {
            joined += piece;
            longest = std::max(longest, piece.size());
            ++pieces;
        });
        QCOMPARE(joined, SnapshotCodec::encode(large));
        QVERIFY(pieces > joined.size() / 300'000 && longest < 300'000);
    }

    void optionalFieldsMayBeAbsentOrNull()
    {
        for (const QJsonValue &value : {QJsonValue(QJsonValue::Undefined), QJsonValue(QJsonValue::Null)}) {
            Snapshot expected = SampleSnapshot::make();
            expected.list<Project>()[0].cover.reset();
            QCOMPARE(decoded(sampleWith({u"projects"_s, u"0"_s, u"cover"_s}, value)), expected);
        }
    }

    void numbersReadByTheirValue()
    {
        QByteArray json = SnapshotCodec::encode(SampleSnapshot::make());
        QVERIFY(json.contains(R"("timeMinutes":570)"));
        json.replace(R"("timeMinutes":570)", R"("timeMinutes":570.0)");
        QVERIFY(json.contains(R"("lastLocation":12)"));
        json.replace(R"("lastLocation":12)", R"("lastLocation":1.2e1)");
        QCOMPARE(decoded(json), SampleSnapshot::make());
    }

    void settingsReadFieldByField()
    {
        Snapshot expected = SampleSnapshot::make();
        expected.settings.userName.clear();
        QCOMPARE(decoded(sampleWith({u"settings"_s, u"userName"_s}, 7)), expected);

        expected = SampleSnapshot::make();
        expected.settings.relaxLinks.clear();
        QCOMPARE(decoded(sampleWith({u"settings"_s, u"relaxLinks"_s, u"0"_s, u"url"_s}, QJsonValue())),
                 expected);

        expected = SampleSnapshot::make();
        expected.settings.theme.preset = ThemePreset::paper;
        QCOMPARE(decoded(sampleWith({u"settings"_s, u"theme"_s, u"preset"_s}, u"neon"_s)), expected);

        expected = SampleSnapshot::make();
        expected.settings = AppSettings();
        QCOMPARE(decoded(sampleWith({u"settings"_s}, u"none"_s)), expected);
    }

    void decksAlwaysRead()
    {
        const auto deckFrom = [](const QByteArray &json) {
            return decoded("{\"decks\":[" + json + "]}").list<Deck>().value(0);
        };
        const Deck fresh = Deck::fresh(now, freshId());
        QCOMPARE(deckFrom("{}"), fresh);
        QCOMPARE(deckFrom("7"), fresh);
        QCOMPARE(deckFrom(R"({"showNumbers":"no","isFavorite":1,"theme":null})"), fresh);

        Deck expected = fresh;
        expected.theme = SlideTheme();
        expected.theme.accent = u"FF0000"_s;
        QCOMPARE(
            deckFrom(R"({"theme":{"accent":"FF0000","decoration":"swirl","titleWeight":4,"marker":""}})"),
            expected);

        expected = fresh;
        Slide titled = Slide::fresh(freshId());
        titled.title = u"Kept"_s;
        expected.slides = {Slide::fresh(freshId()), titled};
        QCOMPARE(deckFrom(R"({"slides":[null,{"kind":"hologram","title":"Kept"}]})"), expected);
    }

    void oddTextSurvives()
    {
        const auto titleFrom = [](const QByteArray &text) {
            return decoded("{\"decks\":[{\"title\":\"" + text + "\"}]}").list<Deck>().value(0).title;
        };
        QCOMPARE(titleFrom(R"(a\u0000b)"), QString(u"a\0b"_s));
        QCOMPARE(titleFrom(R"(\ud83d\ude00)"), u"😀"_s);
        QCOMPARE(titleFrom(R"(\ud83d)"), u"\ufffd"_s);
        QCOMPARE(titleFrom(R"(x\udc00y\\ud83d\/)"), u"x\ufffdy\\ud83d/"_s);
        QCOMPARE(titleFrom(R"(\ud83d\ud83d\ude00)"), u"\ufffd😀"_s);

        Snapshot sample = SampleSnapshot::make();
        sample.list<TaskItem>()[0].title = u"half "_s + QChar(0xd83d);
        sample.list<TaskItem>()[1].title = u"nul "_s + QChar(0) + u" \u2028 end"_s;
        const Snapshot back = decoded(SnapshotCodec::encode(sample));
        QCOMPARE(back.list<TaskItem>()[0].title, u"half \ufffd"_s);
        QCOMPARE(back.list<TaskItem>()[1].title, sample.list<TaskItem>()[1].title);
    }

    void ofAKeyGivenTwiceTheLastCounts()
    {
        QCOMPARE(decoded(R"({"settings":{"userName":"a","userName":"b"},"settings":{"userName":"c"}})")
                     .settings.userName,
                 u"c"_s);
    }

    void everyTruncationIsRefused()
    {
        const QByteArray json = SnapshotCodec::encode(SampleSnapshot::make());
        for (qsizetype size = 0; size < json.size(); ++size)
            QVERIFY2(!decode(json.left(size)), qPrintable(QString::number(size)));
    }

    /// Whatever is read from a damaged document can be written and read again.
    void mutationsNeverCrash()
    {
        const QByteArray json = SnapshotCodec::encode(SampleSnapshot::make());
        std::mt19937 random(3);
        static constexpr char pieces[] = "{}[]\",:\\/u0123456789dDeE.-tfn \0\xf0\x9f\xed\xa0\x80";
        int read = 0;
#ifdef __SANITIZE_ADDRESS__
        static constexpr int rounds = 20'000;
#else
        static constexpr int rounds = 200'000;
#endif
        for (int round = 0; round < rounds; ++round) {
            QByteArray mutated = json;
            for (unsigned change = 0; change < 1 + random() % 4; ++change) {
                const qsizetype at = qsizetype(random() % std::size_t(mutated.size()));
                switch (random() % 4) {
                case 0:
                    mutated[at] = pieces[random() % (sizeof pieces - 1)];
                    break;
                case 1:
                    mutated.remove(at, qsizetype(random() % 40));
                    break;
                case 2:
                    mutated.insert(at, mutated.mid(qsizetype(random() % std::size_t(mutated.size())), 20));
                    break;
                default:
                    mutated[at] = char(mutated[at] ^ (1 << (random() % 7)));
                }
                if (mutated.isEmpty())
                    break;
            }
            const auto snapshot = decode(mutated);
            if (!snapshot)
                continue;
            ++read;
            if (round % 16 == 0)
                QCOMPARE(decoded(SnapshotCodec::encode(*snapshot)), *snapshot);
        }
        QVERIFY(read > rounds / 200);
    }
};

QTEST_GUILESS_MAIN(SnapshotCodecTest)
#include "tst_snapshotcodec.moc"
