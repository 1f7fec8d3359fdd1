#include "corvane/block/IndentedCode.h"

#include "corvane/block/List.h"
#include "corvane/scan/Go.h"
#include "corvane/scan/Util.h"
#include "corvane/tree/BlockParser.h"

namespace Ondo::Block {

namespace {

constexpr std::int64_t codeIndentation = 4;

/// The blanks of a line that make it code.
struct Indent {
    std::int64_t end;    ///< behind them
    std::int64_t column; ///< the local column there; a tab can take it past codeIndentation
};

Indent takeIndent(std::u16string_view text, const Lines::Line& line) {
    Indent indent{line.leading, line.localIndentationAtOffset(line.leading, text)};
    while (indent.column < codeIndentation && indent.end < line.contentStart) {
        ++indent.end;
        indent.column = line.localIndentationAtOffset(indent.end, text);
    }
    return indent;
}

bool isTaskItem(const Node* node) {
    return node->type == ONDO_LIST_ITEM_NODE && static_cast<const ListItemNode*>(node)->isTask();
}

/// Adds a line of code, or a blank line between two of them.
void addLine(BlockParser& parser, IndentedCodeNode* node, std::int64_t number) {
    const Lines::Line& line = parser.lines[number];
    const Indent indent = takeIndent(parser.text, line);
    parser.linkPrefix(node, number, indent.end);
    ParserBase::linkLineEnding(node, line.end, line.next, number);
    if (indent.column > codeIndentation)
        node->code.append(static_cast<std::size_t>(indent.column - codeIndentation), u' ');
    node->code += Go(parser.text).substring(indent.end, line.end);
    if (line.next > line.end) node->code += u'\n';
}

} // namespace

std::int64_t IndentedCode::match(BlockParser& parser, std::int64_t line, std::int64_t lastLine, Node* parent,
                                 ParseAction action) {
    const Lines& lines = parser.lines;
    if (lines[line].isBlank() || lines[line].localIndentation() < codeIndentation || isTaskItem(parent))
        return 0;
    if (action == ParseAction::Check) return 1;

    auto node = std::make_unique<IndentedCodeNode>(lines[line].start, lines[line].next, line);
    addLine(parser, node.get(), line);
    std::int64_t last = line;
    for (std::int64_t k = line + 1; k <= lastLine && parser.hasLine(k) && !lines[k].lazy; ++k) {
        if (lines[k].isBlank()) continue; // belongs only when more code follows
        if (lines[k].localIndentation() < codeIndentation) break;
        while (last < k) {
            ++last;
            addLine(parser, node.get(), last);
        }
    }
    node->charCount = lines[last].next - node->offsetWhenParsed;
    node->lineCount = last - line + 1;
    parser.mergeNode(parent, std::move(node));
    return last - line + 1;
}

void IndentedCodeNode::toHtml(std::u16string& out, std::u16string_view, std::int64_t) const {
    out += u"<pre><code>";
    Util::addHtmlEscaped(code, out);
    out += u"</code></pre>\n";
}

bool IndentedCodeNode::hasEqualData(const Node& other) const {
    return code == static_cast<const IndentedCodeNode&>(other).code;
}

} // namespace Ondo::Block
