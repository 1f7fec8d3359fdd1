#include "corvane/operation/OperationUpdateWikiLinks.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "corvane/inline/Segments.h"
#include "corvane/inline/Wikilink.h"
#include "corvane/operation/InlineRuns.h"
#include "corvane/operation/LineWalk.h"
#include "corvane/operation/TrialParse.h"
#include "corvane/scan/Util.h"

namespace CVN::Operation {

using Ondo::Node;
using Ondo::Segments;
using Ondo::Tree;
using Ondo::Inline::WikilinkNode;

namespace {

/// Before the text of a block that is tried out: front matter begins on the first line only.
constexpr std::u16string_view trialStart = u"\n";

/// From the one that reads best to the safest. A cell is one in which an escaped pipe separates the alias.
/// Guarded text is for places where something opened before the link looks for its end, which a name must not
/// hold: a code span, a formula, an HTML tag, a comment, the parentheses of a link; or where a bare address
/// follows.
enum class Spelling { Plain, Cell, Guarded };

struct Guard {
    char16_t character;
    std::u16string_view entity;
    Spelling since = Spelling::Guarded;
};
constexpr Guard guards[] = {{u'|', u"&vert;", Spelling::Cell},
                            {u'`', u"&grave;"},
                            {u'$', u"&dollar;"},
                            {u'<', u"&lt;"},
                            {u'>', u"&gt;"},
                            {u'(', u"&lpar;"},
                            {u')', u"&rpar;"},
                            {u'"', u"&quot;"},
                            {u'\'', u"&apos;"},
                            {u'&', u"&amp;"},
                            {u':', u"&colon;"},
                            {u'@', u"&commat;"}};

bool beginsEntity(std::u16string_view text) {
    if (text.size() < 2 || text[0] != u'&') return false;
    const char16_t c = Ondo::Util::downcaseAscii(text[1]);
    return c == u'#' || (c >= u'a' && c <= u'z');
}

void addSpelt(std::u16string& out, std::u16string_view rest, Spelling spelling) {
    const char16_t c = rest.front();
    const auto* const guard =
        std::find_if(std::begin(guards), std::end(guards), [c, spelling](const Guard& each) {
            return each.character == c && each.since <= spelling;
        });
    if (guard != std::end(guards)) {
        out += guard->entity;
        return;
    }
    if (c == u'[' || c == u']' || c == u'|' || beginsEntity(rest)) out += u'\\';
    out += c;
}

std::u16string spelt(std::u16string_view encoded, Spelling spelling) {
    std::u16string text;
    for (std::size_t i = 0; i < encoded.size(); ++i)
        addSpelt(text, encoded.substr(i), spelling);
    return text;
}

/// Without blanks at the ends of the segments.
std::vector<std::u16string> trimmedSegments(std::u16string_view encoded) {
    std::vector<std::u16string> segments = Segments::decode(encoded);
    for (std::u16string& segment : segments)
        segment = Segments::normalizeSegment(segment);
    return segments;
}

/// A target as a wikilink to it is read: all behind the first slash is one header, an empty one is none.
std::u16string canonical(std::u16string_view encoded) {
    std::vector<std::u16string> segments = trimmedSegments(encoded);
    for (std::size_t i = 2; i < segments.size(); ++i)
        segments[1].append(u"/").append(segments[i]);
    if (segments.size() > 2) segments.resize(2);
    if (segments.size() == 2 && segments.back().empty()) segments.pop_back();
    return Segments::encode(segments);
}

struct Link {
    std::int64_t offset;
    std::int64_t length;
    std::u16string target; ///< the new one, canonical
    std::u16string rest;   ///< of the link, behind the segments that change, as it is written
    std::u16string text{}; ///< the new one
    std::int64_t trialOffset = 0;
};

/// The header, the alias and the closing marker, with what separates them: in a cell that may have had to be
/// written escaped. Separators of nothing are left out.
std::u16string restOf(const Tree& tree, const Node::Iterator& link, bool keepsHeader) {
    std::u16string rest;
    std::u16string separator;
    Node::Iterator at = link;
    for (at.nextInSequence(); at.node && at.offset < link.end(); at.nextInSequence()) {
        if (at->type == Ondo::ONDO_WIKILINK_SEPARATOR_MARKER_NODE ||
            at->type == Ondo::ONDO_WIKILINK_ALIAS_SEPARATOR_MARKER_NODE)
            separator = textOf(tree, at);
        const bool isKept = (keepsHeader && at->type == Ondo::ONDO_WIKILINK_SEGMENT_ATTRIBUTE_NODE) ||
                            at->type == Ondo::ONDO_WIKILINK_ALIAS_ATTRIBUTE_NODE;
        if (isKept && !separator.empty()) rest.append(separator).append(textOf(tree, at));
    }
    return rest + u"]]";
}

/// The links of a note that are to change, block by block, with texts that were tried out.
class Renaming {
public:
    /// `from` is canonical.
    Renaming(const Tree& tree, std::u16string from, std::u16string to)
        : tree_(tree), from_(std::move(from)), to_(std::move(to)), trial_(emptyTrial(tree)),
          oldTrial_(emptyTrial(tree)) {}

