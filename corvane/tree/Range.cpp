#include "corvane/tree/Range.h"

namespace Ondo {

Range Range::unite(const Range& a, const Range& b) {
    const std::int64_t offset = std::min(a.offset, b.offset);
    return {offset, std::max(a.end(), b.end()) - offset};
}

void Range::modifyRangeAsAfterReplace(Range& r, const Range& replaced, std::u16string_view replacement) {
    const auto inserted = static_cast<std::int64_t>(replacement.size());
    const std::int64_t common = std::min(r.end(), replaced.end()) - std::max(r.offset, replaced.offset);
    const std::int64_t overlap = std::max<std::int64_t>(common, 0);
    const std::int64_t oldEnd = r.end();
    r.length -= overlap;
    if (replaced.offset >= r.offset) {
        if (replaced.end() <= oldEnd) r.length += inserted;
    } else if (replaced.end() > oldEnd) {
        r.offset = replaced.offset + inserted;
    } else {
        r.offset += inserted - replaced.length + overlap;
    }
}

Range Range::rangeAsAfterReplace(Range r, const Range& replaced, std::u16string_view replacement) {
    modifyRangeAsAfterReplace(r, replaced, replacement);
    return r;
}

void Range::modifyRangeAsBeforeReplace(Range& r, const Range& replaced, std::u16string_view replacement) {
    const Range inserted{replaced.offset, static_cast<std::int64_t>(replacement.size())};
    const std::int64_t shift = replaced.length - inserted.length;
    std::int64_t left = r.offset;
    std::int64_t right = r.end();
    if (left > inserted.offset) left = left >= inserted.end() ? left + shift : inserted.offset;
    if (right >= inserted.end())
        right += shift;
    else if (right > inserted.offset)
        right = replaced.end();
    r = {left, right - left};
}

Range Range::rangeAsBeforeReplace(Range r, const Range& replaced, std::u16string_view replacement) {
    modifyRangeAsBeforeReplace(r, replaced, replacement);
    return r;
}

} // namespace Ondo
