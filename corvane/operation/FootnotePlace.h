#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

#include "corvane/scan/Export.h"
#include "corvane/tree/Tree.h"

namespace CVN::Operation {

/// Where the reference of a new footnote goes for a caret at an offset: there, or behind the atomic inline
/// or marker that the offset lies strictly inside. None where a reference has no place: in code, math, HTML,
/// front matter, definitions and delimiter rows, in the marker of a block, and before one that opens it, as
/// a row's first pipe does and those behind it don't.
///
/// The blocks around are parsed with the reference in them. Where it would not be one, or make something
/// else of what stands there, it goes behind the innermost inline around the place where it does neither, as
/// behind the second "**" in «**a**b»; before the inline when the place is the start of its text, and before
/// a hard line break. Where that doesn't help it has no place: in and directly behind a bare URL, which would
/// take it in, there is none.
CORVANE_EXPORT std::optional<std::int64_t> footnotePlace(const Ondo::Tree& tree, std::int64_t offset,
                                                         std::u16string_view reference);

} // namespace CVN::Operation
