#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "corvane/client/CVNArchive.h"
#include "corvane/scan/Export.h"

/// A value for runs of a host's own whose constructs nest: how deep one lies, and which one it is there. The
/// runs of CVNAttributedString have none of this kind.
class CORVANE_EXPORT CVNNestableValue {
public:
    std::uint64_t level = 0;
    std::uint64_t index = 0;

    static CVNNestableValue nestedValueWithLevel(std::uint64_t level, std::uint64_t index);
    /// Null when a coding key is missing. Other keys don't matter.
    static std::optional<CVNNestableValue> initWithCoder(const CVNArchive& archive);
    void encodeWithCoder(CVNArchive& archive) const;

    /// By level, then by index: -1 when this one comes first, 0 when they are equal, else 1.
    int compare(const CVNNestableValue& other) const;
    bool operator==(const CVNNestableValue& other) const { return isEqual(other); }
    bool isEqual(const CVNNestableValue& other) const { return level == other.level && index == other.index; }
    /// Computed at the first call and kept, in copies too: a field that is set later does not change it.
    std::uint64_t hash() const;
    std::u16string description() const;

private:
    mutable std::uint64_t computedHash_ = 0; ///< 0 when not yet computed
};
