#include "DesignSystem/ChartScale.h"

#include <QFontMetricsF>
#include <QLocale>

#include <algorithm>
#include <array>
#include <cmath>

namespace
{
/// The smallest of 1, 2, 5, 10, 20, ... that is at least this large.
double roundStep(double least)
{
    const double power = std::pow(10, std::floor(std::log10(least)));
    for (const int factor : {1, 2, 5})
        if (factor * power >= least)
            return factor * power;
    return 10 * power;
}
} // namespace

QList<double> ChartScale::ticks(double largest, int most)
{
    if (!std::isfinite(largest) || largest <= 0)
        return {0, 1};
    const double step = roundStep(std::max(1.0, largest / std::max(1, most)));
    QList<double> ticks{0};
    while (ticks.last() < largest)
        ticks.append(double(ticks.size()) * step);
    return ticks;
}

int ChartScale::labelStep(double pitch, double width, double gap)
{
    if (pitch <= 0)
        return 1;
    const double room = width + gap + std::max(0.0, width - pitch);
    return width + gap <= pitch ? 1 : std::max(1, int(std::ceil(room / pitch)));
}

double ChartScale::widest(const QStringList &texts, const QFont &font)
{
    const QFontMetricsF metrics(font);
    double widest = 0;
    for (const QString &text : texts)
        widest = std::max(widest, metrics.horizontalAdvance(text));
    return std::ceil(widest);
}

QString ChartScale::shortNumber(double value)
{
    struct Unit {
        double size;
        QChar sign;
    };
    constexpr std::array units{Unit{1e9, u'B'}, Unit{1e6, u'M'}, Unit{1e3, u'K'}};
    const QLocale english(QLocale::English);
    if (std::abs(value) >= 10'000)
        for (const Unit &unit : units)
            if (std::abs(value) >= unit.size)
                return english.toString(std::round(value / unit.size * 10) / 10, 'g', 6) + unit.sign;
    return english.toString(value, 'f', value == std::floor(value) ? 0 : 1);
}
