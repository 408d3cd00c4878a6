#include "DesignSystem/OVSymbols.h"

#include <QDebug>
#include <QHash>
#include <QLoggingCategory>
#include <QSet>

namespace
{

Q_LOGGING_CATEGORY(symbolLog, "orvel.symbols")

struct Icons {
    QString regular;
    QString filled;
};

const QHash<QString, Icons> &table()
{
    static const QHash<QString, Icons> icons{
#define OV_SYMBOL(symbol, regular, filled)                                                                   \
    {QStringLiteral(symbol), {QStringLiteral(regular), QStringLiteral(filled)}},
#include "DesignSystem/OVSymbols.def"
#undef OV_SYMBOL
    };
    return icons;
}

constexpr QLatin1String fillSuffix(".fill");

QString baseName(const QString &symbol)
{
    return symbol.endsWith(fillSuffix) ? symbol.chopped(fillSuffix.size()) : symbol;
}

void warnOnce(const QString &symbol)
{
    static QSet<QString> warned;
    if (warned.contains(symbol))
        return;
    warned.insert(symbol);
    qCWarning(symbolLog).noquote() << "There is no icon for the symbol" << symbol;
}

} // namespace

QStringList OVSymbols::names()
{
    return table().keys();
}

bool OVSymbols::contains(const QString &symbol)
{
    return table().contains(baseName(symbol));
}

QString OVSymbols::iconPath(const QString &symbol)
{
    const auto icons = table().constFind(baseName(symbol));
    if (icons == table().cend()) {
        warnOnce(symbol);
        return QStringLiteral(":/icons/circle-dashed.svg");
    }
    return QStringLiteral(":/icons/%1.svg").arg(symbol.endsWith(fillSuffix) ? icons->filled : icons->regular);
}
