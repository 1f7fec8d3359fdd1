#pragma once

#include "corvane/inline/EmphaseStrongBase.h"

namespace Ondo::Inline {

/// Emphasis and strong emphasis: «*a*», «__a__».
class CORVANE_EXPORT EmphaseStrong : public EmphaseStrongBase {
public:
    EmphaseStrong();
    std::string_view type_name() const override { return "EmphaseStrong"; }
};

class CORVANE_EXPORT EmphaseNode : public EmphasisNode {
public:
    EmphaseNode(std::int64_t offset, std::int64_t end, std::int64_t line, std::int64_t lines)
        : EmphasisNode(ONDO_EMPHASE_NODE, offset, end, line, lines) {}
};

class CORVANE_EXPORT StrongNode : public EmphasisNode {
public:
    StrongNode(std::int64_t offset, std::int64_t end, std::int64_t line, std::int64_t lines)
        : EmphasisNode(ONDO_STRONG_NODE, offset, end, line, lines) {}
};

} // namespace Ondo::Inline
