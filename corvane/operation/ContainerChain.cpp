#include "corvane/operation/ContainerChain.h"

#include <algorithm>

#include "corvane/block/List.h"
#include "corvane/operation/LineWalk.h"

namespace CVN::Operation {

using Ondo::Node;

namespace {

/// The containers around a node, outermost first.
std::vector<Node::Iterator> containersAround(Node::Iterator at) {
    const Node* outermost = nullptr;
    for (const Node* node = at->parent; node; node = node->parent)
        if (isContainer(node)) outermost = node;
    std::vector<Node::Iterator> containers;
    while (at.node && at.node != outermost && outermost) {
        at.parent();
        if (isContainer(at.node)) containers.push_back(at);
    }
    std::reverse(containers.begin(), containers.end());
    return containers;
}

/// Blanks behind what a further line has so far. The first one behind a bare ">" is part of that marker.
void appendBlanks(std::u16string& further, std::int64_t count) {
    if (count <= 0) return;
    if (!further.empty() && further.back() == u'>') ++count;
    further.append(static_cast<std::size_t>(count), u' ');
}

bool isTask(const Node* item) {
    return static_cast<const Ondo::Block::ListItemNode*>(item)->isTask();
}

} // namespace

ContainerChain::ContainerChain(const Ondo::Tree& tree, const Node::Iterator& line)
    : lineOffset_(line.offset), tabContinuesItem_(isSimplified(tree)) {
    Node::Iterator leaf = line;
    toFirstLeaf(leaf);
    for (const Node::Iterator& container : containersAround(leaf)) {
        Link link{container.node, 0};
        if (isListItem(container.node)) {
            const LinePrefix first(tree, container);
            const std::vector<Reach> reaches = reachesOn(first);
            const std::size_t marker = reaches.back().markers;
            if (marker == first.markers.size() || first.markers[marker].container != container.node) break;
            link.width = PrefixColumns(first, marker).content - reaches.back().column;
        }
        links_.push_back(link);
    }
    reaches_ = reachesOn(LinePrefix(tree, leaf));
    links_.resize(reaches_.size() - 1);
}

/// For no container, for the outermost one, for that and the next one ..., until the line lacks one.
std::vector<ContainerChain::Reach> ContainerChain::reachesOn(const LinePrefix& line) const {
    std::vector<Reach> reaches(1);
    for (const Link& link : links_) {
        Reach reach = reaches.back();
        if (!pass(line, link, reach)) break;
        reaches.push_back(std::move(reach));
    }
    return reaches;
}

/// The marker that comes next on the line; null when there is none.
const LinePrefix::Marker* ContainerChain::nextMarker(const LinePrefix& line, const Reach& reach) {
    return reach.markers < line.markers.size() ? &line.markers[reach.markers] : nullptr;
}

/// False, with a reach that means nothing, when the line lacks what the container wants.
bool ContainerChain::pass(const LinePrefix& line, const Link& link, Reach& reach) const {
    const LinePrefix::Marker* const marker = nextMarker(line, reach);
    const bool isMarked = marker && marker->container == link.container;
    if (isBlockQuote(link.container)) {
        if (isMarked) passQuote(line, *marker, reach);
        return isMarked;
    }
    if (isMarked) {
        passItemMarker(line, *marker, link, reach);
        return true;
    }
    if (passTab(line, link.width, reach)) return true;
    const bool isEmpty = !marker && line.isBlank;
    const std::size_t text = marker ? marker->start : line.size();
    if (!isEmpty && line.columns[text] - reach.column < link.width) return false;
    passBlanks(line, link.width, reach);
    return true;
}

void ContainerChain::passItemMarker(const LinePrefix& line, const LinePrefix::Marker& marker,
                                    const Link& link, Reach& reach) {
    reach.end = marker.end;
    ++reach.markers;
    passBlanks(line, link.width, reach);
    // Where a tab goes further, so does the text of the item when it begins there.
    const std::int64_t more = line.columns[reach.end] - reach.column;
    if (more <= 0 || isTask(link.container)) return;
    appendBlanks(reach.further, more);
    reach.column += more;
}

void ContainerChain::passQuote(const LinePrefix& line, const LinePrefix::Marker& marker, Reach& reach) {
    appendBlanks(reach.further, line.columns[marker.start] - std::max(reach.column, line.columns[reach.end]));
    reach.further += line.text.substr(marker.start, marker.end - marker.start);
    // The first column of a tab behind ">" is the blank of the marker.
    const bool hasTab =
        line.text[marker.end - 1] == u'>' && marker.end < line.size() && line.text[marker.end] == u'\t';
    reach.column = line.columns[marker.end] + (hasTab ? 1 : 0);
    reach.end = marker.end;
    reach.missing = 0;
    ++reach.markers;
}

/// In the simplified dialect a tab is enough of an indentation, and its width is what counts then.
bool ContainerChain::passTab(const LinePrefix& line, std::int64_t width, Reach& reach) const {
    if (!tabContinuesItem_) return false;
    const LinePrefix::Marker* const marker = nextMarker(line, reach);
    const std::size_t end = marker ? marker->start : line.size();
    for (std::size_t at = reach.end; at < end; ++at) {
        if (line.text[at] != u'\t' || line.columns[at + 1] <= reach.column) continue;
        reach.end = at + 1;
        reach.column = line.columns[reach.end];
        reach.missing = 0;
        appendBlanks(reach.further, width);
        return true;
    }
    return false;
}

void ContainerChain::passBlanks(const LinePrefix& line, std::int64_t width, Reach& reach) {
    appendBlanks(reach.further, width);
    reach.column += width;
    const LinePrefix::Marker* const marker = nextMarker(line, reach);
    const std::size_t end = marker ? marker->start : line.size();
    while (reach.end < end && line.columns[reach.end] < reach.column)
        ++reach.end;
    reach.missing = std::max<std::int64_t>(reach.column - line.columns[reach.end], 0);
}

void ContainerChain::keep(std::size_t count) {
    if (count >= links_.size()) return;
    links_.resize(count);
    reaches_.resize(count + 1);
}

void ContainerChain::keepThoseOf(const Ondo::Tree& tree, const Node::Iterator& line) {
    Node::Iterator leaf = line;
    toFirstLeaf(leaf);
    std::vector<const Node*> around;
    for (const Node* node = leaf->parent; node; node = node->parent)
        if (isContainer(node)) around.push_back(node);
    const std::size_t most = std::min(around.size(), links_.size());
    std::size_t common = 0;
    while (common < most && around[around.size() - 1 - common] == links_[common].container)
        ++common;
    keep(common);
    if (!links_.empty()) keep(reachesOn(LinePrefix(tree, leaf)).size() - 1);
}

void ContainerChain::keepDownTo(const Node* container) {
    for (std::size_t i = 0; i < links_.size(); ++i)
        if (links_[i].container == container) return keep(i + 1);
}

std::int64_t ContainerChain::reachOn(const Ondo::Tree& tree, const Node::Iterator& line) const {
    if (links_.empty()) return 0;
    return static_cast<std::int64_t>(reachesOn(LinePrefix(tree, line)).back().end);
}

} // namespace CVN::Operation
