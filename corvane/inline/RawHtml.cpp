#include "corvane/inline/RawHtml.h"

#include <algorithm>

#include "corvane/scan/HtmlSyntax.h"
#include "corvane/tree/InlineParser.h"

namespace Ondo::Inline {

namespace {

struct Markup {
    std::u16string_view start;
    bool needsLetter; ///< behind the start
    void (*match)(GoLines& go);

    bool isNext(const GoLines& go) const {
        return go.isNextString(start) &&
               (!needsLetter || go.isWithOffset(static_cast<std::int64_t>(start.size()),
                                                Predicate::Function<HtmlSyntax::isLetter>{}));
    }
};
constexpr Markup markups[RawHtml::markupKinds] = {{u"<!--", false, HtmlSyntax::matchComment},
                                                  {u"<?", false, HtmlSyntax::matchProcessingInstruction},
                                                  {u"<![CDATA[", false, HtmlSyntax::matchCData},
                                                  {u"<!", true, HtmlSyntax::matchDeclaration}};

/// A comment that needs no search for its end.
bool isShortComment(const GoLines& go) {
    return go.isNextString(u"<!-->") || go.isNextString(u"<!--->") || go.isNextString(u"<!---->");
}

std::u16string sourceOf(const InlineParserNode& parser, const RawHtmlNode& node) {
    const Go go(parser.text);
    std::u16string source;
    std::int64_t from = node.offsetWhenParsed;
    for (std::int64_t line = node.lineWhenParsed; line < node.lineWhenParsed + node.lineCount; ++line) {
        source += go.substring(from, parser.lines[line].next);
        from = parser.lines[line + 1].contentStart;
    }
    source += go.substring(from, node.endWhenParsed());
    return source;
}

} // namespace

void RawHtml::beforeParseNode(InlineParserNode&) {
    endless_.fill(Go::NoLimit);
}

std::int64_t RawHtml::match(InlineParserNode& parser, Node* node, GoLines cursor) {
    GoLines end = cursor;
    HtmlSyntax::matchOpenOrCloseTag(end);
    if (end.hasFailed()) {
        end = cursor;
        if (!matchMarkup(end)) return Go::NoPos;
    }
    auto made = std::make_unique<RawHtmlNode>(cursor.pos(), end.pos(), cursor.currentLine(),
                                              end.currentLine() - cursor.currentLine());
    made->text = sourceOf(parser, *made);
    return parser.merge(node, std::move(made)) ? end.pos() : Go::NoPos;
}

bool RawHtml::matchMarkup(GoLines& go) {
    for (std::size_t kind = 0; kind < markupKinds; ++kind) {
        if (!markups[kind].isNext(go)) continue;
        if (go.pos() >= endless_[kind] && !isShortComment(go)) continue;
        GoLines tried = go;
        markups[kind].match(tried);
        if (tried.hasFailed()) {
            endless_[kind] = std::min(endless_[kind], go.pos());
            continue;
        }
        go = tried;
        return true;
    }
    return false;
}

void RawHtmlNode::toHtml(std::u16string& out, std::u16string_view, std::int64_t) const {
    out += text;
}

bool RawHtmlNode::hasEqualData(const Node& other) const {
    return text == static_cast<const RawHtmlNode&>(other).text;
}

} // namespace Ondo::Inline
