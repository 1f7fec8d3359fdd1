#pragma once

#include "corvane/inline/EmphaseStrongBase.h"

namespace Ondo::Inline {

/// «~underline~» and «~~strikethrough~~».
class CORVANE_EXPORT UnderlineStrikethrough : public EmphaseStrongBase {
public:
    UnderlineStrikethrough();
    std::string_view type_name() const override { return "UnderlineStrikethrough"; }
};

class CORVANE_EXPORT UnderlineNode : public EmphasisNode {
public:
    UnderlineNode(std::int64_t offset, std::int64_t end, std::int64_t line, std::int64_t lines)
        : EmphasisNode(ONDO_UNDERLINE_NODE, offset, end, line, lines) {}
};

class CORVANE_EXPORT StrikethroughNode : public EmphasisNode {
public:
    StrikethroughNode(std::int64_t offset, std::int64_t end, std::int64_t line, std::int64_t lines)
        : EmphasisNode(ONDO_STRIKETHROUGH_NODE, offset, end, line, lines) {}
};

} // namespace Ondo::Inline
