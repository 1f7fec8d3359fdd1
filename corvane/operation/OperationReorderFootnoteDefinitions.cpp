#include "corvane/operation/OperationReorderFootnoteDefinitions.h"

#include <algorithm>
#include <numeric>
#include <string>

#include "corvane/operation/FootnoteLabels.h"

namespace CVN::Operation {

using Ondo::LabelEntry;
using Ondo::Node;
using Ondo::Range;
using Ondo::Tree;
using Entries = std::vector<LabelEntry>;

namespace {

std::u16string sortKey(const std::u16string& label) {
    constexpr std::size_t width = 10;
    if (!isNumericLabel(label)) return u":" + label;
    return std::u16string(width - std::min(width, label.size()), u'0') + label;
}

bool isDirectlyBefore(const LabelEntry& a, const LabelEntry& b) {
    const Node* next = a.node->nextSibling;
    if (isBlank(next)) next = next->nextSibling;
    return next == b.node;
}

/// The part of a definition that moves. Before it stand blanks and what its container puts there, which
/// decide what the line belongs to, and behind it the line ending.
Range bodyOf(const LabelEntry& entry) {
    const Node* const marker = entry.node->firstMarker();
    const Node* const last = entry.node->lastChild;
    const std::int64_t start = marker ? offsetIn(entry, marker) : entry.offset;
    const std::int64_t end =
        entry.offset + entry.node->charCount - (isLineEnding(last) ? last->charCount : 0);
    return {start, end - start};
}

/// Definitions that follow each other, and the order that they should have.
class Run {
public:
    Run(const LabelEntry* first, std::size_t count) : entries_(first, first + count), order_(count) {
        std::vector<std::u16string> keys;
        for (const LabelEntry& entry : entries_) {
            keys.push_back(sortKey(entry.node->label));
            bodies_.push_back(bodyOf(entry));
        }
        std::iota(order_.begin(), order_.end(), std::size_t{0});
        std::stable_sort(order_.begin(), order_.end(),
                         [&keys](std::size_t a, std::size_t b) { return keys[a] < keys[b]; });
    }

    bool isSorted() const { return std::is_sorted(order_.begin(), order_.end()); }
    std::int64_t start() const { return entries_.front().offset; }
    std::int64_t end() const { return entries_.back().offset + entries_.back().node->charCount; }

    /// Whether it holds an offset. What ends the note without a line ending holds its end.
    bool holds(std::int64_t offset) const {
        return start() <= offset && (offset < end() || (offset == end() && bodies_.back().end() == end()));
    }

    std::u16string sorted(const Tree& tree) const {
        std::u16string text;
        for (std::size_t place = 0; place < order_.size(); ++place) {
            const Range& old = bodies_[place];
            const Range& body = bodies_[order_[place]];
            const std::int64_t from = entries_[place].offset;
            text += tree.markdownIn({from, old.offset - from});
            text += tree.markdownIn({body.offset, body.length});
            text += tree.markdownIn({old.end(), from + entries_[place].node->charCount - old.end()});
        }
        return text;
    }

    /// Where an offset that the run holds goes: with the definition at or before it.
    std::int64_t moved(std::int64_t offset) const {
        const auto behind =
            std::upper_bound(entries_.begin(), entries_.end(), offset,
                             [](std::int64_t at, const LabelEntry& entry) { return at < entry.offset; });
        const auto held = static_cast<std::size_t>(behind - entries_.begin()) - 1;
        std::int64_t to = start();
        for (std::size_t place = 0; order_[place] != held; ++place)
            to += lengthAround(place) + bodies_[order_[place]].length;
        const auto place =
            static_cast<std::size_t>(std::find(order_.begin(), order_.end(), held) - order_.begin());
        to += bodies_[place].offset - entries_[place].offset;
        return to + std::clamp(offset - bodies_[held].offset, std::int64_t{0}, bodies_[held].length);
    }

private:
    std::int64_t lengthAround(std::size_t place) const {
        return entries_[place].node->charCount - bodies_[place].length;
    }

    Entries entries_;
    std::vector<Range> bodies_;
    std::vector<std::size_t> order_; ///< at each place the index of the definition that goes there
};

/// The code unit at an offset of the text that results from the end to the start of the note leave.
char16_t unitBehind(const std::vector<Result>& results, const Tree& tree, std::int64_t offset) {
    for (auto each = results.rbegin(); each != results.rend() && offset >= each->replaceOffset; ++each) {
        const std::int64_t distance = offset - each->replaceOffset;
        if (distance < each->replacementLength())
            return each->replacementString[static_cast<std::size_t>(distance)];
        offset += each->replaceLength - each->replacementLength();
    }
    return unitAt(tree, offset);
}

/// Puts the selection of the last result where it goes with its definition.
void moveSelection(std::vector<Result>& results, const Tree& tree, std::int64_t offset, std::int64_t length) {
    std::int64_t textLength = tree.length();
    for (const Result& each : results)
        textLength += each.replacementLength() - each.replaceLength;
    std::int64_t end = std::min(offset + length, textLength);
    const bool splitsPair = (unitBehind(results, tree, end - 1) & 0xFC00) == 0xD800 &&
                            (unitBehind(results, tree, end) & 0xFC00) == 0xDC00;
    if (splitsPair && end > offset) --end;
    results.back().selectionOffset = offset;
    results.back().selectionLength = end - offset;
}

void reorder(const Run& run, const Tree& tree, Range selection, std::vector<Result>& results) {
    if (run.isSorted()) return;
    if (!results.empty()) selection = {results.back().selectionOffset, results.back().selectionLength};
    Result::addToList(results, run.start(), run.end() - run.start(), run.sorted(tree), selection.offset,
                      selection.length);
    if (run.holds(selection.offset))
        moveSelection(results, tree, run.moved(selection.offset), selection.length);
}

} // namespace

std::vector<Result> ReorderFootnoteDefinitions::run(const Tree& tree, std::int64_t, std::int64_t,
                                                    std::int64_t selectionOffset,
                                                    std::int64_t selectionLength) const {
    const Ondo::LabeledConnections* const footnotes = footnotesOf(tree);
    if (!footnotes) return {};
    const Entries definitions = footnotes->definitions();
    std::vector<Result> results;
    for (std::size_t end = definitions.size(); end > 0;) {
        std::size_t first = end - 1;
        while (first > 0 && isDirectlyBefore(definitions[first - 1], definitions[first]))
            --first;
        reorder(Run(&definitions[first], end - first), tree, {selectionOffset, selectionLength}, results);
        end = first;
    }
    return results;
}

} // namespace CVN::Operation
