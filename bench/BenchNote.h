#pragma once

#include <cstddef>
#include <string>

/// Notes to measure on.

namespace Ondo::Bench {

/// A note of about `bytes` of UTF-8 as people write them: headings, paragraphs of a few lines, nested and
/// ordered lists, tasks, quotes, fenced code. The same for the same size.
std::string benchNote(std::size_t bytes);

struct Note {
    std::string text;
    const char* source; ///< "real" or "made"
};

/// A note of nearly `bytes`, put together from Markdown files that this machine has (READMEs of packages,
/// documentation), in an order that depends on nothing but these files, repeated where they don't suffice. A
/// benchNote() where there are none.
Note realNote(std::size_t bytes);

/// The same with `middle` in its midst.
Note realNoteAround(const std::string& middle, std::size_t bytes);

} // namespace Ondo::Bench
