#pragma once

#include <string>

#include "corvane/inline/EmphaseStrongBase.h"

namespace Ondo::Inline {

/// «==highlight==», with one of five coloured emoji behind the opening run as its colour.
class CORVANE_EXPORT Highlight : public EmphaseStrongBase {
public:
    Highlight();
    std::string_view type_name() const override { return "Highlight"; }

protected:
    bool mayOpen(std::u16string_view text, const Delimiter& opener) const override;
    bool mayClose(std::u16string_view text, const Delimiter& closer) const override;
    bool isEmptyPair(std::u16string_view text, const Delimiter& opener,
                     const Delimiter& closer) const override;
    void finishNode(std::u16string_view text, Node* node) const override;
};

class CORVANE_EXPORT HighlightNode : public EmphasisNode {
public:
    std::int64_t color = 0;     ///< 1 red, 2 blue, 3 green, 4 yellow, 5 purple; 0 none
    std::u16string colorMarker; ///< the emoji; empty without a colour

    HighlightNode(std::int64_t offset, std::int64_t end, std::int64_t line, std::int64_t lines)
        : EmphasisNode(ONDO_HIGHLIGHT_NODE, offset, end, line, lines) {}
    std::u16string toIndentedTree() const override;
    bool hasEqualData(const Node& other) const override;
};

} // namespace Ondo::Inline
