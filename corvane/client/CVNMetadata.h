#pragma once

#include <optional>
#include <string_view>

#include "corvane/client/CVNValue.h"
#include "corvane/scan/Export.h"

/// The JSON object that a comment such as «<!-- {"preview":"true"} -->» holds; null when the text is no
/// comment, or what stands in it is no JSON object, is longer than 65,536 code units, or nests deeper
/// than 64.
CORVANE_EXPORT std::optional<CVNDictionary> CVNMetadataFromComment(std::u16string_view comment);
