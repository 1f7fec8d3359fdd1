#include "corvane/inline/LinkBase.h"

#include <algorithm>

#include "corvane/inline/OpenerStack.h"
#include "corvane/scan/Util.h"
#include "corvane/tree/InlineParser.h"

namespace Ondo::Inline {

namespace {

using LinkSyntax::Span;

/// The markers and attributes of both node types stand in this order behind the type.
enum class Part : std::uint16_t {
    TextOpen = 1,
    Text,
    TextClose,
    LabelOpen,
    Label,
    LabelClose,
    ParenOpen,
    DestinationOpen,
    Destination,
    DestinationClose,
    TitleOpen,
    Title,
    TitleClose,
    ParenClose
};
static_assert(ONDO_LINK_NODE + static_cast<int>(Part::ParenClose) == ONDO_LINK_PAREN_CLOSE_MARKER_NODE);
static_assert(ONDO_IMAGE_NODE + static_cast<int>(Part::ParenClose) == ONDO_IMAGE_PAREN_CLOSE_MARKER_NODE);

/// No label with a bracket in it can be defined. Such a text is kept as label up to this length, so that
/// nested brackets don't cost the square of their number.
constexpr std::int64_t undefinableLength = 256;

Span cut(const Span& label, const Lines& lines) {
    const std::int64_t end = std::min(lines[label.line].contentEnd, label.start + undefinableLength);
    return {label.start, std::min(label.end, end), label.line, label.line};
}

NodeType typeOf(const Node* node, Part part) {
    return static_cast<NodeType>(node->type + static_cast<std::uint16_t>(part));
}

void linkMarker(Node* node, Part part, std::int64_t start, std::int64_t end, std::int64_t line) {
    ParserBase::linkMarker(node, typeOf(node, part), start, end, line);
}

Node* linkAttribute(Node* node, Part part, const Span& span) {
    if (span.isEmpty()) return nullptr;
    return node->link(std::make_unique<AttributeNode>(typeOf(node, part), span.start, span.end, span.line,
                                                      span.lastLine - span.line, node));
}

void linkSpaceOnLine(Node* node, std::int64_t start, std::int64_t line, std::int64_t end,
                     std::int64_t endLine) {
    if (line == endLine) ParserBase::linkSpace(node, start, end, line);
}

std::u16string parsedValue(InlineParserNode& parser, Node* attribute) {
    if (!attribute) return {};
    parser.parseAttribute(attribute);
    return InlineParserNode::attributeString(parser.text, attribute);
}

void linkText(Node* node, const Span& text) {
    linkMarker(node, Part::TextOpen, node->offsetWhenParsed, text.start, text.line);
    linkAttribute(node, Part::Text, text);
    linkMarker(node, Part::TextClose, text.end, text.end + 1, text.lastLine);
}

/// Without the prefixes of containers, which are not the text's.
bool isBlank(const InlineParserNode& parser, const Span& text) {
    GoLines go(parser.text, parser.lines, text.line, text.lastLine, text.start, text.end);
    while (go.nextWhile(Go::unicodeWhitespace) == go.maxPos()) {
        const std::int64_t line = go.currentLine();
        go.nextWhileLineEnding(1);
        if (go.currentLine() == line) return true;
    }
    return false;
}

} // namespace

/// Where the pieces behind the text stand.
struct LinkBase::InlineForm {
    std::int64_t paren = 0;
    std::int64_t parenLine = 0;
    LinkSyntax::Destination destination;
    LinkSyntax::Title title;

