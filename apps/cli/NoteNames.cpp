#include "NoteNames.h"

#include "corvane/scan/Util.h"

namespace Cli {

void NoteNames::add(std::size_t note, std::u16string_view name) {
    if (name.empty()) return;
    std::vector<std::size_t>& notes = notes_[Ondo::Util::downcaseUnicode(name)];
    if (notes.empty() || notes.back() != note) notes.push_back(note);
}

const std::vector<std::size_t>& NoteNames::notesOf(std::u16string_view name) const {
    static const std::vector<std::size_t> none;
    const auto found = notes_.find(Ondo::Util::downcaseUnicode(name));
    return found == notes_.end() ? none : found->second;
}

} // namespace Cli
