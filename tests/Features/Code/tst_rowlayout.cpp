#include "Features/Code/RowLayout.h"

#include <QRandomGenerator>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextLayout>
#include <QtTest>

using namespace Qt::StringLiterals;

class RowLayoutTest : public QObject
{
    Q_OBJECT

private:
    static QString lines(int count)
    {
        QString text;
        for (int line = 0; line < count; ++line)
            text += u"line %1\n"_s.arg(line);
        return text;
    }
    static int laidOutLines(const QTextDocument &document)
    {
        int count = 0;
        for (QTextBlock block = document.begin(); block.isValid(); block = block.next())
            count += block.layout()->lineCount() > 0 ? 1 : 0;
        return count;
    }

private slots:
    void rowsHaveOneHeight()
    {
        QTextDocument document(u"short\n"_s + u"long "_s.repeated(60) +
                               u"\n\n\U0001F600 \u65e5\u672c\nlast"_s);
        document.setTextWidth(200);
        RowLayout &layout = *RowLayout::of(&document);
        QCOMPARE(RowLayout::of(&document), &layout);
        layout.layOut(0, 1e6);
        const int rows = document.findBlockByNumber(1).layout()->lineCount();
        QVERIFY(rows > 3);
        QCOMPARE(layout.documentSize(), QSizeF(200, (rows + 4) * layout.rowHeight()));
        for (int line = 0; line < 5; ++line) {
            const QTextBlock block = document.findBlockByNumber(line);
            const QTextLine first = block.layout()->lineAt(0);
            QCOMPARE(layout.baselineOf(line), layout.topOf(line) + first.y() + first.ascent());
            QCOMPARE(layout.hitTest({0, layout.topOf(line) + 1}, Qt::FuzzyHit), block.position());
        }
        // Inside the long line its number is above, and below it the next one begins.
        QCOMPARE(layout.lineAt(layout.topOf(2) - 1), 1);
        QCOMPARE(layout.lineAt(layout.topOf(2)), 2);
        QCOMPARE(layout.lineAt(-100), 0);
        QCOMPARE(layout.lineAt(1e6), 4);
    }

    void aLongTextCostsWhatIsSeen()
    {
        QTextDocument document;
        RowLayout &layout = *RowLayout::of(&document);
        document.setTextWidth(600);
        document.setPlainText(lines(100'000));
        layout.layOut(0, 800);
        layout.layOut(1'000'000, 1'000'800);
        QVERIFY(layout.documentSize().height() >= 100'000 * layout.rowHeight());
        QVERIFY(laidOutLines(document) < 200);
        // What was seen long ago is given back.
        for (int top = 0; top < 200'000; top += 800)
            layout.layOut(top, top + 800);
        QVERIFY(laidOutLines(document) < 1200);
    }

    void estimatesAreCorrected()
    {
        QTextDocument document(u"\u0600\u0605 "_s.repeated(400) + u'\n' + lines(200));
        document.setTextWidth(300);
        RowLayout &layout = *RowLayout::of(&document);
        QSignalSpy corrections(&layout, &RowLayout::corrected);
        const qreal before = layout.topOf(1);
        layout.layOut(0, 800);
        qreal distance = 0;
        for (const auto &correction : corrections)
            distance += correction[0].toInt() == 0 ? correction[1].toReal() : 0;
        QCOMPARE(layout.topOf(1), before + distance);
        QCOMPARE(layout.topOf(1), document.firstBlock().layout()->lineCount() * layout.rowHeight());
    }

    void editsKeepTheRowsInTheirPlaces()
    {
        QTextDocument document;
        document.setTextWidth(300);
        RowLayout &layout = *RowLayout::of(&document);
        QRandomGenerator random(1);
        for (int round = 0; round < 300; ++round) {
            QTextCursor cursor(&document);
            cursor.setPosition(int(random.bounded(document.characterCount())));
            cursor.setPosition(int(random.bounded(document.characterCount())), QTextCursor::KeepAnchor);
            QString text;
            for (quint32 line = random.bounded(12U); line > 0; --line)
                text += u"word "_s.repeated(int(random.bounded(30))) + u'\n';
            cursor.insertText(text);
            if (round % 7 == 0)
                layout.layOut(layout.topOf(document.blockCount() / 2), layout.topOf(document.blockCount()));

            layout.layOut(0, 1e9);
            int rows = 0;
            for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
                QCOMPARE(layout.topOf(block.blockNumber()), rows * layout.rowHeight());
                rows += block.layout()->lineCount();
            }
            QCOMPARE(layout.documentSize().height(), rows * layout.rowHeight());
        }
    }
};

QTEST_MAIN(RowLayoutTest)
#include "tst_rowlayout.moc"
