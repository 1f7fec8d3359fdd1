#include "FoldedText.h"

#include "corvane/scan/Util.h"

namespace Cli {

namespace {

/// Accents go first: the case folding of a letter that has some may be several characters.
std::u16string foldedCharacter(char32_t c) {
    using namespace Ondo;
    return Util::downcaseUnicode(Util::widthFolding(Util::diacriticFolding(Util::utf16(c))));
}

} // namespace

std::vector<std::int64_t> FoldedText::inOriginal(const std::vector<std::int64_t>& indexes) const {
    std::vector<std::int64_t> original;
    original.reserve(indexes.size());
    for (const std::int64_t index : indexes) {
        const std::int64_t offset = offsets[static_cast<std::size_t>(index)];
        if (original.empty() || original.back() != offset) original.push_back(offset);
    }
    return original;
}

FoldedText folded(std::u16string_view original) {
    FoldedText result;
    result.text.reserve(original.size());
    result.offsets.reserve(original.size());
    const auto length = static_cast<std::int64_t>(original.size());
    for (std::int64_t at = 0; at < length;) {
        const char32_t c = Ondo::Util::codePointAt(original, at);
        if (c < 0x80)
            result.text += Ondo::Util::downcaseAscii(static_cast<char16_t>(c));
        else
            result.text += foldedCharacter(c);
        result.offsets.resize(result.text.size(), at);
        at += Ondo::Util::codeUnitCount(c);
    }
    return result;
}

CVN::FuzzyMatch foldedSearch(std::u16string_view foldedPattern, std::u16string_view text) {
    const FoldedText line = folded(text);
    CVN::FuzzyMatch match = CVN::fuzzySearch(foldedPattern, line.text);
    match.indexes = line.inOriginal(match.indexes);
    return match;
}

} // namespace Cli
