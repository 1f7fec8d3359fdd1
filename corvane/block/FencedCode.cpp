#include "corvane/block/FencedCode.h"

#include "corvane/block/Fence.h"
#include "corvane/scan/Go.h"
#include "corvane/scan/Util.h"

namespace Ondo::Block {

namespace {

constexpr std::int64_t leastFence = 3;

struct Opening {
    std::int64_t fenceEnd;
    std::int64_t infoStart;
    std::int64_t infoEnd;
};

bool matchOpening(std::u16string_view text, const Lines::Line& line, Opening& opening) {
    if (line.isBlank() || line.localIndentation() > 3) return false;
    Go go(text, line.contentStart, line.end);
    const char16_t c = go.unsafePeekNextCharacter();
    if (c != u'`' && c != u'~') return false;
    opening.fenceEnd = go.nextMatch(Go::character(c), leastFence, Go::NoLimit);
    opening.infoStart = go.nextWhile(Go::spaceOrTab);
    if (go.hasFailed()) return false;
    // With a backtick in its info string the line is a code span.
    if (c == u'`' && go.nextWhile(Go::no(Go::character(c))) != line.end) return false;
    opening.infoEnd = std::max(line.contentEnd, opening.infoStart);
    return true;
}

void parseInfo(BlockParser& parser, FencedCodeNode* node, const Opening& opening, std::int64_t line) {
    if (opening.infoStart >= opening.infoEnd) return;
    Node* const attribute = node->link(std::make_unique<Inline::AttributeNode>(
        ONDO_FENCED_CODE_INFO_ATTRIBUTE_NODE, opening.infoStart, opening.infoEnd, line, 0, node));
    parser.inlineParser().parseAttribute(attribute);
    node->info = InlineParserNode::attributeString(parser.text, attribute);
    node->language = node->info.substr(0, node->info.find_first_of(u" \t"));
}

} // namespace

std::int64_t FencedCode::match(BlockParser& parser, std::int64_t line, std::int64_t lastLine, Node* parent,
                               ParseAction action) {
    const Lines::Line& l = parser.lines[line];
    Opening opening{};
    if (!matchOpening(parser.text, l, opening)) return 0;
    if (action == ParseAction::Check) return 1;

    const char16_t c = parser.text[static_cast<std::size_t>(l.contentStart)];
    auto node = std::make_unique<FencedCodeNode>(l.start, l.next, line, c);
    parser.linkPrefix(node.get(), line);
    ParserBase::linkMarker(node.get(), ONDO_FENCED_CODE_OPEN_MARKER_NODE, l.contentStart, opening.fenceEnd,
                           line);
    ParserBase::linkSpace(node.get(), opening.fenceEnd, opening.infoStart, line);
    parseInfo(parser, node.get(), opening, line);
    ParserBase::linkSpace(node.get(), opening.infoEnd, l.end, line);
    ParserBase::linkLineEnding(node.get(), l.end, l.next, line);

    const Fence fence{ONDO_FENCED_CODE_CONTENT_ATTRIBUTE_NODE, ONDO_FENCED_CODE_CLOSE_MARKER_NODE, c,
                      opening.fenceEnd - l.contentStart, Go::NoLimit};
    const std::int64_t count =
        parseFencedLines(parser, node.get(), fence, node->code, line, lastLine, parent);
    parser.mergeNode(parent, std::move(node));
    return count;
}

bool FencedCode::needFullReparse(const TextBuffer&, std::int64_t, std::int64_t, Node*, Node* endNode,
                                 Node* newRoot) {
    return opensFence(newRoot, endNode, ONDO_FENCED_CODE_NODE, ONDO_FENCED_CODE_CLOSE_MARKER_NODE);
}

std::u16string FencedCodeNode::toIndentedTree() const {
    if (language.empty() && info.empty()) return Node::toIndentedTree();
    const bool hasBoth = !language.empty() && !info.empty();
    return Node::toIndentedTree() + u"{" + language + (hasBoth ? u", " : u"") + info + u"}";
}

void FencedCodeNode::toHtml(std::u16string& out, std::u16string_view, std::int64_t) const {
    out += u"<pre><code";
    if (!language.empty()) {
        out += u" class=\"language-";
        Util::addHtmlEscaped(language, out);
        out += u'"';
    }
    out += u'>';
    Util::addHtmlEscaped(code, out);
    out += u"</code></pre>\n";
}

bool FencedCodeNode::hasEqualData(const Node& other) const {
    const auto& node = static_cast<const FencedCodeNode&>(other);
    return fenceCharacter == node.fenceCharacter && language == node.language && info == node.info &&
           code == node.code;
}

} // namespace Ondo::Block
