#include "Features/Code/CodeHighlighter.h"
#include "Features/Code/CodeSyntax.h"
#include "RandomSource.h"

#include <QCoreApplication>
#include <QTest>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextLayout>

using namespace Qt::StringLiterals;

class CodeHighlighterTest : public QObject
{
    Q_OBJECT

private:
    static constexpr CodeHighlighter::Colors colors{QColorConstants::Red, QColorConstants::Green,
                                                    QColorConstants::Blue, QColorConstants::Gray,
                                                    QColorConstants::Cyan};

    /// The colour of every unit of the document, as its lines carry them.
    static QList<QColor> shown(const QTextDocument &document)
    {
        QList<QColor> shown(document.characterCount() - 1);
        for (QTextBlock block = document.begin(); block.isValid(); block = block.next())
            for (const auto &range : block.layout()->formats())
                for (int i = 0; i < range.length; ++i)
                    shown[block.position() + range.start + i] = range.format.foreground().color();
        return shown;
    }

    /// The same as one scan of the whole text says. Line feeds have no colour.
    static QList<QColor> expected(const QTextDocument &document, CodeLanguage language)
    {
        const QString text = document.toPlainText();
        QList<QColor> expected(text.size());
        for (const CodeToken &token : CodeSyntax::tokens(text, language))
            for (qsizetype i = token.location; i < token.location + token.length; ++i)
                if (document.characterAt(int(i)) != QChar::ParagraphSeparator)
                    expected[i] = colors[std::size_t(token.kind)];
        return expected;
    }

private slots:
    void editsColourAsAWholeScanDoes_data()
    {
        QTest::addColumn<CodeLanguage>("language");
        for (const auto &entry : enumCases<CodeLanguage>())
            QTest::newRow(entry.raw.data()) << entry.value;
    }
    void editsColourAsAWholeScanDoes()
    {
        QFETCH(CodeLanguage, language);
        RandomSource source(unsigned(language) + 1);
        QTextDocument document;
        CodeHighlighter highlighter(&document);
        highlighter.setLanguage(language);
        highlighter.setColors(colors);
        for (int round = 0; round < 400; ++round) {
            QTextCursor cursor(&document);
            cursor.setPosition(source.below(document.characterCount()));
            const int length = source.below(source.below(20) == 0 ? 400 : 12);
            const int end = qMin(cursor.position() + length, document.characterCount() - 1);
            switch (source.below(8)) {
            case 0:
                cursor.setPosition(end, QTextCursor::KeepAnchor);
                cursor.removeSelectedText();
                break;
            case 1:
                document.undo();
                break;
            case 2:
                cursor.beginEditBlock();
                cursor.insertText(source.text(3, language));
                cursor.setPosition(source.below(document.characterCount()));
                cursor.insertText(source.text(2, language));
                cursor.endEditBlock();
                break;
            case 3:
                cursor.insertText(QString(QChar::LineSeparator));
                break;
            case 4:
                if (source.below(30) == 0)
                    document.setPlainText(source.text(source.below(3000), language));
                break;
            default:
                cursor.insertText(source.text(source.below(6), language));
            }
            // Half of the edits meet a document that is not done with the edit before.
            if (source.below(2) == 0) {
                highlighter.settle();
                QCOMPARE(shown(document), expected(document, language));
            } else if (source.below(3) == 0) {
                QCoreApplication::processEvents();
            }
        }
        QTRY_VERIFY(highlighter.isSettled());
        QCOMPARE(shown(document), expected(document, language));
    }

    void aKeyFarAwayIsColouredInPortions()
    {
        QTextDocument document;
        CodeHighlighter highlighter(&document);
        highlighter.setColors(colors);
        highlighter.setLanguage(CodeLanguage::swift);
        document.setPlainText(u"let a = Type(1) // \"b\"\n"_s.repeated(5000));
        QVERIFY(!highlighter.isSettled());
        QTRY_VERIFY(highlighter.isSettled());

        QTextCursor cursor(&document);
        cursor.insertText(u"x"_s);
        QVERIFY(highlighter.isSettled());
        cursor.insertText(u"/*"_s);
        QVERIFY(!highlighter.isSettled());
        QVERIFY(shown(document) != expected(document, CodeLanguage::swift));
        // A change above what is still to be done does not make it forgotten.
        cursor.movePosition(QTextCursor::Start);
        cursor.insertText(u"/**/\n"_s);
        QTRY_VERIFY(highlighter.isSettled());
        QCOMPARE(shown(document), expected(document, CodeLanguage::swift));
    }

    void onlyVisibleLinesTakeColours()
    {
        QTextDocument document(u"let a = 1\n"_s.repeated(3000));
        CodeHighlighter highlighter(&document);
        highlighter.setVisibleLines(10, 19);
        highlighter.setLanguage(CodeLanguage::swift);
        highlighter.setColors(colors);
        const auto colored = [&](QColor color) {
            QList<int> lines;
            for (QTextBlock block = document.begin(); block.isValid(); block = block.next())
                if (!block.layout()->formats().isEmpty() &&
                    block.layout()->formats().first().format.foreground().color() == color)
                    lines.append(block.blockNumber());
            return std::pair(lines.value(0, -1), lines.size());
        };
        highlighter.settle();
        QCOMPARE(colored(colors[0]), std::pair(10, qsizetype(10)));
        // What is opened above reaches the lines in view, and others only when they come into it.
        QTextCursor(&document).insertText(u"/*"_s);
        QTRY_VERIFY(highlighter.isSettled());
        QCOMPARE(colored(colors[3]), std::pair(10, qsizetype(10)));
        highlighter.setVisibleLines(2990, 2995);
        QCOMPARE(colored(colors[3]).second, qsizetype(16));
        // A line that was coloured and has changed since is right when it comes back.
        QTextCursor(&document).insertText(u"//"_s);
        highlighter.setVisibleLines(12, 14);
        QTRY_VERIFY(highlighter.isSettled());
        QCOMPARE(colored(colors[0]), std::pair(12, qsizetype(3)));
    }

    void otherColoursAndLanguagesCountAtOnce()
    {
        QTextDocument document(u"let x = none"_s);
        CodeHighlighter highlighter(&document);
        highlighter.setColors(colors);
        QCOMPARE(shown(document), expected(document, CodeLanguage::plain));
        highlighter.setLanguage(CodeLanguage::css);
        QCOMPARE(shown(document), expected(document, CodeLanguage::css));
        CodeHighlighter::Colors others = colors;
        others[0] = Qt::black;
        highlighter.setColors(others);
        QCOMPARE(shown(document).last(), QColor(Qt::black));
    }

    void aCompositionKeepsItsOwnFormat()
    {
        QTextDocument document(u"let Type"_s);
        CodeHighlighter highlighter(&document);
        highlighter.setColors(colors);
        QTextLayout *layout = document.firstBlock().layout();
        layout->setPreeditArea(5, u"abc"_s);
        QTextCharFormat composing;
        composing.setFontUnderline(true);
        layout->setFormats({{5, 3, composing}});
        highlighter.setLanguage(CodeLanguage::swift);
        QList<std::pair<int, int>> ranges;
        for (const auto &range : layout->formats())
            ranges.append({range.start, range.length});
        const QList<std::pair<int, int>> wanted{{0, 3}, {4, 7}, {5, 3}};
        QCOMPARE(ranges, wanted);
        QVERIFY(layout->formats().last().format.fontUnderline());
    }
};

QTEST_MAIN(CodeHighlighterTest)
#include "tst_codehighlighter.moc"
