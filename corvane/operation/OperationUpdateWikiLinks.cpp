#include "corvane/operation/OperationUpdateWikiLinks.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "corvane/inline/Segments.h"
#include "corvane/inline/Wikilink.h"
#include "corvane/operation/LineWalk.h"
#include "corvane/scan/Util.h"

namespace CVN::Operation {

using Ondo::Node;
using Ondo::Segments;
using Ondo::Tree;
using Ondo::Inline::WikilinkNode;

namespace {

/// Guarded text is for places where something opened before the link looks for its end, which a name must not
/// hold: a code span, a formula, an HTML tag, a comment, the parentheses of a link.
enum class Spelling { Plain, Guarded };

struct Guard {
    char16_t character;
    std::u16string_view entity;
};
constexpr Guard guards[] = {{u'`', u"&grave;"}, {u'$', u"&dollar;"}, {u'<', u"&lt;"},   {u'>', u"&gt;"},
                            {u'(', u"&lpar;"},  {u')', u"&rpar;"},   {u'"', u"&quot;"}, {u'\'', u"&apos;"},
                            {u'|', u"&vert;"},  {u'&', u"&amp;"}};

bool beginsEntity(std::u16string_view text) {
    if (text.size() < 2 || text[0] != u'&') return false;
    const char16_t c = Ondo::Util::downcaseAscii(text[1]);
    return c == u'#' || (c >= u'a' && c <= u'z');
}

void addSpelt(std::u16string& out, std::u16string_view rest, Spelling spelling) {
    const char16_t c = rest.front();
    if (spelling == Spelling::Guarded) {
        const auto* const guard = std::find_if(std::begin(guards), std::end(guards),
                                               [c](const Guard& each) { return each.character == c; });
        if (guard != std::end(guards)) {
            out += guard->entity;
            return;
        }
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

std::u16string wikilink(std::u16string_view target, std::u16string_view separator,
                        std::u16string_view alias) {
    std::u16string text = u"[[";
    text += target;
    if (!alias.empty()) text.append(separator).append(alias);
    return text + u"]]";
}

/// A segment whose blanks at the ends would be trimmed, or that would end the line, is no segment when read
/// again; an empty one is, only before a header.
bool isSpellable(const std::vector<std::u16string>& segments) {
    const auto isKept = [](const std::u16string& segment) {
        return Segments::normalizeSegment(segment) == segment &&
               segment.find_first_of(u"\r\n") == std::u16string::npos;
    };
    return !segments.empty() && segments.size() <= 2 && !segments.back().empty() &&
           std::all_of(segments.begin(), segments.end(), isKept);
}

struct Link {
    std::int64_t offset;
    std::int64_t length;
    std::u16string target; ///< encoded, the new one
    std::u16string separator;
    std::u16string alias; ///< as it is written

    std::u16string text(Spelling spelling) const {
        return wikilink(spelt(target, spelling), separator, alias);
    }
};

/// In a cell the separator may have had to be written escaped.
Link linkAt(const Tree& tree, const Node::Iterator& at, std::u16string target) {
    Link link{at.offset, at->charCount, std::move(target), u"|", {}};
    Node::Iterator child = at;
    for (child.firstChild(); child.node; child.nextSibling()) {
        if (child->type == Ondo::ONDO_WIKILINK_ALIAS_SEPARATOR_MARKER_NODE)
            link.separator = textOf(tree, child);
        if (child->type == Ondo::ONDO_WIKILINK_ALIAS_ATTRIBUTE_NODE) link.alias = textOf(tree, child);
    }
    return link;
}

struct Edit {
    std::int64_t offset;
    std::int64_t length;
    std::u16string text;
};

/// The links of a note that are to change, block by block, with texts that were tried out.
class Renaming {
public:
    Renaming(const Tree& tree, std::u16string from, std::u16string to)
        : tree_(tree), from_(std::move(from)), to_(std::move(to)), trial_({}, tree.ruleSet) {
        for (const std::string_view rule : {"MathBlock", "MathSpan"})
            if (!tree.ruleConfig().ruleInstanceByName(rule)) trial_.removeRuleByName(rule);
    }

    /// Adds the edits of a first-level block, of links that stand at `start` or behind it.
    void addBlock(const Node::Iterator& block, std::int64_t start, std::vector<Edit>& edits);

private:
    std::vector<Link> linksIn(const Node::Iterator& block, std::int64_t start) const;
    std::u16string respelt(const Node::Iterator& block, const std::vector<Link>& links,
                           Spelling spelling) const;
    bool isMeant(const Node::Iterator& block, const std::vector<Link>& links, std::u16string text);

    const Tree& tree_;
    std::u16string from_;
    std::u16string to_;
    Tree trial_;
};

void Renaming::addBlock(const Node::Iterator& block, std::int64_t start, std::vector<Edit>& edits) {
    const std::vector<Link> links = linksIn(block, start);
    if (links.empty()) return;
    for (const Spelling spelling : {Spelling::Plain, Spelling::Guarded}) {
        if (!isMeant(block, links, respelt(block, links, spelling))) continue;
        for (const Link& link : links)
            edits.push_back({link.offset, link.length, link.text(spelling)});
        return;
    }
}

std::vector<Link> Renaming::linksIn(const Node::Iterator& block, std::int64_t start) const {
    std::vector<Link> links;
    for (Node::Iterator at = block; at.node && at.offset < block.end(); at.nextInSequence()) {
        if (at->type != Ondo::ONDO_WIKILINK_NODE || at.offset < start) continue;
        const std::u16string old = static_cast<const WikilinkNode*>(at.node)->encodedSegments();
        if (!Segments::isPrefix(from_, old)) continue;
        std::u16string target = Segments::replacePrefix(old, from_, to_);
        if (target != old && isSpellable(Segments::decode(target)))
            links.push_back(linkAt(tree_, at, std::move(target)));
    }
    return links;
}

std::u16string Renaming::respelt(const Node::Iterator& block, const std::vector<Link>& links,
                                 Spelling spelling) const {
    std::u16string text;
    std::int64_t end = block.offset;
    for (const Link& link : links) {
        text += tree_.markdownIn({end, link.offset - end});
        text += link.text(spelling);
        end = link.offset + link.length;
    }
    text += tree_.markdownIn({end, block.end() - end});
    return text;
}

/// Whether the block parses as before from its new text, but for the targets of those links.
bool Renaming::isMeant(const Node::Iterator& block, const std::vector<Link>& links, std::u16string text) {
    // Front matter begins on the first line only.
    trial_.replaceAll(u"\n" + std::move(text));
    const Node* tried = trial_.root->firstChild->nextSibling;
    auto link = links.begin();
    for (Node::Iterator at = block; at.node && at.offset < block.end();) {
        if (!tried || tried->type != at->type) return false;
        if (at->type != Ondo::ONDO_WIKILINK_NODE) {
            if (at->isLeafKind() && tried->charCount != at->charCount) return false;
            ++at;
            tried = tried->nextInSequence();
            continue;
        }
        const auto& before = *static_cast<const WikilinkNode*>(at.node);
        const auto& behind = *static_cast<const WikilinkNode*>(tried);
        const bool isRenamed = link != links.end() && link->offset == at.offset;
        const std::u16string target = isRenamed ? link->target : before.encodedSegments();
        if (behind.encodedSegments() != target || behind.alias != before.alias) return false;
        if (isRenamed) ++link;
        at.nextInSequenceSkippingSubtree();
        tried = tried->nextInSequenceSkippingSubtree();
    }
    return !tried;
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
    const std::u16string from = Segments::encode(Segments::decode(from_));
    const std::u16string to = Segments::encode(Segments::decode(to_));
    if (from.empty() || to.empty()) return {};
    const std::int64_t start = skipInTitle_ ? titleEnd(tree) : 0;

    std::vector<Edit> edits;
    Renaming renaming(tree, from, to);
    Node::Iterator block = tree.root->begin();
    for (block.firstChild(); block.node; block.nextSibling())
        renaming.addBlock(block, start, edits);

    std::vector<Result> results;
    for (auto edit = edits.rbegin(); edit != edits.rend(); ++edit)
        Result::addToList(results, edit->offset, edit->length, std::move(edit->text), selectionOffset,
                          selectionLength);
    return results;
}

std::u16string UpdateWikiLinks::encodedSegmentsToMarkdownWikiLink(std::u16string_view encoded,
                                                                  std::u16string_view alias) {
    return wikilink(encodedSegmentsToMarkdown(encoded), u"|", alias);
}

std::u16string UpdateWikiLinks::encodedSegmentsToMarkdown(std::u16string_view encoded) {
    return spelt(encoded, Spelling::Plain);
}

std::u16string UpdateWikiLinks::decodedSegmentsFromMarkdown(std::u16string_view encoded) {
    std::u16string joined;
    for (const std::u16string& segment : Segments::decode(encoded)) {
        if (!joined.empty()) joined += u'/';
        joined += segment;
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
