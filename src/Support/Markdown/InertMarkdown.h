#pragma once

#include <QString>

/// Markdown in which only the signs of blocks mean something. The parser tells where blocks begin and end,
/// but not how their lines were written; with the signs within lines taken away from it, it hands them
/// through as they are.
namespace InertMarkdown
{
/// The text with a stand-in of the same length for every sign within its lines, and with line feeds alone.
QString of(const QString &markdown);
/// The text with the signs in place of their stand-ins.
QString restored(QString text);
} // namespace InertMarkdown
