#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "corvane/client/CVNListInfo.h"
#include "corvane/scan/Export.h"

class CVNValue;
using CVNDictionary = std::map<std::u16string, CVNValue, std::less<>>;
using CVNArray = std::vector<CVNValue>;

/// The value of an attribute run: a number, a string, a dictionary or list information. Arrays, fractions and
/// null stand only inside dictionaries that came from JSON.
///
/// Immutable, but for the hash that list information keeps, and cheap to copy. Values of different kinds are
/// unequal, `true` and 1 too; all others compare by content.
class CORVANE_EXPORT CVNValue {
public:
    enum class Kind : std::uint8_t { Null, Integer, Boolean, Double, String, Array, Dictionary, ListInfo };

    CVNValue() = default; ///< null
    static CVNValue integer(std::int64_t value) { return CVNValue(Data(value)); }
    static CVNValue boolean(bool value) { return CVNValue(Data(value)); }
    static CVNValue real(double value) { return CVNValue(Data(value)); }
    static CVNValue string(std::u16string value);
    static CVNValue array(CVNArray value);
    static CVNValue dictionary(CVNDictionary value);
    static CVNValue listInfo(const CVNListInfo& value);

    Kind kind() const { return static_cast<Kind>(data_.index()); }
    bool isString() const { return kind() == Kind::String; }

    /// The number, 1 for true, a fraction without its digits behind the point; 0 for other kinds.
    std::int64_t integerValue() const;
    double doubleValue() const;
    bool booleanValue() const { return integerValue() != 0; }
    /// Empty for other kinds. Valid as long as a copy of the value lives, as are the pointers below, which
    /// are null for other kinds.
    std::u16string_view stringValue() const;
    const CVNArray* arrayValue() const;
    const CVNDictionary* dictionaryValue() const;
    const CVNListInfo* listInfoValue() const;

    bool operator==(const CVNValue& other) const;

private:
    using Data = std::variant<std::monostate, std::int64_t, bool, double,
                              std::shared_ptr<const std::u16string>, std::shared_ptr<const CVNArray>,
                              std::shared_ptr<const CVNDictionary>, std::shared_ptr<const CVNListInfo>>;

    explicit CVNValue(Data data) : data_(std::move(data)) {}
    template <class T>
    const T* shared() const {
        const auto* pointer = std::get_if<std::shared_ptr<const T>>(&data_);
        return pointer ? pointer->get() : nullptr;
    }

    Data data_;
};
