#include "corvane/operation/OperationEscapeTag.h"

namespace CVN::Operation {

namespace {

std::u16string escaped(const Ondo::Tree& tree, const Ondo::Node::Iterator& tag) {
    std::u16string text = u"\\" + std::u16string(textOf(tree, tag));
    if (isOfType(tag->lastChild, Ondo::ONDO_HASHTAG_CLOSE_MARKER_NODE)) text.insert(text.size() - 1, u"\\");
    return text;
}

} // namespace

std::vector<Result> EscapeTag::run(const Ondo::Tree& tree, std::int64_t, std::int64_t,
                                   std::int64_t selectionOffset, std::int64_t selectionLength) const {
    std::vector<Result> results;
    forEachTag(tree, tag_, [&](const Ondo::Node::Iterator& at) {
        Result::addToList(results, at.offset, at->charCount, escaped(tree, at), selectionOffset,
                          selectionLength);
    });
    return results;
}

} // namespace CVN::Operation
