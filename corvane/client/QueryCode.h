#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "corvane/client/QueryTypes.h"

/// Code as its author meant it.

namespace CVN::Query {

/// The code at the index, null when there is none. Of a code span: what is shown. Of a fenced or indented
/// block, and of front matter: its lines, each with an LF where it has a break, without fences, without the
/// markers and indentation of containers, and without the indentation of the block. Tabs behind these stay.
CORVANE_EXPORT std::optional<std::u16string> codeStringAtIndex(const CVNAttributedString& text,
                                                               std::int64_t index);

namespace Answer {

CORVANE_EXPORT bool isFencedCodeEmpty(const CVNAttributedString& text, const KeyList& keys,
                                      std::int64_t index);

} // namespace Answer

/// Whether there is a fenced block at the index, or front matter, that is closed and has nothing but blank
/// lines between its fences.
inline constexpr IndexTest isFencedCodeEmptyAtIndex{
    "isFencedCodeEmptyAtIndex", {CVNFencedCodeAttributeName}, Answer::isFencedCodeEmpty};

inline constexpr const IndexTest* codeTests[] = {&isFencedCodeEmptyAtIndex};

} // namespace CVN::Query
