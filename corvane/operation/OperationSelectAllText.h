#pragma once

#include "corvane/operation/Operation.h"
#include "corvane/scan/Export.h"
#include "corvane/tree/Node.h"

namespace CVN::Operation {

/// Selects all, in two steps where the range lies in fenced code or a math block: first what stands between
/// the fences, and when that is selected, the whole text.
///
/// Always answers one result, which changes no text. A caret at the end of the text selects all at once.
class CORVANE_EXPORT SelectAllText : public Operation {
public:
    std::vector<Result> run(const Ondo::Tree& tree, std::int64_t offset, std::int64_t length,
                            std::int64_t selectionOffset, std::int64_t selectionLength) const override;

private:
    /// What stands between the fences that the whole range lies in; no node otherwise.
    static Ondo::Node::Iterator contentAround(const Ondo::Tree& tree, std::int64_t offset,
                                              std::int64_t length);
};

} // namespace CVN::Operation
