#include "Features/Reader/GutenbergClient.h"
#include "Features/Reader/GutenbergText.h"
#include "Harness/HttpTestServer.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSignalSpy>
#include <QtTest>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using Answer = HttpTestServer::Answer;
using Pace = HttpTestServer::Pace;
using Phase = GutenbergClient::Phase;

namespace
{
const auto unreachable = u"Couldn't reach the library. Check your connection and try again."_s;

QString reason(const std::expected<QString, QString> &result)
{
    return result ? QString() : result.error();
}

QJsonObject bookJson(int id, const QString &title)
{
    return {{u"id"_s, id},
            {u"title"_s, title},
            {u"authors"_s, QJsonArray{QJsonObject{{u"name"_s, u"Austen, Jane"_s}, {u"birth_year"_s, 1775}}}},
            {u"subjects"_s, QJsonArray{u"Courtship"_s}},
            {u"languages"_s, QJsonArray{u"en"_s}},
            {u"formats"_s, QJsonObject{{u"text/plain"_s, u"https://example.org/%1.txt"_s.arg(id)}}},
            {u"download_count"_s, 7}};
}

QByteArray responseJson(const QJsonArray &books)
{
    return QJsonDocument(
               QJsonObject{{u"count"_s, 1234}, {u"next"_s, QJsonValue::Null}, {u"results"_s, books}})
        .toJson();
}
} // namespace

class GutenbergTest : public QObject
{
    Q_OBJECT

private:
    HttpTestServer m_catalogue;
    std::unique_ptr<HttpTestServer> m_files;

    GutenbergClient::Options options(const QUrl &catalogue) { return {.catalogue = catalogue}; }

    GutenbergBook bookAt(const QUrl &url) const
    {
        GutenbergBook book;
        book.formats.insert(u"text/plain"_s, url.toString());
        return book;
    }

