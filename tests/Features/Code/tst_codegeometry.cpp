#include "Features/Code/CodeGeometry.h"

#include <QAbstractTextDocumentLayout>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextLayout>
#include <QtTest>

using namespace Qt::StringLiterals;

class CodeGeometryTest : public QObject
{
    Q_OBJECT

private slots:
    void numbersStandBesideTheFirstLineOfEach()
    {
        QTextDocument document(u"short\n"_s + u"long "_s.repeated(60) + u"\n\nlast"_s);
        document.setTextWidth(200);
        document.documentLayout()->documentSize();
        QVERIFY(document.findBlockByNumber(1).layout()->lineCount() > 3);

        const auto marks = CodeGeometry::lineMarks(document, 0, document.size().height());
        QCOMPARE(marks.size(), 4);
        for (const auto &mark : marks) {
            const QTextBlock block = document.findBlockByNumber(mark.number - 1);
            const QTextLine line = block.layout()->lineAt(0);
            QCOMPARE(mark.baseline, block.layout()->position().y() + line.y() + line.ascent());
        }
        // Inside the long line its number is above, and below it the next one begins.
        const qreal inside = (marks[1].baseline + marks[2].baseline) / 2;
        QCOMPARE(CodeGeometry::lineAt(document, inside), 1);
        QCOMPARE(CodeGeometry::lineMarks(document, inside, marks[2].baseline).last().number, 3);
        QCOMPARE(CodeGeometry::lineAt(document, -100), 0);
        QCOMPARE(CodeGeometry::lineAt(document, 1e6), 3);
    }
};

QTEST_MAIN(CodeGeometryTest)
#include "tst_codegeometry.moc"
