#include "corvane/correction/FencePairs.h"

#include <algorithm>
#include <optional>

#include "corvane/block/FencedCode.h"
#include "corvane/operation/LineWalk.h"

namespace CVN::Correction {

using Ondo::Node;
using Ondo::Block::FencedCodeNode;
using Operation::isOfType;

namespace {

constexpr char16_t tick = u'`';
constexpr std::u16string_view leastFence = u"```";

struct Fence {
    std::int64_t ticks;
    bool hasInfo;
};

std::optional<Fence> asFence(std::u16string_view line) {
    constexpr std::size_t mostBlanks = 3;
    const std::size_t start = std::min(line.find_first_not_of(u' '), line.size());
    const std::size_t end = std::min(line.find_first_not_of(tick, start), line.size());
    const std::u16string_view info = line.substr(end);
    if (start > mostBlanks || end - start < leastFence.size() || info.find(tick) != std::u16string_view::npos)
        return {};
    return Fence{static_cast<std::int64_t>(end - start),
                 info.find_first_not_of(u" \t") != std::u16string_view::npos};
}

/// The next line of code that could be a fence; the code loses it and all before it.
std::optional<Fence> takeFence(std::u16string_view& code) {
    for (std::size_t at = 0; (at = code.find(leastFence)) != std::u16string_view::npos;) {
        const std::size_t start = code.rfind(u'\n', at) + 1; // 0 without one
        const std::size_t end = std::min(code.find(u'\n', at), code.size());
        const auto fence = asFence(code.substr(start, end - start));
        code.remove_prefix(end);
        if (fence) return fence;
    }
    return {};
}

/// Reads fences in their order.
class FencePairs {
public:
    explicit FencePairs(std::int64_t open) : open_(open) {}

    void readFence(const Fence& fence) {
        if (open_ == 0) {
            open_ = fence.ticks;
        } else if (fence.ticks >= open_) {
            weight_ += fence.hasInfo ? misplaced : fence.ticks > open_ ? odd : 0;
            if (!fence.hasInfo) open_ = 0;
        }
    }

    /// The lines of a block behind its opening fence.
    void readLines(const FencedCodeNode& block) {
        std::u16string_view code = block.code;
        while (const auto fence = takeFence(code))
            readFence(*fence);
        if (const Node* const closing = closingFence(block)) readFence({closing->charCount, false});
    }

    void readBlocks(Node* block) {
        for (int read = 0; block && read < mostBlocks; block = block->nextSibling, ++read) {
            if (block->type != Ondo::ONDO_FENCED_CODE_NODE) continue;
            const auto& code = static_cast<const FencedCodeNode&>(*block);
            if (code.fenceCharacter != tick) continue;
            readFence({block->firstMarker()->charCount, !code.info.empty()});
            readLines(code);
        }
    }

    std::int64_t weight() const { return weight_ + (open_ > 0 ? misplaced : 0); }

private:
    static constexpr std::int64_t misplaced = 2;
    static constexpr std::int64_t odd = 1;
    static constexpr int mostBlocks = 64;

    std::int64_t open_;
    std::int64_t weight_ = 0;
};

} // namespace

const Node* closingFence(const Node& codeBlock) {
    const Node* last = codeBlock.lastChild;
    while (last && !last->isMarker())
        last = last->previousSibling;
    return isOfType(last, Ondo::ONDO_FENCED_CODE_CLOSE_MARKER_NODE) ? last : nullptr;
}

std::int64_t weightBehind(const Node* block, std::int64_t open) {
    FencePairs pairs(open);
    if (block) pairs.readBlocks(block->nextSibling);
    return pairs.weight();
}

std::int64_t weightFrom(const Node* codeBlock, std::int64_t open) {
    FencePairs pairs(open);
    pairs.readLines(static_cast<const FencedCodeNode&>(*codeBlock));
    pairs.readBlocks(codeBlock->nextSibling);
    return pairs.weight();
}

bool holdsFence(std::u16string_view code, std::int64_t least) {
    while (const auto fence = takeFence(code))
        if (fence->ticks >= least) return true;
    return false;
}

} // namespace CVN::Correction
