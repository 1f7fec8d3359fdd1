#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <string>
#include <vector>

namespace Cli {

/// The tags of many notes, with the number of notes that have each. Tags that differ only in case are one.
class TagTree {
public:
    /// Takes a tag's segments, decoded, and the number of notes that have it or one below it.
    using Visit = std::function<void(const std::vector<std::u16string>& path, std::int64_t noteCount)>;

    TagTree() : tags_(1) {}

    /// Takes in the tags of a note: encoded paths, and with each of them all those above it.
    void addNote(const std::vector<std::u16string>& tags);
    /// Visits the tags by name, case folded, each before those below it. A segment is spelt as most notes
    /// spell it; of equals, as the first one does.
    void forEach(const Visit& visit) const;

private:
    struct Spelling {
        std::int64_t count = 0;
        std::int64_t first = 0; ///< how many were seen before it
    };
    struct Tag {
        std::int64_t noteCount = 0;
        std::int64_t lastNote = 0;                    ///< the number of the last one that was counted
        std::map<std::u16string, Spelling> spellings; ///< of the last segment
        std::map<std::u16string, std::size_t> below;  ///< the tags one level down, by folded segment

        const std::u16string& spelling() const;
    };

    std::vector<Tag> tags_; ///< the first one is the root; in one vector, since paths may be very long
    std::int64_t noteCount_ = 0;
    std::int64_t spellingCount_ = 0;

    std::size_t below(std::size_t tag, const std::u16string& segment);
};

} // namespace Cli
