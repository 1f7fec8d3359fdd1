#include "corvane/block/HtmlBlock.h"

#include <algorithm>
#include <iterator>

#include "corvane/scan/HtmlSyntax.h"
#include "corvane/scan/Util.h"
#include "corvane/tree/BlockParser.h"

namespace Ondo::Block {

namespace {

constexpr std::u16string_view literalNames[] = {u"pre", u"script", u"style", u"textarea"};

constexpr std::u16string_view blockNames[] = {
    u"address",  u"article",  u"aside",    u"base",       u"basefont", u"blockquote", u"body",   u"caption",
    u"center",   u"col",      u"colgroup", u"dd",         u"details",  u"dialog",     u"dir",    u"div",
    u"dl",       u"dt",       u"fieldset", u"figcaption", u"figure",   u"footer",     u"form",   u"frame",
    u"frameset", u"h1",       u"h2",       u"h3",         u"h4",       u"h5",         u"h6",     u"head",
    u"header",   u"hr",       u"html",     u"iframe",     u"legend",   u"li",         u"link",   u"main",
    u"menu",     u"menuitem", u"nav",      u"noframes",   u"ol",       u"optgroup",   u"option", u"p",
    u"param",    u"search",   u"section",  u"summary",    u"table",    u"tbody",      u"td",     u"tfoot",
    u"th",       u"thead",    u"title",    u"tr",         u"track",    u"ul"};
static_assert(std::is_sorted(std::begin(blockNames), std::end(blockNames)));
constexpr std::int64_t longestName = 12;

constexpr Predicate::Function<HtmlSyntax::isLetterOrDigit> letterOrDigit{};

/// What ends a block: a string that some line holds, or, if empty, the next blank line.
struct End {
    std::u16string string;
    bool isCaseInsensitive = false;
    bool interruptsParagraph = true;
};

/// Takes a name of up to `longest` characters.
std::u16string takeName(Go& go, std::int64_t longest) {
    const std::int64_t start = go.pos();
    const std::int64_t end = go.nextMatch(letterOrDigit, 1, longest);
    if (end == Go::NoPos) return {};
    return Util::downcaseAscii(go.substring(start, end));
}

bool isLiteralName(std::u16string_view name) {
    return std::find(std::begin(literalNames), std::end(literalNames), name) != std::end(literalNames);
}

bool isBehindName(const Go& go) {
    return go.pos() == go.maxPos() || go.isNext(Go::spaceOrTab) || go.isNext(Go::character(u'>'));
}

bool startsLiteral(Go go, End& end) {
    go.setPos(go.pos() + 1);
    const std::u16string name = takeName(go, longestName);
    if (!isLiteralName(name)) return false;
    if (!isBehindName(go)) return false;
    end = {u"</" + name + u">", true, true};
    return true;
}

struct Opening {
    std::u16string_view start;
    std::u16string_view end;
    bool needsLetter; ///< behind the start
};
constexpr Opening openings[] = {
    {u"<!--", u"-->", false}, {u"<?", u"?>", false}, {u"<![CDATA[", u"]]>", false}, {u"<!", u">", true}};

bool startsMarkup(const Go& go, End& end) {
    for (const Opening& opening : openings) {
        if (!go.isNextString(opening.start)) continue;
        const auto length = static_cast<std::int64_t>(opening.start.size());
        if (opening.needsLetter && !go.isWithOffset(length, Predicate::Function<HtmlSyntax::isLetter>{}))
            continue;
        end = {std::u16string(opening.end), false, true};
        return true;
    }
    return false;
}

bool startsBlockTag(Go go, End& end) {
    go.setPos(go.pos() + 1);
    go.nextWhile(Go::character(u'/'), 1);
    const std::u16string name = takeName(go, longestName);
    if (!std::binary_search(std::begin(blockNames), std::end(blockNames), std::u16string_view(name)))
        return false;
    end = {};
    return isBehindName(go) || go.isNextString(u"/>");
}

/// A tag that is alone on its line, and none of those that hold literal text.
bool startsTagLine(const BlockParser& parser, std::int64_t line, End& end) {
    GoLines go(parser.text, parser.lines, line, line);
    Go name = go.onLine();
    name.setPos(name.pos() + 1);
    name.nextWhile(Go::character(u'/'), 1);
    if (isLiteralName(takeName(name, longestName))) return false;
    HtmlSyntax::matchOpenOrCloseTag(go);
    go.nextWhile(Go::spaceOrTab);
    end = {};
    end.interruptsParagraph = false;
    return go.pos() == go.maxPos();
}

bool isNext(const Go& go, const End& end) {
    return end.isCaseInsensitive ? go.isNextCaseInsensitiveString(end.string) : go.isNextString(end.string);
}

bool holds(Go go, const End& end) {
    const char16_t first = end.string[0];
    for (; go.nextWhile(Go::no(Go::character(first))) < go.maxPos(); go.setPos(go.pos() + 1))
        if (isNext(go, end)) return true;
    return false;
}

/// The last line of the block.
std::int64_t findLastLine(BlockParser& parser, const End& end, std::int64_t line, std::int64_t lastLine) {
    const Lines& lines = parser.lines;
    for (std::int64_t k = line;; ++k) {
        if (!end.string.empty() && holds(Go(parser.text, lines[k].leading, lines[k].end), end)) return k;
        const std::int64_t next = k + 1;
        if (next > lastLine || !parser.hasLine(next) || lines[next].lazy || lines[next].isEmptyEntry())
            return k;
        if (end.string.empty() && lines[next].isBlank()) return k;
    }
}

std::int64_t addBlock(BlockParser& parser, std::int64_t line, std::int64_t lastConsumed, Node* parent) {
    const Lines& lines = parser.lines;
    const std::int64_t count = lastConsumed - line + 1;
    auto node = std::make_unique<HtmlBlockNode>(lines[line].start, lines[lastConsumed].next, line, count);
    for (std::int64_t k = line; k <= lastConsumed; ++k) {
        parser.linkPrefix(node.get(), k, lines[k].leading);
        ParserBase::linkLineEnding(node.get(), lines[k].end, lines[k].next, k);
        node->html += Go(parser.text).substring(lines[k].leading, lines[k].next);
    }
    parser.mergeNode(parent, std::move(node));
    return count;
}

} // namespace

std::int64_t HtmlBlock::match(BlockParser& parser, std::int64_t line, std::int64_t lastLine, Node* parent,
                              ParseAction action) {
    const Lines::Line& l = parser.lines[line];
    if (l.isBlank() || l.localIndentation() > 3) return 0;
    const Go go(parser.text, l.contentStart, l.end);
    if (!go.isNext(Go::character(u'<'))) return 0;
    End end;
    if (!startsLiteral(go, end) && !startsMarkup(go, end) && !startsBlockTag(go, end) &&
        !startsTagLine(parser, line, end))
        return 0;
    if (action == ParseAction::Check) return end.interruptsParagraph ? 1 : 0;
    return addBlock(parser, line, findLastLine(parser, end, line, lastLine), parent);
}

void HtmlBlockNode::toHtml(std::u16string& out, std::u16string_view, std::int64_t) const {
    out += html;
}

bool HtmlBlockNode::hasEqualData(const Node& other) const {
    return html == static_cast<const HtmlBlockNode&>(other).html;
}

} // namespace Ondo::Block