    std::int64_t bracket() const { return destination.isBracketed ? 1 : 0; }
    std::int64_t destinationStart() const { return destination.span.start - bracket(); }
    std::int64_t destinationEnd() const { return destination.span.end + bracket(); }
    std::int64_t end() const { return title.isPresent ? title.span.end + 1 : destinationEnd(); }
    std::int64_t endLine() const { return title.isPresent ? title.span.lastLine : destination.span.line; }
};

struct LinkBase::ReferenceForm {
    std::u16string label;
    Span labelSpan; ///< of a full reference
    bool hasLabelBrackets = false;
    std::int64_t labelEnd = 0; ///< behind the "]" of the label's brackets
    std::int64_t labelEndLine = 0;
};

LinkBase::LinkBase(Kind kind, std::u16string_view triggers_, std::shared_ptr<OpenerStack> openers,
                   std::shared_ptr<Block::LinkReferenceDefinition> definitions)
    : InlineRule(triggers_), kind_(kind), openers_(std::move(openers)), definitions_(std::move(definitions)) {
}

LinkBase::~LinkBase() = default;

std::shared_ptr<LinkBase::OpenerStack> LinkBase::makeOpenerStack() {
    return std::make_shared<OpenerStack>();
}

void LinkBase::beforeParseNode(InlineParserNode&) {
    openers_->clear();
}

void LinkBase::clearRange(InlineParserNode&, std::int64_t start, std::int64_t end) {
    openers_->removeWithin(start, end);
}

std::int64_t LinkBase::open(const GoLines& go, std::int64_t length) {
    openers_->push({kind_, go.pos(), length, go.currentLine()});
    return go.pos() + length;
}

std::int64_t LinkBase::close(InlineParserNode& parser, Node* parent, const GoLines& go) {
    if (openers_->empty() || openers_->isUsedUp(go.pos()) || openers_->top().kind != kind_) return Go::NoPos;
    const bool isActive = openers_->isTopActive();
    const Opener opener = openers_->pop(go.pos());
    if (!isActive) return Go::NoPos;
    LinkBaseNode* node = parseStandardLink(parser, parent, go, opener);
    if (!node) node = parseReferenceLink(parser, parent, go, opener);
    if (!node) return Go::NoPos;
    if (kind_ == Kind::Link) openers_->deactivateLinks();
    removeHashtagsAndUrlsInSubtree(node);
    return node->endWhenParsed();
}

std::unique_ptr<LinkBaseNode> LinkBase::makeNode(const InlineParserNode& parser, const Opener& opener,
                                                 const Span& text, const GoLines& end) {
    auto node = makeNodeForSubclass(opener.offset, end.pos(), opener.line, end.currentLine() - opener.line);
    node->isTextBlank = isBlank(parser, text);
    return node;
}

LinkBaseNode* LinkBase::parseStandardLink(InlineParserNode& parser, Node* parent, GoLines go,
                                          const Opener& opener) {
    const Span text{opener.offset + opener.length, go.pos(), opener.line, go.currentLine()};
    InlineForm form;
    if (!matchInlineForm(go, form)) return nullptr;
    auto made = makeNode(parser, opener, text, go);
    LinkBaseNode* const node = made.get();
    linkText(node, text);
    linkMarker(node, Part::ParenOpen, form.paren, form.paren + 1, form.parenLine);

    const Span& span = form.destination.span;
    linkSpaceOnLine(node, form.paren + 1, form.parenLine, form.destinationStart(), span.line);
    linkMarker(node, Part::DestinationOpen, form.destinationStart(), span.start, span.line);
    Node* const destination = linkAttribute(node, Part::Destination, span);
    linkMarker(node, Part::DestinationClose, span.end, form.destinationEnd(), span.line);

    Node* title = nullptr;
    if (form.title.isPresent) {
        const Span& inside = form.title.span;
        linkSpaceOnLine(node, form.destinationEnd(), span.line, form.title.start(), inside.line);
        linkMarker(node, Part::TitleOpen, form.title.start(), inside.start, inside.line);
        title = linkAttribute(node, Part::Title, inside);
        linkMarker(node, Part::TitleClose, inside.end, inside.end + 1, inside.lastLine);
    }
    linkSpaceOnLine(node, form.end(), form.endLine(), go.pos() - 1, go.currentLine());
    linkMarker(node, Part::ParenClose, go.pos() - 1, go.pos(), go.currentLine());

    if (!parser.merge(parent, std::move(made))) return nullptr;
    node->ownDestination = parsedValue(parser, destination);
    node->ownTitle = parsedValue(parser, title);
    return node;
}

/// From the "]" to behind the ")".
bool LinkBase::matchInlineForm(GoLines& go, InlineForm& form) const {
    form.paren = go.pos() + 1;
    form.parenLine = go.currentLine();
    if (!go.isWithOffset(1, Go::character(u'('))) return false;
    go.setPos(form.paren + 1);
    LinkSyntax::matchInterspacing(go);
    if (go.pos() == go.maxPos() || go.isNext(Go::character(u'<')))
        form.destination = LinkSyntax::matchDestination(go);
    else
        form.destination = {openers_->matchBareDestination(go), false};
    LinkSyntax::matchInterspacing(go);
    form.title = LinkSyntax::matchTitle(go);
    if (form.title.isPresent && form.title.start() == form.destinationEnd()) return false;
    LinkSyntax::matchInterspacing(go);
    go.nextMatch(Go::character(u')'), 1, 1);
    return !go.hasFailed();
}

LinkBaseNode* LinkBase::parseReferenceLink(InlineParserNode& parser, Node* parent, GoLines go,
                                           const Opener& opener) {
    const Span text{opener.offset + opener.length, go.pos(), opener.line, go.currentLine()};
    ReferenceForm form;
    if (!matchReferenceForm(parser, go, text, !opener.hasBrackets, form)) return nullptr;
    auto made = makeNode(parser, opener, text, go);
    LinkBaseNode* const node = made.get();
    node->isReference = true;
    linkText(node, text);
    Node* label = nullptr;
    if (form.hasLabelBrackets) {
        linkMarker(node, Part::LabelOpen, text.end + 1, text.end + 2, text.lastLine);
        label = linkAttribute(node, Part::Label, form.labelSpan);
        linkMarker(node, Part::LabelClose, go.pos() - 1, go.pos(), go.currentLine());
    }
    node->label = std::move(form.label);
    labeledConnections().addReference(node);
    if (!parser.merge(parent, std::move(made))) return nullptr;
    if (label) parser.parseAttribute(label);
    return node;
}

/// From the "]" to behind the reference.
bool LinkBase::matchReferenceForm(const InlineParserNode& parser, GoLines& go, const Span& text,
                                  bool isTextDefinable, ReferenceForm& form) const {
    go.setPos(go.pos() + 1);
    GoLines behindLabel = go;
    Span label = LinkSyntax::matchLabel(behindLabel);
    form.hasLabelBrackets = !behindLabel.hasFailed() && isLabel(parser.text, label);
    if (form.hasLabelBrackets) {
        form.labelSpan = label;
        go = behindLabel;
        isTextDefinable = true;
    } else {
        form.hasLabelBrackets = go.isNextString(u"[]");
        if (form.hasLabelBrackets) go.setPos(go.pos() + 2);
        label = text;
        if (!isLabel(parser.text, label)) return false;
    }
    if (!allowUndefinedReferences && !isTextDefinable) return false;
    if (!isTextDefinable && label.end - label.start > undefinableLength)
        form.label = LinkSyntax::labelString(parser.text, parser.lines, cut(label, parser.lines));
    if (form.label.empty()) form.label = LinkSyntax::labelString(parser.text, parser.lines, label);
    if (form.label.empty()) return false;
    return allowUndefinedReferences || labeledConnections().isDefined(form.label);
}

bool LinkBase::isLabel(std::u16string_view text, const Span& span) const {
    return !leavesFootnotes || span.isEmpty() || text[static_cast<std::size_t>(span.start)] != u'^';
}

/// The links and images inside have none left.
void LinkBase::removeHashtagsAndUrlsInSubtree(Node* top) {
    const Node* const end = top->nextInSequenceSkippingSubtree();
    for (Node* node = top->nextInSequence(); node != end;) {
        const bool isLink = node->type == ONDO_LINK_NODE || node->type == ONDO_IMAGE_NODE;
        const bool isRemoved = node->type == ONDO_URL_NODE || node->type == ONDO_HASHTAG_NODE;
        Node* const next =
            isLink || isRemoved ? node->nextInSequenceSkippingSubtree() : node->nextInSequence();
        if (isRemoved) node->unlinkSubtree();
        node = next;
    }
}

LinkBaseNode::~LinkBaseNode() {
    if (isReference) labeledConnections->removeReference(this);
}

const Block::LinkReferenceDefinitionNode* LinkBaseNode::definition() const {
    const auto* const entry = labeledConnections->lookupFirstDefinition(label);
    return entry ? static_cast<const Block::LinkReferenceDefinitionNode*>(entry->node) : nullptr;
}

std::u16string LinkBaseNode::destination() const {
    if (label.empty()) return ownDestination;
    const auto* const found = definition();
    return found ? found->url : std::u16string();
}

std::u16string LinkBaseNode::title() const {
    if (label.empty()) return ownTitle;
    const auto* const found = definition();
    return found ? found->title : std::u16string();
}

bool LinkBaseNode::hasEqualData(const Node& other) const {
    const auto& node = static_cast<const LinkBaseNode&>(other);
    return label == node.label && ownDestination == node.ownDestination && ownTitle == node.ownTitle &&
           isTextBlank == node.isTextBlank && isReference == node.isReference;
}

std::pair<const Node*, std::int64_t> LinkBaseNode::childOfType(NodeType wanted, std::int64_t offset) const {
    const Node* child = firstChild;
    for (; child && child->type != wanted; child = child->nextSibling)
        offset += child->charCount;
    return {child, offset};
}

void LinkBaseNode::addDestination(std::u16string& out) const {
    Util::addHtmlEscaped(Util::percentEscape(destination()), out);
}

void LinkBaseNode::addTitle(std::u16string& out) const {
    const std::u16string text = title();
    if (text.empty()) return;
    out += u" title=\"";
    Util::addHtmlEscaped(text, out);
    out += u'"';
}

} // namespace Ondo::Inline
