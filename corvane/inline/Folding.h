#pragma once

#include <string_view>

#include "corvane/tree/InlineRule.h"

namespace Ondo::Inline {

/// The comment «<!-- {"fold":true} -->» at the end of a heading or of a list item's first block, and the
/// flags of the blocks that it hides.
class CORVANE_EXPORT Folding : public InlineRule {
public:
    static constexpr std::u16string_view comment = u"<!-- {\"fold\":true} -->";

    Folding() : InlineRule(u"<", NodeState::None) {}
    std::string_view type_name() const override { return "Folding"; }
    std::int64_t match(InlineParserNode& parser, Node* node, GoLines cursor) override;
    /// Sets the flags of the changed blocks, and of blocks behind them as far as a fold came, went or moved.
    void afterParseAll(ReparseRanges ranges) override;
    /// A redraw never cuts a folded region in two, and covers every flag that changed.
    void expandRedrawRanges(std::vector<Range>& ranges, Node* root) override;

private:
    void setFoldStatusForHeadingContent(const ReparseRanges& ranges);
    void addRedrawRange(std::int64_t start, std::int64_t end);
    void updateHeadingBefore(Node* first, std::int64_t offset);

    bool hasRedrawRange_ = false; ///< from afterParseAll() to expandRedrawRanges()
    std::int64_t redrawStart_ = 0;
    std::int64_t redrawEnd_ = 0;
};

} // namespace Ondo::Inline
