#pragma once

#include <cstdint>

#include "corvane/tree/Node.h"

/// How far the markers and spaces of its containers reach into a block.
///
/// A block inside others that begin where it begins goes on from where the walk of the one around it has
/// stopped: all that was passed there is passed here, too.
class HeadWalk {
    const Ondo::Node* next_ = nullptr; ///< the node that stopped the walk
    std::int64_t passed_ = 0;          ///< code units from the start of the block
    std::int64_t lastSpace_ = 0;       ///< of them, those of a space that stands last

public:
    HeadWalk() = default;
    /// Before a block's first child.
    explicit HeadWalk(const Ondo::Node* block) : next_(block->firstChild) {}

    /// Passes spaces, and markers of the block's ancestors.
    void walk(const Ondo::Node* block);
    /// With `keepLastSpace` less a space that stands last.
    std::int64_t passed(bool keepLastSpace) const { return keepLastSpace ? passed_ - lastSpace_ : passed_; }

private:
    void pass();
};
