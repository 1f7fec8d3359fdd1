#include "corvane/tree/TextBuffer.h"

#include <algorithm>
#include <functional>

namespace Ondo {

TextBuffer& TextBuffer::operator=(TextBuffer&& other) noexcept {
    units_ = std::exchange(other.units_, {});
    gapStart_ = std::exchange(other.gapStart_, 0);
    gapLength_ = std::exchange(other.gapLength_, 0);
    return *this;
}

void TextBuffer::moveGap(std::int64_t to) const {
    char16_t* const data = units_.data();
    if (to < gapStart_)
        std::copy_backward(data + to, data + gapStart_, data + gapStart_ + gapLength_);
    else
        std::copy(data + gapStart_ + gapLength_, data + to + gapLength_, data + gapStart_);
    gapStart_ = to;
}

void TextBuffer::growGap(std::int64_t needed) {
    if (gapLength_ >= needed) return;
    // In proportion to the text, so that typing a long note costs amortised constant time.
    constexpr std::int64_t least = 64;
    const std::int64_t added = needed - gapLength_ + std::max(least, size() / 8);
    units_.insert(static_cast<std::size_t>(gapStart_), static_cast<std::size_t>(added), u'\0');
    gapLength_ += added;
}

bool TextBuffer::isOwn(std::u16string_view view) const {
    const std::less<> before;
    return !view.empty() && !before(view.data(), units_.data()) &&
           before(view.data(), units_.data() + units_.size());
}

void TextBuffer::replace(const Range& range, std::u16string_view replacement) {
    if (isOwn(replacement)) return replace(range, std::u16string(replacement));
    const auto inserted = static_cast<std::int64_t>(replacement.size());
    moveGap(range.offset);
    gapLength_ += range.length;
    growGap(inserted);
    replacement.copy(units_.data() + gapStart_, replacement.size());
    gapStart_ += inserted;
    gapLength_ -= inserted;
}

std::u16string_view TextBuffer::slice(std::int64_t offset, std::int64_t length) const {
    if (offset < gapStart_ && offset + length > gapStart_) moveGap(offset + length);
    return {units_.data() + index(offset), static_cast<std::size_t>(length)};
}

} // namespace Ondo
