#include "corvane/client/CVNArchive.h"

void CVNArchive::encode(std::u16string_view key, std::int64_t value) {
    fields_.insert_or_assign(std::u16string(key), value);
}

std::optional<std::int64_t> CVNArchive::decode(std::u16string_view key) const {
    const auto field = fields_.find(key);
    if (field == fields_.end()) return std::nullopt;
    return field->second;
}
