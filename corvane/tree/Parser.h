#pragma once

#include <memory>
#include <string_view>

#include "corvane/tree/Node.h"

namespace Ondo {

class RuleConfig;

/// Both passes over a text. The root it returns holds offsets, no lines and no text.
struct CORVANE_EXPORT Parser {
    static std::unique_ptr<Node> parse(std::u16string_view text, RuleConfig& config);
};

} // namespace Ondo
