#include "corvane/tree/Parser.h"

#include "corvane/tree/BlockParser.h"
#include "corvane/tree/RuleConfig.h"
#include "corvane/tree/WritingDirection.h"

namespace Ondo {

std::unique_ptr<Node> Parser::parse(std::u16string_view text, RuleConfig& config, Direction seed,
                                    bool isDocumentHead) {
    Lines lines(text);
    BlockParser parser(text, lines, config.blockRules, config.inlineRules, config.attributeRules,
                       isDocumentHead);
    std::unique_ptr<Node> root = parser.parseDocument();
    // All that comes behind the block pass is done block by block, while the nodes of one are in the cache.
    Direction current = seed;
    for (Node* block = root->firstChild; block; block = block->nextSibling) {
        parser.inlineParser().parseBlock(block);
        current = setBlockDirection(text, block, current);
    }
    return root;
}

} // namespace Ondo
