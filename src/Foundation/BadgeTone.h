#pragma once

/// The tones of a small coloured label; `OVBadge.tone` takes their numbers.
enum class BadgeTone { neutral, info, warning, success, danger };
