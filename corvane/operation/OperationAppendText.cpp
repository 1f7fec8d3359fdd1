#include "corvane/operation/OperationAppendText.h"

#include "corvane/operation/DocumentParts.h"
#include "corvane/operation/LineWalk.h"

namespace CVN::Operation {

namespace {

/// The lines with the line endings that they need in their place, and that place.
struct Placed {
    std::int64_t offset;
    std::u16string text;
};

/// Apart from the tags by an empty line, which may be there already.
Placed aboveTags(Ondo::Node::Iterator tags, const std::u16string& lines) {
    Ondo::Node::Iterator before = tags;
    before.previousSibling();
    if (isBlank(before.node)) return {before.offset, lines};
    return {tags.offset, lines + u'\n'};
}

Placed atEnd(const Ondo::Tree& tree, const std::u16string& lines) {
    const std::int64_t end = tree.length();
    const bool isLineMissing = end == 0 || !isLineStart(tree, end);
    return {end, isLineMissing ? u'\n' + lines : lines};
}

Placed place(const Ondo::Tree& tree, const std::u16string& lines) {
    const Ondo::Node::Iterator last = lastContentBlock(tree);
    if (isBlockOnlyTags(tree, last.node) && !isTagline(tree, last)) return aboveTags(last, lines);
    const std::int64_t footnotes = trailingFootnotesStart(tree);
    if (footnotes == tree.length()) return atEnd(tree, lines);
    return {footnotes, withLineBelow(tree, lines, footnotes)};
}

} // namespace

std::vector<Result> AppendText::run(const Ondo::Tree& tree, std::int64_t, std::int64_t,
                                    std::int64_t selectionOffset, std::int64_t selectionLength) const {
    if (text_.empty()) return {};
    std::u16string lines(text_);
    if (lines.back() != u'\n') lines += u'\n';
    const Placed placed = exact_ ? Placed{tree.length(), std::u16string(text_)} : place(tree, lines);
    std::vector<Result> results;
    Result::addToList(results, placed.offset, 0, placed.text, selectionOffset, selectionLength);
    return results;
}

} // namespace CVN::Operation
