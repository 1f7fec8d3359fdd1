#include "corvane/inline/UnderlineStrikethrough.h"

namespace Ondo::Inline {

namespace {

std::unique_ptr<Node> createUnderline(std::int64_t start, std::int64_t end, std::int64_t line,
                                      std::int64_t lines) {
    return std::make_unique<UnderlineNode>(start, end, line, lines);
}

std::unique_ptr<Node> createStrikethrough(std::int64_t start, std::int64_t end, std::int64_t line,
                                          std::int64_t lines) {
    return std::make_unique<StrikethroughNode>(start, end, line, lines);
}

} // namespace

UnderlineStrikethrough::UnderlineStrikethrough()
    : EmphaseStrongBase(
          u"~", {createUnderline, ONDO_UNDERLINE_OPEN_MARKER_NODE, ONDO_UNDERLINE_CLOSE_MARKER_NODE},
          {createStrikethrough, ONDO_STRIKETHROUGH_OPEN_MARKER_NODE, ONDO_STRIKETHROUGH_CLOSE_MARKER_NODE}) {}

} // namespace Ondo::Inline
