#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "corvane/scan/Export.h"

/// A wikilink of a note.
class CORVANE_EXPORT CVNTextSummaryWikiLink {
public:
    std::u16string title; ///< the target, encoded: see Ondo::Segments
    std::int64_t offset;  ///< of its "[[", in code units

    static CVNTextSummaryWikiLink wikiLinkWithTitle(std::u16string title, std::int64_t offset);
    /// The first segment of the target, which is another note's title; null for an empty target.
    std::optional<std::u16string> decodedTitle() const;
    std::u16string description() const;
    bool operator==(const CVNTextSummaryWikiLink&) const = default;
};
