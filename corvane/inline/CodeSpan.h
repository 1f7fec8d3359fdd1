#pragma once

#include <map>

#include "corvane/tree/InlineRule.h"
#include "corvane/tree/Node.h"

namespace Ondo::Inline {

/// Text between two equal runs of backticks, which may cross lines. Backslashes mean nothing inside.
class CORVANE_EXPORT CodeSpan : public InlineRule {
public:
    CodeSpan() : InlineRule(u"`") {}
    std::string_view type_name() const override { return "CodeSpan"; }
    void beforeParseNode(InlineParserNode& parser) override;
    std::int64_t match(InlineParserNode& parser, Node* node, GoLines cursor) override;

private:
    bool toClosingRun(GoLines& go, std::int64_t length);
    void recordRuns(GoLines go);

    // Where each length of run stands for the last time, as far as the node goes. Recorded when a run first
    // finds no partner, so that many of them don't each look through all the text.
    std::map<std::int64_t, std::int64_t> lastRuns_;
    bool hasRecordedRuns_ = false;
};

class CORVANE_EXPORT CodeSpanNode : public Node {
public:
    std::u16string text; ///< what is shown: line endings as spaces, without prefixes of containers

    CodeSpanNode(std::int64_t offset, std::int64_t end, std::int64_t line, std::int64_t lines,
                 std::u16string text_)
        : Node(ONDO_CODE_SPAN_NODE, offset, end, line, lines), text(std::move(text_)) {}
    void toHtml(std::u16string& out, std::u16string_view markdown, std::int64_t offset) const override;
    bool hasEqualData(const Node& other) const override;
};

} // namespace Ondo::Inline
