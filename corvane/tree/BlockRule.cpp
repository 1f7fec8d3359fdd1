#include "corvane/tree/BlockRule.h"

#include "corvane/tree/BlockParser.h"

namespace Ondo {

bool BlockRule::needFullReparse(const TextBuffer&, std::int64_t, std::int64_t, Node*, Node*, Node*) {
    return false;
}

bool BlockRule::hasMatchingTerminatingRule(BlockParser& parser, std::int64_t line, std::int64_t lastLine,
                                           Node* parent) {
    const auto at = static_cast<std::size_t>(parser.lines[line].contentStart);
    if (at >= parser.text.size()) return false;
    for (const auto& rule : terminatingRules.getBlockRules(parser.text[at]))
        if (rule->match(parser, line, lastLine, parent, ParseAction::Check) != 0) return true;
    return false;
}

} // namespace Ondo
