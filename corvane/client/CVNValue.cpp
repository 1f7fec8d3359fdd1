#include "corvane/client/CVNValue.h"

CVNValue CVNValue::string(std::u16string value) {
    return CVNValue(Data(std::make_shared<const std::u16string>(std::move(value))));
}

CVNValue CVNValue::array(CVNArray value) {
    return CVNValue(Data(std::make_shared<const CVNArray>(std::move(value))));
}

CVNValue CVNValue::dictionary(CVNDictionary value) {
    return CVNValue(Data(std::make_shared<const CVNDictionary>(std::move(value))));
}

CVNValue CVNValue::listInfo(const CVNListInfo& value) {
    return CVNValue(Data(std::make_shared<const CVNListInfo>(value)));
}

std::int64_t CVNValue::integerValue() const {
    if (const auto* number = std::get_if<std::int64_t>(&data_)) return *number;
    if (const auto* truth = std::get_if<bool>(&data_)) return *truth ? 1 : 0;
    // Beyond these limits the conversion would have no defined result.
    const double fraction = doubleValue();
    return fraction > -9.2e18 && fraction < 9.2e18 ? static_cast<std::int64_t>(fraction) : 0;
}

double CVNValue::doubleValue() const {
    if (const auto* fraction = std::get_if<double>(&data_)) return *fraction;
    if (const auto* number = std::get_if<std::int64_t>(&data_)) return static_cast<double>(*number);
    return std::get_if<bool>(&data_) && *std::get_if<bool>(&data_) ? 1 : 0;
}

std::u16string_view CVNValue::stringValue() const {
    const auto* string = shared<std::u16string>();
    return string ? std::u16string_view(*string) : std::u16string_view();
}

const CVNArray* CVNValue::arrayValue() const {
    return shared<CVNArray>();
}

const CVNDictionary* CVNValue::dictionaryValue() const {
    return shared<CVNDictionary>();
}

const CVNListInfo* CVNValue::listInfoValue() const {
    return shared<CVNListInfo>();
}

namespace {

/// What two pointers of the same kind point to.
template <class T>
bool equal(const T* a, const T* b) {
    return a == b || *a == *b;
}

} // namespace

bool CVNValue::operator==(const CVNValue& other) const {
    if (kind() != other.kind()) return false;
    switch (kind()) {
    case Kind::String:
        return stringValue() == other.stringValue();
    case Kind::Array:
        return equal(arrayValue(), other.arrayValue());
    case Kind::Dictionary:
        return equal(dictionaryValue(), other.dictionaryValue());
    case Kind::ListInfo:
        return equal(listInfoValue(), other.listInfoValue());
    default:
        return data_ == other.data_;
    }
}
