#include "Features/Transfer/MarkdownExport.h"
#include "Features/Transfer/MarkdownFiles.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

class MarkdownFilesTest : public QObject
{
    Q_OBJECT

private:
    static MarkdownFiles::Document parse(const QByteArray &bytes)
    {
        return MarkdownFiles::parse(bytes, u"the-file"_s, &QUuid::createUuid);
    }
    static void put(const QTemporaryDir &folder, const QString &name, const QByteArray &bytes = "# A\n")
    {
        const QString path = folder.filePath(name);
        QDir().mkpath(QFileInfo(path).path());
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
    }
    static QStringList shown(const MarkdownFiles::Listing &listing, const QString &root)
    {
        QStringList lines;
        for (const MarkdownFiles::Source &source : listing.sources)
            lines.append(source.folder + u'|' + QDir(root).relativeFilePath(source.path));
        return lines;
    }
    static constexpr auto always = [] { return true; };

private slots:
    void theTitleIsThatOfTheFrontMatterTheHeadingOrTheFile()
    {
        QCOMPARE(parse("---\ntitle: \"Nets: a study\"\ntags: [sea]\n---\n\nText\n").title,
                 u"Nets: a study"_s);
        QVERIFY(parse("---\ntitle: Nets\ntags: x\n---\nText\n").lostFrontMatter);
        QVERIFY(!parse("---\ntitle: Nets\n---\nText\n").lostFrontMatter);
        // A heading that only repeats the title goes; another one stays.
        QCOMPARE(parse("---\ntitle: Nets\n---\n# Nets\n\nText\n").blocks.size(), 1);
        QCOMPARE(parse("---\ntitle: Nets\n---\n# Oars\n").blocks.size(), 1);
        const auto headed = parse("\xEF\xBB\xBF# Oars\r\n\r\nText\r\n");
        QCOMPARE(headed.title, u"Oars"_s);
        QCOMPARE(headed.blocks.size(), 1);
        QCOMPARE(headed.blocks.first().text, u"Text"_s);
        QCOMPARE(parse("## Oars\n").title, u"the-file"_s);
        QCOMPARE(parse("").title, u"the-file"_s);
        QCOMPARE(parse("").blocks.size(), 1);
        // A rule at the beginning is no front matter.
        const auto ruled = parse("---\n\nText\n\n---\n");
        QCOMPARE(ruled.blocks.size(), 3);
        QVERIFY(!ruled.lostFrontMatter);
        // Nor is a text between two rules that has a colon somewhere.
        QCOMPARE(parse("---\nMeet at 10:30, see https://example.org\n\n---\nText\n").blocks.size(), 4);
    }

    void textsOfOtherEncodingsAreRead()
    {
        const auto guessed = parse("caf\xE9\n");
        QCOMPARE(guessed.blocks.first().text, u"café"_s);
        QVERIFY(guessed.wasGuessed);
        const auto wide = parse(QByteArray("\xFF\xFE"
                                           "a\0b\0",
                                           6));
        QCOMPARE(wide.blocks.first().text, u"ab"_s);
        QVERIFY(!wide.wasGuessed);
    }

    void foldersAreListedByTheirPaths()
    {
        const QTemporaryDir folder;
        for (const QString &name :
             {u"Trips/b10.md"_s, u"Trips/b9.MARKDOWN"_s, u"Trips/photo.png"_s, u"Trips/.git/x.md"_s,
              u"Trips/Norway/Fjords/c.md"_s, u"Trips/Norway/a.md"_s, u"loose.md"_s})
            put(folder, name);
        QFile::link(folder.filePath(u"Trips"_s), folder.filePath(u"Trips/Norway/loop"_s));
        const auto listing =
            MarkdownFiles::list({folder.filePath(u"Trips"_s), folder.filePath(u"loose.md"_s)}, always);
        QCOMPARE(shown(listing, folder.path()),
                 (QStringList{u"Trips|Trips/b9.MARKDOWN"_s, u"Trips|Trips/b10.md"_s,
                              u"Trips / Norway|Trips/Norway/a.md"_s,
                              u"Trips / Norway / Fjords|Trips/Norway/Fjords/c.md"_s, u"|loose.md"_s}));
        QCOMPARE(listing.skipped, 1);
        QVERIFY(MarkdownFiles::list({folder.filePath(u"Trips"_s)}, [] { return false; }).sources.isEmpty());
        QVERIFY(!MarkdownFiles::read(folder.filePath(u"Trips"_s), &QUuid::createUuid));
        QVERIFY(!MarkdownFiles::read(folder.filePath(u"gone.md"_s), &QUuid::createUuid));
    }

