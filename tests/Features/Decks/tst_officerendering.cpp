#include "Features/Decks/DeckLayout.h"
#include "Features/Decks/PowerPointWriter.h"
#include "Features/Decks/SlidePainter.h"
#include "SampleSlides.h"

#include <QDateTime>
#include <QFile>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>
#include <QXmlStreamReader>

using namespace Qt::StringLiterals;

/// Another office program opens our packages and shows the same texts at the same places. It takes its time
/// and is large, so the test is skipped where the program is not installed.
class OfficeRenderingTest : public QObject
{
    Q_OBJECT

private:
    struct Word {
        QString text;
        QRectF rect;
    };

    /// The words of each page, in units of the reference canvas.
    static QList<QList<Word>> wordsOf(const QByteArray &boundingBoxes)
    {
        static constexpr double unitsPerPoint = 1280.0 / 960.0;
        QList<QList<Word>> pages;
        QXmlStreamReader reader(boundingBoxes);
        while (!reader.atEnd()) {
            if (reader.readNext() != QXmlStreamReader::StartElement)
                continue;
            const auto value = [attributes = reader.attributes()](const QString &name) {
                return attributes.value(name).toDouble() * unitsPerPoint;
            };
            if (reader.name() == u"page") {
                pages.append(QList<Word>());
            } else if (reader.name() == u"word") {
                const QRectF rect(QPointF(value(u"xMin"_s), value(u"yMin"_s)),
                                  QPointF(value(u"xMax"_s), value(u"yMax"_s)));
                pages.last().append({reader.readElementText(), rect});
            }
        }
        return pages;
    }

    static QByteArray output(const QString &program, const QStringList &arguments)
    {
        QProcess process;
        process.start(program, arguments);
        return process.waitForFinished(180000) && process.exitCode() == 0 ? process.readAllStandardOutput()
                                                                          : QByteArray();
    }

private slots:
    /// Packages give whole lines a fixed height, which puts the space between lines above the first one too,
    /// and set two blanks behind a marker: that much our own drawing may lie apart.
    void showsTheSameTextsAtTheSamePlaces()
    {
        if (QStandardPaths::findExecutable(u"soffice"_s).isEmpty() ||
            QStandardPaths::findExecutable(u"pdftotext"_s).isEmpty())
            QSKIP("no office program is installed");
        const Deck deck = SampleSlides::deck();
        QTemporaryDir folder;
        QFile file(folder.filePath(u"deck.pptx"_s));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(PowerPointWriter::presentation(deck, QDateTime(QDate(2026, 3, 1), QTime(9, 30))).value());
        file.close();
        output(u"soffice"_s,
               {u"-env:UserInstallation=file://"_s + folder.filePath(u"profile"_s), u"--headless"_s,
                u"--convert-to"_s, u"pdf"_s, u"--outdir"_s, folder.path(), file.fileName()});
        const auto pages =
            wordsOf(output(u"pdftotext"_s, {u"-bbox"_s, folder.filePath(u"deck.pdf"_s), u"-"_s}));
        QCOMPARE(pages.size(), deck.slides.size());

        for (int i = 0; i < pages.size(); ++i) {
            double farthest = 0;
            for (const SlideRegion &region : DeckLayout::regions(
                     deck.slides[i], deck.theme, i, int(pages.size()), deck.showNumbers, deck.title)) {
                for (const SlideText::PlacedLine &line : SlidePainter::placedLines(region)) {
                    const QString first = line.text.split(u' ', Qt::SkipEmptyParts).value(0);
                    double nearest = first.isEmpty() ? 0 : 1e6;
                    for (const Word &word : pages[i]) {
                        if (word.text != first)
                            continue;
                        const bool isLeading =
                            region.align == SlideRegion::Align::leading && !line.text.startsWith(u' ');
                        const double x = isLeading ? std::abs(word.rect.left() - line.rect.left()) : 0;
                        const double y = std::abs(word.rect.center().y() - line.rect.center().y());
                        nearest = std::min(nearest, std::max(x, y) / region.size);
                    }
                    farthest = std::max(farthest, nearest);
                    QVERIFY2(
                        nearest < 0.8,
                        qPrintable(
                            u"slide %1: %2 is %3 of its size away"_s.arg(i + 1).arg(line.text).arg(nearest)));
                }
            }
            qInfo("%s: at most %.2f of the font size apart", enumRaw(deck.slides[i].kind).data(), farthest);
        }
    }
};

QTEST_MAIN(OfficeRenderingTest)
#include "tst_officerendering.moc"
