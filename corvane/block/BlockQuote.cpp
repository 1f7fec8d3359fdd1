#include "corvane/block/BlockQuote.h"

#include "corvane/block/SavedLines.h"
#include "corvane/scan/Go.h"
#include "corvane/tree/BlockParser.h"

namespace Ondo::Block {

namespace {

/// Behind ">" and at most one space, or NoPos when the line has no prefix.
std::int64_t prefixEnd(std::u16string_view text, const Lines::Line& line) {
    if (line.localIndentation() > 3) return Go::NoPos;
    Go go(text, line.contentStart, line.end);
    go.nextMatch(Go::character(U'>'), 1, 1);
    return go.nextWhile(Go::character(U' '), 1);
}

/// Takes the prefix off the line. A tab right behind ">" gives its first column to the prefix; the rest stays
/// as indentation of the content.
void takePrefix(BlockParser& parser, Node* quote, std::int64_t number, std::int64_t end) {
    Lines::Line& line = parser.lines[number];
    const bool isTab = parser.text[static_cast<std::size_t>(end - 1)] == u'>' &&
                       Go(parser.text, end, line.end).isNext(Go::character(U'\t'));
    const std::int64_t base = line.contentColumn + (end - line.contentStart) + (isTab ? 1 : 0);
    parser.takePrefix(number, ONDO_BLOCK_QUOTE_MARKER_NODE, end, quote);
    line.setBaseIndentation(base);
}

} // namespace

std::int64_t BlockQuote::match(BlockParser& parser, std::int64_t line, std::int64_t lastLine, Node* parent,
                               ParseAction action) {
    Lines& lines = parser.lines;
    const std::int64_t end = prefixEnd(parser.text, lines[line]);
    if (end == Go::NoPos || !parser.canNest()) return 0;
    if (action == ParseAction::Check) return 1;

    auto node = std::make_unique<BlockQuoteNode>(lines[line].start, lines[line].next, line);
    SavedLines saved(lines);
    takePrefix(parser, node.get(), line, end);
    parser.openBlock(node.get());
    const std::int64_t last = takeLines(parser, node.get(), line, lastLine, parent, saved);
    const std::int64_t count = parser.parseBlock(line, last, node.get());
    node->charCount = lines[line + count - 1].next - node->offsetWhenParsed;
    node->lineCount = count;
    saved.restoreFrom(line + count);
    parser.mergeNode(parent, std::move(node));
    return count;
}

/// Rewrites the lines behind the first that may belong to the quote; returns the last of them.
std::int64_t BlockQuote::takeLines(BlockParser& parser, Node* quote, std::int64_t line, std::int64_t lastLine,
                                   Node* parent, SavedLines& saved) {
    std::int64_t k = line + 1;
    for (; k <= lastLine && !parser.lines[k].isBlank(); ++k) {
        if (hasMatchingTerminatingRule(parser, k, lastLine, parent)) break;
        Lines::Line& l = parser.lines[k];
        const std::int64_t end = l.lazy ? Go::NoPos : prefixEnd(parser.text, l);
        if (end == Go::NoPos && noLazyContinuation) break;
        saved.save(k);
        if (end == Go::NoPos)
            l.lazy = true;
        else
            takePrefix(parser, quote, k, end);
    }
    return k - 1;
}

void BlockQuoteNode::toHtml(std::u16string& out, std::u16string_view markdown, std::int64_t offset) const {
    out += u"<blockquote>\n";
    childrenToHtml(out, markdown, offset);
    out += u"</blockquote>\n";
}

} // namespace Ondo::Block
