#include "corvane/operation/OperationRemoveLink.h"

#include <algorithm>
#include <string>

#include "corvane/client/FilenameMatch.h"
#include "corvane/inline/Folding.h"
#include "corvane/inline/LinkBase.h"
#include "corvane/inline/RawHtml.h"
#include "corvane/operation/LineWalk.h"

namespace CVN::Operation {

using Ondo::Node;
using Ondo::Range;

namespace {

bool isLinkOrImage(const Node* node) {
    return isOfType(node, Ondo::ONDO_LINK_NODE) || isOfType(node, Ondo::ONDO_IMAGE_NODE);
}

bool isMetadataComment(const Node* node) {
    if (!isOfType(node, Ondo::ONDO_RAW_HTML_NODE)) return false;
    const std::u16string& text = static_cast<const Ondo::Inline::RawHtmlNode*>(node)->text;
    return text.starts_with(u"<!-- {") && text != Ondo::Inline::Folding::comment;
}

Range withMetadata(const Node::Iterator& link) {
    const Node* const behind = link->nextSibling;
    return {link.offset, link->charCount + (isMetadataComment(behind) ? behind->charCount : 0)};
}

} // namespace

std::vector<Result> RemoveLink::run(const Ondo::Tree& tree, std::int64_t, std::int64_t,
                                    std::int64_t selectionOffset, std::int64_t selectionLength) const {
    const auto variants = FilenameMatch::filenameVariants(url_);
    const auto leadsThere = [&variants](const Node* node) {
        if (!isLinkOrImage(node)) return false;
        const std::u16string url = static_cast<const Ondo::Inline::LinkBaseNode*>(node)->destination();
        return !url.empty() && std::find(variants.begin(), variants.end(), url) != variants.end();
    };
    std::vector<Range> hits;
    for (Node::Iterator at = tree.root->begin(); at.node;) {
        if (leadsThere(at.node)) {
            hits.push_back(withMetadata(at));
            at.nextInSequenceSkippingSubtree();
        } else {
            at.nextInSequence();
        }
    }
    std::vector<Result> results;
    for (auto hit = hits.rbegin(); hit != hits.rend(); ++hit)
        Result::addToList(results, hit->offset, hit->length, {}, selectionOffset, selectionLength);
    return results;
}

} // namespace CVN::Operation
