#pragma once

#include <cstdint>
#include <deque>
#include <string>
#include <string_view>
#include <vector>

#include "capi/corvane.h"
#include "corvane/client/CVNAST.h"
#include "corvane/client/CVNAttributedString.h"
#include "corvane/client/CVNTextSummary.h"

/// What the handles of corvane.h point to.

struct corvane_string {
    std::u16string text;
};

struct corvane_strings {
    std::vector<std::u16string> texts;
};

struct corvane_note {
    CVNAST ast;
    /// The length that the text will have after the batch; has no meaning while that is empty.
    std::int64_t pendingLength = 0;
    bool hasMath = true;

    bool isPending() const { return !ast.replaceBatch->empty(); }
    std::int64_t lengthAfterBatch() const { return isPending() ? pendingLength : ast.markdownLength(); }
};

/// The runs point into the string's values and the two deques, whose elements stay where they are.
struct corvane_annotation {
    CVNAttributedString string;
    std::vector<corvane_run> runs; ///< by key, then by location
    std::vector<std::int64_t>
        keyStarts; ///< for each key the index of its first run, and at last their number
    std::deque<std::u16string> jsonTexts; ///< of dictionaries
    std::deque<corvane_list_info> lists;

    explicit corvane_annotation(CVNAttributedString annotated);
};

/// The replacements point into the texts of the results.
struct corvane_results {
    CVNASTTextOperations::Results results;
    std::vector<corvane_replacement> replacements;

    explicit corvane_results(CVNASTTextOperations::Results results_);
};

/// The wikilinks point into the texts of the summary and into the titles.
struct corvane_summary {
    CVNTextSummary summary;
    corvane_strings tags;
    corvane_strings titles; ///< of the wikilinks, decoded
    corvane_strings links;
    std::vector<corvane_wikilink> wikilinks;

    explicit corvane_summary(CVNTextSummary summary_);
    corvane_summary(const corvane_summary&) = delete;
    corvane_summary& operator=(const corvane_summary&) = delete;
};

namespace CApi {

/// Hands a text over to the caller.
inline corvane_status give(std::u16string text, corvane_string** string) {
    *string = new corvane_string{std::move(text)};
    return CORVANE_OK;
}

inline corvane_status give(std::vector<std::u16string> texts, corvane_strings** strings) {
    *strings = new corvane_strings{std::move(texts)};
    return CORVANE_OK;
}

} // namespace CApi
