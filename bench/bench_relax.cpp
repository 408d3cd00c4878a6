#include "Features/Relax/ScenePainter.h"
#include "Harness/Comparison.h"

#include <QGuiApplication>
#include <QPainter>

int main(int argc, char *argv[])
{
    const QGuiApplication application(argc, argv);
    const QSize size(1240, 820);
    QImage frame(size, QImage::Format_ARGB32_Premultiplied);
    ScenePainter scenes;
    Comparison comparison;
    for (const auto &scene : enumCases<RelaxScene>()) {
        double seconds = 0;
        const auto ours = [&] {
            return timed([&] {
                QPainter painter(&frame);
                scenes.paint(painter, size, scene.value, seconds += 1 / 30.0);
            });
        };
        const auto gradient = [&] {
            return timed([&] {
                QPainter painter(&frame);
                QLinearGradient fill(0, 0, 0, size.height());
                fill.setColorAt(0, Qt::black);
                fill.setColorAt(1, Qt::white);
                painter.fillRect(frame.rect(), fill);
            });
        };
        const auto times = Comparison::alternate(30, ours, gradient);
        // 60 of 100 of a core at 30 frames a second.
        comparison.timeUnder(QStringLiteral("frame of %1, against a gradient, half of the times")
                                 .arg(enumRawText(scene.value)),
                             Comparison::quantile(times.ours, 0.5), Comparison::quantile(times.baseline, 0.5),
                             Comparison::Duration(20));
    }
    return comparison.exitCode();
}
