#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>

#include "corvane/scan/Export.h"

/// A value in keyed form: integers under names, which a host writes in whatever format it likes.
///
/// All 64 bits of a number must come back as they were: an unsigned one from 2^63 on stands here as the
/// negative number of the same bits.
class CORVANE_EXPORT CVNArchive {
public:
    /// In place of what stands under the key.
    void encode(std::u16string_view key, std::int64_t value);
    /// Null when nothing was encoded under the key.
    std::optional<std::int64_t> decode(std::u16string_view key) const;
    /// All fields, sorted by key.
    const std::map<std::u16string, std::int64_t, std::less<>>& fields() const { return fields_; }

private:
    std::map<std::u16string, std::int64_t, std::less<>> fields_;
};