    std::expected<QString, QString> download(GutenbergClient &client, const GutenbergBook &book)
    {
        std::optional<std::expected<QString, QString>> result;
        client.download(book, &client, nullptr, [&](const auto &given) { result = given; });
        if (result || !QTest::qWaitFor([&] { return result.has_value(); }, 60'000))
            return std::unexpected(u"THE TEST GAVE UP"_s);
        return *result;
    }

private slots:
    void initTestCase()
    {
        const TestCertificate certificate = TestCertificate::make();
        QVERIFY(!certificate.isNull());
        certificate.trust();
        m_files = std::make_unique<HttpTestServer>(certificate);
    }
    void init()
    {
        m_catalogue.forgetRequests();
        m_files->forgetRequests();
    }

    void searches()
    {
        GutenbergClient client(options(m_catalogue.url(u"/mirror/"_s)));
        m_catalogue.answer(u"/mirror/books"_s, {.body = responseJson({bookJson(158, u"Emma"_s),
                                                                      bookJson(105, u"Persuasion"_s)})});
        QCOMPARE(client.phase(), Phase::idle);
        client.search(u"  Brontë & Söhne 50%+#1  \n"_s);
        QCOMPARE(client.phase(), Phase::loading);
        QTRY_COMPARE(client.phase(), Phase::loaded);
        QCOMPARE(m_catalogue.requests().first().target,
                 "/mirror/books?search=Bront%C3%AB%20%26%20S%C3%B6hne%2050%25%2B%231&languages=en"_ba);

        QCOMPARE(client.results().size(), 2);
        const GutenbergBook emma = client.results().first();
        QCOMPARE(emma.id, 158);
        QCOMPARE(emma.title, u"Emma"_s);
        QCOMPARE(emma.authorLine(), u"Austen, Jane"_s);
        QCOMPARE(emma.plainTextURL(), QUrl(u"https://example.org/158.txt"_s));
        QCOMPARE(client.results().last().title, u"Persuasion"_s);

        // Nothing found is an answer too, and so is one under a status of failure.
        m_catalogue.answer(u"/mirror/books"_s, {.status = 500, .body = responseJson({})});
        client.search(u"xyzzy"_s);
        QTRY_COMPARE(client.phase(), Phase::loaded);
        QVERIFY(client.results().isEmpty());
    }

    void failedSearchesKeepTheResults_data()
    {
        QTest::addColumn<Answer>("answer");
        const auto without = [](const QString &key) {
            QJsonObject book = bookJson(1, u"Emma"_s);
            book.remove(key);
            return Answer{.body = responseJson({book})};
        };
        QTest::newRow("missing page") << Answer{.status = 404, .body = "<html></html>"};
        QTest::newRow("page under 200")
            << Answer{.contentType = "text/html", .body = "<!DOCTYPE html><p>Log in"};
        QTest::newRow("server error") << Answer{.status = 500, .body = "{\"detail\": \"error\"}"};
        QTest::newRow("empty") << Answer{};
        QTest::newRow("no object") << Answer{.body = "[]"};
        QTest::newRow("cut JSON") << Answer{.body = responseJson({bookJson(1, u"Emma"_s)}).chopped(9)};
        QTest::newRow("no count") << Answer{.body = "{\"results\": []}"};
        QTest::newRow("no results") << Answer{.body = "{\"count\": 0}"};
        QTest::newRow("book without formats") << without(u"formats"_s);
        QTest::newRow("book without languages") << without(u"languages"_s);
        QTest::newRow("truncated") << Answer{.body = responseJson({}),
                                             .contentLength = responseJson({}).size() + 1};
        QTest::newRow("told shorter") << Answer{.body = responseJson({}), .contentLength = 20};
        QTest::newRow("hanging up") << Answer{.pace = Pace::hangingUp};
        QTest::newRow("silent") << Answer{.pace = Pace::silent};
        QTest::newRow("stalling") << Answer{.body = "{", .contentLength = 9, .pace = Pace::stalling};
        QTest::newRow("dripping") << Answer{.body = "{", .pace = Pace::dripping};
        QTest::newRow("endless") << Answer{.pace = Pace::endless};
        QTest::newRow("redirect loop") << Answer{.status = 301, .location = "/books"};
    }
    void failedSearchesKeepTheResults()
    {
        QFETCH(Answer, answer);
        GutenbergClient::Options limited = options(m_catalogue.url());
        limited.searchLimits = {1s, 10min, 1'000'000};
        GutenbergClient client(limited);
        m_catalogue.answer(u"/books"_s, {.body = responseJson({bookJson(158, u"Emma"_s)})});
        // On a busy machine even a good server may need a second try.
        QVERIFY(QTest::qWaitFor(
            [&client] {
                if (client.phase() != Phase::loading && client.phase() != Phase::loaded)
                    client.search(u"emma"_s);
                return client.phase() == Phase::loaded;
            },
            60'000));

        m_catalogue.answer(u"/books"_s, answer);
        client.search(u"another"_s);
        QTRY_COMPARE_WITH_TIMEOUT(client.phase(), Phase::failed, 60'000);
        QCOMPARE(client.failure(), unreachable);
        QCOMPARE(client.results().size(), 1);
        QCOMPARE(client.results().first().title, u"Emma"_s);
        QTRY_COMPARE(m_catalogue.openConnections(), 0);
    }

    void aBlankQueryClears()
    {
        GutenbergClient client(options(m_catalogue.url()));
        m_catalogue.answer(u"/books"_s, {.body = responseJson({bookJson(158, u"Emma"_s)})});
        client.search(u"emma"_s);
        QTRY_COMPARE(client.phase(), Phase::loaded);
        m_catalogue.forgetRequests();
        client.search(u" \n\t"_s);
        QCOMPARE(client.phase(), Phase::idle);
        QVERIFY(client.results().isEmpty());
        QVERIFY(m_catalogue.requests().isEmpty());
    }

    void anUnusableCatalogueIsTold()
    {
        for (const QUrl &catalogue : {QUrl(), QUrl(u"/books"_s), QUrl(u"https:///"_s)}) {
            GutenbergClient client(options(catalogue));
            client.search(u"emma"_s);
            QCOMPARE(client.phase(), Phase::failed);
            QCOMPARE(client.failure(), u"That search couldn't be built."_s);
        }
        GutenbergClient nobody(options(QUrl(u"http://127.0.0.1:1"_s)));
        nobody.search(u"emma"_s);
        QTRY_COMPARE(nobody.phase(), Phase::failed);
        QCOMPARE(nobody.failure(), unreachable);
    }

    void anEarlierAnswerIsDropped()
    {
        GutenbergClient client(options(m_catalogue.url()));
        const Answer first{.body = responseJson({bookJson(1, u"First"_s)}), .pace = Pace::onRelease};
        m_catalogue.answer(u"/books"_s, first);
        client.search(u"first"_s);
        QTRY_COMPARE(m_catalogue.requests().size(), 1);
        m_catalogue.answer(u"/books"_s, {.body = responseJson({bookJson(2, u"Second"_s)})});
        client.search(u"second"_s);
        QTRY_COMPARE(client.phase(), Phase::loaded);
        QCOMPARE(client.results().first().title, u"Second"_s);
        m_catalogue.release(u"/books"_s);
        QTRY_COMPARE(m_catalogue.openConnections(), 0);
        QCoreApplication::processEvents();
        QCOMPARE(client.results().size(), 1);
        QCOMPARE(client.results().first().title, u"Second"_s);

        // Nor does it fill the list again that a blank query has emptied.
        m_catalogue.answer(u"/books"_s, first);
        client.search(u"third"_s);
        QTRY_COMPARE(m_catalogue.requests().size(), 3);
        client.search(QString());
        m_catalogue.release(u"/books"_s);
        QTRY_COMPARE(m_catalogue.openConnections(), 0);
        QCoreApplication::processEvents();
        QVERIFY(client.results().isEmpty());
        QCOMPARE(client.phase(), Phase::idle);
    }

    void goesAwayWhileWaiting()
    {
        m_catalogue.answer(u"/books"_s, {.pace = Pace::onRelease});
        m_files->answer(u"/slow.txt"_s, {.pace = Pace::onRelease});
        auto client = std::make_unique<GutenbergClient>(options(m_catalogue.url()));
        bool isCalled = false;
        client->search(u"emma"_s);
        client->download(bookAt(m_files->url(u"/slow.txt"_s)), client.get(), nullptr,
                         [&](const auto &) { isCalled = true; });
        QTRY_COMPARE(m_catalogue.requests().size(), 1);
        QTRY_COMPARE(m_files->requests().size(), 1);
        client.reset();
        QTRY_COMPARE(m_catalogue.openConnections(), 0);
        QTRY_COMPARE(m_files->openConnections(), 0);
        QVERIFY(!isCalled);
    }

    void choosesThePlainText_data()
    {
        using Formats = QMap<QString, QString>;
        QTest::addColumn<Formats>("formats");
        QTest::addColumn<QString>("address");
        QTest::newRow("nothing") << Formats() << QString();
        QTest::newRow("no text") << Formats{{u"text/html"_s, u"https://a/h"_s},
                                            {u"image/jpeg"_s, u"https://a/j"_s}}
                                 << QString();
        QTest::newRow("utf-8 first") << Formats{{u"text/plain"_s, u"https://a/p"_s},
                                                {u"text/plain; charset=us-ascii"_s, u"https://a/a"_s},
                                                {u"text/plain; charset=utf-8"_s, u"https://a/u"_s}}
                                     << u"https://a/u"_s;
        QTest::newRow("ascii next") << Formats{{u"text/plain"_s, u"https://a/p"_s},
                                               {u"text/plain; charset=us-ascii"_s, u"https://a/a"_s}}
                                    << u"https://a/a"_s;
        QTest::newRow("unusable ones left out")
            << Formats{{u"text/plain; charset=utf-8"_s, QString()},
                       {u"text/plain; charset=us-ascii"_s, u"http://[broken"_s},
                       {u"text/plain; charset=iso-8859-1"_s, u"https://a/l"_s}}
            << u"https://a/l"_s;
        QTest::newRow("another charset")
            << Formats{{u"text/plain; charset=iso-8859-1"_s, u"http://a/l"_s}} << u"https://a/l"_s;
        QTest::newRow("made secure") << Formats{{u"text/plain"_s, u"HTTP://Example.org/Files/1.TXT"_s}}
                                     << u"https://example.org/Files/1.TXT"_s;
    }
    void choosesThePlainText()
    {
        using Formats = QMap<QString, QString>;
        QFETCH(Formats, formats);
        QFETCH(QString, address);
        GutenbergBook book;
        book.formats = formats;
        QCOMPARE(book.plainTextURL().value_or(QUrl()).toString(), address);
    }

    void makesRecords()
    {
        const QUuid id = QUuid::createUuid();
        const Timestamp now(1h);
        GutenbergBook book;
        book.id = 158;
        book.title = u"Emma"_s;
        Book expected{.id = id,
                      .gutenbergID = 158,
                      .title = u"Emma"_s,
                      .author = u"Unknown author"_s,
                      .createdDate = now,
                      .updatedDate = now};
        QCOMPARE(book.makeBook(id, now), expected);

        book.authors = {{u"Austen, Jane"_s}, {u"Other, An"_s}};
        book.languages = {u"fr"_s, u"en"_s};
        book.subjects = u"1 2 3 4 5 6 7"_s.split(u' ');
        book.formats.insert(u"text/plain"_s, u"http://a/b c"_s);
        expected.author = u"Austen, Jane, Other, An"_s;
        expected.language = u"fr"_s;
        expected.subjects = u"1 2 3 4 5 6"_s.split(u' ');
        expected.downloadURL = u"https://a/b%20c"_s;
        QCOMPARE(book.makeBook(id, now), expected);
    }

    void stripsTheLicence_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("book");
        const auto start = u"Licence\n*** START OF THE PROJECT GUTENBERG EBOOK EMMA ***\n"_s;
        const auto end = u"\n*** END OF THE PROJECT GUTENBERG EBOOK EMMA ***\nLicence"_s;
        QTest::newRow("both") << start + u"\n\n I\n\nEmma  \n"_s + end << u"I\n\nEmma"_s;
        QTest::newRow("neither") << u"\n I\n\nEmma \n"_s << u"I\n\nEmma"_s;
        QTest::newRow("end alone") << u"Emma"_s + end << u"Emma"_s;
        QTest::newRow("start alone") << start + u"Emma"_s << u"Emma"_s;
        QTest::newRow("start on the last line") << u"Emma\n*** START OF THE PROJECT GUTENBERG EBOOK"_s
                                                << u"Emma\n*** START OF THE PROJECT GUTENBERG EBOOK"_s;
        QTest::newRow("other case") << u"*** start of the project gutenberg\nEmma"_s
                                    << u"*** start of the project gutenberg\nEmma"_s;
        QTest::newRow("end before the start")
            << u"*** END OF THE PROJECT GUTENBERG\n"_s + start + u"Emma"_s << u"Emma"_s;
        QTest::newRow("nothing between") << start + end << QString();
        QTest::newRow("empty") << QString() << QString();
    }
    void stripsTheLicence()
    {
        QFETCH(QString, text);
        QFETCH(QString, book);
        QCOMPARE(GutenbergClient::stripBoilerplate(text), book);
    }

    void decodesTexts()
    {
        QCOMPARE(GutenbergText::decode("\xef\xbb\xbf"
                                       "caf\xc3\xa9\r\n\r\nend\r\n"),
                 u"café\n\nend\n"_s);
        QCOMPARE(GutenbergText::decode("caf\xe9"), u"café"_s);
        QCOMPARE(GutenbergText::decode("caf\xe9 au lait, caf\xc3\xa9"), u"café au lait, cafÃ©"_s);
        QCOMPARE(GutenbergText::decode(""), QString());
    }

    void downloads()
    {
        GutenbergClient client(options(m_catalogue.url()));
        m_files->answer(
            u"/emma.txt"_s,
            {.body = "Head\r\n*** START OF THE PROJECT GUTENBERG EBOOK ***\r\n\r\nEmma,\r\ncaf\xe9\r\n"
                     "*** END OF THE PROJECT GUTENBERG EBOOK ***\r\nTail"});
        m_files->answer(u"/moved.txt"_s, {.status = 302, .location = "/emma.txt"});
        // The catalogue tells the insecure address; the secure one is asked.
        QString address = m_files->url(u"/moved.txt"_s).toString();
        address.replace(u"https:"_s, u"http:"_s);
        const auto text = download(client, bookAt(QUrl(address)));
        QVERIFY2(text, qPrintable(reason(text)));
        QCOMPARE(*text, u"Emma,\ncafé"_s);
    }

    void failedDownloadsSayWhatToDo_data()
    {
        QTest::addColumn<Answer>("answer");
        QTest::newRow("missing") << Answer{.status = 404, .body = "Not here."};
        QTest::newRow("server error") << Answer{.status = 503, .body = "Busy."};
        QTest::newRow("page under 200")
            << Answer{.contentType = "text/html; charset=utf-8", .body = "<p>Log in"};
        QTest::newRow("page called text") << Answer{.body = "\n<!DOCTYPE HTML>\n<title>Log in</title>"};
        QTest::newRow("truncated") << Answer{.body = "Emma", .contentLength = 5};
        QTest::newRow("hanging up") << Answer{.pace = Pace::hangingUp};
        QTest::newRow("silent") << Answer{.pace = Pace::silent};
        QTest::newRow("dripping") << Answer{.pace = Pace::dripping};
        QTest::newRow("endless") << Answer{.pace = Pace::endless};
        QTest::newRow("redirect loop") << Answer{.status = 307, .location = "/book.txt"};
        QTest::newRow("to an insecure place")
            << Answer{.status = 302, .location = m_catalogue.url(u"/plain.txt"_s).toEncoded()};
    }
    void failedDownloadsSayWhatToDo()
    {
        QFETCH(Answer, answer);
        GutenbergClient::Options limited = options(m_catalogue.url());
        limited.downloadLimits = {1s, 10min, 1'000'000};
        GutenbergClient client(limited);
        m_files->answer(u"/book.txt"_s, answer);
        m_catalogue.answer(u"/plain.txt"_s, {.body = "overheard"});
        const auto text = download(client, bookAt(m_files->url(u"/book.txt"_s)));
        QVERIFY(!text);
        QCOMPARE(text.error(), u"Couldn't download that book. Check your connection and try again."_s);
        QVERIFY(m_catalogue.requests().isEmpty());
        QTRY_COMPARE(m_files->openConnections(), 0);
    }

    void aBookWithoutTextIsNotAskedFor()
    {
        GutenbergClient client(options(m_catalogue.url()));
        QVERIFY(!download(client, GutenbergBook()));
        QVERIFY(!download(client, bookAt(QUrl(u"file:///etc/hostname"_s))));
        QVERIFY(m_files->requests().isEmpty());
    }
};

QTEST_GUILESS_MAIN(GutenbergTest)
#include "tst_gutenberg.moc"