    /// Adds those of a first-level block that stand at `start` or behind it.
    void addBlock(const Node::Iterator& block, std::int64_t start, std::vector<Link>& changes);

private:
    std::vector<Link> linksIn(const Node::Iterator& block, std::int64_t start) const;
    void spell(const Node::Iterator& block, std::vector<Link>& links, Spelling spelling);
    bool isMeant(const std::vector<Link>& links) const;

    const Tree& tree_;
    std::u16string from_;
    std::u16string to_;
    Tree trial_;    ///< of a block with its links spelt anew
    Tree oldTrial_; ///< of the block as it is: without the rest of the note it may be parsed differently
};

/// When no spelling leaves the surroundings as they were, it is still better than a link to nothing.
void Renaming::addBlock(const Node::Iterator& block, std::int64_t start, std::vector<Link>& changes) {
    std::vector<Link> links = linksIn(block, start);
    if (links.empty()) return;
    oldTrial_.replaceAll(std::u16string(trialStart).append(textOf(tree_, block)));
    for (const Spelling spelling : {Spelling::Plain, Spelling::Cell, Spelling::Guarded}) {
        spell(block, links, spelling);
        if (isMeant(links)) break;
    }
    auto link = links.begin();
    for (Node::Iterator at = trial_.root->begin(); at.node; at.nextInSequence()) {
        if (at->type != Ondo::ONDO_WIKILINK_NODE) continue;
        while (link != links.end() && link->trialOffset < at.offset)
            ++link;
        if (link == links.end()) return;
        const bool isWhole = at.offset == link->trialOffset && at->charCount == sizeOf(link->text);
        if (isWhole) changes.push_back(std::move(*link));
    }
}

std::vector<Link> Renaming::linksIn(const Node::Iterator& block, std::int64_t start) const {
    const std::int64_t fromCount = Segments::segmentCount(from_);
    const std::u16string folded = Ondo::Util::downcaseUnicode(from_);
    std::vector<Link> links;
    for (Node::Iterator at = block; at.node && at.offset < block.end(); at.nextInSequence()) {
        if (at->type != Ondo::ONDO_WIKILINK_NODE || at.offset < start) continue;
        const std::u16string old = static_cast<const WikilinkNode*>(at.node)->encodedSegments();
        if (!Segments::isFoldedPrefix(folded, old)) continue;
        std::u16string target = canonical(Segments::replacePrefix(old, from_, to_));
        if (target != canonical(old))
            links.push_back({at.offset, at->charCount, std::move(target), restOf(tree_, at, fromCount == 1)});
    }
    return links;
}

void Renaming::spell(const Node::Iterator& block, std::vector<Link>& links, Spelling spelling) {
    const std::u16string target = spelt(to_, spelling);
    std::u16string text(trialStart);
    std::int64_t end = block.offset;
    for (Link& link : links) {
        text += tree_.markdownIn({end, link.offset - end});
        link.trialOffset = sizeOf(text);
        link.text = u"[[" + target + link.rest;
        text += link.text;
        end = link.offset + link.length;
    }
    text += tree_.markdownIn({end, block.end() - end});
    trial_.replaceAll(text);
}

/// Whether the block parses as before, but for the targets of those links.
bool Renaming::isMeant(const std::vector<Link>& links) const {
    const Node* before = oldTrial_.root->firstChild;
    Node::Iterator at = trial_.root->begin();
    auto link = links.begin();
    for (at.firstChild(); before && at.node;) {
        if (before->type != at->type) return false;
        if (at->type != Ondo::ONDO_WIKILINK_NODE) {
            if (at->isLeafKind() && before->charCount != at->charCount) return false;
            before = before->nextInSequence();
            at.nextInSequence();
            continue;
        }
        const auto& was = *static_cast<const WikilinkNode*>(before);
        const auto& is = *static_cast<const WikilinkNode*>(at.node);
        const bool isRenamed = link != links.end() && link->trialOffset == at.offset;
        const std::u16string target = isRenamed ? link++->target : canonical(was.encodedSegments());
        if (canonical(is.encodedSegments()) != target || is.alias != was.alias) return false;
        before = before->nextInSequenceSkippingSubtree();
        at.nextInSequenceSkippingSubtree();
    }
    return !before && !at.node;
}

/// Behind the first line that is neither front matter nor blank.
std::int64_t titleEnd(const Tree& tree) {
    Node::Iterator block = tree.root->begin();
    block.firstChild();
    if (isOfType(block.node, Ondo::ONDO_YAML_NODE)) block.nextSibling();
    while (isBlank(block.node))
        block.nextSibling();
    if (!block.node) return tree.length();
    block.endOfLine();
    return block.end();
}

} // namespace

std::vector<Result> UpdateWikiLinks::run(const Tree& tree, std::int64_t, std::int64_t,
                                         std::int64_t selectionOffset, std::int64_t selectionLength) const {
    const std::u16string from = canonical(from_);
    const bool isOneLine = to_.find_first_of(u"\r\n") == std::u16string_view::npos;
    if (from.empty() || canonical(to_).empty() || !isOneLine) return {};
    const std::int64_t start = skipInTitle_ ? titleEnd(tree) : 0;

    std::vector<Link> changes;
    Renaming renaming(tree, from, Segments::encode(trimmedSegments(to_)));
    Node::Iterator block = tree.root->begin();
    for (block.firstChild(); block.node; block.nextSibling())
        renaming.addBlock(block, start, changes);

    std::vector<Result> results;
    for (auto link = changes.rbegin(); link != changes.rend(); ++link)
        Result::addToList(results, link->offset, link->length, std::move(link->text), selectionOffset,
                          selectionLength);
    return results;
}

std::u16string UpdateWikiLinks::encodedSegmentsToMarkdownWikiLink(std::u16string_view encoded,
                                                                  std::u16string_view alias) {
    std::u16string text = u"[[" + encodedSegmentsToMarkdown(encoded);
    if (!alias.empty()) text.append(u"|").append(alias);
    return text + u"]]";
}

std::u16string UpdateWikiLinks::encodedSegmentsToMarkdown(std::u16string_view encoded) {
    return spelt(encoded, Spelling::Plain);
}

std::u16string UpdateWikiLinks::decodedSegmentsFromMarkdown(std::u16string_view encoded) {
    const std::vector<std::u16string> segments = Segments::decode(encoded);
    std::u16string joined;
    for (std::size_t i = 0; i < segments.size(); ++i) {
        if (i > 0) joined += u'/';
        joined += segments[i];
    }
    std::u16string text;
    for (std::size_t i = 0; i < joined.size(); ++i) {
        const std::u16string_view rest = std::u16string_view(joined).substr(i);
        const bool isEscape = rest[0] == u'\\' && rest.size() > 1 &&
                              (rest[1] == u'[' || rest[1] == u'\\' || rest[1] == u']' || rest[1] == u'|' ||
                               beginsEntity(rest.substr(1)));
        if (isEscape) ++i;
        text += joined[i];
    }
    return text;
}

} // namespace CVN::Operation
