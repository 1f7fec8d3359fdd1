#include "corvane/operation/OperationRenumberFootnotes.h"

#include <algorithm>
#include <string>
#include <unordered_map>
#include <unordered_set>

#include "corvane/operation/FootnoteLabels.h"
#include "corvane/scan/Util.h"

namespace CVN::Operation {

using namespace Ondo;

namespace {

/// The new labels by the old ones.
using Numbers = std::unordered_map<std::u16string, std::u16string>;

Numbers numbersFor(const std::vector<LabelEntry>& references) {
    Numbers numbers;
    for (const LabelEntry& reference : references) {
        const std::u16string& label = reference.node->label;
        if (isNumericLabel(label))
            numbers.try_emplace(label, Util::toString(static_cast<std::int64_t>(numbers.size()) + 1));
    }
    return numbers;
}

struct Change {
    std::int64_t offset;
    std::int64_t length;
    std::u16string text;
};

/// What is written of a numeric label's number: digits, or entities for them. The blanks around it stay, and
/// so do line endings, as what stands on the lines may depend on them.
Range numberIn(const Tree& tree, const Range& label) {
    const std::u16string_view text = tree.markdownIn(label);
    const std::size_t start = std::min(text.find_first_of(u"0123456789&"), text.size());
    const std::size_t end = text.find_last_of(u"0123456789;") + 1;
    return {label.offset + static_cast<std::int64_t>(start), static_cast<std::int64_t>(end - start)};
}

/// Gathers the labels that change.
class Changes {
public:
    explicit Changes(const Tree& tree) : tree_(tree) {}

    void addLabel(const LabelEntry& entry, const Node* marker, const Node* label,
                  const std::u16string& number) {
        const std::int64_t start = offsetIn(entry, marker) + marker->charCount;
        const Range written = numberIn(tree_, {start, label ? label->charCount : 0});
        if (tree_.markdownIn(written) != number) changes_.push_back({written.offset, written.length, number});
    }

    void addMark(const LabelEntry& entry, const Node* closeMarker, std::u16string mark) {
        changes_.push_back({offsetIn(entry, closeMarker), 0, std::move(mark)});
    }

    std::vector<Result> results(std::int64_t selectionOffset, std::int64_t selectionLength) && {
        std::sort(changes_.begin(), changes_.end(),
                  [](const Change& a, const Change& b) { return a.offset > b.offset; });
        std::vector<Result> results;
        for (Change& each : changes_)
            Result::addToList(results, each.offset, each.length, std::move(each.text), selectionOffset,
                              selectionLength);
        return results;
    }

private:
    const Tree& tree_;
    std::vector<Change> changes_;
};

} // namespace

std::vector<Result> RenumberFootnotes::run(const Tree& tree, std::int64_t, std::int64_t,
                                           std::int64_t selectionOffset, std::int64_t selectionLength) const {
    const LabeledConnections* const footnotes = footnotesOf(tree);
    if (!footnotes) return {};
    const std::vector<LabelEntry> references = footnotes->references();
    const Numbers numbers = numbersFor(references);
    std::unordered_set<std::u16string> taken;
    for (const auto& [label, number] : numbers)
        taken.insert(number);

    UnusedMarks markFor(*footnotes);
    Changes changes(tree);
    for (const LabelEntry& entry : references) {
        const auto number = numbers.find(entry.node->label);
        if (number == numbers.end()) continue;
        const Node* const markerNode = entry.node->firstMarker();
        const Node* const labelNode = entry.node->firstAttribute();
        CORVANE_ASSERT(markerNode && markerNode->type == ONDO_FOOTNOTE_REFERENCE_LABEL_OPEN_MARKER_NODE,
                       "OperationRenumberFootnotes");
        CORVANE_ASSERT(labelNode == nullptr ||
                           labelNode->type == ONDO_FOOTNOTE_REFERENCE_LABEL_ATTRIBUTE_NODE,
                       "OperationRenumberFootnotes");
        changes.addLabel(entry, markerNode, labelNode, number->second);
    }
    for (const LabelEntry& entry : footnotes->definitions()) {
        const auto number = numbers.find(entry.node->label);
        const bool isPushedOut = number == numbers.end() && taken.contains(entry.node->label);
        if (number == numbers.end() && !isPushedOut) continue;
        const Node* const markerNode = entry.node->firstMarker();
        const Node* const labelNode = entry.node->firstAttribute();
        CORVANE_ASSERT(markerNode && markerNode->type == ONDO_FOOTNOTE_DEFINITION_LABEL_OPEN_MARKER_NODE,
                       "OperationRenumberFootnotes");
        CORVANE_ASSERT(labelNode == nullptr ||
                           labelNode->type == ONDO_FOOTNOTE_DEFINITION_LABEL_ATTRIBUTE_NODE,
                       "OperationRenumberFootnotes");
        if (isPushedOut)
            changes.addMark(entry, markerNode->nextMarker(), markFor(entry.node->label));
        else
            changes.addLabel(entry, markerNode, labelNode, number->second);
    }
    return std::move(changes).results(selectionOffset, selectionLength);
}

} // namespace CVN::Operation
