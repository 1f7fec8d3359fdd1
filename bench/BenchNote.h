#pragma once

#include <cstddef>
#include <string>

/// Notes to measure on.

namespace Ondo::Bench {

/// A note of about `bytes` of UTF-8 as people write them: headings, paragraphs of a few lines, nested and
/// ordered lists, tasks, quotes, fenced code. The same for the same size.
std::string benchNote(std::size_t bytes);

} // namespace Ondo::Bench
