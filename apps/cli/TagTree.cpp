#include "TagTree.h"

#include <algorithm>
#include <utility>

#include "corvane/inline/Segments.h"
#include "corvane/scan/Util.h"

namespace Cli {

namespace {

constexpr std::size_t root = 0;

} // namespace

const std::u16string& TagTree::Tag::spelling() const {
    const auto isWorse = [](const auto& a, const auto& b) {
        return std::pair(a.second.count, -a.second.first) < std::pair(b.second.count, -b.second.first);
    };
    return std::max_element(spellings.begin(), spellings.end(), isWorse)->first;
}

std::size_t TagTree::below(std::size_t tag, const std::u16string& segment) {
    const auto [entry, isNew] =
        tags_[tag].below.try_emplace(Ondo::Util::downcaseUnicode(segment), tags_.size());
    const std::size_t result = entry->second;
    if (isNew) tags_.emplace_back();
    return result;
}

void TagTree::addNote(const std::vector<std::u16string>& tags) {
    ++noteCount_;
    for (const std::u16string& path : tags) {
        const std::vector<std::u16string> segments = Ondo::Segments::decode(path);
        if (segments.empty()) continue;
        std::size_t at = root;
        for (const std::u16string& segment : segments)
            at = below(at, segment);
        Tag& tag = tags_[at];
        if (std::exchange(tag.lastNote, noteCount_) != noteCount_) ++tag.noteCount;
        ++tag.spellings.try_emplace(segments.back(), Spelling{0, spellingCount_++}).first->second.count;
    }
}

void TagTree::forEach(const Visit& visit) const {
    using Siblings = std::map<std::u16string, std::size_t>;
    std::vector<std::pair<Siblings::const_iterator, Siblings::const_iterator>> open;
    std::vector<std::u16string> path;
    open.emplace_back(tags_[root].below.begin(), tags_[root].below.end());
    while (!open.empty()) {
        auto& [next, end] = open.back();
        path.resize(open.size() - 1);
        if (next == end) {
            open.pop_back();
            continue;
        }
        const Tag& tag = tags_[(next++)->second];
        path.push_back(tag.spelling());
        visit(path, tag.noteCount);
        open.emplace_back(tag.below.begin(), tag.below.end());
    }
}

} // namespace Cli
