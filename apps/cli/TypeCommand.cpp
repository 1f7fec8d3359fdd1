#include <utility>
#include <vector>

#include "Commands.h"
#include "Note.h"
#include "Progress.h"
#include "Typist.h"
#include "corvane/scan/Util.h"

namespace Cli {

namespace {

/// The character at an offset: a code unit, or a surrogate pair.
std::u16string_view characterAt(std::u16string_view text, std::int64_t offset) {
    const std::int64_t count = Ondo::Util::codeUnitCount(Ondo::Util::codePointAt(text, offset));
    return text.substr(static_cast<std::size_t>(offset), static_cast<std::size_t>(count));
}

void typeAll(Typist& typist, std::u16string_view text) {
    const auto length = static_cast<std::int64_t>(text.size());
    Progress progress("typing");
    for (std::int64_t at = 0; at < length;) {
        const std::u16string_view character = characterAt(text, at);
        typist.press({at, 0}, character);
        at += static_cast<std::int64_t>(character.size());
        progress.show(at, length);
    }
}

std::vector<Ondo::Range> paragraphs(const Ondo::Tree& tree) {
    std::vector<Ondo::Range> ranges;
    for (Ondo::Node::Iterator at(tree.root.get()); at.node; at.nextInSequence(true))
        if (at->type == Ondo::ONDO_PARAGRAPH_NODE) ranges.push_back({at.offset, at->charCount});
    return ranges;
}

/// The character in the middle of a paragraph.
Ondo::Range middleOf(const Ondo::Range& paragraph, std::u16string_view text) {
    const std::int64_t middle = paragraph.offset + paragraph.length / 2;
    const bool isPairBefore = middle > 0 && characterAt(text, middle - 1).size() == 2;
    const std::int64_t offset = isPairBefore ? middle - 1 : middle;
    return {offset, static_cast<std::int64_t>(characterAt(text, offset).size())};
}

/// Back from the last paragraph: deletes a character and types it again in one of every `every`.
void retype(Typist& typist, std::u16string_view text, std::int64_t every) {
    const std::vector<Ondo::Range> all = paragraphs(typist.tree());
    const auto count = static_cast<std::int64_t>(all.size());
    Progress progress("retyping");
    for (std::int64_t passed = 0; passed < count; passed += every) {
        const Ondo::Range range = middleOf(all[static_cast<std::size_t>(count - 1 - passed)], text);
        typist.press(CVNRange::of(range), {});
        typist.press({range.offset, 0}, characterAt(text, range.offset));
        progress.show(passed, count);
    }
}

} // namespace

Outcome type(const Options& options) {
    const std::u16string text = readNoteText(options);
    Typist typist(options);
    try {
        typeAll(typist, text);
        retype(typist, text, options.every);
    } catch (Mismatch& found) {
        return {{}, std::move(found.complaint), std::move(found.difference)};
    }
    return typist.result();
}

} // namespace Cli
