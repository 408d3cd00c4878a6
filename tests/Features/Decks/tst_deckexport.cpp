#include "Features/Decks/DeckExporter.h"
#include "Features/Decks/DeckOutline.h"
#include "SampleSlides.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>

using namespace Qt::StringLiterals;

class DeckExportTest : public QObject
{
    Q_OBJECT

private:
    const QDateTime m_moment = QDateTime(QDate(2026, 3, 1), QTime(9, 30));

    static QString pdfIn(const QTemporaryDir &folder, const Deck &deck)
    {
        QFile file(folder.filePath(u"deck.pdf"_s));
        if (file.open(QIODevice::WriteOnly))
            file.write(DeckExporter::pdf(deck).value_or(QByteArray()));
        return file.fileName();
    }
    static QString output(const QString &program, const QStringList &arguments)
    {
        QProcess process;
        process.start(program, arguments);
        process.waitForFinished(60000);
        return QString::fromUtf8(process.readAllStandardError() + process.readAllStandardOutput());
    }
    /// Of any colour of any square of four units.
    static int greatestDifference(const QImage &left, const QImage &right)
    {
        const auto squares = [](const QImage &image) {
            return image.scaled(320, 180, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
                .convertToFormat(QImage::Format_RGB888);
        };
        const QImage a = squares(left), b = squares(right);
        int greatest = 0;
        for (int y = 0; y < a.height(); ++y)
            for (int x = 0; x < a.width() * 3; ++x)
                greatest = std::max(greatest, std::abs(a.constScanLine(y)[x] - b.constScanLine(y)[x]));
        return greatest;
    }

private slots:
    void aDeckWithoutSlidesIsRefused()
    {
        for (const auto &format : enumCases<DeckExportFormat>()) {
            const auto bytes = DeckExporter::make(Deck(), format.value, m_moment);
            QVERIFY(!bytes);
            QCOMPARE(enumLabel(bytes.error()), u"This deck has no slides yet."_s);
        }
    }

    void plainTextToTheLetter()
    {
        QCOMPARE(
            DeckOutline::plainText(SampleSlides::deck()),
            u"R&D <5> \"plans\"\n===============\n\nWhere we stand\nBy Zoë's team\n"
            "\n[1] Spring 2026 — A calm place to think — What changes, and why\n  Notes: Breathe and speak "
            "slowly\n"
            "\n[2] 01 — A calm place to think — What changes, and why\n  Notes: Breathe and speak slowly\n"
            "\n[3] Spring 2026 — A calm place to think — What changes, and why\n  Notes: Breathe and speak "
            "slowly\n"
            "\n[4] Spring 2026 — A calm place to think\n  • Keep it short\n  • End with a clear ask\n"
            "  Notes: Breathe and speak slowly\n"
            "\n[5] Spring 2026 — A calm place to think\n  • Keep it short\n  • End with a clear ask\n"
            "  • Second column\n  •   indented\n  Notes: Breathe and speak slowly\n"
            "\n[6] \"Simplicity is a gift to be simple.\"\n    — What changes, and why\n"
            "  Notes: Breathe and speak slowly\n"
            "\n[7] Spring 2026 — A calm place to think\n  • 72 | Conversion rate\n  • 1.4s | Median | load\n"
            "  • 98\n  • 5 | Never shown\n  Notes: Breathe and speak slowly\n"
            "\n[8] Spring 2026 — A calm place to think — What changes, and why\n"
            "  Notes: Breathe and speak slowly\n"_s);
        Deck bare;
        bare.title = u"é😀"_s;
        bare.slides = {Slide()};
        QCOMPARE(DeckOutline::plainText(bare), u"é😀\n===\n\n[1] \n"_s);
    }

    void markdownToTheLetter()
    {
        const QString notes = u"\n<!-- notes: Breathe and speak slowly -->\n\n---\n"_s;
        const QString heading = u"\n**Spring 2026**\n\n# A calm place to think\n\nWhat changes, and why\n"_s;
        QCOMPARE(
            DeckOutline::markdown(SampleSlides::deck()),
            u"# R&D <5> \"plans\"\n\nWhere we stand\n\n> Zoë's team\n\n---\n"_s + heading + notes +
                u"\n**01**\n\n# A calm place to think\n\nWhat changes, and why\n"_s + notes + heading +
                notes +
                u"\n**Spring 2026**\n\n## A calm place to think\n- Keep it short\n- End with a clear ask\n"_s +
                notes +
                u"\n**Spring 2026**\n\n## A calm place to think\n\n| Column A | Column B |\n| --- | --- |\n"
                "| Keep it short | Second column |\n| End with a clear ask |   indented |\n"_s +
                notes +
                u"\n**Spring 2026**\n\n> Simplicity is a gift to be simple.\n>\n> — What changes, and why\n"_s +
                notes +
                u"\n**Spring 2026**\n\n## A calm place to think\n- **72** — Conversion rate\n"
                "- **1.4s** — Median | load\n- **98**\n- **5** — Never shown\n"_s +
                notes + heading + notes);
        Deck bare;
        Slide columns;
        columns.kind = SlideKind::twoColumn;
        columns.bodyB = u"a\nb"_s;
        bare.slides = {columns};
        QCOMPARE(
            DeckOutline::markdown(bare),
            u"# Untitled\n\n---\n\n\n| Column A | Column B |\n| --- | --- |\n|  | a |\n|  | b |\n\n---\n"_s);
    }

    void fileNames()
    {
        Deck deck;
        deck.title = u"Q1/Q2"_s;
        QCOMPARE(DeckExporter::fileName(deck, DeckExportFormat::markdown), u"Q1-Q2.md"_s);
        deck.title.clear();
        QCOMPARE(DeckExporter::fileName(deck, DeckExportFormat::pptx), u"Deck.pptx"_s);
    }

    void pdfPagesLookLikeTheDrawnSlides_data()
    {
        QTest::addColumn<SlideTheme>("theme");
        for (const SlideTheme &theme : SlideTheme::catalog())
            QTest::addRow("%s", qPrintable(theme.id)) << theme;
    }
    /// Another program draws every kind, short and too long, as we do. Its edges are smoothed otherwise, so
    /// what is compared are squares of four units.
    void pdfPagesLookLikeTheDrawnSlides()
    {
        QFETCH(SlideTheme, theme);
        if (QStandardPaths::findExecutable(u"pdftoppm"_s).isEmpty())
            QSKIP("poppler-utils is not installed");
        Deck deck = SampleSlides::deck();
        // How text is shrunk does not depend on the theme.
        if (theme.id == SlideTheme::inkTheme().id) {
            deck.slides.append(deck.slides);
            for (qsizetype i = 0; i < deck.slides.size() / 2; ++i)
                SampleSlides::overfill(deck.slides[i]);
        }
        deck.theme = theme;
        deck.slides.last().title = u"Tea ☕ -> calm ❤️"_s;
        const QTemporaryDir folder;
        const QString file = pdfIn(folder, deck);
        QCOMPARE(output(u"pdftoppm"_s, {u"-r"_s, u"216"_s, file, folder.filePath(u"page"_s)}), QString());
        const QStringList pages = QDir(folder.path()).entryList({u"page-*"_s}, QDir::Files, QDir::Name);
        QCOMPARE(pages.size(), deck.slides.size());
        for (int i = 0; i < deck.slides.size(); ++i) {
            const QImage page(folder.filePath(pages.at(i)));
            const QImage own = DeckExporter::picture(deck, i);
            QCOMPARE(page.size(), own.size());
            const int difference = greatestDifference(page, own);
            QVERIFY2(difference < 64, qPrintable(u"slide %1: %2 of 255"_s.arg(i + 1).arg(difference)));
        }
    }

    void pdfTextsAreFoundAndFontsAreInTheFile()
    {
        if (QStandardPaths::findExecutable(u"pdftotext"_s).isEmpty())
            QSKIP("poppler-utils is not installed");
        Deck deck = SampleSlides::deck();
        deck.slides[3].title = u"Zoë’s plan (A–B) 10:30 -> 3x4"_s;
        const QTemporaryDir folder;
        const QString file = pdfIn(folder, deck);
        const QString text = output(u"pdftotext"_s, {file, u"-"_s});
        for (const QString &expected :
             {u"Zoë’s plan (A–B) 10:30 -> 3x4"_s, u"Keep it short"_s, u"Simplicity is a gift to be simple."_s,
              u"SPRING 2026"_s, u"R&D <5>"_s, u"Conversion rate"_s})
            QVERIFY2(text.contains(expected), qPrintable(expected + u" is not in "_s + text));
        const QStringList fonts = output(u"pdffonts"_s, {file}).split(u'\n', Qt::SkipEmptyParts).sliced(2);
        for (const QString &font : fonts)
            QVERIFY2(font.contains(QRegularExpression(u"Identity-H +yes "_s)), qPrintable(font));
        const QString info = output(u"pdfinfo"_s, {file});
        QVERIFY2(info.contains(QRegularExpression(u"Pages: +8\n"_s)), qPrintable(info));
        QVERIFY2(info.contains(QRegularExpression(u"Page size: +960 x 540 pts"_s)), qPrintable(info));
    }

    void aPdfLeavesLaterDrawingsAsTheyWere()
    {
        Deck deck = SampleSlides::deck();
        deck.slides[0].title = u"Tea ☕ -> calm ❤️ 😀"_s;
        const QImage before = DeckExporter::picture(deck, 0);
        QVERIFY(DeckExporter::pdf(deck));
        QCOMPARE(DeckExporter::picture(deck, 0), before);
    }

    void aCancelledPdfIsNone()
    {
        DeckExportProgress progress;
        progress.isCancelled = true;
        QVERIFY(!DeckExporter::pdf(SampleSlides::deck(), &progress));
        QCOMPARE(progress.slidesDone, 0);
    }
};

QTEST_MAIN(DeckExportTest)
#include "tst_deckexport.moc"
