#include "corvane/tree/Parser.h"

#include "corvane/tree/BlockParser.h"
#include "corvane/tree/RuleConfig.h"

namespace Ondo {

std::unique_ptr<Node> Parser::parse(std::u16string_view text, RuleConfig& config) {
    Lines lines(text);
    BlockParser parser(text, lines, config.blockRules, config.inlineRules, config.attributeRules);
    std::unique_ptr<Node> root = parser.parseDocument();
    parser.inlineParser().parseBlock(root.get());
    return root;
}

} // namespace Ondo
