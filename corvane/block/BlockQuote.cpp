#include "corvane/block/BlockQuote.h"

#include "corvane/block/LineChanges.h"
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

/// The lines of a quote behind its first.
class QuoteLines : public BlockParser::Container {
public:
    QuoteLines(BlockQuote& rule, BlockParser& parser, Node* quote, std::int64_t lastLine, Node* parent)
        : rule_(rule), parser_(parser), quote_(quote), lastLine_(lastLine), parent_(parent),
          changes_(parser.lines) {}

    bool takeLine(std::int64_t line) override {
        const Lines::Line& l = parser_.lines[line];
        if (l.isBlank() || rule_.hasMatchingTerminatingRule(parser_, line, lastLine_, parent_)) return false;
        const std::int64_t end = l.lazy ? Go::NoPos : prefixEnd(parser_.text, l);
        if (end == Go::NoPos && rule_.noLazyContinuation) return false;
        if (end == Go::NoPos) {
            changes_.markLazy(line);
        } else {
            changes_.save(line);
            takePrefix(parser_, quote_, line, end);
        }
        return true;
    }

    void giveBackFrom(std::int64_t line) { changes_.undoFrom(line); }

private:
    BlockQuote& rule_;
    BlockParser& parser_;
    Node* quote_;
    std::int64_t lastLine_;
    Node* parent_;
    LineChanges changes_;
};

} // namespace

std::int64_t BlockQuote::match(BlockParser& parser, std::int64_t line, std::int64_t lastLine, Node* parent,
                               ParseAction action) {
    const Lines& lines = parser.lines;
    const std::int64_t end = prefixEnd(parser.text, lines[line]);
    if (end == Go::NoPos || !parser.canNest(parent)) return 0;
    if (action == ParseAction::Check) return 1;

    auto node = std::make_unique<BlockQuoteNode>(lines[line].start, lines[line].next, line);
    takePrefix(parser, node.get(), line, end);
    parser.openBlock(node.get());
    QuoteLines further(*this, parser, node.get(), lastLine, parent);
    const std::int64_t count = parser.parseBlock(line, lastLine, node.get(), &further);
    further.giveBackFrom(line + count);
    node->charCount = lines[line + count - 1].next - node->offsetWhenParsed;
    node->lineCount = count;
    parser.mergeNode(parent, std::move(node));
    return count;
}

void BlockQuoteNode::toHtml(std::u16string& out, std::u16string_view markdown, std::int64_t offset) const {
    out += u"<blockquote>\n";
    childrenToHtml(out, markdown, offset);
    out += u"</blockquote>\n";
}

} // namespace Ondo::Block
