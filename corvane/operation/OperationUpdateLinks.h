#pragma once

#include <string_view>

#include "corvane/operation/Operation.h"
#include "corvane/scan/Export.h"

namespace CVN::Operation {

/// Points links and images elsewhere: those that have a destination of their own, and lead to one of
/// FilenameMatch::filenameVariants() of `from`, or to `from` percent-escaped. The new destination is written
/// as StringBuilder::safeURLString() has it, between angle brackets where it needs them. Both URLs must
/// outlive the call.
///
/// It is the whole note, whatever the range. One result a destination, from the last to the first. An empty
/// list for empty URLs and for telephone numbers that can be written in no link.
class CORVANE_EXPORT UpdateLinks : public Operation {
public:
    UpdateLinks(std::u16string_view from, std::u16string_view to) : from_(from), to_(to) {}

    std::vector<Result> run(const Ondo::Tree& tree, std::int64_t offset, std::int64_t length,
                            std::int64_t selectionOffset, std::int64_t selectionLength) const override;

private:
    std::u16string_view from_;
    std::u16string_view to_;
};

} // namespace CVN::Operation
