#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace Cli {

/// What the notes of a folder are called, whatever the case. Notes go by numbers.
class NoteNames {
public:
    /// A note may have several names, and several notes one name. An empty name is none.
    void add(std::size_t note, std::u16string_view name);
    /// The notes of that name, ascending if they were added so; none for a name that nothing has. Valid until
    /// the next add().
    const std::vector<std::size_t>& notesOf(std::u16string_view name) const;

private:
    std::unordered_map<std::u16string, std::vector<std::size_t>> notes_; ///< by folded name
};

} // namespace Cli
