#include "corvane/tree/InlineRule.h"

namespace Ondo {

void InlineRule::beforeParseNode(InlineParserNode&) {}

void InlineRule::afterParseNode(InlineParserNode&, Node*) {}

void InlineRule::clearRange(InlineParserNode&, std::int64_t, std::int64_t) {}

} // namespace Ondo
