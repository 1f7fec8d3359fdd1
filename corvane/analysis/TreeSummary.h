#pragma once

#include <cstdint>
#include <string>

#include "corvane/scan/Export.h"
#include "corvane/tree/Node.h"
#include "corvane/tree/Tree.h"

namespace CVN {

/// What a list of notes shows of one.
class CORVANE_EXPORT TreeSummary {
public:
    /// The limit of a subtitle. As a limit of normalizedTitle() this very number leaves out lines that hold
    /// nothing but hashtags.
    static constexpr std::int64_t subtitleLimit = 200;

    /// The plain text from the start of a node, which lies in no table cell, up to the offset `end`, trimmed,
    /// of at most `limit` code units.
    ///
    /// Markup is dropped, what a link shows is kept without where it leads, and a reference that nothing
    /// defines reads as written. Lines are joined by spaces. A surrogate pair is not cut in two. Asserts
    /// `limit > 0`.
    static std::u16string normalizedTitle(const Ondo::Tree& tree, Ondo::Node::Iterator begin,
                                          std::int64_t end, std::int64_t limit);
};

} // namespace CVN
