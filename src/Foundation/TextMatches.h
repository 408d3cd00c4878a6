#pragma once

#include <QList>
#include <QString>

/// Where a query stands in a text, and how that is shown.
namespace TextMatches
{
/// A part of a text, in UTF-16 units.
struct Range {
    qsizetype start = 0;
    qsizetype length = 0;

    bool operator==(const Range &) const = default;
};

/// The parts of the text that hold the query, case aside: in order, with something between them, and each of
/// whole characters as a reader counts them. Letters that are written joined stay in one part, since a change
/// of weight between them would break their joining. None for an empty query.
QList<Range> find(const QString &text, const QString &query);

/// The text on one line as Qt Quick reads `Text.StyledText`, with these parts bold. It shows as it is,
/// whatever signs and blanks are in it.
QString emphasized(const QString &text, const QList<Range> &parts);
} // namespace TextMatches
