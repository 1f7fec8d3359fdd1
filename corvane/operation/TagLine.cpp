#include "corvane/operation/TagLine.h"

#include "corvane/operation/DocumentParts.h"
#include "corvane/operation/LineWalk.h"

namespace CVN::Operation {

bool isInTag(const Ondo::Node* node) {
    return selfOrAncestor(node, Ondo::ONDO_HASHTAG_NODE);
}

bool isOnlyFootnotes(const Ondo::Tree& tree) {
    if (trailingFootnotesStart(tree) == tree.length()) return false;
    const Ondo::Node* const last = lastContentBlock(tree).node;
    return !last || last->type == Ondo::ONDO_YAML_NODE;
}

std::u16string tagAboveFootnotes(const Ondo::Node* first, std::u16string tag) {
    int missing = 2; // line endings: the tag's own, and that of an empty line
    for (; isBlank(first) && missing > 0; first = first->nextSibling)
        --missing;
    return tag.append(static_cast<std::size_t>(missing), u'\n');
}

} // namespace CVN::Operation
