#include "corvane/tree/ReplaceBatch.h"

#include <algorithm>

#include "corvane/tree/Tree.h"

namespace Ondo {

namespace {

std::int64_t lengthOf(const Replacement& edit) {
    return static_cast<std::int64_t>(edit.replacement.size());
}

/// A run of edits from `first` to `last` of the batch. `range` is what they cover in the text behind the
/// last of them.
struct Group {
    Range range;
    std::size_t first;
    std::size_t last;
    bool forward = false;
    bool backward = false;
    bool isUnusable = false; ///< it began with an edit that overlaps the group before: nothing joins it

    bool isSingle() const { return first == last; }

    bool takesForward(const Replacement& edit, std::int64_t maxGap) const {
        return (isSingle() || forward) && !isUnusable && edit.range.offset >= range.end() &&
               edit.range.offset - range.end() <= maxGap;
    }
    bool takesBackward(const Replacement& edit, std::int64_t maxGap) const {
        return (isSingle() || backward) && !isUnusable && edit.range.end() <= range.offset &&
               edit.range.end() + maxGap >= range.offset;
    }
    bool isDisturbedBy(const Replacement& edit) const {
        const bool overlaps = edit.range.offset < range.end() && edit.range.end() > range.offset;
        const bool endsBehindStart = backward && edit.range.end() > range.offset;
        const bool startsInside =
            forward && edit.range.offset >= range.offset && edit.range.offset < range.end();
        return overlaps || endsBehindStart || startsInside;
    }
    void join(const Replacement& edit, std::size_t index, bool isForward) {
        (isForward ? forward : backward) = true;
        last = index;
        const std::int64_t end =
            isForward ? edit.range.offset + lengthOf(edit) : range.end() + lengthOf(edit) - edit.range.length;
        range.offset = std::min(range.offset, edit.range.offset);
        range.length = end - range.offset;
    }
};

std::vector<Group> groups(const std::vector<Replacement>& edits, std::int64_t maxGap) {
    std::vector<Group> groups;
    for (std::size_t i = 0; i < edits.size(); ++i) {
        const Replacement& edit = edits[i];
        if (!groups.empty() && groups.back().takesForward(edit, maxGap)) {
            groups.back().join(edit, i, true);
        } else if (!groups.empty() && groups.back().takesBackward(edit, maxGap)) {
            groups.back().join(edit, i, false);
        } else {
            const bool isDisturbed = !groups.empty() && groups.back().isDisturbedBy(edit);
            groups.push_back({{edit.range.offset, lengthOf(edit)}, i, i, false, false, isDisturbed});
        }
    }
    return groups;
}

/// The text of a tree with some replacements made, read unit by unit without making them.
class EditedText {
public:
    EditedText(const Tree& tree, const std::vector<Replacement>& made) : tree_(tree), made_(made) {}

    char16_t at(std::int64_t offset) const {
        for (auto edit = made_.rbegin(); edit != made_.rend(); ++edit) {
            const std::int64_t inEdit = offset - edit->range.offset;
            if (inEdit < 0) continue;
            if (inEdit < lengthOf(*edit)) return edit->replacement[static_cast<std::size_t>(inEdit)];
            offset += edit->range.length - lengthOf(*edit);
        }
        // Unit by unit: a view of more could move all the text behind the last edit.
        if (offset >= 0 && offset < tree_.length()) return tree_.markdownIn({offset, 1}).front();
        return tree_.markdown().at(static_cast<std::size_t>(offset));
    }
    void append(std::u16string& out, std::int64_t from, std::int64_t to) const {
        for (; from < to; ++from)
            out += at(from);
    }

private:
    const Tree& tree_;
    const std::vector<Replacement>& made_;
};

/// The members of a group in the order of the text, each in the coordinates of the text before the group.
std::vector<Replacement> inTextOrder(const std::vector<Replacement>& edits, const Group& group) {
    const auto begin = edits.begin() + static_cast<std::ptrdiff_t>(group.first);
    std::vector<Replacement> members(begin, edits.begin() + static_cast<std::ptrdiff_t>(group.last) + 1);
    if (group.backward) {
        // Each lies before all that were made earlier, which therefore did not move it.
        std::reverse(members.begin(), members.end());
        return members;
    }
    std::int64_t shift = 0;
    for (Replacement& member : members) {
        member.range.offset -= shift;
        shift += lengthOf(member) - member.range.length;
    }
    return members;
}

Replacement united(const std::vector<Replacement>& members, const EditedText& text) {
    Replacement output{members.front().range, members.front().replacement};
    for (std::size_t i = 1; i < members.size(); ++i) {
        text.append(output.replacement, output.range.end(), members[i].range.offset);
        output.replacement += members[i].replacement;
        output.range.length = members[i].range.end() - output.range.offset;
    }
    return output;
}

} // namespace

std::vector<Replacement> ReplaceBatch::merge(const Tree& tree, std::int64_t maxGap) const {
    std::vector<Replacement> merged;
    for (const Group& group : groups(edits_, maxGap)) {
        const Replacement output = united(inTextOrder(edits_, group), EditedText(tree, merged));
        merged.push_back(output);
    }
    return merged;
}

} // namespace Ondo
