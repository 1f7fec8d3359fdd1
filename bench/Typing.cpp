#include "bench/Typing.h"

#include "bench/BenchNote.h"
#include "corvane/scan/Util.h"

namespace Ondo::Bench {

std::u16string noteToTypeIn(benchmark::State& state, const char16_t* head) {
    static const std::string middle = realNote(10'000).text;
    const Note note = realNoteAround(middle, static_cast<std::size_t>(state.range(0)));
    state.SetLabel(note.source);
    return head + Util::utf16(note.text);
}

std::int64_t paragraphBehind(const Tree& tree, std::int64_t offset) {
    Node::Iterator at = tree.iteratorAtOffset(offset, LevelSetting::FirstLevel);
    while (at->parent != tree.root.get())
        at.parent();
    while (at.node && at->type != ONDO_PARAGRAPH_NODE)
        at.nextSibling();
    return at.node ? at.offset + at->charCount / 2 : paragraphBehind(tree, 0);
}

} // namespace Ondo::Bench
