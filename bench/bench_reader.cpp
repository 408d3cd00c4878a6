#include "Features/Reader/BookMatches.h"
#include "Harness/Scene.h"

#include <QGuiApplication>

#include <cstdio>

namespace
{
constexpr qsizetype largeBook = 5'000'000;
constexpr qsizetype smallBook = 50'000;

QString bookText(qsizetype bytes)
{
    QString text;
    for (int i = 0; text.size() < bytes; ++i) {
        if (i % 200 == 0)
            text += QStringLiteral("CHAPTER %1\n\n").arg(i / 200 + 1);
        text += QStringLiteral("The harbour wakes before the town does, and the nets are mended\n"
                               "on the quay while the gulls argue over the catch. ")
                    .repeated(1 + i % 7);
        text += QStringLiteral("So it went on day %1.\n\n").arg(i);
    }
    return text;
}

Snapshot libraryOf(const Book &book)
{
    Snapshot workspace;
    workspace.list<Book>().append(book);
    return workspace;
}

/// The reader over a library of one book.
class ReaderScene : public Scene
{
public:
    explicit ReaderScene(qsizetype bytes) : ReaderScene(bytes, {.id = QUuid::createUuid(), .title = {}}) {}

    /// From nothing to the text at the place that was kept, in the middle of the book.
    Comparison::Duration openBook()
    {
        const auto opening = open();
        return opening + timed([this] {
                   while (!focusItem() || focusItem()->property("count").toInt() == 0)
                       settle();
               });
    }

private:
    ReaderScene(qsizetype bytes, Book book) : Scene(libraryOf(placed(book, bytes)), screen)
    {
        if (!desk().store->bookLibrary().write(book.id, bookText(bytes))) {
            std::fprintf(stderr, "bench_reader: cannot write the book\n");
            std::exit(2);
        }
    }
    static Book placed(Book book, qsizetype bytes)
    {
        book.lastLocation = bytes / 1000;
        return book;
    }

    static constexpr char screen[] = "import Orvel.Reader\nReaderView { focus: true }";
};

/// What the toolkit offers for this.
qsizetype countPlainly(const QString &text, const QString &query)
{
    qsizetype count = 0;
    for (qsizetype at = text.indexOf(query, 0, Qt::CaseInsensitive); at >= 0;
         at = text.indexOf(query, at + query.size(), Qt::CaseInsensitive))
        ++count;
    return count;
}
} // namespace

int main(int argc, char *argv[])
{
    const QGuiApplication application(argc, argv);
    const auto milliseconds = [](double count) { return Comparison::Duration(count); };
    Comparison comparison;

    ReaderScene large(largeBook);
    ReaderScene small(smallBook);
    const auto openings =
        Comparison::alternate(10, [&] { return large.openBook(); }, [&] { return small.openBook(); });
    comparison.timeUnder(
        QStringLiteral("open the reader with a book of 5 MB, against 50 KB, half of the times"),
        Comparison::quantile(openings.ours, 0.5), Comparison::quantile(openings.baseline, 0.5),
        milliseconds(100));
    const auto pages = Comparison::alternate(
        100, [&] { return large.press(Qt::Key_Space); }, [&] { return small.press(Qt::Key_Space); });
    comparison.timeUnder(QStringLiteral("turn a page of a book of 5 MB, against 50 KB, 95 of 100"),
                         Comparison::quantile(pages.ours, 0.95), Comparison::quantile(pages.baseline, 0.95),
                         milliseconds(8));

    const QStringList paragraphs = BookContents::makeParagraphs(bookText(largeBook));
    const auto book = std::make_shared<const BookContents>(paragraphs);
    for (const QString &query : {QStringLiteral("e"), QStringLiteral("the"), QStringLiteral("harbour w"),
                                 QStringLiteral("nowhere")}) {
        qsizetype ours = 0;
        qsizetype plain = 0;
        const auto times = Comparison::alternate(
            10, [&] { return timed([&] { ours = BookMatches(book, query).count(); }); },
            [&] { return timed([&] { plain = countPlainly(book->text(), query); }); });
        if (ours != plain) {
            std::fprintf(stderr, "bench_reader: found %lld, not %lld\n", qlonglong(ours), qlonglong(plain));
            return 2;
        }
        comparison.timeUnder(QStringLiteral("find \"%1\" in a book of 5 MB, half of the times").arg(query),
                             Comparison::quantile(times.ours, 0.5), Comparison::quantile(times.baseline, 0.5),
                             milliseconds(16));
    }
    return comparison.exitCode();
}
