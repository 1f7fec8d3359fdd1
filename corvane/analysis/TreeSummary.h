#pragma once

#include <cstdint>
#include <string>
#include <unordered_set>
#include <vector>

#include "corvane/scan/Export.h"
#include "corvane/tree/Node.h"
#include "corvane/tree/Tree.h"

namespace CVN {

/// What a list of notes shows of one, gathered in one walk: a copy, which later edits do not change.
///
/// Offsets and limits count UTF-16 code units. Everything is empty for a note without a block behind its
/// front matter.
class CORVANE_EXPORT TreeSummary {
public:
    struct WikiLink {
        std::u16string title; ///< the target, encoded: see Ondo::Segments
        std::int64_t offset;
    };

    /// A note's longest title.
    static constexpr std::int64_t titleLimit = 500;
    /// The limit of a subtitle. As a limit of normalizedTitle() this very number leaves out lines that hold
    /// nothing but hashtags.
    static constexpr std::int64_t subtitleLimit = 200;

    const Ondo::Tree* tree;                  ///< not owned; good as long as the tree itself
    std::u16string title;                    ///< of the first line that is neither front matter nor blank
    std::u16string subtitle;                 ///< of what follows it, with white space merged
    std::vector<WikiLink> wikiLinks;         ///< in order, each time
    std::unordered_set<std::u16string> tags; ///< encoded paths; with "a/b" there is "a"
    std::vector<std::u16string> links;       ///< where links and images lead, in order, each once
    std::int64_t codeBlockCount = 0;
    std::int64_t todoCount = 0;
    std::int64_t doneCount = 0;
    std::int64_t spaceIndentedLineCount = 0;
    std::int64_t tabIndentedLineCount = 0;

    explicit TreeSummary(const Ondo::Tree& note);

    /// The plain text from the start of a node, which lies in no table cell, up to the offset `end`, trimmed,
    /// of at most `limit` code units.
    ///
    /// Markup is dropped, what a link shows is kept without where it leads, and a reference that nothing
    /// defines reads as written. Lines are joined by spaces. A surrogate pair is not cut in two. Asserts
    /// `limit > 0`.
    static std::u16string normalizedTitle(const Ondo::Tree& tree, Ondo::Node::Iterator begin,
                                          std::int64_t end, std::int64_t limit);
};

} // namespace CVN
