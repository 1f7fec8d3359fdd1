#pragma once

#include <string_view>

#include "corvane/operation/Operation.h"

namespace CVN::Operation {

class InlineEdits;
struct InlineSpan;

/// Bold, italic, strikethrough, underline, highlight, code and math: sets the style of a range of text, or
/// takes it away where all of the text has it.
///
/// Each line and each cell of a table gets a pair of markers of its own, around its text and not around
/// blanks or the syntax of blocks, but lines are one where a construct runs across them that begins or ends
/// in the range. Text that is styled in part becomes one run. A style that goes on beyond the range is closed
/// before and opened again behind it. Where the markers are there but don't parse, they are taken away
/// instead of doubled.
///
/// At a caret: takes away an empty pair, steps over a marker, toggles the run or the word around the caret,
/// or inserts a pair and stands in it. Nothing in code, math and HTML, but a pair at their very edge.
/// Highlights of all colours take each other's place.
class CORVANE_EXPORT ToggleInlineStyle : public Operation {
public:
    explicit ToggleInlineStyle(InlineToggles style) : style_(style) {}

    std::vector<Result> run(const Ondo::Tree& tree, std::int64_t offset, std::int64_t length,
                            std::int64_t selectionOffset, std::int64_t selectionLength) const override;

private:
    /// The runs of the style's category that a span starts and ends in; without a node where there is none.
    struct Runs {
        Ondo::Node::Iterator start;
        Ondo::Node::Iterator end;
    };

    std::vector<Result> runCursor(const Ondo::Tree& tree, std::int64_t offset, std::int64_t selectionOffset,
                                  std::int64_t selectionLength) const;
    bool isEmptyPairAt(const Ondo::Tree& tree, std::int64_t offset) const;
    std::vector<Result> stepOverMarker(const Ondo::Tree& tree, std::int64_t offset) const;

    std::vector<Result> runSelection(const Ondo::Tree& tree, std::int64_t offset, std::int64_t length,
                                     std::int64_t selectionOffset, std::int64_t selectionLength) const;
    /// Finds the loose pair of a span, and moves a span without one off the markers that it would cross.
    /// False when nothing is left.
    bool settle(const Ondo::Tree& tree, InlineSpan& span, const Ondo::Range& range,
                Ondo::Range& selection) const;
    bool uncross(const Ondo::Tree& tree, InlineSpan& span, Ondo::Range& selection) const;
    bool isOnOneLine(const Ondo::Tree& tree, const Ondo::Range& range) const;
    bool hasUnstyledText(const InlineSpan& span) const;

    void setType(const Ondo::Tree& tree, InlineEdits& edits, const InlineSpan& span,
                 const Ondo::Range& selection, bool isOneLine) const;
    Runs runsAtEnds(const InlineSpan& span, InlineEdits& edits) const;
    void setEnd(const Ondo::Tree& tree, InlineEdits& edits, const InlineSpan& span,
                const Ondo::Node::Iterator& run) const;
    void setStart(const Ondo::Tree& tree, InlineEdits& edits, const InlineSpan& span,
                  const Ondo::Node::Iterator& run) const;
    void eraseInnerMarkers(InlineEdits& edits, const InlineSpan& span, const Runs& runs) const;
    void growSelection(const Ondo::Tree& tree, InlineEdits& edits, const InlineSpan& span, const Runs& runs,
                       const Ondo::Range& selection, bool isOneLine) const;

    void removeType(const Ondo::Tree& tree, InlineEdits& edits, const InlineSpan& span) const;
    static void removeFromRun(const Ondo::Tree& tree, InlineEdits& edits, const Ondo::Node::Iterator& run,
                              const InlineSpan& span);
    /// The part of a run that a span covers, with the whitespace around it, so that the markers on both sides
    /// hug the words that keep the style.
    static Ondo::Range adjustForWhitespace(const Ondo::Tree& tree, const Ondo::Node::Iterator& run,
                                           const InlineSpan& span);

    std::u16string_view startMarkerString() const;
    std::u16string_view endMarkerString() const;
    std::int64_t startLength() const;
    std::int64_t endLength() const;
    /// Whether two of the style's markers are the marker of another style.
    bool isSingleCharacter() const {
        return style_ == InlineToggles::Emphase || style_ == InlineToggles::Underline;
    }

    InlineToggles style_;
};

} // namespace CVN::Operation
