#include "corvane/operation/InlineEdits.h"

#include <algorithm>
#include <utility>

namespace CVN::Operation {

void InlineEdits::insert(std::int64_t offset, std::u16string_view text, Joins joins) {
    add({offset, 0, std::u16string(text), joins});
}

void InlineEdits::replace(std::int64_t offset, std::int64_t length, std::u16string_view text) {
    add({offset, length, std::u16string(text), Joins::None});
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
    std::erase_if(edits_, [&](const Edit& each) {
        return each.offset < offset && static_cast<std::int64_t>(each.text.size()) != each.length;
    });
}

std::vector<Result> InlineEdits::results(std::int64_t selectionOffset, std::int64_t selectionLength) const {
    std::vector<Result> list;
    for (const Edit& each : edits_) {
        Result::addToList(list, each.offset, each.length, each.text, selectionOffset, selectionLength);
        const auto added = static_cast<std::int64_t>(each.text.size());
        if (each.joins == Joins::Start) list.back().selectionOffset -= added;
        if (each.joins != Joins::None) list.back().selectionLength += added;
    }
    return list;
}

} // namespace CVN::Operation
