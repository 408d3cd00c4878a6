#include "Foundation/LowerCase.h"

#include <QTest>

#include <random>

using namespace Qt::StringLiterals;

class LowerCaseTest : public QObject
{
    Q_OBJECT

    static QString lower(QStringView text)
    {
        QString lower = u"BEFORE "_s;
        LowerCase::append(lower, text);
        return lower;
    }
    static QString byToolkit(const QString &text) { return u"BEFORE "_s + text.toLower(); }

private slots:
    void everyCharacterAsTheToolkitHasIt()
    {
        for (char32_t character = 1; character <= QChar::LastValidCodePoint; ++character) {
            const QString text = QString::fromUcs4(&character, 1);
            if (lower(text) != byToolkit(text))
                QFAIL(qPrintable(u"U+%1"_s.arg(quint32(character), 4, 16, QChar(u'0'))));
        }
    }

    void mixedTextsAsTheToolkitHasThem()
    {
        // Long enough for whole blocks of plain letters, with everything that breaks one.
        static const QStringList pieces{
            u"Plain Letters "_s,
            u"A QUITE LONG RUN OF LETTERS THAT NEEDS NO SECOND LOOK AT ALL [@`{]"_s,
            u"É"_s,
            u"ΣΑΣ "_s,
            u"İI"_s,
            u"\U0001F600"_s,
            u"\U00010400"_s,
            u"e\u0301Ǆ"_s};
        std::mt19937 random(7);
        for (int round = 0; round < 20'000; ++round) {
            QString text;
            for (int i = 0; i < int(random() % 8); ++i)
                text += pieces[qsizetype(random() % std::size_t(pieces.size()))];
            QCOMPARE(lower(text), byToolkit(text));
        }
    }

    void aHalfOfAPairStaysWhereItStands()
    {
        for (const QString &half : {QString(QChar(0xD801)), QString(QChar(0xDC00))})
            for (const QString &text : {half, half + u"A"_s, u"A"_s + half, half + half})
                QCOMPARE(lower(text), u"BEFORE "_s + QString(text).replace(u'A', u'a'));
    }

    void keepsItsMemory()
    {
        QString text;
        text.reserve(100);
        const QChar *const place = text.constData();
        for (int round = 0; round < 3; ++round) {
            text.resize(0);
            LowerCase::append(text,
                              u"Some Letters, é and \U0001F600 among them, more than a block of them"_s);
        }
        QCOMPARE(text.constData(), place);
    }
};

QTEST_GUILESS_MAIN(LowerCaseTest)
#include "tst_lowercase.moc"
