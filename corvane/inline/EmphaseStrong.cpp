#include "corvane/inline/EmphaseStrong.h"

namespace Ondo::Inline {

namespace {

std::unique_ptr<Node> createEmphase(std::int64_t start, std::int64_t end, std::int64_t line,
                                    std::int64_t lines) {
    return std::make_unique<EmphaseNode>(start, end, line, lines);
}

std::unique_ptr<Node> createStrong(std::int64_t start, std::int64_t end, std::int64_t line,
                                   std::int64_t lines) {
    return std::make_unique<StrongNode>(start, end, line, lines);
}

} // namespace

EmphaseStrong::EmphaseStrong()
    : EmphaseStrongBase(u"*_", {createEmphase, ONDO_EMPHASE_OPEN_MARKER_NODE, ONDO_EMPHASE_CLOSE_MARKER_NODE},
                        {createStrong, ONDO_STRONG_OPEN_MARKER_NODE, ONDO_STRONG_CLOSE_MARKER_NODE}) {}

} // namespace Ondo::Inline
