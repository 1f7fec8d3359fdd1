#pragma once

#include <memory>
#include <string>
#include <utility>

#include "corvane/block/LinkReferenceDefinition.h"
#include "corvane/tree/Common.h"
#include "corvane/tree/InlineRule.h"
#include "corvane/tree/LinkSyntax.h"

namespace Ondo::Inline {

/// A link or an image. Where its label is empty, it has destination and title of its own; otherwise they are
/// those of the label's first definition, looked up at each reading.
class CORVANE_EXPORT LinkBaseNode : public LabeledNode {
public:
    std::u16string ownDestination;          ///< decoded
    std::u16string ownTitle;                ///< decoded
    bool isTextBlank = false;               ///< the bracket text is empty or all whitespace
    bool isReference = false;               ///< written in one of the reference forms
    LabeledConnections* labeledConnections; ///< outlives the node

    LinkBaseNode(NodeType type_, std::int64_t offset, std::int64_t end, std::int64_t line, std::int64_t lines,
                 LabeledConnections& index)
        : LabeledNode(type_, offset, end, line, lines, nullptr, {}), labeledConnections(&index) {}
    ~LinkBaseNode() override;

    /// Empty when the label has no definition.
    std::u16string destination() const;
    std::u16string title() const;

    bool hasEqualData(const Node& other) const override;

protected:
    /// The child of that type, with its offset when this node stands at `offset`.
    std::pair<const Node*, std::int64_t> childOfType(NodeType wanted, std::int64_t offset) const;
    void addDestination(std::u16string& out) const;
    /// The attribute with a space in front; nothing for an empty title.
    void addTitle(std::u16string& out) const;

private:
    const Block::LinkReferenceDefinitionNode* definition() const;
};

/// What links and images share: the stack of open brackets, the inline form «[text](destination "title")» and
/// the reference forms «[text][label]», «[text][]» and «[text]».
class CORVANE_EXPORT LinkBase : public InlineRule {
public:
    enum class Kind { Link, Image };

    /// A bracket that may turn out to open a link or an image.
    struct Opener {
        Kind kind;
        std::int64_t offset; ///< of the bracket, or of the "!" before it
        std::int64_t length; ///< 1 for "[", 2 for "!["
        std::int64_t line;
        bool hasBrackets = false; ///< in its text, so that the text is no label that could be defined
    };
    class OpenerStack;
    ~LinkBase() override;
    /// An empty stack, for both rules.
    static std::shared_ptr<OpenerStack> makeOpenerStack();

    /// A reference needs no definition to be a link.
    bool allowUndefinedReferences = false;
    /// Labels that begin with "^" are those of footnotes.
    bool leavesFootnotes = false;

    void beforeParseNode(InlineParserNode& parser) override;
    void clearRange(InlineParserNode& parser, std::int64_t start, std::int64_t end) override;

protected:
    LinkBase(Kind kind, std::u16string_view triggers, std::shared_ptr<OpenerStack> openers,
             std::shared_ptr<Block::LinkReferenceDefinition> definitions);

    std::int64_t open(const GoLines& go, std::int64_t length);
    /// At a "]": makes the node of the innermost opener, if that is of this kind and a link can be made.
    std::int64_t close(InlineParserNode& parser, Node* parent, const GoLines& go);

    virtual std::unique_ptr<LinkBaseNode> makeNodeForSubclass(std::int64_t start, std::int64_t end,
                                                              std::int64_t line, std::int64_t lines) = 0;
    LabeledConnections& labeledConnections() const { return definitions_->labeledConnections; }

private:
    struct InlineForm;
    struct ReferenceForm;

    LinkBaseNode* parseStandardLink(InlineParserNode& parser, Node* parent, GoLines go, const Opener& opener);
    LinkBaseNode* parseReferenceLink(InlineParserNode& parser, Node* parent, GoLines go,
                                     const Opener& opener);
    bool matchInlineForm(GoLines& go, InlineForm& form) const;
    bool matchReferenceForm(const InlineParserNode& parser, GoLines& go, const LinkSyntax::Span& text,
                            bool isTextDefinable, ReferenceForm& form) const;
    bool isLabel(std::u16string_view text, const LinkSyntax::Span& span) const;
    std::unique_ptr<LinkBaseNode> makeNode(const InlineParserNode& parser, const Opener& opener,
                                           const LinkSyntax::Span& text, const GoLines& end);
    static void removeHashtagsAndUrlsInSubtree(Node* top);

    Kind kind_;
    std::shared_ptr<OpenerStack> openers_;
    std::shared_ptr<Block::LinkReferenceDefinition> definitions_;
};

} // namespace Ondo::Inline
