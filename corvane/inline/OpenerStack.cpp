#include "corvane/inline/OpenerStack.h"

#include <algorithm>

namespace Ondo::Inline {

void LinkBase::OpenerStack::clear() {
    openers_.clear();
    inactiveLinks_ = 0;
    usedUp_ = Go::NoPos;
    run_ = {};
}

void LinkBase::OpenerStack::push(const Opener& opener) {
    if (!openers_.empty()) openers_.back().hasBrackets = true;
    openers_.push_back(opener);
}

LinkBase::Opener LinkBase::OpenerStack::pop(std::int64_t offset) {
    const Opener opener = openers_.back();
    openers_.pop_back();
    inactiveLinks_ = std::min(inactiveLinks_, openers_.size());
    usedUp_ = offset;
    return opener;
}

void LinkBase::OpenerStack::removeWithin(std::int64_t start, std::int64_t end) {
    auto first = openers_.end();
    while (first != openers_.begin() && std::prev(first)->offset >= start)
        --first;
    const auto isWithin = [end](const Opener& opener) { return opener.offset + opener.length <= end; };
    const auto inactiveEnd = openers_.begin() + static_cast<std::ptrdiff_t>(inactiveLinks_);
    if (first < inactiveEnd)
        inactiveLinks_ -= static_cast<std::size_t>(std::count_if(first, inactiveEnd, isWithin));
    openers_.erase(std::remove_if(first, openers_.end(), isWithin), openers_.end());
}

LinkSyntax::Span LinkBase::OpenerStack::matchBareDestination(GoLines& go) {
    const std::int64_t start = go.pos();
    if (start > run_.start && start <= run_.end && go.isPrevious(Go::character(u'('))) {
        const auto closed =
            std::lower_bound(run_.closed.begin(), run_.closed.end(), std::pair(start - 1, std::int64_t{0}));
        const bool isClosed = closed != run_.closed.end() && closed->first == start - 1;
        go.setPos(isClosed ? closed->second : run_.end);
        return {start, go.pos(), go.currentLine(), go.currentLine()};
    }
    const GoLines from = go;
    const LinkSyntax::Span span = LinkSyntax::matchBareDestination(go);
    if (!go.isNext(Go::character(u')'))) remember(from, span.end);
    return span;
}

/// A "(" directly behind a "]" is not escaped, and whether one further on is does not depend on where the
/// scan began. So one pass from the first "(" that finds no end serves all within the run.
void LinkBase::OpenerStack::remember(const GoLines& from, std::int64_t end) {
    run_ = {from.pos(), end, {}};
    std::vector<std::int64_t> open;
    const std::u16string_view run = from.substring(from.pos(), end);
    for (std::size_t i = 0; i < run.size(); ++i) {
        const std::int64_t at = from.pos() + static_cast<std::int64_t>(i);
        if (run[i] == u'\\')
            ++i;
        else if (run[i] == u'(')
            open.push_back(at);
        else if (run[i] == u')' && !open.empty()) {
            run_.closed.emplace_back(open.back(), at);
            open.pop_back();
        }
    }
    std::sort(run_.closed.begin(), run_.closed.end());
}

} // namespace Ondo::Inline
