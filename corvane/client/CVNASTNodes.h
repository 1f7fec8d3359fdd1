#pragma once

#include "corvane/client/CVNASTNode.h"
#include "corvane/client/CVNValue.h"

/// What nodes of certain types know. CVNASTNode::as() makes one of these from a node of a fitting type; none
/// has data of its own. A string that does not exist is empty.

class CORVANE_EXPORT CVNASTATXHeadingNode : public CVNASTNode {
public:
    using CVNASTNode::CVNASTNode;
    static constexpr Class wrapperClass = Class::ATXHeading;

    std::int64_t level() const; ///< 1 to 6
};

class CORVANE_EXPORT CVNASTSetextHeadingNode : public CVNASTNode {
public:
    using CVNASTNode::CVNASTNode;
    static constexpr Class wrapperClass = Class::SetextHeading;

    std::int64_t level() const; ///< 1 or 2
};

class CORVANE_EXPORT CVNASTBlockQuoteNode : public CVNASTNode {
public:
    using CVNASTNode::CVNASTNode;
    static constexpr Class wrapperClass = Class::BlockQuote;

    bool isCallout() const;
    /// The number of the Ondo::Block::CalloutTypes; CVNNotFound for a quote that is no callout.
    std::int64_t calloutType() const;
};

class CORVANE_EXPORT CVNASTFencedCodeBlockNode : public CVNASTNode {
public:
    using CVNASTNode::CVNASTNode;
    static constexpr Class wrapperClass = Class::FencedCodeBlock;

    std::u16string_view language() const; ///< the first word behind the opening fence
    std::u16string_view code() const;     ///< without fences, container prefixes and the fence's indentation
};

class CORVANE_EXPORT CVNASTFootnoteDefinitionNode : public CVNASTNode {
public:
    using CVNASTNode::CVNASTNode;
    static constexpr Class wrapperClass = Class::FootnoteDefinition;

    std::u16string_view label() const; ///< normalised
};

class CORVANE_EXPORT CVNASTListNode : public CVNASTNode {
public:
    using CVNASTNode::CVNASTNode;
    static constexpr Class wrapperClass = Class::List;

    bool isOrdered() const;
    /// Lists around this one, up to the first thing around them that is neither a list nor an item.
    std::int64_t nestingLevel() const;
};

class CORVANE_EXPORT CVNASTListItemNode : public CVNASTNode {
public:
    using CVNASTNode::CVNASTNode;
    static constexpr Class wrapperClass = Class::ListItem;

    bool isTask() const;
    bool isTaskCompleted() const;
    std::int64_t itemIndex() const;             ///< in its list, from 0
    std::int64_t orderedListItemNumber() const; ///< as typed; 0 for a bullet
    /// Always 0: the walk of CVNASTListNode begins at the grandparent here too, which for an item is what its
    /// list stands in, and never a list. Ask its parent.
    std::int64_t nestingLevel() const;
};

class CORVANE_EXPORT CVNASTTableCellNode : public CVNASTNode {
public:
    using CVNASTNode::CVNASTNode;
    static constexpr Class wrapperClass = Class::TableCell;

    std::int64_t alignment() const; ///< 0 left, 1 center, 2 right, 4 natural
};

class CORVANE_EXPORT CVNASTEntityNode : public CVNASTNode {
public:
    using CVNASTNode::CVNASTNode;
    static constexpr Class wrapperClass = Class::Entity;

    std::u16string toString() const; ///< what the reader sees
};

/// A link or an image: type() tells them apart.
class CORVANE_EXPORT CVNASTLinkAndImageNode : public CVNASTNode {
public:
    using CVNASTNode::CVNASTNode;
    static constexpr Class wrapperClass = Class::LinkAndImage;

    // Decoded; in a reference those of its definition.

    std::u16string url() const;
    std::u16string title() const;
    std::u16string_view label() const; ///< of a reference, normalised
};

class CORVANE_EXPORT CVNASTHTMLInlineNode : public CVNASTNode {
public:
    using CVNASTNode::CVNASTNode;
    static constexpr Class wrapperClass = Class::HTMLInline;

    /// The object in a metadata comment; null for other HTML. Parsed at each call.
    std::optional<CVNDictionary> metadata() const;
};

class CORVANE_EXPORT CVNASTWikiNode : public CVNASTNode {
public:
    using CVNASTNode::CVNASTNode;
    static constexpr Class wrapperClass = Class::Wiki;

    std::u16string title() const;      ///< the target, a path as Ondo::Segments encodes it
    std::u16string_view alias() const; ///< what is shown in its place
};
