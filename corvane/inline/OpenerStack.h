#pragma once

#include <utility>
#include <vector>

#include "corvane/inline/LinkBase.h"

namespace Ondo::Inline {

/// The brackets of one node that are still open, and what is remembered so that no text is scanned over and
/// over for brackets that lead to nothing.
class LinkBase::OpenerStack {
public:
    void clear();
    bool empty() const { return openers_.empty(); }
    const Opener& top() const { return openers_.back(); }

    void push(const Opener& opener);
    /// Takes the innermost opener at the "]" at `offset`.
    Opener pop(std::int64_t offset);
    bool isTopActive() const { return openers_.size() > inactiveLinks_ || top().kind == Kind::Image; }
    /// A "]" takes at most one opener.
    bool isUsedUp(std::int64_t offset) const { return usedUp_ == offset; }
    /// Links do not nest: those that are open now can't close any more.
    void deactivateLinks() { inactiveLinks_ = openers_.size(); }
    void removeWithin(std::int64_t start, std::int64_t end);

    /// As LinkSyntax::matchBareDestination, for a cursor behind a "(".
    LinkSyntax::Span matchBareDestination(GoLines& go);

private:
    /// Where the parentheses of a run without blanks close, once a scan has found no end short of the run's.
    struct Run {
        std::int64_t start = Go::NoPos;
        std::int64_t end = Go::NoPos;
        std::vector<std::pair<std::int64_t, std::int64_t>> closed; ///< "(" and its ")", sorted
    };
    void remember(const GoLines& from, std::int64_t end);

    std::vector<Opener> openers_;
    std::size_t inactiveLinks_ = 0; ///< links among the openers below this index are inactive
    std::int64_t usedUp_ = Go::NoPos;
    Run run_;
};

} // namespace Ondo::Inline
