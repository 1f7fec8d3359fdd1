#include "corvane/inline/CodeSpan.h"

#include "corvane/inline/Context.h"
#include "corvane/scan/Util.h"
#include "corvane/tree/InlineParser.h"

namespace Ondo::Inline {

namespace {

constexpr Predicate::Character backtick = Go::character(U'`');

struct Span {
    std::int64_t start;
    std::int64_t contentStart; ///< behind the opening run
    std::int64_t contentEnd;   ///< before the closing run
    std::int64_t end;
    std::int64_t firstLine;
    std::int64_t lastLine;
};

/// Moves to the next run, in this line or a further one; false when there is none.
bool toNextRun(GoLines& go) {
    while (go.nextWhile(Go::no(backtick)) == go.maxPos()) {
        const std::int64_t line = go.currentLine();
        go.nextWhileLineEnding();
        if (go.currentLine() == line) return false;
    }
    return true;
}

std::u16string_view slice(std::u16string_view text, std::int64_t start, std::int64_t end) {
    if (start >= end) return {};
    return text.substr(static_cast<std::size_t>(start), static_cast<std::size_t>(end - start));
}

/// Whether a space at each side only sets the content off from the runs. A line ending there is none.
bool hasPadding(std::u16string_view content) {
    return content.front() == u' ' && content.back() == u' ' &&
           content.find_first_not_of(u' ') != std::u16string_view::npos;
}

/// Whether the line's ending touches one of the runs: then it is not shown.
bool isEndingAtEdge(const Lines& lines, std::int64_t line, const Span& span) {
    return span.contentStart == lines[line].end ||
           (line + 1 == span.lastLine && span.contentEnd == lines[span.lastLine].contentStart);
}

std::u16string shownText(const InlineParserNode& parser, const Span& span, std::int64_t padding) {
    std::u16string shown;
    std::int64_t start = span.contentStart + padding;
    for (std::int64_t line = span.firstLine; line < span.lastLine; ++line) {
        shown += slice(parser.text, start, parser.lines[line].end);
        if (!isEndingAtEdge(parser.lines, line, span)) shown += u' ';
        start = parser.lines[line + 1].contentStart;
    }
    shown += slice(parser.text, start, span.contentEnd - padding);
    return shown;
}

/// Padding that belongs to a line's own blanks, or to a container's prefix, has a node already.
void linkChildren(const Lines& lines, Node* node, const Span& span, std::int64_t padding) {
    ParserBase::linkMarker(node, ONDO_CODE_SPAN_OPEN_MARKER_NODE, span.start, span.contentStart,
                           span.firstLine);
    const std::int64_t first = span.contentStart + padding;
    if (first <= lines[span.firstLine].contentEnd)
        ParserBase::linkSpace(node, span.contentStart, first, span.firstLine);
    const std::int64_t last = span.contentEnd - padding;
    if (last >= lines[span.lastLine].contentStart)
        ParserBase::linkSpace(node, last, span.contentEnd, span.lastLine);
    ParserBase::linkMarker(node, ONDO_CODE_SPAN_CLOSE_MARKER_NODE, span.contentEnd, span.end, span.lastLine);
}

} // namespace

void CodeSpan::beforeParseNode(InlineParserNode&) {
    lastRuns_.clear();
    hasRecordedRuns_ = false;
}

std::int64_t CodeSpan::match(InlineParserNode& parser, Node* node, GoLines cursor) {
    if (isBehindUnescaped(cursor, u'`')) return Go::NoPos;
    Span span{};
    span.start = cursor.pos();
    span.firstLine = cursor.currentLine();
    span.contentStart = cursor.nextWhile(backtick);
    const std::int64_t length = span.contentStart - span.start;
    if (!toClosingRun(cursor, length)) return Go::NoPos;
    span.contentEnd = cursor.pos();
    span.end = span.contentEnd + length;
    span.lastLine = cursor.currentLine();

    const std::int64_t padding = hasPadding(slice(parser.text, span.contentStart, span.contentEnd)) ? 1 : 0;
    auto code =
        std::make_unique<CodeSpanNode>(span.start, span.end, span.firstLine, span.lastLine - span.firstLine,
                                       shownText(parser, span, padding));
    linkChildren(parser.lines, code.get(), span, padding);
    return parser.merge(node, std::move(code)) ? span.end : Go::NoPos;
}

/// Moves from behind an opening run to a run of the same length.
bool CodeSpan::toClosingRun(GoLines& go, std::int64_t length) {
    if (hasRecordedRuns_) {
        const auto last = lastRuns_.find(length);
        if (last == lastRuns_.end() || last->second < go.pos()) return false;
    }
    const GoLines behindOpening = go;
    while (toNextRun(go)) {
        const std::int64_t start = go.pos();
        if (go.nextWhile(backtick) - start != length) continue;
        go.setPos(start);
        return true;
    }
    recordRuns(behindOpening);
    return false;
}

void CodeSpan::recordRuns(GoLines go) {
    hasRecordedRuns_ = true;
    while (toNextRun(go)) {
        const std::int64_t start = go.pos();
        lastRuns_[go.nextWhile(backtick) - start] = start;
    }
}

void CodeSpanNode::toHtml(std::u16string& out, std::u16string_view, std::int64_t) const {
    out += u"<code>";
    Util::addHtmlEscaped(text, out);
    out += u"</code>";
}

bool CodeSpanNode::hasEqualData(const Node& other) const {
    return text == static_cast<const CodeSpanNode&>(other).text;
}

} // namespace Ondo::Inline
