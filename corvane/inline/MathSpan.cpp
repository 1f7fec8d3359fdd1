#include "corvane/inline/MathSpan.h"

#include "corvane/inline/Context.h"
#include "corvane/scan/Util.h"
#include "corvane/tree/InlineParser.h"

namespace Ondo::Inline {

namespace {

constexpr Predicate::Character dollar = Go::character(U'$');

/// Moves to the next unescaped character that satisfies; false when there is none before `end`.
template <class P>
bool toNextUnescaped(Go& go, P predicate, std::int64_t end) {
    while (go.nextWhile(Go::no(predicate), end - go.pos()) < end) {
        if (!isNextCharacterEscaped(go)) return true;
        go.nextMatch(Go::always, 1, 1);
    }
    return false;
}

/// Math may not swallow the middle of a link: when it holds "](" and no "[" before it, ")" must follow. The
/// check goes on from where it came to at the last candidate for a closing marker.
class LinkCheck {
public:
    explicit LinkCheck(const Go& behindMarker) : go_(behindMarker) {}

    bool allowsEnd(std::int64_t end) {
        while (!isSettled_ && toNextUnescaped(go_, Go::characterAnyOf(u"[]"), end)) {
            if (go_.isNextString(u"](")) {
                Go behindBracket = go_;
                behindBracket.nextMatchString(u"](");
                if (!toNextUnescaped(behindBracket, Go::character(u')'), end)) return false;
                isSettled_ = true;
            } else if (go_.isNext(Go::character(u'['))) {
                isSettled_ = true;
            } else {
                go_.nextMatch(Go::always, 1, 1);
            }
        }
        return true;
    }
    /// The "](" that no end before its ")" may follow.
    std::int64_t pos() const { return go_.pos(); }

private:
    Go go_;
    bool isSettled_ = false;
};

} // namespace

void MathSpan::beforeParseNode(InlineParserNode&) {
    failingEnd_ = Go::NoPos;
}

std::int64_t MathSpan::match(InlineParserNode& parser, Node* node, GoLines cursor) {
    const std::int64_t start = cursor.pos();
    if (start < failingEnd_ || isBehindUnescaped(cursor, u'$') || !hasOpenLeft(cursor)) return Go::NoPos;
    const std::int64_t contentStart = cursor.nextWhile(dollar);
    if (contentStart - start > 1 || contentStart == cursor.maxPos()) return Go::NoPos;
    if (cursor.isNext(Go::unicodeWhitespace) || cursor.isNext(Go::unicodeClosePunctuation)) return Go::NoPos;
    const std::int64_t contentEnd = toClosingMarker(cursor);
    if (contentEnd == Go::NoPos) return Go::NoPos;

    const std::int64_t line = cursor.currentLine();
    const std::int64_t end = cursor.pos();
    auto math = std::make_unique<MathSpanNode>(start, end, line,
                                               std::u16string(cursor.substring(contentStart, contentEnd)));
    ParserBase::linkMarker(math.get(), ONDO_MATH_SPAN_OPEN_MARKER_NODE, start, contentStart, line);
    ParserBase::linkMarker(math.get(), ONDO_MATH_SPAN_CLOSE_MARKER_NODE, contentEnd, end, line);
    return parser.merge(node, std::move(math)) ? end : Go::NoPos;
}

/// Moves from behind an opening marker to behind the closing one, and returns where that starts.
std::int64_t MathSpan::toClosingMarker(Go& go) {
    LinkCheck links(go);
    while (toNextUnescaped(go, dollar, go.maxPos())) {
        const bool hasContentBefore =
            !go.isPrevious(Go::unicodeWhitespace) && !go.isPrevious(Go::unicodeOpenPunctuation);
        const std::int64_t start = go.pos();
        const std::int64_t end = go.nextWhile(dollar);
        if (!links.allowsEnd(end)) {
            failingEnd_ = links.pos();
            return Go::NoPos;
        }
        if (hasContentBefore && hasOpenRight(go) && end - start == 1) return start;
    }
    failingEnd_ = go.maxPos();
    return Go::NoPos;
}

void MathSpanNode::toHtml(std::u16string& out, std::u16string_view, std::int64_t) const {
    out += u"<math>";
    Util::addHtmlEscaped(text, out);
    out += u"</math>";
}

bool MathSpanNode::hasEqualData(const Node& other) const {
    return text == static_cast<const MathSpanNode&>(other).text;
}

} // namespace Ondo::Inline
