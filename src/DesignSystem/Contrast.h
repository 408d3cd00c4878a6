#pragma once

#include <QColor>
#include <QList>

/// How well colours can be told apart.
namespace Contrast
{

/// What text must reach on its ground to be read with ease.
constexpr double readable = 4.5;

/// The contrast ratio of two colours, from 1 to 21.
double ratio(const QColor &one, const QColor &other);

/// The ink, made darker or lighter by no more than it needs to be readable on every one of the grounds.
QColor readableInk(const QColor &ink, const QList<QColor> &grounds);

} // namespace Contrast
