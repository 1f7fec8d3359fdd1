#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>

#include "corvane/scan/Export.h"
#include "corvane/tree/Range.h"

namespace Ondo {

/// The text of a document, with a gap that moves to where it is edited: a keystroke moves no more text than
/// lies between it and the last one, however long the note is.
///
/// Reading a stretch across the gap moves the gap first. Views are valid until the next edit or the next read
/// that moves it: keep one view of what you need, or take all().
class CORVANE_EXPORT TextBuffer {
public:
    TextBuffer() = default;
    explicit TextBuffer(std::u16string text) : units_(std::move(text)) { gapStart_ = size(); }
    /// A buffer that was moved from is empty.
    TextBuffer(TextBuffer&& other) noexcept { *this = std::move(other); }
    TextBuffer& operator=(TextBuffer&& other) noexcept;
    TextBuffer(const TextBuffer&) = default;
    TextBuffer& operator=(const TextBuffer&) = default;

    std::int64_t size() const { return static_cast<std::int64_t>(units_.size()) - gapLength_; }
    std::int64_t length() const { return size(); }
    bool empty() const { return size() == 0; }
    char16_t operator[](std::int64_t offset) const { return units_[index(offset)]; }

    /// The range must lie within the text. `replacement` may be a view of this very text.
    void replace(const Range& range, std::u16string_view replacement);

    /// The text from `offset`, which must lie in the text as a whole.
    std::u16string_view slice(std::int64_t offset, std::int64_t length) const;
    std::u16string_view all() const { return slice(0, size()); }

private:
    std::size_t index(std::int64_t offset) const {
        return static_cast<std::size_t>(offset < gapStart_ ? offset : offset + gapLength_);
    }
    bool isOwn(std::u16string_view view) const;
    void moveGap(std::int64_t to) const;
    void growGap(std::int64_t needed);

    mutable std::u16string units_;
    mutable std::int64_t gapStart_ = 0;
    std::int64_t gapLength_ = 0;
};

} // namespace Ondo