    void exportsUnderNamesThatEveryFileSystemTakes()
    {
        const Folder travel{.id = QUuid::createUuid(), .name = u"Travel / 2026"_s};
        const Folder notes{.id = QUuid::createUuid(), .name = u"notes"_s};
        const auto page = [](const QString &title, std::optional<QUuid> folder = {},
                             PageKind kind = PageKind::page) {
            return Page{.id = QUuid::createUuid(), .title = title, .kind = kind, .folderID = folder};
        };
        QStringList paths;
        for (const auto &file : MarkdownExport::files(
                 {travel, notes},
                 {page(u"a:b?"_s), page(u"A-b-"_s), page(u"con"_s), page(u" .hidden. "_s), page({}),
                  page(u"x"_s, travel.id), page(u"x"_s, travel.id), page(u"x"_s, {}, PageKind::note)}))
            paths.append(file.path);
        QCOMPARE(paths,
                 (QStringList{u"a-b-.md"_s, u"A-b- 2.md"_s, u"con-.md"_s, u"hidden.md"_s, u"Untitled.md"_s,
                              u"Travel - 2026/x.md"_s, u"Travel - 2026/x 2.md"_s, u"Notes 2/x.md"_s}));
    }

    void neverWritesOverAnything()
    {
        const QTemporaryDir folder;
        put(folder, u"Studio/mine.md"_s, "mine");
        const auto always = [](double) { return true; };
        const auto made =
            MarkdownExport::write({{u"mine.md"_s, u"theirs"_s}}, folder.path(), u"Studio"_s, always);
        QVERIFY(made);
        QCOMPARE(QFileInfo(*made).fileName(), u"Studio 2"_s);
        QFile file(folder.filePath(u"Studio/mine.md"_s));
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(file.readAll(), "mine");
        QVERIFY(!MarkdownExport::write({}, folder.filePath(u"gone"_s), u"Studio"_s, always));
    }

    void leavesNothingBehindWhenItIsStopped()
    {
        const QTemporaryDir folder;
        const auto stopped =
            MarkdownExport::write({{u"In/a.md"_s, u"a"_s}, {u"b.md"_s, u"b"_s}, {u"c.md"_s, u"c"_s}},
                                  folder.path(), u"Studio"_s, [](double share) { return share < 0.6; });
        QVERIFY(!stopped && stopped.error().isEmpty());
        QVERIFY(QDir(folder.path()).isEmpty());
    }

    void whatIsWrittenIsReadBack()
    {
        Page page{.title = u"# Nets & [oars]"_s};
        page.content = {{.text = u"- no list"_s},
                        {.type = BlockType::checklist, .text = u"mend"_s, .checked = true},
                        {.type = BlockType::code, .text = u"x = 1\n```"_s, .language = u"python"_s},
                        {.type = BlockType::callout, .text = u"mind"_s, .tone = CalloutTone::warning}};
        const auto back = parse(MarkdownExport::text(page).toUtf8());
        QCOMPARE(back.title, page.title);
        QCOMPARE(back.blocks.size(), page.content.size());
        for (qsizetype i = 0; i < back.blocks.size(); ++i) {
            Block block = back.blocks[i];
            block.id = {};
            if (block.type != BlockType::code)
                block.language = page.content[i].language;
            QCOMPARE(block.text, page.content[i].text);
            QVERIFY(block == page.content[i]);
        }
    }
};

QTEST_GUILESS_MAIN(MarkdownFilesTest)
#include "tst_markdownfiles.moc"
