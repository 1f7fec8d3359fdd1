#include "corvane/block/Table.h"

#include "corvane/scan/Escape.h"
#include "corvane/tree/BlockParser.h"

namespace Ondo::Block {

namespace {

using ColumnAlignment = TableNode::ColumnAlignment;

struct AlignmentText {
    std::u16string_view word;
    std::u16string_view attribute;
};
constexpr AlignmentText alignmentTexts[] = {{u"default", u""},
                                            {u"left", u" align=\"left\""},
                                            {u"right", u" align=\"right\""},
                                            {u"center", u" align=\"center\""}};

const AlignmentText& textOf(ColumnAlignment alignment) {
    return alignmentTexts[static_cast<std::size_t>(alignment)];
}

constexpr Predicate::Character pipe{U'|'};

Go contentOf(const BlockParser& parser, std::int64_t line) {
    const Lines::Line& l = parser.lines[line];
    return {parser.text, l.contentStart, l.contentEnd};
}

/// A cell of the delimiter row and the pipe behind it.
struct DelimiterCell {
    std::int64_t start; ///< of the colons and dashes
    std::int64_t end;
    std::int64_t pipe;
    ColumnAlignment alignment;
};

DelimiterCell matchDelimiterCell(Go& go) {
    DelimiterCell cell{};
    cell.start = go.nextWhile(Go::character(u' '));
    const bool isLeft = go.isNext(Go::character(u':'));
    go.nextWhile(Go::character(u':'), 1);
    go.nextMatch(Go::character(u'-'), 1, Go::NoLimit);
    const bool isRight = go.isNext(Go::character(u':'));
    cell.end = go.nextWhile(Go::character(u':'), 1);
    cell.pipe = go.nextWhile(Go::character(u' '));
    go.nextMatch(pipe, 1, 1);
    cell.alignment = static_cast<ColumnAlignment>((isLeft ? 1 : 0) + (isRight ? 2 : 0));
    return cell;
}

/// Empty when the line is no delimiter row.
std::vector<DelimiterCell> matchDelimiterRow(Go go) {
    std::vector<DelimiterCell> cells;
    go.nextMatch(pipe, 1, 1);
    while (!go.hasFailed() && !go.isAtEnd())
        cells.push_back(matchDelimiterCell(go));
    if (go.hasFailed()) cells.clear();
    return cells;
}

/// Whether a line is a row of that many columns.
bool isRow(Go go, std::size_t columns) {
    go.nextMatch(pipe, 1, 1);
    if (go.hasFailed()) return false;
    while (columns > 0 && Table::matchColumn(go))
        --columns;
    return columns == 0 && go.isAtEnd();
}

void linkRowEnd(const BlockParser& parser, Node* row, std::int64_t number) {
    const Lines::Line& line = parser.lines[number];
    ParserBase::linkSpace(row, line.contentEnd, line.end, number);
    ParserBase::linkLineEnding(row, line.end, line.next, number);
}

void linkPipe(Node* row, std::int64_t offset, std::int64_t line) {
    ParserBase::linkMarker(row, ONDO_TABLE_PIPE_MARKER_NODE, offset, offset + 1, line, row->parent);
}

void addCell(BlockParser& parser, Node* row, std::int64_t start, std::int64_t end,
             ColumnAlignment alignment) {
    const std::int64_t line = row->lineWhenParsed;
    Node* const cell = row->link(std::make_unique<TableCellNode>(start, end, line, alignment));
    Go go(parser.text, start, end);
    const std::int64_t contentStart = go.nextWhile(Go::spaceOrTab);
    ParserBase::linkSpace(cell, start, contentStart, line);
    go = Go(parser.text, contentStart, end);
    go.setPos(end);
    ParserBase::linkSpace(cell, go.previousWhile(Go::spaceOrTab), end, line);
}

/// Parses the cells in between, of which an empty one has no node.
template <class RowNode>
void addRow(BlockParser& parser, TableNode* table, std::int64_t line) {
    const Lines::Line& l = parser.lines[line];
    Node* const row = table->link(std::make_unique<RowNode>(l.start, l.next, line));
    parser.linkPrefix(row, line);
    Go go = contentOf(parser, line);
    linkPipe(row, go.pos(), line);
    go.nextMatch(pipe, 1, 1);
    for (const ColumnAlignment alignment : table->alignments) {
        const std::int64_t start = go.pos();
        Table::matchColumn(go);
        const std::int64_t end = go.pos() - 1;
        if (start != end) addCell(parser, row, start, end, alignment);
        linkPipe(row, end, line);
        if (start != end) parser.inlineParser().parseNode(row->lastChild->previousSibling);
    }
    linkRowEnd(parser, row, line);
}

void addDelimiterRow(BlockParser& parser, TableNode* table, const std::vector<DelimiterCell>& cells,
                     std::int64_t line) {
    const Lines::Line& l = parser.lines[line];
    Node* const row = table->link(std::make_unique<TableDelimiterRowNode>(l.start, l.next, line));
    parser.linkPrefix(row, line);
    linkPipe(row, l.contentStart, line);
    std::int64_t start = l.contentStart + 1;
    for (const DelimiterCell& cell : cells) {
        ParserBase::linkSpace(row, start, cell.start, line);
        ParserBase::linkMarker(row, ONDO_TABLE_DELIMITER_MARKER_NODE, cell.start, cell.end, line, table);
        ParserBase::linkSpace(row, cell.end, cell.pipe, line);
        linkPipe(row, cell.pipe, line);
        start = cell.pipe + 1;
    }
    linkRowEnd(parser, row, line);
}

} // namespace

bool Table::matchColumn(Go& cursor) {
    Go go = cursor;
    while (true) {
        go.nextWhile(Go::no(Go::characterAnyOf(u"/|")));
        if (go.isAtEnd()) return false;
        const bool isSlash = go.isNext(Go::character(u'/'));
        if (!isSlash && !isNextCharacterEscaped(go)) break;
        go.setPos(go.pos() + (isSlash ? 2 : 1));
        if (go.pos() >= go.maxPos()) return false;
    }
    go.setPos(go.pos() + 1);
    cursor = go;
    return true;
}

std::int64_t Table::match(BlockParser& parser, std::int64_t line, std::int64_t lastLine, Node* parent,
                          ParseAction action) {
    // Below the document there is no container that could still have to take a line.
    if (line == lastLine || parent->category != Node::Category::Document) return 0;
    if (!contentOf(parser, line + 1).isNext(pipe) || !contentOf(parser, line).isNext(pipe)) return 0;
    for (const std::int64_t row : {line, line + 1})
        if (hasMatchingTerminatingRule(parser, row, lastLine, parent)) return 0;
    const std::vector<DelimiterCell> cells = matchDelimiterRow(contentOf(parser, line + 1));
    if (cells.empty() || !isRow(contentOf(parser, line), cells.size())) return 0;
    if (action == ParseAction::Check) return 1;

    const Lines& lines = parser.lines;
    auto table = std::make_unique<TableNode>(lines[line].start, lines[line + 1].next, line);
    for (const DelimiterCell& cell : cells)
        table->alignments.push_back(cell.alignment);
    addRow<TableHeaderRowNode>(parser, table.get(), line);
    addDelimiterRow(parser, table.get(), cells, line + 1);
    std::int64_t next = line + 2;
    for (; next <= lastLine && !hasMatchingTerminatingRule(parser, next, lastLine, parent) &&
           isRow(contentOf(parser, next), cells.size());
         ++next)
        addRow<TableDataRowNode>(parser, table.get(), next);
    table->charCount = lines[next - 1].next - table->offsetWhenParsed;
    table->lineCount = next - line;
    parser.mergeNode(parent, std::move(table));
    return next - line;
}

std::u16string TableNode::toIndentedTree() const {
    std::u16string words;
    for (const ColumnAlignment alignment : alignments) {
        if (!words.empty()) words += u", ";
        words += textOf(alignment).word;
    }
    return Node::toIndentedTree() + u"{" + words + u"}";
}

void TableNode::toHtml(std::u16string& out, std::u16string_view markdown, std::int64_t offset) const {
    out += u"<table>\n";
    childrenToHtml(out, markdown, offset);
    out += u"</tbody>\n</table>\n";
}

bool TableNode::hasEqualData(const Node& other) const {
    return alignments == static_cast<const TableNode&>(other).alignments;
}

void TableHeaderRowNode::toHtml(std::u16string& out, std::u16string_view markdown,
                                std::int64_t offset) const {
    out += u"<thead>\n<tr>\n";
    childrenToHtml(out, markdown, offset);
    out += u"</tr>\n</thead>\n";
}

void TableDelimiterRowNode::toHtml(std::u16string& out, std::u16string_view, std::int64_t) const {
    out += u"<tbody>\n";
}

void TableDataRowNode::toHtml(std::u16string& out, std::u16string_view markdown, std::int64_t offset) const {
    out += u"<tr>\n";
    childrenToHtml(out, markdown, offset);
    out += u"</tr>\n";
}

std::u16string TableCellNode::toIndentedTree() const {
    return Node::toIndentedTree() + u"{" + std::u16string(textOf(alignment).word) + u"}";
}

/// The closing tag has no slash: what reads this output has always had it so.
void TableCellNode::toHtml(std::u16string& out, std::u16string_view markdown, std::int64_t offset) const {
    const std::u16string_view tag = parent->type == ONDO_TABLE_HEADER_ROW_NODE ? u"th" : u"td";
    out += u'<';
    out += tag;
    out += textOf(alignment).attribute;
    out += u'>';
    childrenToHtml(out, markdown, offset);
    out += u'<';
    out += tag;
    out += u">\n";
}

bool TableCellNode::hasEqualData(const Node& other) const {
    return alignment == static_cast<const TableCellNode&>(other).alignment;
}

} // namespace Ondo::Block
