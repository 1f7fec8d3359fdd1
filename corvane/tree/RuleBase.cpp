#include "corvane/tree/RuleBase.h"

#include "corvane/tree/ReparseRanges.h"

namespace Ondo {

std::int64_t RuleBase::instanceCount = 0;

RuleBase::RuleBase(std::u16string_view triggers_) : triggers(triggers_) {
    ++instanceCount;
}

RuleBase::~RuleBase() {
    --instanceCount;
}

void RuleBase::afterParseAll(ReparseRanges) {}

void RuleBase::expandRedrawRanges(std::vector<Range>&, Node*) {}

} // namespace Ondo
