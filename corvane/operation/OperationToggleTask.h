#pragma once

#include <vector>

#include "corvane/operation/Operation.h"
#include "corvane/scan/Export.h"
#include "corvane/tree/Node.h"

namespace CVN::Operation {

/// Checks and unchecks tasks: those that the range touches with a marker or with text of their own, not just
/// with what is nested in them or with blank lines. A caret means the task around it, if the innermost item
/// there is one; the empty last line, behind a line ending, belongs to none.
///
/// Toggle turns each task over by itself. Answers a result for each of these tasks, from the last to the
/// first, also for one that has its state already; each writes the box anew, "[X]" as "[x]". An empty list
/// when the range touches no task.
class CORVANE_EXPORT ToggleTask : public Operation {
public:
    explicit ToggleTask(ToggleTaskType type) : type_(type) {}

    std::vector<Result> run(const Ondo::Tree& tree, std::int64_t offset, std::int64_t length,
                            std::int64_t selectionOffset, std::int64_t selectionLength) const override;

private:
    /// What the range reaches at an offset: the marker of the innermost item there if that is a task,
    /// otherwise the leaf.
    static Ondo::Node::Iterator closestNodeForOffset(const Ondo::Tree& tree, std::int64_t offset);
    /// In document order.
    static std::vector<Ondo::Node::Iterator> taskMarkers(const Ondo::Tree& tree, std::int64_t offset,
                                                         std::int64_t length);
    void toggleTaskForListItem(const Ondo::Node::Iterator& marker, std::vector<Result>& results,
                               std::int64_t selectionOffset, std::int64_t selectionLength) const;

    ToggleTaskType type_;
};

} // namespace CVN::Operation
