#pragma once

#include <cstdint>
#include <set>
#include <string>
#include <vector>

#include "corvane/client/CVNTextSummaryWikiLink.h"
#include "corvane/scan/Export.h"

namespace CVN {
class TreeSummary;
}

/// What a list of notes shows of one, as it stood when it was asked for: later edits don't change it.
class CORVANE_EXPORT CVNTextSummary {
public:
    std::u16string title;                          ///< at most 500 code units
    std::u16string subtitle;                       ///< at most 200 code units
    std::set<std::u16string> tags;                 ///< encoded paths; with "a/b" there is "a"
    std::vector<std::u16string> links;             ///< where links and images lead, in order, each once
    std::vector<CVNTextSummaryWikiLink> wikiLinks; ///< in order, each time
    std::int64_t codeBlockCount;
    std::int64_t todoCount; ///< tasks to do
    std::int64_t doneCount; ///< tasks that are done
    std::int64_t spaceIndentedLineCount;
    std::int64_t tabIndentedLineCount;

    explicit CVNTextSummary(const CVN::TreeSummary& summary);
    /// All of it, for debugging.
    std::u16string description() const;
};
