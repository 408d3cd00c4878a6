#include "DesignSystem/OVSymbols.h"
#include "Models/Block.h"
#include "Models/CalendarEvent.h"
#include "Models/DBView.h"
#include "Models/DatabaseTable.h"
#include "Models/OrvelModule.h"
#include "Models/Page.h"
#include "Models/Project.h"
#include "Models/TaskItem.h"

#include <QFile>
#include <QRegularExpression>
#include <QTest>

class TestSymbols : public QObject
{
    Q_OBJECT

private slots:
    void everyCaseOfATableHasAnIcon();
    void everyIconIsBuiltIn();
    void twinsAreDifferentIcons();
    void unknownSymbolsGetANeutralIconAndOneWarning();
};

namespace
{

template <TabledEnum... Enums>
QStringList symbolsOf()
{
    QStringList symbols;
    const auto collect = [&symbols](const auto &cases) {
        for (const auto &entry : cases)
            for (const std::string_view symbol : {entry.symbol, entry.filledSymbol})
                if (!symbol.empty())
                    symbols.append(QString::fromLatin1(symbol.data(), qsizetype(symbol.size())));
    };
    (collect(enumCases<Enums>()), ...);
    return symbols;
}

} // namespace

void TestSymbols::everyCaseOfATableHasAnIcon()
{
    const QStringList symbols = symbolsOf<OrvelModule, TaskStatus, BlockType, CalloutTone, ProjectStatus,
                                          PageKind, EventKind, DBViewType, DBPropertyType>();
    QVERIFY(symbols.size() > 20);
    for (const QString &symbol : symbols)
        QVERIFY2(OVSymbols::contains(symbol), qPrintable(symbol));
}

void TestSymbols::everyIconIsBuiltIn()
{
    for (const QString &symbol : OVSymbols::names())
        for (const QString &twin : {symbol, symbol + QStringLiteral(".fill")})
            QVERIFY2(QFile::exists(OVSymbols::iconPath(twin)), qPrintable(twin));
}

void TestSymbols::twinsAreDifferentIcons()
{
    QCOMPARE(OVSymbols::iconPath(QStringLiteral("flame")), QStringLiteral(":/icons/flame.svg"));
    QCOMPARE(OVSymbols::iconPath(QStringLiteral("flame.fill")), QStringLiteral(":/icons/flame-fill.svg"));
}

void TestSymbols::unknownSymbolsGetANeutralIconAndOneWarning()
{
    const QString unknown = QStringLiteral("no.such.symbol");
    QVERIFY(!OVSymbols::contains(unknown));
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("no\\.such\\.symbol")));
    const QString path = OVSymbols::iconPath(unknown);
    QVERIFY(QFile::exists(path));
    QTest::failOnWarning(QRegularExpression(QStringLiteral(".*")));
    QCOMPARE(OVSymbols::iconPath(unknown), path);
}

QTEST_GUILESS_MAIN(TestSymbols)
#include "tst_symbols.moc"
