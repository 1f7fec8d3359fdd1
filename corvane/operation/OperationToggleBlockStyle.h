#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "corvane/operation/Operation.h"
#include "corvane/scan/Export.h"
#include "corvane/tree/Node.h"
#include "corvane/tree/Range.h"

namespace CVN::Operation {

/// Turns the lines of a range into headings, items, tasks, a quote, a callout, code or math, or back when all
/// of them are that already.
///
/// Lines change one by one. Code and math take the lines in whole between two fences, a callout the blocks in
/// whole in a quote. An empty list where the lines lie in a table, code or another block that keeps its text
/// to itself; only a quote takes those, too.
class CORVANE_EXPORT ToggleBlockStyle : public Operation {
public:
    using Line = Ondo::Node::Iterator;
    enum class Direction { Add, Remove };

    explicit ToggleBlockStyle(BlockToggles style) : style_(style) {}

    std::vector<Result> run(const Ondo::Tree& tree, std::int64_t offset, std::int64_t length,
                            std::int64_t selectionOffset, std::int64_t selectionLength) const override;

    /// The lines of a range, for a style that goes line by line, made or freed whatever they are.
    std::vector<Result> changedLines(const Ondo::Tree& tree, const Ondo::Range& range,
                                     const Ondo::Range& selection, Direction direction) const;

    /// What a line of the style begins with. An ordered item on a deeper level than the first line has a
    /// blank a level: its marker is longer than a bullet, and so are those around it. Both lines may be
    /// without a node.
    std::u16string lineMarkerString(const Line& line, const Line& firstLine) const;
    /// What the marker of the style replaces on a line: the marker of the same family, or nothing, at the
    /// place where a marker goes.
    Ondo::Range replaceRange(const Line& line) const;
    bool isSameTypeAsOperation(const Line& line) const;

    static bool isNodeInsideBlockOfType(const Ondo::Node* node, std::uint16_t type);
    static const Ondo::Node* wrappingListItem(const Ondo::Node* node);
    static const Ondo::Node* wrappingBlockQuote(const Ondo::Node* node);
    static bool isListOrBlockQuoteMarkerOrSpace(const Ondo::Node* node);

private:
    std::vector<Result> processFencedCodeAndMathBlockToggle(const Ondo::Tree& tree, std::int64_t offset,
                                                            std::int64_t length, std::int64_t selectionOffset,
                                                            std::int64_t selectionLength) const;
    std::vector<Result> processCalloutToggle(const Ondo::Tree& tree, const Line& firstLine,
                                             const Line& lastLine, std::int64_t offset,
                                             std::int64_t selectionOffset,
                                             std::int64_t selectionLength) const;
    Direction directionOf(const Line& firstLine, const Line& lastLine, bool isSelection) const;
    bool isPassedOver(const Line& line, bool isSelection) const;
    std::u16string replacement(const Ondo::Tree& tree, const Line& line, const Line& firstLine,
                               Direction direction) const;
    bool isHeading() const { return style_ <= BlockToggles::Heading6; }
    bool isList() const { return style_ >= BlockToggles::BulletList && style_ <= BlockToggles::TaskList; }
    bool isFence() const { return style_ == BlockToggles::FencedCode || style_ == BlockToggles::MathBlock; }
    bool isCallout() const { return style_ >= BlockToggles::Callout; }

    BlockToggles style_;
};

} // namespace CVN::Operation
