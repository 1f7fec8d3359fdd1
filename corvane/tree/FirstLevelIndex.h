#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "corvane/scan/Export.h"

namespace Ondo {

class Node;

/// Finds the first-level blocks of a document by offset, and the offset of a first-level block, without a
/// walk over all of them.
///
/// The children of the document are grouped into runs of some tens of blocks with the sum of their lengths.
/// A question costs a look over the sums, which lie side by side in memory, and a walk inside one run. The
/// index is built at the first question; linking and unlinking of children drops it, and replaced() carries
/// it over an edit at the cost of the runs that the edit touches.
class CORVANE_EXPORT FirstLevelIndex {
public:
    struct Position {
        Node* node;
        std::int64_t offset;
        std::int64_t line;
    };

    explicit FirstLevelIndex(Node* document) : document_(document) {}

    /// The first child whose end lies behind `offset`, or the last child; a null node when there is none.
    Position find(std::int64_t offset);
    /// Where a child of the document stands.
    Position positionOf(const Node* child);

    void invalidate() { isValid_ = false; }

    /// A replacement of neighbouring children, told before and after it.
    class CORVANE_EXPORT Change {
    public:
        /// Before the children from `first` to `last` go.
        Change(FirstLevelIndex& index, Node* first, Node* last);
        /// When the list is final. `behindKept` is the first child behind those that stayed in front of the
        /// change; null when there is none.
        void finish(Node* behindKept);

    private:
        FirstLevelIndex& index_;
        bool wasValid_;
        std::size_t firstRun_ = 0;
        std::size_t lastRun_ = 0;
        bool startsRun_ = false;
    };

private:
    struct Run {
        Node* first;
        std::int64_t charCount;
        std::int64_t lineCount;
    };
    /// A run and the position of its first block.
    struct RunPosition {
        std::size_t run;
        std::int64_t offset;
        std::int64_t line;
    };

    void build();
    static std::vector<Run> group(Node* first, const Node* end);
    void step(bool forward);
    void moveToRun(std::size_t run);
    std::size_t runOf(const Node* first) const;

    Node* document_;
    std::vector<Run> runs_;
    RunPosition recent_{0, 0, 0}; ///< where the last question ended: the next is mostly near it
    bool isValid_ = false;
};

} // namespace Ondo
