#pragma once

#include <memory>
#include <string_view>

#include "corvane/tree/Node.h"

namespace Ondo {

class RuleConfig;

/// Both passes over a text, and the writing direction, for which `seed` is what the text before hands on. The
/// root that is returned holds offsets, no lines and no text. A part of a document says whether it is its
/// head, where alone front matter can stand.
struct CORVANE_EXPORT Parser {
    static std::unique_ptr<Node> parse(std::u16string_view text, RuleConfig& config,
                                       Direction seed = Direction::None, bool isDocumentHead = true);
};

} // namespace Ondo
