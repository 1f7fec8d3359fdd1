#pragma once

#include <cstdint>
#include <string_view>

#include "corvane/scan/Export.h"

/// How much there is to read in a text; see CVN::TextStatistics.
struct CORVANE_EXPORT CVNTextStatistics {
    std::uint32_t wordsCount;
    std::uint32_t paragraphCount;
    std::uint32_t readTime; ///< whole seconds

    explicit CVNTextStatistics(std::u16string_view string);
};
