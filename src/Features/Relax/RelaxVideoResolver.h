#pragma once

#include "Features/Relax/RelaxVideoSource.h"

#include <chrono>
#include <functional>
#include <optional>

class QObject;

/// Decides what a pasted link is and how it plays.
namespace RelaxVideoResolver
{
/// The link in a pasted text; an address without a scheme counts as https. Nothing if there is none.
std::optional<QUrl> normalizedURL(const QString &text);

/// Sorts a link by its looks alone. A link that tells nothing is an `embed`, and `refine` may know more.
RelaxVideoSource resolve(const QUrl &url);

/// Asks the server of an unknown page whether it is a media file after all. `done` gets the better source,
/// or nothing if the given one stands; it is called once, after the call has returned, unless `owner` dies
/// first.
/// @param patience for the whole answer
void refine(const RelaxVideoSource &source, QObject *owner,
            std::function<void(std::optional<RelaxVideoSource>)> done,
            std::chrono::milliseconds patience = std::chrono::seconds(8));
} // namespace RelaxVideoResolver
