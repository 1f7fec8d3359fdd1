#pragma once

#include "corvane/operation/InlineSpans.h"
#include "corvane/operation/InlineStyle.h"
#include "corvane/tree/Range.h"
#include "corvane/tree/Tree.h"

namespace CVN::Operation {

/// Two markers of the style that stand directly around a range, or at its two ends inside it, and make no
/// run: «don~~'t st~~op». The range is that of the span or a part of it. The answer goes from the start of
/// the first marker to the end of the second; it is of length 0 when there is no such pair.
///
/// A marker around the range may have been swallowed by an address in front of it, have lost its meaning to a
/// backslash, or have found a partner within the range; either kind may have become a marker of another
/// style. It was written by the same command nevertheless.
Ondo::Range loosePair(const Ondo::Tree& tree, const InlineSpan& span, const Ondo::Range& range,
                      InlineToggles style);

} // namespace CVN::Operation
