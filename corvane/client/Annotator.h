#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "corvane/client/CVNAttributedString.h"
#include "corvane/client/HeadWalk.h"
#include "corvane/tree/Tree.h"

/// One walk over the nodes of a range that turns them into attribute runs.
///
/// The rows that say which keys a node type gives stand in AnnotationRows.cpp. They ask about the node at
/// hand; what depends on the containers around it is carried along, so that no node costs more for being deep
/// or far behind in a list.
class Annotator {
public:
    /// The range lies in the text of the tree.
    Annotator(const Ondo::Tree& tree, CVNRange range, bool inlinesOnly);

    CVNAttributedString run();

    // The node at hand, for the rows

    const Ondo::Node& node() const { return *at_.node; }
    /// In the text that is annotated, before its start or behind its end where the node reaches out.
    CVNRange nodeRange() const { return {at_.offset - range_.location, at_.node->charCount}; }
    /// Of an offset in the document.
    std::int64_t locationOf(std::int64_t offset) const { return offset - range_.location; }
    std::int64_t level() const { return at_.level; }
    /// The innermost block around the node, or the node itself.
    const Ondo::Node* block() const { return block_; }
    /// Without what of the node lies outside the range.
    std::u16string_view text() const;
    /// The text that is annotated.
    std::u16string_view allText() const { return result_.string(); }
    /// The node's range from behind the markers of its containers on.
    CVNRange trimmedRange(bool keepLastSpace) const;
    /// The value of a key directly before the node, null when there is none.
    const CVNValue* valueBefore(CVNAttributeName name) const;
    /// The innermost list item around the node: its range, whatever of it lies in the text.
    CVNRange itemRange() const;
    /// For a node that is a list item or a quote.
    CVNListInfo listInfo() const;

private:
    /// A list, a list item or a quote around the node at hand, or that node itself.
    struct Container {
        const Ondo::Node* node;
        std::int64_t offset;
        std::int64_t level = 0;         ///< lists and quotes around it
        std::int64_t relativeLevel = 0; ///< those in the unbroken chain of its own kind
        std::int64_t itemIndex = -1;    ///< of a quote: lines with a marker so far, less one
        bool isVisited = true;          ///< or it only stands around where the walk began
        HeadWalk head{};

        std::int64_t end() const { return offset + node->charCount; }
    };
    /// A quote's marker on the line at hand.
    struct QuoteLine {
        const Ondo::Node* quote;
        std::int64_t start; ///< where the quote's item begins
        CVNValue value;
    };

    void enterAncestors();
    void enter(const Ondo::Node* node, std::int64_t offset);
    void visit();
    void leaveContainers();
    HeadWalk headWalk() const;

    bool isSilent();
    void addDirection();
    void addRows();
    void add(CVNAttributeName name, CVNValue value, CVNRange range);

    void noteQuoteMarker();
    void finishLine(std::int64_t end);
    const Container* innermostQuote() const;
    static CVNListInfo quoteInfo(const Container& quote);

    const Ondo::Tree& tree_;
    CVNRange range_;
    bool inlinesOnly_;
    CVNAttributedString result_;
    Ondo::Node::Iterator at_;
    const Ondo::Node* block_ = nullptr;
    std::vector<Container> containers_; ///< outermost first
    std::vector<QuoteLine> quoteLines_; ///< of the line at hand, outermost first
    std::int64_t lineStart_ = 0;
    std::int64_t imageEnd_ = 0;  ///< where the outermost image that was entered ends
    std::int64_t linkEnd_ = 0;   ///< likewise of links
    std::int64_t silentEnd_ = 0; ///< where the subtree ends that gets no attributes
};
