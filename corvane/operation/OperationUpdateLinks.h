#pragma once

#include <string_view>

#include "corvane/operation/Operation.h"
#include "corvane/scan/Export.h"

namespace CVN::Operation {

/// Points links and images elsewhere.
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
