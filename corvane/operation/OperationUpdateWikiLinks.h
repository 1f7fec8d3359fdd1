#pragma once

#include <string_view>

#include "corvane/operation/Operation.h"
#include "corvane/scan/Export.h"

namespace CVN::Operation {

/// Points the wikilinks of a note elsewhere.
class CORVANE_EXPORT UpdateWikiLinks : public Operation {
public:
    UpdateWikiLinks(std::u16string_view from, std::u16string_view to, bool skipInTitle = false)
        : from_(from), to_(to), skipInTitle_(skipInTitle) {}

    std::vector<Result> run(const Ondo::Tree& tree, std::int64_t offset, std::int64_t length,
                            std::int64_t selectionOffset, std::int64_t selectionLength) const override;

private:
    std::u16string_view from_;
    std::u16string_view to_;
    bool skipInTitle_;
};

} // namespace CVN::Operation
