#include "PathChange.h"

#include <algorithm>
#include <iterator>

#include "corvane/inline/Hashtag.h"
#include "corvane/inline/Segments.h"
#include "corvane/inline/Wikilink.h"
#include "corvane/tree/Tree.h"

namespace Cli {

namespace {

using Ondo::Node;
using Ondo::Segments;

std::u16string pathOf(const Node* node) {
    if (node->type == Ondo::ONDO_HASHTAG_NODE)
        return static_cast<const Ondo::Inline::HashtagNode*>(node)->encodedSegments();
    return static_cast<const Ondo::Inline::WikilinkNode*>(node)->encodedSegments();
}

} // namespace

bool PathChange::isMeant(std::u16string_view path) const {
    return Segments::isPrefix(from, path);
}

bool PathChange::isAbout(const std::vector<std::u16string>& paths) const {
    return std::any_of(paths.begin(), paths.end(), [&](const std::u16string& path) { return isMeant(path); });
}

/// The new path may itself lie below the old one: so what counts are those that nothing became.
bool PathChange::isLeftIn(const std::vector<std::u16string>& now,
                          const std::vector<std::u16string>& had) const {
    std::vector<std::u16string> wanted;
    for (const std::u16string& path : had)
        if (to && isMeant(path)) wanted.push_back(Segments::replacePrefix(path, from, *to));
    std::sort(wanted.begin(), wanted.end());
    std::vector<std::u16string> others;
    std::set_difference(now.begin(), now.end(), wanted.begin(), wanted.end(), std::back_inserter(others));
    return isAbout(others);
}

std::vector<std::u16string> pathsIn(std::u16string_view text, Ondo::RuleConfig::RuleSet rules,
                                    Ondo::NodeType type) {
    const Ondo::Tree tree(std::u16string(text), rules);
    std::vector<std::u16string> paths;
    for (Node::Iterator at = tree.root->begin(); at.node; at.nextInSequence())
        if (at->type == type) paths.push_back(pathOf(at.node));
    std::sort(paths.begin(), paths.end());
    return paths;
}

} // namespace Cli
