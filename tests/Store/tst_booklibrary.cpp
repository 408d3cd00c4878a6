#include "Harness/ManualClock.h"
#include "Store/BookOperations.h"

#include <QTemporaryDir>
#include <QtTest>

using namespace Qt::StringLiterals;

class BookLibraryTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<QTemporaryDir> m_place;
    const QUuid m_emma{u"e621e1f8-c36c-495a-93fc-0c247a3e6e5f"_s};
    const QUuid m_dracula{u"00000000-0000-0000-0000-00000000000a"_s};

    QString folder() const { return m_place->filePath(u"deep/Books"_s); }
    QStringList files() const { return QDir(folder()).entryList(QDir::Files | QDir::Hidden); }

    static void writeFile(const QString &path, const QByteArray &bytes)
    {
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }

private slots:
    void init() { m_place = std::make_unique<QTemporaryDir>(); }

    void keepsOneFileABook()
    {
        const BookLibrary library(folder());
        QCOMPARE(library.text(m_emma), QString());
        library.deleteText(m_emma);
        QVERIFY(!QFileInfo::exists(folder()));

        const QString text = u"Emma Woodhouse, “handsome”…\n\nclever 📚"_s;
        QVERIFY(library.write(m_emma, u"an older text"_s));
        QVERIFY(library.write(m_emma, text));
        QVERIFY(library.write(m_dracula, u"3 May. Bistritz."_s));
        QCOMPARE(files(), (QStringList{u"00000000-0000-0000-0000-00000000000A.txt"_s,
                                       u"E621E1F8-C36C-495A-93FC-0C247A3E6E5F.txt"_s}));
        QCOMPARE(library.text(m_emma), text);

        library.deleteText(m_emma);
        QCOMPARE(files(), QStringList{u"00000000-0000-0000-0000-00000000000A.txt"_s});
        QCOMPARE(library.text(m_emma), QString());
        QCOMPARE(library.text(m_dracula), u"3 May. Bistritz."_s);
    }

    void aFileThatIsNoTextReadsAsNone()
    {
        const BookLibrary library(folder());
        writeFile(library.directory() + u"/E621E1F8-C36C-495A-93FC-0C247A3E6E5F.txt"_s, "caf\xe9");
        QCOMPARE(library.text(m_emma), QString());
    }

    void aFolderThatCannotBeMadeFailsTheWrite()
    {
        writeFile(m_place->filePath(u"deep"_s), "a file in the way");
        const BookLibrary library(folder());
        QVERIFY(!library.write(m_emma, u"text"_s));
        library.deleteAll();
        QVERIFY(QFile::exists(m_place->filePath(u"deep"_s)));
    }

    void deletesEverythingInsideAndNothingOutside()
    {
        const BookLibrary library(folder());
        const QString outside = m_place->filePath(u"outside"_s);
        QVERIFY(QDir().mkpath(outside));
        writeFile(outside + u"/kept.txt"_s, "kept");
        QVERIFY(library.write(m_emma, u"text"_s));
        writeFile(folder() + u"/.hidden"_s, "");
        QVERIFY(QDir().mkpath(folder() + u"/sub/sub"_s));
        QVERIFY(QFile::link(outside, folder() + u"/link"_s));
        QVERIFY(QFile::link(outside, folder() + u"/sub/link"_s));
        QVERIFY(QFile::link(folder() + u"/nowhere"_s, folder() + u"/broken"_s));

        library.deleteAll();
        QCOMPARE(
            QDir(folder()).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot),
            QStringList());
        QVERIFY(QFile::exists(outside + u"/kept.txt"_s));
    }

    void textsDieWithTheirBooks()
    {
        ManualClock clock;
        WorkspaceStore store({m_place->filePath(u"workspace.json"_s), &clock, std::chrono::hours(1)});
        const auto add = [&store](qint64 number) {
            Book book;
            book.id = QUuid::createUuid();
            book.gutenbergID = number;
            return BookOperations::add(store, book).id;
        };
        const QUuid first = add(1);
        const QUuid second = add(2);
        for (const QUuid &id : {first, second})
            QVERIFY(store.bookLibrary().write(id, u"text"_s));
        const QDir books(m_place->filePath(u"Books"_s));
        QCOMPARE(books.entryList(QDir::Files).size(), 2);

        BookOperations::remove(store, first);
        QCOMPARE(store.list<Book>().size(), 1);
        // Its text stays for as long as the book can be brought back.
        QCOMPARE(store.bookLibrary().text(first), u"text"_s);

        store.resetEverything(true);
        QCOMPARE(books.entryList(QDir::Files | QDir::Hidden), QStringList());
        QVERIFY(QFile::exists(m_place->filePath(u"workspace.json"_s)));
    }
};

QTEST_GUILESS_MAIN(BookLibraryTest)
#include "tst_booklibrary.moc"
