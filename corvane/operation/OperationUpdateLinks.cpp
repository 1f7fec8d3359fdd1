#include "corvane/operation/OperationUpdateLinks.h"

#include <algorithm>
#include <string>
#include <utility>

#include "corvane/client/FilenameMatch.h"
#include "corvane/client/StringBuilder.h"
#include "corvane/inline/LinkBase.h"
#include "corvane/operation/LineWalk.h"
#include "corvane/scan/Util.h"

namespace CVN::Operation {

using Ondo::Node;

namespace {

bool isDestination(const Node* node) {
    return isOfType(node, Ondo::ONDO_LINK_DESTINATION_ATTRIBUTE_NODE) ||
           isOfType(node, Ondo::ONDO_IMAGE_DESTINATION_ATTRIBUTE_NODE);
}

/// Angle brackets can't help these, nor keep a pipe from dividing a cell. A telephone number is written
/// without escapes.
bool isUnwritable(std::u16string_view safeUrl) {
    return safeUrl.empty() || safeUrl.find_first_of(u"\r<>\\|") != std::u16string_view::npos;
}

/// What ends a destination that has no brackets, or may.
bool needsBrackets(char16_t c) {
    return c <= u' ' || c == u'\x7F' || c == u'(' || c == u')';
}

bool isOpenBracket(const Node* node) {
    return isOfType(node, Ondo::ONDO_LINK_DESTINATION_OPEN_MARKER_NODE) ||
           isOfType(node, Ondo::ONDO_IMAGE_DESTINATION_OPEN_MARKER_NODE);
}

/// `attribute` is the destination in place of which the URL goes.
std::u16string destinationText(const Node* attribute, const std::u16string& safeUrl) {
    const bool isBare = std::none_of(safeUrl.begin(), safeUrl.end(), needsBrackets);
    if (isBare || isOpenBracket(attribute->previousSibling)) return safeUrl;
    return u"<" + safeUrl + u">";
}

} // namespace

std::vector<Result> UpdateLinks::run(const Ondo::Tree& tree, std::int64_t, std::int64_t,
                                     std::int64_t selectionOffset, std::int64_t selectionLength) const {
    const auto variants = FilenameMatch::filenameVariants(from_);
    const std::u16string escaped = Ondo::Util::percentEscape(from_);
    const std::u16string safeUrl = StringBuilder::safeURLString(to_);
    if (isUnwritable(safeUrl)) return {};

    std::vector<Node::Iterator> hits;
    for (Node::Iterator at = tree.root->begin(); at.node; at.nextInSequence()) {
        if (!isDestination(at.node)) continue;
        const std::u16string url = static_cast<const Ondo::Inline::LinkBaseNode*>(at->parent)->destination();
        const bool isMatch =
            url == escaped || std::find(variants.begin(), variants.end(), url) != variants.end();
        if (isMatch && !url.empty()) hits.push_back(at);
    }
    std::vector<Result> results;
    for (auto hit = hits.rbegin(); hit != hits.rend(); ++hit) {
        std::u16string text = destinationText(hit->node, safeUrl);
        if (textOf(tree, *hit) != text)
            Result::addToList(results, hit->offset, (*hit)->charCount, std::move(text), selectionOffset,
                              selectionLength);
    }
    return results;
}

} // namespace CVN::Operation
