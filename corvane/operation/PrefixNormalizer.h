#pragma once

#include <cstddef>
#include <cstdint>
#include <numeric>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

#include "corvane/operation/LinePrefix.h"
#include "corvane/operation/LineWalk.h"
#include "corvane/operation/Operation.h"

namespace CVN::Operation {

/// Gives the lines of containers the prefixes that they call for, and nothing else: what a line belongs to
/// and what it says stays, and so does a line that has been through.
///
/// It measures each line as it stands and as it will, in columns. Items keep what separates their text from
/// the marker; what a list or a text has in front beyond its need goes, unless blanks are what keeps it from
/// being something else. For one run over one tree.
class PrefixNormalizer {
public:
    /// `keptMarkerEnd` is the caret, behind which a bare ">" keeps its form; -1 for none. Blocks from
    /// `scopeEnd` on stay as they are.
    PrefixNormalizer(const Ondo::Tree& tree, IndentStyle style, std::int64_t keptMarkerEnd,
                     std::int64_t scopeEnd)
        : tree_(tree), style_(style), isSimplified_(isSimplified(tree)), keptMarkerEnd_(keptMarkerEnd),
          scopeEnd_(scopeEnd) {}

    /// What the first `length` units of a line are to be. The lines of a first-level block come in their
    /// order, all of them.
    struct Expected {
        std::size_t length;
        std::u16string text;
    };
    Expected expectedIndentation(const Ondo::Node::Iterator& line, const LinePrefix& actual);

private:
    /// A container, and the columns that its further lines need more than those of what is around it.
    struct Frame {
        const Ondo::Node* container;
        std::int64_t needed;    ///< as the note stands
        std::int64_t newNeeded; ///< as it will
    };
    /// Columns of one line, as it stands or as it will.
    struct Side {
        std::int64_t base = 0;      ///< from which the rest of the line is reckoned
        std::int64_t following = 0; ///< the same for further lines of what starts here
        void set(std::int64_t column) { base = following = column; }
    };
    /// What the innermost container so far has on the line.
    enum class Last { Nothing, QuoteMarker, ItemMarker, Indentation, Missing };

    void startLine(const Ondo::Node::Iterator& line, const LinePrefix& actual);
    void passContainer(std::size_t depth, const Ondo::Node* container);
    void passMarker(std::size_t depth, const LinePrefix::Marker& marker);
    void passQuoteMarker(const LinePrefix::Marker& marker);
    void passItemMarker(std::size_t depth, const LinePrefix::Marker& marker);
    void passIndentation(const Frame& frame);
    void passMissingQuote();

    std::int64_t surplusOf(const LinePrefix& line, std::size_t depth) const;
    void findKeepsPlace(Ondo::Node::Iterator block, std::size_t depth);
    bool keepsPlace(std::size_t depth);
    bool isLeftAsItStands(const Ondo::Node::Iterator& block, std::int64_t surplus) const;

    void writeRest();
    void writeBlankLine();
    void writeFence();
    void writeFencedContent();
    void writeCode();
    void writeHtml();
    bool standsInPendingItems() const;
    void writeText();
    bool staysWithoutBlanks() const;
    bool mustStayLazy();
    bool mayStandLazy() const;
    void writeLazyText();

    void indentation(std::int64_t limit);
    void writeTo(std::int64_t column);
    void writeAndKeepBlanks(std::int64_t extra);
    void keepBlanksFrom(std::int64_t column);
    void keepBlanksBehindMarker();
    void dropBlanks();
    /// The column that the items which are yet to be written need.
    std::int64_t neededColumn() const { return std::accumulate(pending_.begin(), pending_.end(), new_.base); }
    std::int64_t room() const;
    std::int64_t looseLimit() const;
    std::int64_t surplus() const { return actual_->textColumn() - old_.base; }

    const Ondo::Tree& tree_;
    IndentStyle style_;
    bool isSimplified_;
    std::int64_t keptMarkerEnd_;
    std::int64_t scopeEnd_;

    std::vector<Frame> frames_;
    struct List {
        std::optional<bool> keepsPlace;
        std::int64_t lastNeeded = 0; ///< by the latest item, as it will be
    };
    std::unordered_map<const Ondo::Node*, List> lists_;
    const Ondo::Node* fence_ = nullptr; ///< the block whose first line was the last fence
    std::int64_t fenceColumn_ = 0;
    std::int64_t newFenceColumn_ = 0;
    const Ondo::Node* lazyBlock_ = nullptr; ///< the paragraph that `mustStayLazy_` is about
    bool mustStayLazy_ = false;

    // The line at hand
    Ondo::Node::Iterator line_;
    const LinePrefix* actual_ = nullptr;
    std::size_t marker_ = 0; ///< the next one
    std::size_t at_ = 0;     ///< the units that are read
    Side old_;
    Side new_;
    Last last_ = Last::Nothing;
    /// What a lazy line has up to the first container that it has no prefix of.
    struct Matched {
        std::u16string text;
        std::int64_t column = 0;
        Side side;
        std::vector<std::int64_t> pending;
        std::int64_t needed = 0; ///< by that container, as it will be
        bool isBeforeQuote = false;
    };
    Matched matched_;
    bool isLazy_ = false;    ///< the line belongs to its paragraph without the prefix of all its containers
    bool keepsForm_ = false; ///< it has the ">" before the caret
    std::vector<std::int64_t> pending_; ///< the columns of items that are yet to be written
    std::u16string text_;
    std::int64_t column_ = 0; ///< behind `text_`
};

} // namespace CVN::Operation
