#pragma once

#include <cstdint>
#include <memory>
#include <vector>

#include "corvane/tree/InlineRule.h"
#include "corvane/tree/Node.h"

namespace Ondo::Inline {

/// The delimiter engine of emphasis, underline, strikethrough and highlight.
///
/// Runs of delimiters are recorded while a block is scanned and paired afterwards, each closer with the
/// nearest opener that will have it. All other constructs have claimed their text by then; a pair that would
/// cross one is refused.
class CORVANE_EXPORT EmphaseStrongBase : public InlineRule {
public:
    struct Options {
        /// A logogram beside a run makes it flanking there, for scripts without spaces.
        bool logogramFlanking = false;
    };
    Options options;

    std::int64_t match(InlineParserNode& parser, Node* node, GoLines cursor) override;
    void beforeParseNode(InlineParserNode& parser) override;
    void afterParseNode(InlineParserNode& parser, Node* node) override;
    void clearRange(InlineParserNode& parser, std::int64_t start, std::int64_t end) override;

protected:
    /// What a pair of one width becomes. Without a factory that width makes no pair.
    struct Pairing {
        std::unique_ptr<Node> (*make)(std::int64_t start, std::int64_t end, std::int64_t line,
                                      std::int64_t lines) = nullptr;
        NodeType openMarker = ONDO_DOCUMENT_NODE;
        NodeType closeMarker = ONDO_DOCUMENT_NODE;
    };

    EmphaseStrongBase(std::u16string_view triggers, Pairing single, Pairing doubled);

    /// A run of delimiters: what is left of it, and what it may do.
    struct Delimiter {
        char16_t character;
        std::int64_t offset; ///< of the first remaining character
        std::int64_t line;
        std::int64_t length;
        std::int64_t initialLength;
        bool canOpen;
        bool canClose;
        std::int32_t below = -1; ///< the opener of the same class under this one, by index

        std::int64_t end() const { return offset + length; }
    };

    /// Asked of openers and closers apart, before a pair is made: a cause of refusal that the other one of
    /// the pair has no part in.
    virtual bool mayOpen(std::u16string_view text, const Delimiter& opener) const;
    virtual bool mayClose(std::u16string_view text, const Delimiter& closer) const;
    /// Nothing stands between the two that the pair could hold.
    virtual bool isEmptyPair(std::u16string_view text, const Delimiter& opener,
                             const Delimiter& closer) const;
    /// Called with the new node and its markers, before it is merged.
    virtual void finishNode(std::u16string_view text, Node* node) const;

private:
    static constexpr std::size_t classCount = 12;

    /// A node whose content is under pairing, with its openers. Runs pair only inside one scope: from one to
    /// another the pair would cross a node.
    struct Scope {
        Node* node;
        Node* next;                       ///< its first child behind the current run
        std::int32_t openers[classCount]; ///< the innermost of each class
    };

    bool canPairAtAll() const;
    void enterScopeOf(const Delimiter& run);
    void pairCloser(InlineParserNode& parser, Scope& scope, std::int32_t closer);
    std::int32_t findOpener(std::u16string_view text, const Scope& scope, const Delimiter& closer) const;
    bool isRefusedByThree(std::size_t openerClass, const Delimiter& closer) const;
    std::size_t classOf(const Delimiter& run) const;
    bool processDelimiterPair(InlineParserNode& parser, Scope& scope, Delimiter& opener, Delimiter& closer);
    void dropOpenersBehind(Scope& scope, std::int32_t last);

    Pairing single_;
    Pairing double_;
    std::vector<Delimiter> delimiters_;
    std::vector<Scope> scopes_; ///< from the node under parse inward
};

/// A node that only wraps its content in a tag.
class CORVANE_EXPORT EmphasisNode : public Node {
public:
    using Node::Node;
    void toHtml(std::u16string& out, std::u16string_view markdown, std::int64_t offset) const override;
};

} // namespace Ondo::Inline
