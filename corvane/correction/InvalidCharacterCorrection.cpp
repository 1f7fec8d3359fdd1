#include "corvane/correction/InvalidCharacterCorrection.h"

#include <algorithm>
#include <utility>

#include "corvane/correction/EditEdges.h"

namespace CVN::Correction {

using Operation::Result;

namespace {

constexpr std::u16string_view invalid(u"\r\0", 2);

/// The text without what is invalid, and the edges of a selection, moved back by the units before them that
/// have gone.
struct Cleaned {
    std::u16string text;
    std::int64_t start;
    std::int64_t end;
};

Cleaned cleaned(std::u16string_view text, std::int64_t start, std::int64_t end) {
    Cleaned out{{}, start, end};
    out.text.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool isPair = text[i] == u'\r' && i + 1 < text.size() && text[i + 1] == u'\n';
        if (isPair) ++i;
        if (text[i] != u'\0') out.text += text[i] == u'\r' ? u'\n' : text[i];
        if (!isPair && text[i] != u'\0') continue;
        if (static_cast<std::int64_t>(i) < start) --out.start;
        if (static_cast<std::int64_t>(i) < end) --out.end;
    }
    return out;
}

} // namespace

std::vector<Result> InvalidCharacterCorrection::process(std::int64_t offset, std::int64_t length,
                                                        std::u16string_view text,
                                                        std::int64_t selectionOffset,
                                                        std::int64_t selectionLength) {
    if (text.find_first_of(invalid) == std::u16string_view::npos) return {};
    const std::int64_t start = selectionOffset - offset;
    Cleaned clean = cleaned(text, start, start + selectionLength);
    return {Result(offset, length, std::move(clean.text), offset + clean.start, clean.end - clean.start)};
}

std::vector<Result> InvalidCharacterCorrection::run(const Ondo::Tree& tree, std::int64_t offset,
                                                    std::int64_t length, std::u16string_view replacement,
                                                    std::int64_t selectionOffset,
                                                    std::int64_t selectionLength) const {
    const std::int64_t textLength = tree.length() - length + static_cast<std::int64_t>(replacement.size());
    const Ondo::Range selection = clampedTo(textLength, selectionOffset, selectionLength);
    return process(offset, length, replacement, selection.offset, selection.length);
}

std::vector<Result> InvalidCharacterCorrection::correctionsForInitialString(std::u16string_view text) {
    std::vector<Result> results = process(0, 0, text, 0, 0);
    if (results.empty()) return {};
    std::u16string& clean = results.front().replacementString;
    const auto shared = std::mismatch(text.begin(), text.end(), clean.begin(), clean.end());
    const auto prefix = shared.first - text.begin();
    const auto suffix =
        std::mismatch(text.rbegin(), text.rend() - prefix, clean.rbegin(), clean.rend() - prefix).first -
        text.rbegin();
    const auto size = static_cast<std::int64_t>(text.size());
    clean = clean.substr(static_cast<std::size_t>(prefix),
                         clean.size() - static_cast<std::size_t>(prefix + suffix));
    return {Result(prefix, size - prefix - suffix, std::move(clean), 0, 0)};
}

} // namespace CVN::Correction
