#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

#include "corvane/scan/Export.h"
#include "corvane/tree/Tree.h"

namespace CVN::Operation {

/// Where the reference of a new footnote goes for a caret at an offset: there, or behind the atomic inline
/// or marker that the offset lies strictly inside. None where a reference has no place: in code, math, HTML,
/// front matter, definitions and delimiter rows, and in or before the marker of a block, where only the
/// pipes behind a row's first one pass.
///
/// The blocks around are parsed with the reference in them. Where it would not be one, or make something
/// else of what stands there, it goes behind the whole inline around the place, as behind the "**" in
/// «**a**b», or before a hard line break; and where that doesn't help either it has no place.
CORVANE_EXPORT std::optional<std::int64_t> footnotePlace(const Ondo::Tree& tree, std::int64_t offset,
                                                         std::u16string_view reference);

} // namespace CVN::Operation
