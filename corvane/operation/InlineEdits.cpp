#include "corvane/operation/InlineEdits.h"

#include <algorithm>
#include <utility>

namespace CVN::Operation {

void InlineEdits::insert(std::int64_t offset, std::u16string_view text) {
    add({offset, 0, std::u16string(text)});
}

void InlineEdits::replace(std::int64_t offset, std::int64_t length, std::u16string_view text) {
    add({offset, length, std::u16string(text)});
}

/// An insertion goes in behind the replacement that starts where it stands, which else would take it away.
void InlineEdits::add(Edit edit) {
    if (edit.length == 0 && edit.text.empty()) return;
    const auto isBehind = [&](const Edit& each) {
        if (each.offset != edit.offset) return each.offset > edit.offset;
        return each.length > 0 || edit.length == 0;
    };
    const auto place = std::partition_point(edits_.begin(), edits_.end(), isBehind);
    if (place != edits_.begin() && std::prev(place)->offset < edit.end()) return;
    if (place != edits_.end() && place->end() > edit.offset) return;
    edits_.insert(place, std::move(edit));
}

void InlineEdits::dropResizingBefore(std::int64_t offset) {
    const auto first = std::partition_point(edits_.begin(), edits_.end(),
                                            [&](const Edit& each) { return each.offset >= offset; });
    const auto resizes = [](const Edit& each) {
        return static_cast<std::int64_t>(each.text.size()) != each.length;
    };
    edits_.erase(std::remove_if(first, edits_.end(), resizes), edits_.end());
}

void InlineEdits::growSelection(std::int64_t before, std::int64_t behind) {
    if (edits_.empty()) return;
    edits_.back().growsBefore += before;
    edits_.back().growsBehind += behind;
}

std::vector<Result> InlineEdits::results(const Ondo::Range& selection, std::int64_t textLength) const {
    std::vector<Result> list;
    for (const Edit& each : edits_) {
        Result::addToList(list, each.offset, each.length, each.text, selection.offset, selection.length);
        Result& last = list.back();
        textLength += last.replacementLength() - last.replaceLength;
        const std::int64_t before = std::min(each.growsBefore, last.selectionOffset);
        last.selectionOffset -= before;
        last.selectionLength =
            std::min(last.selectionLength + before + each.growsBehind, textLength - last.selectionOffset);
    }
    return list;
}

} // namespace CVN::Operation
