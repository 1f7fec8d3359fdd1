#pragma once

#include <string_view>

#include "corvane/operation/Operation.h"
#include "corvane/scan/Export.h"

namespace CVN::Operation {

/// Removes the links and images that lead to one of FilenameMatch::filenameVariants() of a URL, with their
/// text and a metadata comment directly behind. The URL must outlive the call.
///
/// It is the whole note, whatever the range. References count by what they are defined as; their definitions
/// stay. One result a link, from the last to the first: what stands inside one goes with it. An empty list
/// for an empty URL.
class CORVANE_EXPORT RemoveLink : public Operation {
public:
    explicit RemoveLink(std::u16string_view url) : url_(url) {}

    std::vector<Result> run(const Ondo::Tree& tree, std::int64_t offset, std::int64_t length,
                            std::int64_t selectionOffset, std::int64_t selectionLength) const override;

private:
    std::u16string_view url_;
};

} // namespace CVN::Operation
