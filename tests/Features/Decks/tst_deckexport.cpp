#include "Features/Decks/DeckExporter.h"
#include "Features/Decks/DeckOutline.h"
#include "SampleSlides.h"

#include <QDateTime>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

class DeckExportTest : public QObject
{
    Q_OBJECT

private:
    const QDateTime m_moment = QDateTime(QDate(2026, 3, 1), QTime(9, 30));

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

    /// Another program finds in the PDF, pixel by pixel, our own drawing, and shows it on pages of the right
    /// size.
    void pdfPagesAreTheDrawnSlides()
    {
        Deck deck = SampleSlides::deck();
        deck.slides = deck.slides.mid(5, 2);
        const QByteArray pdf = DeckExporter::make(deck, DeckExportFormat::pdf, m_moment).value();
        QVERIFY(pdf.startsWith("%PDF-"));
        if (QStandardPaths::findExecutable(u"pdfimages"_s).isEmpty())
            QSKIP("poppler-utils is not installed");
        QTemporaryDir folder;
        QFile file(folder.filePath(u"deck.pdf"_s));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(pdf);
        file.close();
        const auto run = [](const QString &program, const QStringList &arguments) {
            QProcess process;
            process.start(program, arguments);
            process.waitForFinished(60000);
            return QString::fromUtf8(process.readAllStandardError() + process.readAllStandardOutput());
        };
        QCOMPARE(run(u"pdfimages"_s, {u"-png"_s, file.fileName(), folder.filePath(u"slide"_s)}), QString());
        for (int i = 0; i < 2; ++i)
            QCOMPARE(
                QImage(folder.filePath(u"slide-00%1.png"_s.arg(i))).convertToFormat(QImage::Format_RGB32),
                DeckExporter::picture(deck, i));
        const QString info = run(u"pdfinfo"_s, {file.fileName()});
        QVERIFY2(info.contains(QRegularExpression(u"Pages: +2\n"_s)), qPrintable(info));
        QVERIFY2(info.contains(QRegularExpression(u"Page size: +960 x 540 pts"_s)), qPrintable(info));

        QCOMPARE(
            run(u"pdftoppm"_s, {u"-r"_s, u"72"_s, u"-png"_s, file.fileName(), folder.filePath(u"page"_s)}),
            QString());
        const QImage page(folder.filePath(u"page-2.png"_s));
        QCOMPARE(page.size(), QSize(960, 540));
        QVERIFY(qGray(page.pixel(100, 201)) < 0x20);
    }
};

QTEST_MAIN(DeckExportTest)
#include "tst_deckexport.moc"
