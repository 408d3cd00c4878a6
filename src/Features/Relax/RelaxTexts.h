#pragma once

#include "Features/Relax/RelaxVideoSource.h"

/// What the relax screen says of links and times.
namespace RelaxTexts
{
/// What is told of how a link plays; empty for a file and for the players of known services.
QString notice(const RelaxVideoSource &source);
/// For an address that is saved without a name.
QString defaultLinkName(const QString &address);
/// "4:05"; minutes go on beyond an hour.
QString clockString(int seconds);
} // namespace RelaxTexts
