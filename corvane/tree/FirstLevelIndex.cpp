#include "corvane/tree/FirstLevelIndex.h"

#include <iterator>

#include "corvane/tree/Node.h"

namespace Ondo {

namespace {

constexpr std::int64_t blocksInRun = 64;

Node* runStart(Node* node) {
    while (!node->startsIndexRun)
        node = node->previousSibling;
    return node;
}

} // namespace

void FirstLevelIndex::build() {
    if (isValid_) return;
    runs_ = group(document_->firstChild, nullptr);
    recent_ = {0, 0, 0};
    isValid_ = true;
}

std::vector<FirstLevelIndex::Run> FirstLevelIndex::group(Node* first, const Node* end) {
    std::vector<Run> runs;
    std::int64_t count = 0;
    for (Node* node = first; node != end; node = node->nextSibling, ++count) {
        node->startsIndexRun = count % blocksInRun == 0;
        if (node->startsIndexRun) runs.push_back({node, 0, 0});
        runs.back().charCount += node->charCount;
        runs.back().lineCount += node->lineCount;
    }
    return runs;
}

void FirstLevelIndex::step(bool forward) {
    if (!forward) --recent_.run;
    const Run& passed = runs_[recent_.run];
    recent_.offset += forward ? passed.charCount : -passed.charCount;
    recent_.line += forward ? passed.lineCount : -passed.lineCount;
    if (forward) ++recent_.run;
}

void FirstLevelIndex::moveToRun(std::size_t run) {
    while (recent_.run != run)
        step(recent_.run < run);
}

std::size_t FirstLevelIndex::runOf(const Node* first) const {
    for (std::size_t distance = 0;; ++distance) {
        const std::size_t behind = recent_.run + distance;
        if (behind < runs_.size() && runs_[behind].first == first) return behind;
        if (distance <= recent_.run && runs_[recent_.run - distance].first == first)
            return recent_.run - distance;
    }
}

FirstLevelIndex::Position FirstLevelIndex::find(std::int64_t offset) {
    build();
    if (runs_.empty()) return {nullptr, 0, 0};
    while (recent_.offset > offset)
        step(false);
    while (recent_.run + 1 < runs_.size() && recent_.offset + runs_[recent_.run].charCount <= offset)
        step(true);
    Position at{runs_[recent_.run].first, recent_.offset, recent_.line};
    for (; at.node->nextSibling && at.offset + at.node->charCount <= offset; at.node = at.node->nextSibling) {
        at.offset += at.node->charCount;
        at.line += at.node->lineCount;
    }
    return at;
}

FirstLevelIndex::Position FirstLevelIndex::positionOf(const Node* child) {
    build();
    Position at{const_cast<Node*>(child), 0, 0};
    const Node* node = child;
    while (!node->startsIndexRun) {
        node = node->previousSibling;
        at.offset += node->charCount;
        at.line += node->lineCount;
    }
    moveToRun(runOf(node));
    at.offset += recent_.offset;
    at.line += recent_.line;
    return at;
}

FirstLevelIndex::Change::Change(FirstLevelIndex& index, Node* first, Node* last)
    : index_(index), wasValid_(index.isValid_) {
    if (!wasValid_) return;
    startsRun_ = first->startsIndexRun;
    firstRun_ = index.runOf(runStart(first));
    lastRun_ = index.runOf(runStart(last));
    index.moveToRun(firstRun_);
}

void FirstLevelIndex::Change::finish(Node* behindKept) {
    if (!wasValid_) return;
    std::vector<Run>& runs = index_.runs_;
    Node* const start = startsRun_ ? behindKept : runs[firstRun_].first;
    const Node* const end = lastRun_ + 1 < runs.size() ? runs[lastRun_ + 1].first : nullptr;
    const std::vector<Run> fresh = group(start, end);
    const auto first = runs.begin() + static_cast<std::ptrdiff_t>(firstRun_);
    const auto last = runs.begin() + static_cast<std::ptrdiff_t>(lastRun_) + 1;
    runs.insert(runs.erase(first, last), fresh.begin(), fresh.end());
    // The position of the first changed run is still right; when the list now ends before it, start over.
    if (firstRun_ >= runs.size()) index_.recent_ = {0, 0, 0};
    index_.isValid_ = true;
}

} // namespace Ondo
