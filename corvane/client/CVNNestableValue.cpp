#include "corvane/client/CVNNestableValue.h"

#include <tuple>

#include "corvane/client/ValueText.h"

namespace {

using CVN::ValueText::unsignedString;

constexpr std::u16string_view levelKey = u"level";
constexpr std::u16string_view indexKey = u"index";

} // namespace

CVNNestableValue CVNNestableValue::nestedValueWithLevel(std::uint64_t level, std::uint64_t index) {
    CVNNestableValue value;
    value.level = level;
    value.index = index;
    return value;
}

std::optional<CVNNestableValue> CVNNestableValue::initWithCoder(const CVNArchive& archive) {
    const std::optional<std::int64_t> level = archive.decode(levelKey);
    const std::optional<std::int64_t> index = archive.decode(indexKey);
    if (!level || !index) return std::nullopt;
    return nestedValueWithLevel(static_cast<std::uint64_t>(*level), static_cast<std::uint64_t>(*index));
}

void CVNNestableValue::encodeWithCoder(CVNArchive& archive) const {
    archive.encode(levelKey, static_cast<std::int64_t>(level));
    archive.encode(indexKey, static_cast<std::int64_t>(index));
}

int CVNNestableValue::compare(const CVNNestableValue& other) const {
    if (isEqual(other)) return 0;
    return std::tie(level, index) < std::tie(other.level, other.index) ? -1 : 1;
}

std::uint64_t CVNNestableValue::hash() const {
    if (computedHash_ == 0) computedHash_ = CVN::ValueText::hashOf(level, index);
    return computedHash_;
}

std::u16string CVNNestableValue::description() const {
    return u"Level: " + unsignedString(level) + u" Index: " + unsignedString(index);
}
