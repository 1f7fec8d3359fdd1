#include "corvane/inline/EmphaseStrongBase.h"

#include <algorithm>

#include "corvane/inline/Context.h"
#include "corvane/tree/InlineParser.h"

namespace Ondo::Inline {

namespace {

struct Tag {
    std::uint16_t type;
    std::u16string_view open;
    std::u16string_view close;
};
constexpr Tag tags[] = {{ONDO_EMPHASE_NODE, u"<em>", u"</em>"},
                        {ONDO_STRONG_NODE, u"<strong>", u"</strong>"},
                        {ONDO_UNDERLINE_NODE, u"<u>", u"</u>"},
                        {ONDO_STRIKETHROUGH_NODE, u"<strike>", u"</strike>"},
                        {ONDO_HIGHLIGHT_NODE, u"<mark>", u"</mark>"}};

const Tag* tagOf(const Node* node) {
    for (const Tag& tag : tags)
        if (tag.type == node->type) return &tag;
    return nullptr;
}

/// What stands on one side of a run.
struct Side {
    bool isPunctuation;
    bool isSpace;
    bool isLogogram;
};

Side sideBefore(const Go& go) {
    return {go.isPrevious(Go::unicodePunctuationOrSymbol) || isBehindColorEmoji(go),
            go.pos() == go.minPos() || go.isPrevious(Go::unicodeWhitespace), go.isPrevious(Go::logogram)};
}

Side sideBehind(const Go& go) {
    return {go.isNext(Go::unicodePunctuationOrSymbol),
            go.pos() == go.maxPos() || go.isNext(Go::unicodeWhitespace), go.isNext(Go::logogram)};
}

struct Flanking {
    bool canOpen;
    bool canClose;
};

Flanking flanking(char16_t character, const Side& before, const Side& behind, bool logogramFlanking) {
    const bool left = !behind.isSpace && (!behind.isPunctuation || before.isSpace || before.isPunctuation);
    const bool right = !before.isSpace && (!before.isPunctuation || behind.isSpace || behind.isPunctuation);
    if (character == u'_')
        return {left && (!right || before.isPunctuation), right && (!left || behind.isPunctuation)};
    return {left || (logogramFlanking && before.isLogogram && !behind.isSpace),
            right || (logogramFlanking && behind.isLogogram && !before.isSpace && !behind.isSpace)};
}

bool isEnclosing(const Node* node, std::int64_t start, std::int64_t end) {
    return node->offsetWhenParsed <= start && node->endWhenParsed() >= end;
}

} // namespace

EmphaseStrongBase::EmphaseStrongBase(std::u16string_view triggers_, Pairing single, Pairing doubled)
    : InlineRule(triggers_), single_(single), double_(doubled) {}

bool EmphaseStrongBase::mayOpen(std::u16string_view, const Delimiter&) const {
    return true;
}

bool EmphaseStrongBase::mayClose(std::u16string_view, const Delimiter&) const {
    return true;
}

bool EmphaseStrongBase::isEmptyPair(std::u16string_view, const Delimiter&, const Delimiter&) const {
    return false;
}

void EmphaseStrongBase::finishNode(std::u16string_view, Node*) const {}

void EmphaseStrongBase::beforeParseNode(InlineParserNode&) {
    delimiters_.clear();
}

std::int64_t EmphaseStrongBase::match(InlineParserNode&, Node*, GoLines cursor) {
    const char16_t character = cursor.unsafePeekNextCharacter();
    const std::int64_t start = cursor.pos();
    const Side before = sideBefore(cursor);
    const std::int64_t end = cursor.nextMatch(Go::character(character), 1, Go::NoLimit);
    const Flanking can = flanking(character, before, sideBehind(cursor), options.logogramFlanking);
    if (can.canOpen || can.canClose)
        delimiters_.push_back(
            {character, start, cursor.currentLine(), end - start, end - start, can.canOpen, can.canClose});
    return end;
}

void EmphaseStrongBase::clearRange(InlineParserNode&, std::int64_t start, std::int64_t end) {
    auto first = delimiters_.end();
    while (first != delimiters_.begin() && std::prev(first)->offset >= start)
        --first;
    const auto isWithin = [end](const Delimiter& run) { return run.end() <= end; };
    delimiters_.erase(std::remove_if(first, delimiters_.end(), isWithin), delimiters_.end());
}

/// Openers that refuse a closer by the rule of three do so by their class alone: the character, whether they
/// can close, too, and the length modulo 3. So the nearest opener is the innermost one of some class, and
/// what a pair encloses is always innermost. Each run is thus looked at a bounded number of times.
void EmphaseStrongBase::afterParseNode(InlineParserNode& parser, Node* node) {
    if (!canPairAtAll()) return;
    scopes_.clear();
    scopes_.push_back({node, node->firstChild, {}});
    std::fill(std::begin(scopes_.back().openers), std::end(scopes_.back().openers), -1);
    for (std::int32_t i = 0; i < static_cast<std::int32_t>(delimiters_.size()); ++i) {
        Delimiter& run = delimiters_[static_cast<std::size_t>(i)];
        enterScopeOf(run);
        Scope& scope = scopes_.back();
        if (run.canClose) pairCloser(parser, scope, i);
        if (run.length == 0 || !run.canOpen || !mayOpen(parser.text, run)) continue;
        std::int32_t& innermost = scope.openers[classOf(run)];
        run.below = innermost;
        innermost = i;
    }
}

bool EmphaseStrongBase::canPairAtAll() const {
    return delimiters_.size() > 1 && std::any_of(delimiters_.begin() + 1, delimiters_.end(),
                                                 [](const Delimiter& run) { return run.canClose; });
}

/// Runs come in text order, so that the scopes open and close like brackets.
void EmphaseStrongBase::enterScopeOf(const Delimiter& run) {
    while (scopes_.size() > 1 && scopes_.back().node->endWhenParsed() <= run.offset)
        scopes_.pop_back();
    while (true) {
        Scope& scope = scopes_.back();
        while (scope.next && scope.next->endWhenParsed() <= run.offset)
            scope.next = scope.next->nextSibling;
        Node* const child = scope.next;
        if (!child || child->isLeafKind() || !isEnclosing(child, run.offset, run.end())) return;
        scopes_.push_back({child, child->firstChild, {}});
        std::fill(std::begin(scopes_.back().openers), std::end(scopes_.back().openers), -1);
    }
}

std::size_t EmphaseStrongBase::classOf(const Delimiter& run) const {
    const std::size_t character = run.character == triggers[0] ? 0 : 1;
    return character * 6 + (run.canClose ? 3 : 0) + static_cast<std::size_t>(run.initialLength % 3);
}

bool EmphaseStrongBase::isRefusedByThree(std::size_t openerClass, const Delimiter& closer) const {
    if (!single_.make || !double_.make) return false;
    const bool openerIsBoth = openerClass % 6 >= 3;
    const auto openerRest = static_cast<std::int64_t>(openerClass % 3);
    const std::int64_t closerRest = closer.initialLength % 3;
    return (openerIsBoth || closer.canOpen) && (openerRest + closerRest) % 3 == 0 && closerRest != 0;
}

/// The index of the nearest opener that takes the closer; -1 when none does.
std::int32_t EmphaseStrongBase::findOpener(std::u16string_view text, const Scope& scope,
                                           const Delimiter& closer) const {
    const std::size_t first = closer.character == triggers[0] ? 0 : 6;
    std::int32_t nearest = -1;
    for (std::size_t c = first; c < first + 6; ++c) {
        std::int32_t opener = scope.openers[c];
        if (opener <= nearest || isRefusedByThree(c, closer)) continue;
        if (isEmptyPair(text, delimiters_[static_cast<std::size_t>(opener)], closer))
            opener = delimiters_[static_cast<std::size_t>(opener)].below;
        nearest = std::max(nearest, opener);
    }
    return nearest;
}

void EmphaseStrongBase::pairCloser(InlineParserNode& parser, Scope& scope, std::int32_t closer) {
    Delimiter& run = delimiters_[static_cast<std::size_t>(closer)];
    while (run.length > 0 && mayClose(parser.text, run)) {
        const std::int32_t opener = findOpener(parser.text, scope, run);
        if (opener < 0) return;
        Delimiter& opening = delimiters_[static_cast<std::size_t>(opener)];
        const bool isPaired = processDelimiterPair(parser, scope, opening, run);
        const bool staysOpen = isPaired && opening.length > 0 && mayOpen(parser.text, opening);
        dropOpenersBehind(scope, staysOpen ? opener : opener - 1);
    }
}

void EmphaseStrongBase::dropOpenersBehind(Scope& scope, std::int32_t last) {
    for (std::int32_t& innermost : scope.openers)
        while (innermost > last)
            innermost = delimiters_[static_cast<std::size_t>(innermost)].below;
}

/// The opener gives its last characters, the closer its first.
bool EmphaseStrongBase::processDelimiterPair(InlineParserNode& parser, Scope& scope, Delimiter& opener,
                                             Delimiter& closer) {
    const std::int64_t width = opener.length >= 2 && closer.length >= 2 ? 2 : 1;
    const Pairing& pairing = width == 2 ? double_ : single_;
    if (!pairing.make) return false;
    const std::int64_t start = opener.end() - width;
    const std::int64_t end = closer.offset + width;
    std::unique_ptr<Node> node = pairing.make(start, end, opener.line, closer.line - opener.line);
    ParserBase::linkMarker(node.get(), pairing.openMarker, start, opener.end(), opener.line);
    ParserBase::linkMarker(node.get(), pairing.closeMarker, closer.offset, end, closer.line);
    finishNode(parser.text, node.get());
    Node* passed = scope.next ? scope.next->previousSibling : scope.node->lastChild;
    while (passed && passed->endWhenParsed() > start)
        passed = passed->previousSibling;
    if (!scope.node->mergeSubtreeOnParsedOffsets(std::move(node), passed)) return false;
    opener.length -= width;
    closer.length -= width;
    closer.offset += width;
    return true;
}

/// A walk with the tags of those nodes that nest without a bound; all others write themselves.
void EmphasisNode::toHtml(std::u16string& out, std::u16string_view markdown, std::int64_t offset) const {
    const Node* node = this;
    while (true) {
        if (const Tag* const tag = tagOf(node)) {
            out += tag->open;
            if (node->firstChild) {
                node = node->firstChild;
                continue;
            }
            out += tag->close;
        } else {
            node->toHtml(out, markdown, offset);
        }
        offset += node->charCount;
        while (node != this && !node->nextSibling) {
            node = node->parent;
            out += tagOf(node)->close;
        }
        if (node == this) return;
        node = node->nextSibling;
    }
}

} // namespace Ondo::Inline
